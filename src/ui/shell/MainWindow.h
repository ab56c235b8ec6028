#pragma once

#include <QMainWindow>

namespace lullet {

// The main window. Closing it hides it: the program lives on in the status item until the user
// quits.
class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);

    // Fixed at 800 by 600 for the welcome pages, at least 600 by 600 afterwards (less on a
    // screen too small for that).
    void applyWelcomeSizing();
    void applyWorkingSizing(bool locked);
    // While locked, the menu entries that would reveal or copy the user's data are off.
    void setLocked(bool locked);
    // Closing minimises instead of hiding: without a tray icon the taskbar entry is the way
    // back.
    void setClosingMinimises(bool minimises) { m_closingMinimises = minimises; }
    // The platform's key for preferences, for the window's menu and the tray's.
    static QList<QKeySequence> preferencesShortcuts();
    // The Lullet menu, and its Preferences entry, before which the reminders' entries go.
    QMenu* lulletMenu() const { return m_lulletMenu; }
    QAction* preferencesAction() const { return m_preferences; }

Q_SIGNALS:
    void quitRequested();
    void quickAddRequested();
    void backUpRequested();
    void restoreRequested();
    void preferencesRequested();
    void helpRequested();
    void contactRequested();
    // Closed or hidden: where it stood is worth keeping.
    void hidden();

protected:
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeLulletMenu();
    void makeHelpMenu();

    QList<QAction*> m_dataActions;
    QMenu* m_lulletMenu = nullptr;
    QAction* m_preferences = nullptr;
    bool m_closingMinimises = false;
};

} // namespace lullet
