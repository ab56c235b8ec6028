#pragma once

#include <QStackedWidget>

namespace lullet {

class MainView;
struct Services;

// The main window's content: the welcome until it is done, then the main view.
class WindowContent final : public QStackedWidget {
    Q_OBJECT
public:
    explicit WindowContent(const Services& services, QWidget* parent = nullptr);

    bool showsWelcome() const { return m_welcome != nullptr; }
    // The main view, once the welcome is done.
    MainView* mainView() const { return m_main; }

Q_SIGNALS:
    // The welcome is done: the window may take its working size.
    void proceededFromWelcome();

private:
    void showMainView();
    QWidget* makeWelcome();
    void skipIntro();

    const Services& m_services;
    QWidget* m_welcome = nullptr;
    MainView* m_main = nullptr;
};

} // namespace lullet
