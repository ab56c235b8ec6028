#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "support/LaunchedDesktop.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"
#include "ui/authoring/RuleFormView.h"
#include "ui/main/MainView.h"
#include "ui/main/PostponePanel.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/shell/LoginPage.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"
#include "ui/shell/Tray.h"
#include "ui/shell/WindowContent.h"
#include "ui/widgets/CircularProgress.h"
#include "ui/widgets/Popover.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTextEdit>

#include <memory>

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
class TestAccessibility : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LaunchedDesktop> m_app;

private Q_SLOTS:
    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<LaunchedDesktop>(m_dir->path(), at(2026, 11, 23, 10, 0));
        QVERIFY(m_app->open());
        m_app->addItem(QStringLiteral("Walk"), at(2026, 11, 23, 11, 0));
    }

    void cleanup()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            window->hide();
        m_app.reset();
        m_dir.reset();
    }

    void everyViewOfTheWindowNamesItsControls()
    {
        Project* home = m_app->services().projectActions.addProject(QStringLiteral("Home")).project;
        m_app->addItem(QStringLiteral("Fix the tap"), at(2026, 11, 24, 9, 0))->setToProject(home);
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.bringMainWindowForward();
        MainView* main = shell.content()->mainView();
        QStringList unnamed;
        for (const QString& segment :
             {QStringLiteral("Dashboard"), QStringLiteral("Lullets"), QStringLiteral("Today"),
              QStringLiteral("Upcoming"), QStringLiteral("Anytime"), QStringLiteral("Completed"),
              QStringLiteral("Home")}) {
            main->selectSegment(segment);
            unnamed << unnamedControls({&window});
        }
        main->showQuickAddBar();
        unnamed << unnamedControls({&window});
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }

    void everyOtherWindowNamesItsControls()
    {
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
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
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }

    // The panels the lists open, and the login page, each on its own.
    void everyPanelNamesItsControls()
    {
        const Services& services = m_app->services();
        Item* walk = m_app->library().items().front();
        Project* home = services.projectActions.addProject(QStringLiteral("Home")).project;
        RuleFormView newRule(services, nullptr);
        RuleFormView task(services, home, nullptr);
        PostponePanel postpone(services, walk);
        LoginPage login(services.protection);
        QStringList unnamed;
        for (QWidget* panel : std::initializer_list<QWidget*>{&newRule, &task, &postpone, &login}) {
            panel->show();
            unnamed << unnamedControls({panel});
        }
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }

    void everyPromptNamesItsControls()
    {
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        Item* due = m_app->addItem(QStringLiteral("Tea"), at(2026, 11, 23, 10, 0));
        Item* running = m_app->addItem(QStringLiteral("Nap"), at(2026, 11, 23, 9, 0));
        m_app->services().running.start(*running);
        QStringList unnamed;
        const auto walkPopover = [&shell, &unnamed] {
            QTRY_VERIFY(shell.tray().popover() && shell.tray().popover()->isShown());
            unnamed << unnamedControls({shell.tray().popover()});
            shell.tray().closePopoverImmediate();
        };
        shell.showReminder(due, running);
        walkPopover();
        shell.showTimeOver(running);
        walkPopover();
        shell.showToDo(due);
        walkPopover();
        shell.askIdleQuestion(at(2026, 11, 23, 9, 30), true);
        walkPopover();
        Q_EMIT shell.tray().clicked();
        walkPopover();
        unnamed.removeDuplicates();
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestAccessibility)
#include "tst_accessibility.moc"
