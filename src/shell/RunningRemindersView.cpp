#include "shell/RunningRemindersView.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/dates/projectFunc.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

RunningRemindersView::RunningRemindersView(AppDelegate& app, QWidget* parent)
    : QWidget(parent)
    , m_app(app)
    , m_running(PromptLayout::message(this))
    , m_list(new QListWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Running now"), this));
    layout->addWidget(m_running);
    layout->addWidget(PromptLayout::heading(tr("Today"), this));
    m_list->setMinimumSize(320, 160);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    layout->addWidget(m_list);
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
    center.addObserver(this, notification::onMonitoringDone,
                       [this](const QVariant&) { refreshRunning(); });
    for (const QLatin1String name :
         {notification::onItemAddedOrEdited, notification::onReminderStarted,
          notification::onReminderFinished, notification::onReminderPostponed}) {
        center.addObserver(this, name, [this](const QVariant&) {
            refreshRunning();
            refreshList();
        });
    }
    refreshRunning();
    refreshList();
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

void RunningRemindersView::refreshList()
{
    m_list->clear();
    const Date now = m_app.clock().now();
    for (const ReminderInfo* item : m_app.mArrAllLullets) {
        if (item->hasFinished().value_or(false))
            break;
        const std::optional<Date> due = item->effectiveDate();
        if (!due || !due->isEqualToDateIgnoringTime(now))
            continue;
        m_list->addItem(due->toString(DateStyle::none, DateStyle::shortStyle) +
                        QStringLiteral("  ") + item->title().value_or(QString()));
    }
    if (m_list->count() == 0)
        m_list->addItem(tr("Nothing more today."));
}

} // namespace lullet
