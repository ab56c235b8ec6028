#include "ui/shell/WindowContent.h"

#include "core/app/Services.h"
#include "core/monitor/Monitor.h"
#include "core/security/Lock.h"
#include "core/settings/Settings.h"
#include "ui/main/MainView.h"
#include "ui/shell/LoginPage.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

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
// The first-run pages come later; until then the welcome says what Lullet does and lets the
// user begin, which switches on the idle questions.
QWidget* WindowContent::makeWelcome()
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(60, 60, 60, 60);
    auto* title = new QLabel(tr("Welcome to Lullet"), page);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 2);
    big.setBold(true);
    title->setFont(big);
    auto* text = new QLabel(
        tr("Lullet reminds you of short pauses — a rest, a meal, a stretch, a glass of water — and "
           "of your tasks, which you can group into projects. While nothing runs during your "
           "working hours (Monday to Friday, 9 to 6, to begin with), Lullet asks what you have "
           "been doing, and records the answer."),
        page);
    text->setWordWrap(true);
    auto* start = new QPushButton(tr("Get started"), page);
    start->setObjectName(QStringLiteral("getStarted"));
    start->setDefault(true);
    layout->addStretch();
    layout->addWidget(title);
    layout->addSpacing(16);
    layout->addWidget(text);
    layout->addSpacing(24);
    layout->addWidget(start, 0, Qt::AlignLeft);
    layout->addStretch();
    connect(start, &QPushButton::clicked, this, &WindowContent::skipIntro);
    return page;
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
