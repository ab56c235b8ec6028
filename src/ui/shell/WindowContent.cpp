#include "ui/shell/WindowContent.h"

#include "core/app/Services.h"
#include "core/monitor/Monitor.h"
#include "core/security/Lock.h"
#include "core/settings/Settings.h"
#include "ui/help/WelcomeSlides.h"
#include "ui/main/MainView.h"
#include "ui/shell/LoginPage.h"

namespace lullet {

WindowContent::WindowContent(const Services& services, QWidget* parent)
    : QStackedWidget(parent)
    , m_services(services)
{
    if (!m_services.settings.welcomeDone()) {
        // A first run meets the welcome, whatever the settings say of a password.
        m_welcome = makeWelcome();
        addWidget(m_welcome);
    } else if (m_services.lock.isLocked()) {
        showLoginPage();
    } else {
        showMainView();
    }
}

void WindowContent::showLoginPage()
{
    m_login = new LoginPage(m_services.protection, this);
    addWidget(m_login);
    setCurrentWidget(m_login);
    connect(m_login, &LoginPage::preferencesRequested, this, &WindowContent::preferencesRequested);
    connect(m_login, &LoginPage::quitRequested, this, &WindowContent::quitRequested);
    connect(&m_services.lock, &Lock::unlocked, this, &WindowContent::leaveLoginPage);
}

void WindowContent::leaveLoginPage()
{
    if (!m_login)
        return;
    // The page may still be inside its own answer: it goes after it.
    removeWidget(m_login);
    m_login->deleteLater();
    m_login = nullptr;
    showMainView();
    Q_EMIT proceededFromLogin();
}

void WindowContent::showMainView()
{
    m_main = new MainView(m_services, this);
    addWidget(m_main);
    setCurrentWidget(m_main);
}

QWidget* WindowContent::makeWelcome()
{
    auto* slides = new WelcomeSlides(tr("Get Started"), this);
    connect(slides, &WelcomeSlides::skipped, this, &WindowContent::skipIntro);
    return slides;
}

void WindowContent::skipIntro()
{
    if (!m_welcome)
        return;
    m_services.settings.setWelcomeDone();
    removeWidget(m_welcome);
    m_welcome->deleteLater();
    m_welcome = nullptr;
    showMainView();
    Q_EMIT proceededFromWelcome();
    m_services.monitor.askWhatNow();
}

} // namespace lullet
