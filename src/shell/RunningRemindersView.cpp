#include "shell/RunningRemindersView.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/dates/projectFunc.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "lists/LulletListViewController.h"
#include "prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

RunningRemindersView::RunningRemindersView(AppDelegate& app, QWidget* parent)
    : QWidget(parent)
    , m_app(app)
    , m_running(PromptLayout::message(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Running now"), this));
    layout->addWidget(m_running);
    layout->addWidget(PromptLayout::heading(tr("Today"), this));
    layout->addWidget(new LulletListViewController(m_app, {}, false, this));
    auto* actions = new QHBoxLayout;
    QPushButton* open = PromptLayout::button(tr("Open Lullet"), this, true);
    QPushButton* quit = PromptLayout::button(tr("Quit"), this);
    actions->addWidget(open);
    actions->addStretch();
    actions->addWidget(quit);
    layout->addLayout(actions);
    connect(open, &QPushButton::clicked, this, &RunningRemindersView::openWindowRequested);
    connect(quit, &QPushButton::clicked, this, &RunningRemindersView::quitRequested);

    NotificationCenter& center = m_app.notifCenter();
    for (const QLatin1String name :
         {notification::onMonitoringDone, notification::onReminderStarted,
          notification::onReminderFinished})
        center.addObserver(this, name, [this](const QVariant&) { refreshRunning(); });
    refreshRunning();
}

void RunningRemindersView::refreshRunning()
{
    const ReminderInfo* running = m_app.objReminderRunningNow;
    if (!running) {
        m_running->setText(tr("Nothing is running."));
        return;
    }
    const int elapsed = running->elapsedTime().value_or(0);
    const int limit = running->timeLimit().value_or(0);
    QString time = projectFunc::stringFromTimeInterval(elapsed).section(u'.', 0, 0);
    if (limit > 0)
        time +=
            QStringLiteral(" / ") + projectFunc::stringFromTimeInterval(limit).section(u'.', 0, 0);
    m_running->setText(running->title().value_or(QString()) + QStringLiteral("  ") + time);
}

} // namespace lullet
