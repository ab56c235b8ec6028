#include "core/presentation/ProjectChoices.h"
#include "core/presentation/QuickAddForm.h"
#include "support/DesktopTest.h"
#include "ui/authoring/DateChooser.h"
#include "ui/authoring/QuickAddView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

using namespace lullet;
using namespace lullet::test;

class TestQuickAdd : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 15, 30); }

    QuickAddForm form() { return QuickAddForm(clock(), library()); }

private Q_SLOTS:
    void aTaskIsDueTenMinutesAfterTheFormOpened()
    {
        QuickAddForm quick = form();
        QCOMPARE(quick.dateLabel(), QStringLiteral("23 Nov 2026"));
        QVERIFY(quick.timeLabel().startsWith(QStringLiteral("at 10:25")));
        QCOMPARE(ProjectChoices(library(), QStringLiteral("No Project")).titles(),
                 QStringList{QStringLiteral("No Project")});
        clock().advance(120);
        QVERIFY(!quick.add(QStringLiteral("  "), nullptr));
        Item* item = quick.add(QStringLiteral("buy milk"), nullptr);
        QVERIFY(item);
        QCOMPARE(*item->title(), QStringLiteral("Buy milk"));
        QCOMPARE(*item->dtReminder(), at(2026, 11, 23, 10, 25, 30));
        QVERIFY(*item->shouldRemind());
        QCOMPARE(*item->uniqueId(), QStringLiteral("<to make>"));
        QCOMPARE(*item->durationMin(), 0);
        QVERIFY(!item->toProject());
        QVERIFY(!app().context().hasChanges());
        QCOMPARE(library().items().size(), std::size_t(1));
    }

    void noDateAndAProject()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        QCOMPARE(ProjectChoices(library(), QStringLiteral("No Project")).indexOf(home), 1);
        QuickAddForm quick = form();
        quick.setDate(std::nullopt);
        QCOMPARE(quick.dateLabel() + u' ' + quick.timeLabel(), QStringLiteral("No date"));
        QCOMPARE(quick.chooserStart(), at(2026, 11, 23, 10, 25, 30));
        QSignalSpy contentChanged(&library(), &Library::projectContentChanged);
        Item* item = quick.add(QStringLiteral("Fix the tap"), home);
        QVERIFY(!item->dtReminder());
        QVERIFY(!*item->shouldRemind());
        QCOMPARE(item->toProject(), home);
        QCOMPARE(contentChanged.count(), 1);
    }

    void eachFormTakesOnlyItsOwnDates()
    {
        QuickAddView window(services());
        QuickAddView bar(services());
        QSignalSpy added(&window, &QuickAddView::added);
        child<QPushButton>(&window, "chooseDate")->click();
        auto* chooser = child<DateChooser>(&window);
        Q_EMIT chooser->chosen(at(2026, 11, 24, 8, 0));
        QCOMPARE(*window.form().date(), at(2026, 11, 24, 8, 0));
        QCOMPARE(*bar.form().date(), at(2026, 11, 23, 10, 25, 30));
        window.nameField()->setText(QStringLiteral("call mum"));
        child<QPushButton>(&window, "add")->click();
        QCOMPARE(added.count(), 1);
        QCOMPARE(*library().items().front()->dtReminder(), at(2026, 11, 24, 8, 0));
    }

    void aFormUsedAfreshIsDueTenMinutesFromThen()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        QuickAddView bar(services());
        clock().advance(2 * 3600);
        bar.reset(home);
        bar.nameField()->setText(QStringLiteral("water plants"));
        // The duration chosen is the task's.
        bar.findChild<QComboBox*>(QStringLiteral("duration"))->setCurrentIndex(12);
        bar.add();
        const Item* item = library().items().front();
        QCOMPARE(*item->dtReminder(), at(2026, 11, 23, 12, 25, 30));
        QCOMPARE(item->toProject(), home);
        QCOMPARE(item->plannedSeconds(), 30 * 60);
    }

    // Digits typed into the time field set the time; Escape puts the quick add away.
    void theChooserTakesATypedTime()
    {
        QuickAddView window(services());
        window.show();
        QSignalSpy dismissed(&window, &QuickAddView::dismissed);
        child<QPushButton>(&window, "chooseDate")->click();
        auto* chooser = child<DateChooser>(&window);
        auto* time = child<QTimeEdit>(chooser, "time");
        auto* field = child<QLineEdit>(time);
        QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(4, field->height() / 2));
        QCoreApplication::processEvents();
        QTest::keyClicks(time, QStringLiteral("0845"));
        QCOMPARE(time->time(), QTime(8, 45));
        child<QPushButton>(chooser, "set")->click();
        QCOMPARE(window.form().date()->hour(), 8);
        QCOMPARE(window.form().date()->minute(), 45);
        QTest::keyClick(window.nameField(), Qt::Key_Escape);
        QCOMPARE(dismissed.count(), 1);
    }

    // Opened near the bottom right corner of the screen, the chooser lies wholly on it; Return
    // chooses the date from the time field as from the calendar, and on "No date" presses it.
    void theChooserIsOnScreenAndReturnChooses()
    {
        QuickAddView window(app().services());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* button = window.findChild<QPushButton*>(QStringLiteral("chooseDate"));
        const QRect area = window.screen()->availableGeometry();
        window.move(area.right() - window.frameGeometry().width(),
                    area.bottom() - window.frameGeometry().height());
        QTRY_VERIFY(area.contains(window.frameGeometry()));
        button->click();
        auto* chooser = window.findChild<DateChooser*>();
        QVERIFY(chooser && chooser->isVisible());
        QVERIFY(area.contains(chooser->frameGeometry()));

        auto* time = chooser->findChild<QTimeEdit*>(QStringLiteral("time"));
        time->setTime(QTime(7, 5));
        QTest::keyClick(time, Qt::Key_Return);
        QVERIFY(!chooser->isVisible());
        QCOMPARE(*window.form().date(), at(2026, 11, 23, 7, 5));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        button->click();
        chooser = window.findChild<DateChooser*>();
        QTest::keyClick(chooser->findChild<QPushButton*>(QStringLiteral("noDate")), Qt::Key_Return);
        QVERIFY(!window.form().date());
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestQuickAdd)
#include "tst_quickadd.moc"
