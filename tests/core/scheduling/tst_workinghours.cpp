#include "core/scheduling/Catalogue.h"
#include "core/scheduling/ScheduleTableModel.h"
#include "core/scheduling/WorkingHours.h"
#include "core/scheduling/WorkingSchedule.h"
#include "support/FolderTest.h"
#include "support/Launched.h"

#include <QSignalSpy>
#include <QTime>

using namespace lullet;
using namespace lullet::test;

class TestWorkingHours : public FolderTest {
    Q_OBJECT
    QString conf() const { return path(QStringLiteral("Lullet.conf")); }

private Q_SLOTS:
    void theFirstScheduleIsMondayToFridayNineToSix()
    {
        const FakeClock clock(at(2026, 11, 23, 14, 0));
        Settings settings(conf());
        WorkingSchedule schedule(settings, clock);
        const auto& list = schedule.days();
        QCOMPARE(list.size(), std::size_t(7));
        for (const ScheduleInfo& info : list) {
            QCOMPARE(info.isDaySelected, info.day >= 2 && info.day <= 6);
            QCOMPARE(info.startTime->hour(), 9);
            QCOMPARE(info.endTime->hour(), 18);
            QCOMPARE(info.endTime->minute(), 0);
        }
        QVERIFY(settings.contains(SettingsKeys::schedules));

        // What was saved comes back in the next run.
        schedule.days()[1].isDaySelected = false;
        schedule.days()[1].startTime = at(2026, 11, 20, 7, 45);
        schedule.save();
        WorkingSchedule next(settings, clock);
        QCOMPARE(next.entriesFor(2).size(), std::size_t(1));
        QVERIFY(!next.entriesFor(2).front()->isDaySelected);
        QCOMPARE(next.entriesFor(2).front()->startTime->minute(), 45);
    }

    void anUnusableArchiveFallsBackAndIsRewritten_data()
    {
        QTest::addColumn<QByteArray>("archive");
        QTest::newRow("not JSON") << QByteArray("\x01\x02garbage");
        QTest::newRow("five days")
            << QByteArray(R"([{"day":1},{"day":2},{"day":3},{"day":4},{"day":5}])");
        QTest::newRow("no days") << QByteArray(R"([{"start":1},{},{},{},{},{},{}])");
    }

    void anUnusableArchiveFallsBackAndIsRewritten()
    {
        QFETCH(QByteArray, archive);
        const FakeClock clock(at(2026, 11, 23, 14, 0));
        Settings settings(conf());
        settings.setValue(SettingsKeys::schedules, archive);
        WorkingSchedule schedule(settings, clock);
        QCOMPARE(schedule.days().size(), std::size_t(7));
        QCOMPARE(ScheduleInfo::unarchive(settings.data(SettingsKeys::schedules)).size(),
                 std::size_t(7));
        // What could not be read is kept aside, and told once.
        QCOMPARE(settings.data(SettingsKeys::schedulesUnreadable), archive);
        QVERIFY(schedule.takeReplacedNotice());
        QVERIFY(!schedule.takeReplacedNotice());
    }

    void hoursAreStrictAtBothEnds_data()
    {
        QTest::addColumn<Date>("launch");
        QTest::addColumn<Date>("moment");
        QTest::addColumn<bool>("inside");
        const Date monday = at(2026, 11, 23, 8, 0);
        const Date friday = at(2026, 11, 27, 8, 0);
        QTest::newRow("at the start") << monday << at(2026, 11, 23, 9, 0, 0) << false;
        QTest::newRow("a second later") << monday << at(2026, 11, 23, 9, 0, 1) << true;
        QTest::newRow("a second before the end") << monday << at(2026, 11, 23, 17, 59, 59) << true;
        QTest::newRow("at the end") << monday << at(2026, 11, 23, 18, 0) << false;
        QTest::newRow("Sunday is off") << at(2026, 11, 22, 8) << at(2026, 11, 22, 12) << false;
        // A run from Friday over the weekend keeps Friday's hours on Friday's date.
        QTest::newRow("Friday's run on Friday") << friday << at(2026, 11, 27, 12, 0) << true;
        QTest::newRow("Friday's run on Saturday") << friday << at(2026, 11, 28, 12, 0) << false;
        QTest::newRow("Friday's run on Monday") << friday << at(2026, 11, 30, 12, 0) << false;
        // Saturday's launch tests Saturday, off, even on Monday morning.
        QTest::newRow("Saturday's run on Monday")
            << at(2026, 11, 28, 23, 0) << at(2026, 11, 30, 10, 0) << false;
    }

