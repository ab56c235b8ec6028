#pragma once

#include <QWidget>

#include <map>

class QAction;
class QStackedWidget;
class QToolBar;

namespace lullet {

class BackupCommands;
class DesktopPresence;
struct Services;

// The preferences: a toolbar of tabs over the tab shown. The window's height follows the tab,
// its top edge staying where it is. While the program is locked only the security tab can be
// reached; the others come back once the user is in.
class PreferencesWindow final : public QWidget {
    Q_OBJECT
public:
    enum class Tab { General, Security, Backup, Sync, Schedule, MoreInfo };

    PreferencesWindow(const Services& services, BackupCommands& backupCommands,
                      DesktopPresence& presence, QWidget* parent = nullptr);

    void showTab(Tab tab);
    Tab currentTab() const { return m_current; }
    // The toolbar button of a tab, for the tests and the keyboard.
    QAction* tabAction(Tab tab) const { return m_actions.at(tab); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeToolBar(QToolBar* bar);
    void showIcons();
    QWidget* page(Tab tab);
    void showUnlockedTabs();

    const Services& m_services;
    BackupCommands& m_backupCommands;
    DesktopPresence& m_presence;
    QStackedWidget* m_pages;
    QToolBar* m_toolBar = nullptr;
    std::map<Tab, QAction*> m_actions;
    std::map<Tab, QWidget*> m_made;
    Tab m_current = Tab::General;
};

} // namespace lullet
