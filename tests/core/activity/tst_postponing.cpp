#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

class TestPostponing : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 25, 9, 0); }

private Q_SLOTS:
    void theEvening_data()
    {
        QTest::addColumn<Date>("now");
        QTest::addColumn<Date>("expected");
        QTest::addColumn<QString>("label");
        QTest::newRow("at 18:00") << at(2026, 11, 25, 18, 0) << at(2026, 11, 25, 19, 0)
                                  << QStringLiteral("This evening");
        QTest::newRow("at 20:00") << at(2026, 11, 25, 20, 0) << at(2026, 11, 26, 19, 0)
                                  << QStringLiteral("Tomorrow eve");
        QTest::newRow("at 19:00:00")
            << at(2026, 11, 25, 19, 0) << at(2026, 11, 25, 19, 0) << QStringLiteral("This evening");
    }

    void theEvening()
    {
        QFETCH(Date, now);
        QFETCH(Date, expected);
        QFETCH(QString, label);
        const FakeClock clock(now);
        QCOMPARE(Postponing::dateFor(Postponing::ThisEvening, now, clock),
                 std::optional<Date>(expected));
        QCOMPARE(Postponing::eveningLabel(now, clock), label);
        // Counted from a base that is not today, the captions say "next".
        const Date yesterday = now.dateBySubtractingDays(1).setTimeOfDate(21, 0, 0);
        QCOMPARE(Postponing::eveningLabel(yesterday, clock), QStringLiteral("Next evening"));
        QCOMPARE(Postponing::nextDayLabel(yesterday, clock), QStringLiteral("Next day"));
        QCOMPARE(Postponing::nextDayLabel(now, clock), QStringLiteral("Tomorrow"));
    }

    void theNamedChoices()
    {
        const Date wednesday = at(2026, 11, 25, 22, 30);
        const FakeClock clock(wednesday);
        const auto dateFor = [&](int choice) {
            return Postponing::dateFor(choice, wednesday, clock);
        };
        QCOMPARE(*dateFor(Postponing::InThreeHours), at(2026, 11, 26, 1, 30));
        QCOMPARE(*dateFor(Postponing::Tomorrow), at(2026, 11, 26, 9, 0));
        QCOMPARE(*dateFor(Postponing::InTwoDays), at(2026, 11, 27, 9, 0));
        QCOMPARE(Postponing::inTwoDaysLabel(wednesday), QStringLiteral("Friday"));
        QCOMPARE(*dateFor(Postponing::ThisWeekend), at(2026, 11, 28, 10, 0));
        QCOMPARE(Postponing::weekendLabel(wednesday), QStringLiteral("This weekend"));
        QCOMPARE(*dateFor(Postponing::NextWeek), at(2026, 11, 30, 9, 0));
        QCOMPARE(*dateFor(Postponing::NextMonth), at(2026, 12, 25, 22, 30));
        for (const int none :
             {int(Postponing::NoDate), int(Postponing::Cancel), int(Postponing::PickDate), 42})
            QVERIFY(!dateFor(none));
    }

    void theWeekendAtTheEndOfTheWeek_data()
    {
        // Each row is reckoned in the locale its name starts with.
        QTest::addColumn<Date>("now");
        QTest::addColumn<Date>("expected");
        QTest::addColumn<QString>("label");
        // The last day of the week, early: its 10:00 is less than a day ahead, so next week's.
        QTest::newRow("en_US Saturday 08:00")
            << at(2026, 11, 28, 8, 0) << at(2026, 12, 5, 10, 0) << QStringLiteral("Next weekend");
        QTest::newRow("en_US Friday 09:00")
            << at(2026, 11, 27, 9, 0) << at(2026, 11, 28, 10, 0) << QStringLiteral("This weekend");
        QTest::newRow("de_DE Saturday 08:00")
            << at(2026, 11, 28, 8, 0) << at(2026, 11, 29, 10, 0) << QStringLiteral("This weekend");
        QTest::newRow("de_DE Sunday 08:00")
            << at(2026, 11, 29, 8, 0) << at(2026, 12, 6, 10, 0) << QStringLiteral("Next weekend");
    }

    void theWeekendAtTheEndOfTheWeek()
    {
        QFETCH(Date, now);
        QFETCH(Date, expected);
        QFETCH(QString, label);
        CalendarContext::setLocale(QString::fromLatin1(QTest::currentDataTag()).left(5));
        const FakeClock clock(now);
        QCOMPARE(*Postponing::dateFor(Postponing::ThisWeekend, now, clock), expected);
        QCOMPARE(Postponing::weekendLabel(now), label);
    }

    void thePanelAndTheMenuWriteTheEffectiveDate()
    {
        Item* item = app().addItem(QStringLiteral("Call"), at(2026, 11, 20, 8, 0));
        item->setDtReminderPostponed(at(2026, 11, 25, 15, 0));
        Postponing& postponing = services().postponing;
        QSignalSpy heard(&library(), &Library::itemPostponed);

        // From the item's own time today, but at the present hour and minute.
        QVERIFY(postponing.chooseInPanel(item, Postponing::InThreeHours));
        QCOMPARE(*item->dtReminderPostponed(), at(2026, 11, 25, 12, 0));
        QCOMPARE(*item->dtReminder(), at(2026, 11, 20, 8, 0));
        QVERIFY(!app().context().hasChanges());
        QCOMPARE(heard.count(), 1);

        QVERIFY(!postponing.chooseInPanel(item, Postponing::Cancel));
        QVERIFY(!postponing.chooseInPanel(item, Postponing::PickDate));
        QCOMPARE(heard.count(), 1);

        // The menu ignores the item's date: tomorrow morning is the morning after today.
        item->setDtReminderPostponed(at(2026, 12, 24, 15, 0));
        postponing.chooseInMenu(item, Postponing::Tomorrow);
        QCOMPARE(*item->dtReminderPostponed(), at(2026, 11, 26, 9, 0));
        postponing.chooseInMenu(item, Postponing::NoDate);
        QCOMPARE(heard.count(), 2);

        postponing.postponeTo(item, at(2026, 12, 1, 7, 45));
        QCOMPARE(*item->dtReminderPostponed(), at(2026, 12, 1, 7, 45));

        QVERIFY(postponing.chooseInPanel(item, Postponing::NoDate));
        QVERIFY(!item->dtReminder() && !item->dtReminderPostponed());
        QCOMPARE(heard.count(), 4);
        QCOMPARE(heard.front().front().value<Item*>(), item);
    }
};

LULLET_TEST_MAIN(TestPostponing)
#include "tst_postponing.moc"