    void hoursAreStrictAtBothEnds()
    {
        QFETCH(Date, launch);
        QFETCH(Date, moment);
        QFETCH(bool, inside);
        const FakeClock clock(launch);
        Settings settings(conf());
        WorkingSchedule schedule(settings, clock);
        const WorkingHours hours(schedule, launch);
        QCOMPARE(hours.isWorkingTime(moment), inside);
    }

    void timesLandOnTheDayOfLaunch()
    {
        const Date launch = at(2026, 11, 23, 8, 0, 0);
        const FakeClock clock(launch);
        Settings settings(conf());
        WorkingSchedule schedule(settings, clock);
        const WorkingHours hours(schedule, launch);
        QCOMPARE(hours.onLaunchDay(at(2025, 2, 3, 14, 35, 50)), at(2026, 11, 23, 14, 35));

        // A start after the end makes every moment fall outside.
        for (ScheduleInfo& info : schedule.days()) {
            info.startTime = at(2026, 1, 1, 19, 0);
            info.endTime = at(2026, 1, 1, 8, 0);
        }
        QVERIFY(!hours.isWorkingTime(at(2026, 11, 23, 12, 0)));
    }

    void theEditorTableMovesTheSuggestions()
    {
        Launched app(folder(), at(2026, 11, 23, 7, 0));
        QVERIFY(app.open());
        Catalogue& catalogue = app.services().catalogue;
        ScheduleTableModel model(app.clock, app.services().schedule, catalogue);
        QCOMPARE(model.rowCount(), 7);
        QCOMPARE(model.data(model.index(0, ScheduleTableModel::DayColumn)).toString(),
                 QStringLiteral("Sunday"));
        QCOMPARE(model.data(model.index(1, ScheduleTableModel::SelectedColumn), Qt::CheckStateRole)
                     .value<Qt::CheckState>(),
                 Qt::Checked);

        const auto water = [&] {
            for (const CatalogueRowPtr& row : catalogue.rows()) {
                if (row->title == QStringLiteral("Water time"))
                    return row->notes2;
            }
            return QString();
        };
        const QString before = water();
        QVERIFY2(before.contains(QStringLiteral("10:00")), qPrintable(before));
        QSignalSpy changes(&catalogue, &Catalogue::suggestionsChanged);
        QVERIFY(model.setData(model.index(1, ScheduleTableModel::StartColumn), QTime(11, 30)));
        QCOMPARE(model.data(model.index(1, ScheduleTableModel::StartColumn)).toTime(),
                 QTime(11, 30));
        const QString after = water();
        QVERIFY2(after.contains(QStringLiteral("12:30")), qPrintable(after));
        QCoreApplication::processEvents();
        QCOMPARE(changes.count(), 1);

        QVERIFY(model.setData(model.index(1, ScheduleTableModel::SelectedColumn), Qt::Unchecked,
                              Qt::CheckStateRole));
        QVERIFY(!app.services().schedule.entriesFor(2).front()->isDaySelected);
        QVERIFY(!model.setData(model.index(1, ScheduleTableModel::DayColumn), 3));
    }
};

LULLET_TEST_MAIN(TestWorkingHours)
#include "tst_workinghours.moc"
