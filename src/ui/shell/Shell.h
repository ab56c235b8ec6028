#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QAction;

namespace lullet {

class BackupCommands;
class ContactWindow;
class DesktopNotifier;
class DesktopPresence;
class HelpWindow;
class MainWindow;
class PreferencesWindow;
class Project;
class QuickAddView;
class PauseActions;
class PromptPresenter;
class PromptSound;
class Tray;
class WindowContent;
struct Services;

// The windows of the program: the main window with its content, the tray and its popover, the
// prompts the monitor asks for and the quick-add window.
class Shell final : public QObject {
    Q_OBJECT
public:
    // `sound`: the prompts' sound; none keeps them silent.
    Shell(const Services& services, MainWindow& window, DesktopPresence& presence,
          DesktopNotifier& notifier, PromptSound* sound = nullptr, QObject* parent = nullptr);
    ~Shell() override;

    Tray& tray() { return *m_tray; }
    WindowContent* content() const { return m_content; }

    // Puts the icon in the panel. It shows before the store is read: until setLoaded() the
    // popover says it is loading, and asking for the window or quick add waits.
    void showTray();
    void setLoaded();
    // Gives the main window its content, and its size by the state of the welcome and the lock:
    // fixed 800 by 600 for the welcome, at least 600 by 600 afterwards.
    void prepareMainWindow(bool locked);
    // Brings the main window to the front, its content made first if it has none yet; whenShown
    // runs once it is up.
    void bringMainWindowForward(const std::function<void()>& whenShown = {});

    // Quick add from anywhere: the main view's own bar when the window is up, else the quick-add
    // window.
    void quickAdd();
    void openQuickAddWindow();

    // The preferences window, made when first asked for; on the security tab alone while the
    // program is locked.
    void showPreferences();
    PreferencesWindow* preferences() const;
    // The welcome slides in their own window, and the contact window: one of each, brought
    // forward when asked for again.
    void showHelp();
    void showContact();
    HelpWindow* help() const;

Q_SIGNALS:
    void quitRequested();

private:
    QWidget* makeTrayContent();
    // The tray click: shows the running list, calls a prompt forward, or puts the panel away.
    void onTrayClicked();
    // Escape or a second click: a prompt is put off as its own way out says, anything else
    // closes.
    void dismissPopover();
    void keepWindowGeometry();
    void updateToolTip();
    void connectMonitor();
    void connectBackups();
    void connectSync();
    void connectLock();
    // The data's menu entries, the tray's quick add and its list follow the lock.
    void showLockState();
    void connectContent();
    void connectPresence();
    const Project* selectedProject() const;
    // The name of the project the main view shows; a deleted record still knows its name.
    QString shownProjectName() const;

    const Services& m_services;
    MainWindow& m_window;
    DesktopPresence& m_presence;
    Tray* m_tray;
    PauseActions* m_pauseActions;
    PromptPresenter* m_prompts;
    WindowContent* m_content = nullptr;
    QPointer<QuickAddView> m_quickAddWindow;
    QPointer<PreferencesWindow> m_preferences;
    QPointer<HelpWindow> m_help;
    QPointer<ContactWindow> m_contact;
    BackupCommands* m_backupCommands = nullptr;
    QAction* m_trayQuickAdd = nullptr;
    QPointer<QWidget> m_loading;
    bool m_loaded = false;
    bool m_windowWanted = false;
    bool m_quickAddWanted = false;
};

} // namespace lullet
