#include "shell/ContainerViewController.h"

#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/settings/UserDefaults.h"
#include "lists/MainViewController.h"
#include "monitor/Monitor.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

ContainerViewController::ContainerViewController(AppDelegate& app, QWidget* parent)
    : QStackedWidget(parent)
    , m_app(app)
{
    UserDefaults& defaults = m_app.defaults();
    const bool welcomeDone =
        defaults.hasValue(SettingsKeys::isShowFirst) && defaults.boolean(SettingsKeys::isShowFirst);
    if (welcomeDone) {
        showMainView();
    } else {
        m_welcome = makeWelcome();
        addWidget(m_welcome);
    }
    m_app.notifCenter().addObserver(this, notification::onProceedFromWelcome,
                                    [this](const QVariant&) {
                                        if (!m_welcome)
                                            return;
                                        removeWidget(m_welcome);
                                        m_welcome->deleteLater();
                                        m_welcome = nullptr;
                                        showMainView();
                                        Q_EMIT proceededFromWelcome();
                                        m_app.notifCenter().post(notification::onViewBecameReady);
                                    });
}

void ContainerViewController::showMainView()
{
    auto* main = new MainViewController(m_app, this);
    addWidget(main);
    setCurrentWidget(main);
}

// The first-run pages come later; until then the welcome says what Lullet does and lets the
// user begin, which switches on the idle questions.
QWidget* ContainerViewController::makeWelcome()
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
    start->setObjectName(QStringLiteral("skipIntro"));
    start->setDefault(true);
    layout->addStretch();
    layout->addWidget(title);
    layout->addSpacing(16);
    layout->addWidget(text);
    layout->addSpacing(24);
    layout->addWidget(start, 0, Qt::AlignLeft);
    layout->addStretch();
    connect(start, &QPushButton::clicked, this, &ContainerViewController::skipIntro);
    return page;
}

void ContainerViewController::skipIntro()
{
    m_app.defaults().set(SettingsKeys::isShowFirst, 1);
    m_app.notifCenter().post(notification::onProceedFromWelcome);
    m_app.monitor().doPromptExternally();
}

} // namespace lullet
