#include "ui/main/ItemMenu.h"

#include "core/activity/ItemActions.h"
#include "core/activity/Postponing.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/model/Project.h"

namespace lullet {

ItemMenu::ItemMenu(const Services& services, Item* item, QWidget* parent)
    : QMenu(parent)
    , m_services(services)
    , m_item(item)
{
    const bool running = services.running.isRunning(item);
    const bool finished = item->isFinished();
    if (!finished) {
        connect(addAction(running ? tr("Stop") : tr("Start")), &QAction::triggered, this,
                [this] { Q_EMIT startOrStopRequested(m_item); });
        connect(addAction(tr("Finish")), &QAction::triggered, this,
                [this] { Q_EMIT finishRequested(m_item); });
    }
    // The reschedule choices, for an item neither finished nor running.
    if (!finished && !item->isStarted())
        addPostponeChoices();
    if (!finished) {
        connect(addAction(tr("Postpone…")), &QAction::triggered, this,
                [this] { Q_EMIT postponePanelRequested(m_item); });
    }
    addSeparator();
    addMoveAndDuplicate();
    addSeparator();
    connect(addAction(tr("Delete")), &QAction::triggered, this,
            [this] { m_services.itemActions.deleteItem(*m_item); });
}

void ItemMenu::addPostponeChoices()
{
    QMenu* later = addMenu(tr("Postpone"));
    Postponing& postponing = m_services.postponing;
    const Clock& clock = m_services.clock;
    const Date now = clock.now();
    const std::pair<int, QString> choices[] = {
        {Postponing::InThreeHours, tr("In 3 hours")},
        {Postponing::ThisEvening, Postponing::eveningLabel(now, clock)},
        {Postponing::Tomorrow, Postponing::nextDayLabel(now, clock)},
        {Postponing::InTwoDays, Postponing::inTwoDaysLabel(now)},
        {Postponing::ThisWeekend, Postponing::weekendLabel(now)},
        {Postponing::NextWeek, tr("Next week")},
        {Postponing::NextMonth, tr("In a month")},
    };
    for (const auto& [choice, label] : choices) {
        const int tag = choice;
        connect(later->addAction(label), &QAction::triggered, this,
                [&postponing, this, tag] { postponing.chooseInMenu(m_item, tag); });
    }
}

void ItemMenu::addMoveAndDuplicate()
{
    QMenu* moveTo = addMenu(tr("Move to"));
    QMenu* duplicateTo = addMenu(tr("Duplicate to"));
    ItemActions& actions = m_services.itemActions;
    const auto addTarget = [&](const QString& title, Project* target) {
        connect(moveTo->addAction(title), &QAction::triggered, this,
                [&actions, this, target] { actions.moveToProject(*m_item, target); });
        connect(duplicateTo->addAction(title), &QAction::triggered, this,
                [&actions, this, target] { actions.duplicateToProject(*m_item, target); });
    };
    if (m_item->toProject())
        addTarget(tr("No Project"), nullptr);
    for (Project* project : actions.otherProjects(*m_item))
        addTarget(project->name().value_or(QString()), project);
    moveTo->setEnabled(!moveTo->isEmpty());
    duplicateTo->setEnabled(!duplicateTo->isEmpty());
}

} // namespace lullet
