#pragma once

#include <QStackedWidget>

namespace lullet {

class LoginPage;
class MainView;
struct Services;

// The main window's content: the welcome until it is done, the login page while the program is
// locked, then the main view.
class WindowContent final : public QStackedWidget {
    Q_OBJECT
public:
    explicit WindowContent(const Services& services, QWidget* parent = nullptr);

    bool showsWelcome() const { return m_welcome != nullptr; }
    LoginPage* loginPage() const { return m_login; }
    // The main view, once the welcome is done.
    MainView* mainView() const { return m_main; }

Q_SIGNALS:
    // The welcome is done: the window may take its working size.
    void proceededFromWelcome();
    // The user is in: the window may take the size it had.
    void proceededFromLogin();
    void preferencesRequested();
    void quitRequested();

private:
    void showMainView();
    void showLoginPage();
    void leaveLoginPage();
    QWidget* makeWelcome();
    void skipIntro();

    const Services& m_services;
    QWidget* m_welcome = nullptr;
    LoginPage* m_login = nullptr;
    MainView* m_main = nullptr;
};

} // namespace lullet
