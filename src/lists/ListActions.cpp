#include "lists/ListActions.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "core/text/LocalizedText.h"
#include "core/text/PatternMatcher.h"
#include "monitor/Monitor.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatTypes.h"

#include <algorithm>

namespace lullet {

namespace {

Project* projectNamed(AppDelegate& app, const QString& name)
{
    const PatternMatcher matcher(name);
    for (Project* project : app.getAllProjectsLists()) {
        if (project->name() && matcher.matches(*project->name()))
            return project;
    }
    return nullptr;
}

void announceProject(AppDelegate& app, Project* project)
{
    if (project)
        app.notifCenter().post(notification::onProjectContentChanged, QVariant::fromValue(project));
}

} // namespace

void ListActions::run(AppDelegate& app, ReminderInfo& item)
{
    const Date now = app.clock().now();
    item.setHasStarted(true);
    // The item keeps its own day and takes the present time of day.
    const Date date = item.dtReminder().value_or(item.dtReminderPostponed().value_or(now));
    const qint64 intoToday = now.secondsAfterDate(now.dateAtStartOfDay());
    item.setDtReminderPostponed(date.dateAtStartOfDay().dateByAddingSeconds(int(intoToday)));
    app.objReminderRunningNow = &item;
    item.setTimeLimit(item.durationHr().value_or(0) * 3600 + item.durationMin().value_or(0) * 60);
    item.setElapsedTime(0);
    app.notifCenter().post(notification::onReminderStarted, QVariant::fromValue(&item));
}

ListActions::StartResult ListActions::start(AppDelegate& app, ReminderInfo& item)
{
    if (item.repeatOption() == std::optional<int>(RepeatOptionsToDo::TODO_VAL)) {
        const std::optional<Date> due = item.effectiveDate();
        const Date now = app.clock().now();
        item.setHasStarted(false);
        item.setDtReminder(now);
        item.setDtReminderPostponed(now);
        item.setHasFinished(true);
        app.saveAction();
        app.reSortLulletObjects();
        app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(&item));
        if (due)
            app.generator().createNextLullet(&item, *due);
        return StartResult::ToDoDone;
    }
    if (app.objReminderRunningNow && app.objReminderRunningNow != &item)
        return StartResult::AnotherIsRunning;
    run(app, item);
    return StartResult::Started;
}

void ListActions::confirmStart(AppDelegate& app, ReminderInfo& item)
{
    if (ReminderInfo* running = app.objReminderRunningNow) {
        running->setHasStarted(false);
        app.objReminderRunningNow = nullptr;
        app.dtLastAnyALertOn = app.clock().now();
        running->setHasFinished(true);
        app.saveAction();
        app.reSortLulletObjects();
        app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(running));
    }
    run(app, item);
}

void ListActions::finish(AppDelegate& app, ReminderInfo& item)
{
    item.setHasStarted(false);
    if (app.objReminderRunningNow == &item)
        app.objReminderRunningNow = nullptr;
    app.dtLastAnyALertOn = app.clock().now();
    item.setHasFinished(true);
    app.saveAction();
    app.reSortLulletObjects();
    app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(&item));
    if (!app.objReminderRunningNow)
        app.monitor().doPromptExternally();
}

void ListActions::deleteItem(AppDelegate& app, ReminderInfo& item)
{
    app.notifCenter().post(notification::preRemoveInOther,
                           QVariant::fromValue(QVariantList{QVariant::fromValue(&item)}));
    Project* project = item.toProject();
    app.removeLulletObject(&item);
    app.managedObjectContext().deleteObject(&item);
    app.saveAction();
    app.notifCenter().post(notification::onItemDeleted);
    announceProject(app, project);
}

QStringList ListActions::getProjectsName(AppDelegate& app, const Project* excepting)
{
    std::vector<const Project*> projects;
    for (const Project* p : app.getAllProjectsLists()) {
        if (p != excepting)
            projects.push_back(p);
    }
    std::stable_sort(projects.begin(), projects.end(), [](const Project* a, const Project* b) {
        return a->name().value_or(QString()) < b->name().value_or(QString());
    });
    QStringList names;
    for (const Project* p : projects)
        names << p->name().value_or(QString());
    return names;
}

void ListActions::moveToProject(AppDelegate& app, ReminderInfo& item, const QString& projectName,
                                bool noProject)
{
    Project* old = item.toProject();
    Project* target = noProject ? nullptr : projectNamed(app, projectName);
    if (!noProject && !target)
        return;
    item.setToProject(target);
    app.saveAction();
    announceProject(app, old);
    announceProject(app, target);
}

ReminderInfo* ListActions::duplicateToProject(AppDelegate& app, const ReminderInfo& item,
                                              const QString& projectName, bool noProject)
{
    ReminderInfo* copy = app.managedObjectContext().insertReminderInfo();
    copy->setUniqueId(QStringLiteral("<to make>"));
    copy->setTitle(item.title());
    copy->setDurationHr(item.durationHr());
    copy->setDurationMin(item.durationMin());
    copy->setNotes(item.notes());
    if (!noProject) {
        if (Project* target = projectNamed(app, projectName)) {
            copy->setToProject(target);
            announceProject(app, target);
        }
    }
    app.saveAction();
    app.addLulletObject(copy);
    app.notifCenter().post(notification::onItemAddedOrEdited, QVariant::fromValue(copy));
    return copy;
}

} // namespace lullet
