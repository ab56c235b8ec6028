#include "support/Asking.h"
#include "support/DesktopTest.h"
#include "ui/authoring/RuleFormView.h"
#include "ui/main/MainView.h"
#include "ui/main/PostponePanel.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/shell/LoginPage.h"
#include "ui/shell/WindowContent.h"
#include "ui/widgets/CircularProgress.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

using namespace lullet;
using namespace lullet::test;

namespace {

bool isInteractive(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QAbstractSlider*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QAbstractItemView*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

QString describe(const QWidget* widget)
{
    QStringList path;
    for (const QWidget* w = widget; w; w = w->parentWidget())
        path.prepend(QString::fromLatin1(w->metaObject()->className()) +
                     (w->objectName().isEmpty() ? QString() : u'#' + w->objectName()));
    return path.join(QStringLiteral(" > "));
}

// Every control a screen reader reaches in these windows, told by what it shows or by the name
// it was given; those it could only call "button" are listed.
QStringList unnamedControls(const QList<QWidget*>& windows)
{
    QStringList unnamed;
    for (QWidget* window : windows) {
        QList<QWidget*> widgets = window->findChildren<QWidget*>();
        widgets.prepend(window);
        for (QWidget* widget : widgets) {
            // The editors inside a combo box or a spin box are read as their owners.
            const QWidget* owner = widget->parentWidget();
            if (qobject_cast<const QComboBox*>(owner) ||
                qobject_cast<const QAbstractSpinBox*>(owner))
                continue;
            const bool progress = qobject_cast<const CircularProgress*>(widget);
            if (!widget->isVisibleTo(window) ||
                !(progress || (isInteractive(widget) && widget->focusPolicy() != Qt::NoFocus)))
                continue;
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            if (!accessible || accessible->text(QAccessible::Name).trimmed().isEmpty()) {
                unnamed << describe(widget);
                continue;
            }
            // What shows no text of its own is also described: a picture says nothing.
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            if ((progress || (button && button->text().isEmpty())) &&
                accessible->text(QAccessible::Description).trimmed().isEmpty())
                unnamed << describe(widget) + QStringLiteral(" (no description)");
        }
    }
    return unnamed;
}

QList<QWidget*> shownWindows()
{
    QList<QWidget*> shown;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            shown << widget;
    }
    return shown;
}

} // namespace

// Each window, view and prompt walked as a screen reader would.
class TestAccessibility : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

private Q_SLOTS:
    void init()
    {
        DesktopTest::init();
        app().addItem(QStringLiteral("Walk"), at(2026, 11, 23, 11, 0));
    }

    void cleanup()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            window->hide();
        DesktopTest::cleanup();
    }

    void everyViewOfTheWindowNamesItsControls()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        app().addItem(QStringLiteral("Fix the tap"), at(2026, 11, 24, 9, 0))->setToProject(home);
        ShellWindows ui(app());
        ui.shell.bringMainWindowForward();
        MainView* main = ui.shell.content()->mainView();
        QStringList unnamed;
        for (const Segment segment : Segments::sidebar) {
            main->showSegment(segment);
            unnamed << unnamedControls({&ui.window});
        }
        main->showProjectNamed(QStringLiteral("Home"));
        unnamed << unnamedControls({&ui.window});
        main->showQuickAddBar();
        unnamed << unnamedControls({&ui.window});
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }

    void everyOtherWindowAndPanelNamesItsControls()
    {
        ShellWindows ui(app());
        Shell& shell = ui.shell;
        QStringList unnamed;
        shell.showPreferences();
        for (const auto tab :
             {PreferencesWindow::Tab::General, PreferencesWindow::Tab::Security,
              PreferencesWindow::Tab::Backup, PreferencesWindow::Tab::Sync,
              PreferencesWindow::Tab::Schedule, PreferencesWindow::Tab::MoreInfo}) {
            shell.preferences()->showTab(tab);
            unnamed << unnamedControls({shell.preferences()});
        }
        shell.preferences()->hide();
        shell.showHelp();
        shell.showContact();
        shell.openQuickAddWindow();
        unnamed << unnamedControls(shownWindows());

        // The panels the lists open, and the login page, each on its own.
        Project* home = app().addProject(QStringLiteral("Home"));
        RuleFormView newRule(services(), nullptr);
        RuleFormView task(services(), home, nullptr);
        PostponePanel postpone(services(), library().items().front());
        LoginPage login(services().protection);
        for (QWidget* panel : std::initializer_list<QWidget*>{&newRule, &task, &postpone, &login}) {
            panel->show();
            unnamed << unnamedControls({panel});
        }
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }

    void everyPromptNamesItsControls()
    {
        ShellWindows ui(app());
        Shell& shell = ui.shell;
        Item* due = app().addItem(QStringLiteral("Tea"), at(2026, 11, 23, 10, 0));
        Item* running = app().addItem(QStringLiteral("Nap"), at(2026, 11, 23, 9, 0));
        services().running.start(*running);
        QStringList unnamed;
        const auto walkPopover = [&shell, &unnamed] {
            QTRY_VERIFY(shell.tray().popover() && shell.tray().popover()->isShown());
            unnamed << unnamedControls({shell.tray().popover()});
            shell.tray().closePopoverImmediate();
        };
        remind(services().prompts, due, running);
        walkPopover();
        tellTimeOver(services().prompts, running);
        walkPopover();
        askToDo(services().prompts, due);
        walkPopover();
        // The idle question is for a time with nothing running.
        services().running.finish(*running);
        askIdle(services().prompts, at(2026, 11, 23, 9, 30), true);
        walkPopover();
        Q_EMIT shell.tray().clicked();
        walkPopover();
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestAccessibility)
#include "tst_accessibility.moc"
