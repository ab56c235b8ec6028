#include "ui/shell/Shell.h"

#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/backup/Backups.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "core/monitor/ReminderPause.h"
#include "core/presentation/RunningStatus.h"
#include "core/security/Lock.h"
#include "core/settings/Settings.h"
#include "core/sync/Sync.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/desktop/ActiveWindow.h"
#include "ui/desktop/DesktopPresence.h"
#include "ui/desktop/FileManager.h"
#include "ui/desktop/MemoryTrim.h"
#include "ui/help/ContactWindow.h"
#include "ui/help/HelpWindow.h"
#include "ui/main/MainView.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/PauseActions.h"
#include "ui/shell/PromptPresenter.h"
#include "ui/shell/RunningListView.h"
#include "ui/shell/Tray.h"
#include "ui/shell/WindowContent.h"
#include "ui/widgets/Dialogs.h"
#include "ui/widgets/Popover.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace lullet {

namespace {

void bringForward(QWidget* window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

Shell::Shell(const Services& services, MainWindow& window, DesktopPresence& presence,
             DesktopNotifier& notifier, PromptSound* sound, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_window(window)
    , m_presence(presence)
    , m_tray(new Tray(window, this))
    , m_pauseActions(new PauseActions(services.pause, this))
    , m_prompts(new PromptPresenter(
          services, *m_tray, notifier, sound,
          [this] {
              return !m_presence.trayIconUsable() || ActiveWindow::isOtherProgramFullScreen();
          },
          [this] { return selectedProject(); }, this))
{
    connect(m_tray, &Tray::clicked, this, &Shell::onTrayClicked);
    connect(m_tray, &Tray::dismissRequested, this, &Shell::dismissPopover);
    connect(&m_window, &MainWindow::quickAddRequested, this, &Shell::quickAdd);
    connect(&m_window, &MainWindow::hidden, this, &Shell::keepWindowGeometry);
    // Closed, the window's lists are out of sight: what they freed goes back to the system.
    connect(&m_window, &MainWindow::hidden, this, &MemoryTrim::soon);
    connect(&m_window, &MainWindow::preferencesRequested, this, &Shell::showPreferences);
    connect(&m_window, &MainWindow::helpRequested, this, &Shell::showHelp);
    connect(&m_window, &MainWindow::contactRequested, this, &Shell::showContact);
    m_pauseActions->addTo(m_window.lulletMenu(), m_window.preferencesAction());
    connect(&m_services.pause, &ReminderPause::changed, this, &Shell::updateToolTip);
    connectMonitor();
    connectBackups();
    connectSync();
    connectLock();
    connectPresence();
}

void Shell::connectPresence()
{
    // Without a tray icon, closing the window keeps it in the taskbar: it is the way back.
    m_window.setClosingMinimises(!m_presence.trayIconUsable());
    connect(&m_presence, &DesktopPresence::trayIconShownChanged, this, [this](bool usable) {
        m_tray->setIconVisible(usable);
        m_window.setClosingMinimises(!usable);
        if (!usable)
            bringMainWindowForward();
    });
    connect(&m_presence, &DesktopPresence::windowWanted, this,
            [this] { bringMainWindowForward(); });
    connect(&m_presence, &DesktopPresence::quitRequested, this, &Shell::quitRequested);
}

void Shell::connectLock()
{
    showLockState();
    // The store is read, and the lock switched on, after the windows are made.
    connect(&m_services.lock, &Lock::locked, this, &Shell::showLockState);
    connect(&m_services.lock, &Lock::unlocked, this, &Shell::showLockState);
}

void Shell::showLockState()
{
    const bool locked = m_services.lock.isLocked();
    m_window.setLocked(locked);
    if (m_trayQuickAdd)
        m_trayQuickAdd->setEnabled(!locked);
    // The running list said otherwise, either way: it has nothing true to say now.
    if (qobject_cast<RunningListView*>(m_tray->popover() ? m_tray->popover()->content() : nullptr))
        m_tray->closePopoverImmediate();
    updateToolTip();
}

void Shell::connectBackups()
{
    m_backupCommands = new BackupCommands(
        m_services, &m_window, &FileManager::showFile, [this] { return shownProjectName(); }, this);
    connect(&m_window, &MainWindow::backUpRequested, m_backupCommands,
            [this] { m_backupCommands->backUpNow(); });
    connect(&m_window, &MainWindow::restoreRequested, m_backupCommands,
            [this] { m_backupCommands->restoreFromFile(); });
    connect(&m_services.backups, &Backups::restored, this, [this](const QString& shownProject) {
        // An open prompt or list holds records of the store that went.
        m_tray->closePopoverImmediate();
        if (MainView* main = m_content ? m_content->mainView() : nullptr)
            main->showAfterReload(shownProject);
    });
}

void Shell::connectSync()
{
    // What a sync brought is shown as after a restore, on the project shown if it still exists
    // (renamed there, it is found by its new name).
    connect(&m_services.sync, &Sync::changesArrived, this, [this] {
        if (MainView* main = m_content ? m_content->mainView() : nullptr)
            main->showAfterReload(shownProjectName());
    });
}

Shell::~Shell()
{
    // Quitting leaves the window where it is: its place is kept for the next launch.
    if (m_window.isVisible())
        keepWindowGeometry();
    // The open prompt acts on the core's records: it goes while they still exist, and no other
    // takes its place.
    delete m_prompts;
    m_tray->dropPopover();
    delete m_quickAddWindow;
}

QWidget* Shell::makeTrayContent()
{
    if (!m_loaded) {
        // Nothing is shown as current before it has been read.
        auto* loading = new QLabel(tr("Loading…"));
        loading->setAlignment(Qt::AlignCenter);
        loading->setMinimumSize(200, 80);
        m_loading = loading;
        return loading;
    }
    auto* view = new RunningListView(m_services);
    connect(view, &RunningListView::openWindowRequested, this, [this] {
        m_tray->closePopover();
        bringMainWindowForward();
    });
    connect(view, &RunningListView::quitRequested, this, &Shell::quitRequested);
    return view;
}

void Shell::onTrayClicked()
{
    Popover* open = m_tray->popover();
    if (!open || !open->isShown()) {
        m_tray->show([this] { return makeTrayContent(); });
        return;
    }
    // A prompt shown while the user typed elsewhere may not have been seen: the first click
    // calls it forward, the second puts it away.
    if (m_prompts->bringForward())
        return;
    dismissPopover();
}

void Shell::dismissPopover()
{
    Popover* open = m_tray->popover();
    if (!open || !open->isShown())
        return;
    if (m_prompts->showsPrompt())
        m_prompts->dismiss();
    else
        m_tray->closePopover();
}

void Shell::setLoaded()
{
    m_loaded = true;
    updateToolTip();
    if (m_loading) {
        m_tray->closePopoverImmediate();
        m_tray->show([this] { return makeTrayContent(); });
    }
    if (std::exchange(m_windowWanted, false))
        bringMainWindowForward();
    if (std::exchange(m_quickAddWanted, false))
        quickAdd();
}

void Shell::connectMonitor()
{
    const Monitor& monitor = m_services.monitor;
    // The tooltip's text is worked out with the clock but reaches the panel only when it reads
    // differently, once a minute at most.
    connect(&monitor, &Monitor::ticked, this, [this] {
        if (m_services.running.item())
            updateToolTip();
    });
    connect(&monitor, &Monitor::minutePassed, this, &Shell::updateToolTip);
    const Library& library = m_services.library;
    connect(&library, &Library::itemsChanged, this, &Shell::updateToolTip);
    connect(&library, &Library::itemRemoved, this, &Shell::updateToolTip);
    connect(&library, &Library::itemPostponed, this, &Shell::updateToolTip);
    connect(&m_services.running, &RunningItem::started, this, &Shell::updateToolTip);
    connect(&m_services.running, &RunningItem::finished, this, &Shell::updateToolTip);
    connect(&m_services.running, &RunningItem::extended, this, &Shell::updateToolTip);
}

void Shell::updateToolTip()
{
    if (!m_loaded)
        return;
    const QString paused = m_services.pause.description();
    m_tray->setPaused(!paused.isEmpty());
    // What runs and what comes next are the user's data.
    QString tip =
        m_services.lock.isLocked()
            ? tr("Lullet is locked")
            : RunningStatus::toolTip(m_services.library, m_services.running, m_services.clock);
    m_tray->setToolTip(paused.isEmpty() ? tip : paused + u'\n' + tip);
}

void Shell::showTray()
{
    auto* menu = new QMenu(&m_window);
    connect(menu->addAction(tr("Open Lullet")), &QAction::triggered, this,
            [this] { bringMainWindowForward(); });
    m_trayQuickAdd = menu->addAction(tr("Quick Add"));
    m_trayQuickAdd->setShortcut(QKeySequence::New);
    m_trayQuickAdd->setEnabled(!m_services.lock.isLocked());
    connect(m_trayQuickAdd, &QAction::triggered, this, &Shell::quickAdd);
    QAction* preferences = menu->addAction(tr("Preferences…"));
    preferences->setShortcuts(MainWindow::preferencesShortcuts());
    connect(preferences, &QAction::triggered, this, &Shell::showPreferences);
    m_pauseActions->addTo(menu, preferences);
    connect(menu->addAction(tr("Help")), &QAction::triggered, this, &Shell::showHelp);
    menu->addSeparator();
    connect(menu->addAction(tr("Quit Lullet")), &QAction::triggered, this, &Shell::quitRequested);
    m_tray->showIcon(menu, m_presence.trayIconUsable());
}

void Shell::prepareMainWindow(bool locked)
{
    if (!m_content) {
        m_content = new WindowContent(m_services);
        connectContent();
        m_window.setCentralWidget(m_content);
    }
    if (!m_services.settings.welcomeDone()) {
        m_window.applyWelcomeSizing();
        return;
    }
    m_window.applyWorkingSizing(locked);
    // Where the user left it; Qt brings a window saved on a screen now gone back onto one.
    const QByteArray kept = m_services.settings.mainWindowGeometry();
    if (!locked && !kept.isEmpty())
        m_window.restoreGeometry(kept);
}

void Shell::connectContent()
{
    connect(m_content, &WindowContent::proceededFromWelcome, this, [this] {
        m_window.setWindowFlags(Qt::Window);
        m_window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        m_window.applyWorkingSizing(false);
        m_window.show();
    });
    connect(m_content, &WindowContent::proceededFromLogin, this,
            [this] { prepareMainWindow(false); });
    connect(m_content, &WindowContent::preferencesRequested, this, &Shell::showPreferences);
    connect(m_content, &WindowContent::quitRequested, this, &Shell::quitRequested);
}

void Shell::keepWindowGeometry()
{
    // The welcome's fixed size and the login page's are not the user's choice.
    if (m_content && m_services.settings.welcomeDone() && !m_services.lock.isLocked())
        m_services.settings.setMainWindowGeometry(m_window.saveGeometry());
}

void Shell::bringMainWindowForward(const std::function<void()>& whenShown)
{
    if (!m_loaded) {
        m_windowWanted = true;
        return;
    }
    // A launch at login builds the window only when it is first asked for.
    if (!m_content)
        prepareMainWindow(m_services.lock.isLocked());
    // A minimised window comes back as it was before, maximised or not.
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    if (whenShown)
        QTimer::singleShot(0, this, whenShown);
}

const Project* Shell::selectedProject() const
{
    const MainView* main = m_content ? m_content->mainView() : nullptr;
    return main ? main->shownProject() : nullptr;
}

QString Shell::shownProjectName() const
{
    const Project* shown = selectedProject();
    return shown ? shown->name().value_or(QString()) : QString();
}

void Shell::quickAdd()
{
    if (!m_loaded) {
        m_quickAddWanted = true;
        return;
    }
    if (m_services.lock.isLocked()) {
        bringMainWindowForward();
        Dialogs::inform(&m_window, tr("Lullet is locked."),
                        tr("Enter your password first, then add the task."));
        return;
    }
    // The window's own bar only where the user is looking: a window minimised, covered or on
    // another desktop would hide the field, and the quick-add window shows wherever the user is.
    MainView* main = m_content ? m_content->mainView() : nullptr;
    if (main && m_window.isVisible() && !m_window.isMinimized() && m_window.isActiveWindow())
        main->showQuickAddBar();
    else
        openQuickAddWindow();
}

void Shell::openQuickAddWindow()
{
    if (!m_quickAddWindow) {
        m_quickAddWindow = new QuickAddView(m_services);
        m_quickAddWindow->setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
        connect(m_quickAddWindow, &QuickAddView::added, m_quickAddWindow, &QWidget::hide);
        connect(m_quickAddWindow, &QuickAddView::dismissed, m_quickAddWindow, &QWidget::hide);
        // Where a launcher would be: centred, in the upper third of the screen.
        m_quickAddWindow->adjustSize();
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect area = screen->availableGeometry();
            m_quickAddWindow->move(area.center().x() - m_quickAddWindow->width() / 2,
                                   area.top() + area.height() / 3 - m_quickAddWindow->height() / 2);
        }
    }
    if (!m_quickAddWindow->isVisible())
        m_quickAddWindow->reset(selectedProject());
    m_quickAddWindow->show();
    m_quickAddWindow->raise();
    m_quickAddWindow->activateWindow();
    m_quickAddWindow->nameField()->setFocus();
}

PreferencesWindow* Shell::preferences() const
{
    return m_preferences;
}

void Shell::showPreferences()
{
    if (!m_preferences) {
        m_preferences = new PreferencesWindow(m_services, *m_backupCommands, m_presence, &m_window);
        // Over the window it belongs to, where the user is looking.
        if (m_window.isVisible())
            m_preferences->move(m_window.frameGeometry().center() - m_preferences->rect().center());
    }
    bringForward(m_preferences);
}

void Shell::showHelp()
{
    if (!m_help) {
        m_help = new HelpWindow(&m_window);
        // Through with the slides, the user is back at the program.
        connect(m_help, &HelpWindow::done, this, [this] { bringMainWindowForward(); });
    }
    bringForward(m_help);
}

HelpWindow* Shell::help() const
{
    return m_help;
}

void Shell::showContact()
{
    if (!m_contact)
        m_contact = new ContactWindow(&m_window);
    bringForward(m_contact);
}

} // namespace lullet
