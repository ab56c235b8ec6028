#pragma once

#include <QStackedWidget>

namespace lullet {

class AppDelegate;

// The main window's content: the welcome until it is done, then the main view. (The login page
// takes the main view's place once a password can be set.)
class ContainerViewController final : public QStackedWidget {
    Q_OBJECT
public:
    explicit ContainerViewController(AppDelegate& app, QWidget* parent = nullptr);

    bool showsWelcome() const { return m_welcome != nullptr; }

Q_SIGNALS:
    // The welcome is done: the window may take its working size.
    void proceededFromWelcome();

private:
    void showMainView();
    QWidget* makeWelcome();
    void skipIntro();

    AppDelegate& m_app;
    QWidget* m_welcome = nullptr;
};

} // namespace lullet
