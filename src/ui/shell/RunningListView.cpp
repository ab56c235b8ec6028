#include "ui/shell/RunningListView.h"

#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/model/Item.h"
#include "core/monitor/Monitor.h"
#include "core/presentation/RunningStatus.h"
#include "core/security/Lock.h"
#include "ui/main/ItemListView.h"
#include "ui/prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

RunningListView::RunningListView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_running(PromptLayout::message(this))
{
    m_running->setObjectName(QStringLiteral("runningNow"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (services.lock.isLocked()) {
        // Behind the lock nothing of the user's tasks shows, not even what runs.
        m_running->setText(tr("Lullet is locked. Enter your password in its window to see your "
                              "tasks."));
        layout->addWidget(m_running);
    } else {
        layout->addWidget(PromptLayout::heading(tr("Running now"), this));
        layout->addWidget(m_running);
        layout->addWidget(PromptLayout::heading(tr("Today"), this));
        layout->addWidget(new ItemListView(m_services, {}, false, this));
        connect(&services.monitor, &Monitor::ticked, this, &RunningListView::showRunning);
        connect(&services.running, &RunningItem::started, this, &RunningListView::showRunning);
        connect(&services.running, &RunningItem::finished, this, &RunningListView::showRunning);
        showRunning();
    }
    layout->addLayout(makeActions());
}

QHBoxLayout* RunningListView::makeActions()
{
    auto* actions = new QHBoxLayout;
    QPushButton* open = PromptLayout::button(tr("Open Lullet"), this, true);
    QPushButton* quit = PromptLayout::button(tr("Quit"), this);
    actions->addWidget(open);
    actions->addStretch();
    actions->addWidget(quit);
    connect(open, &QPushButton::clicked, this, &RunningListView::openWindowRequested);
    connect(quit, &QPushButton::clicked, this, &RunningListView::quitRequested);
    return actions;
}

void RunningListView::showRunning()
{
    const Item* running = m_services.running.item();
    if (!running) {
        m_running->setText(tr("Nothing is running."));
        return;
    }
    m_running->setText(RunningStatus::clockText(*running));
}

} // namespace lullet
