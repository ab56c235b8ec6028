#include "lists/ProjectActions.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/model/ReminderInfo.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "core/text/PatternMatcher.h"

namespace lullet {

namespace {

QString capitalizeFirst(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

bool nameTaken(const AppDelegate& app, const QString& name, const Project* except)
{
    for (const Project* p : app.getAllProjectsLists()) {
        if (p != except && p->name() == name)
            return true;
    }
    return false;
}

} // namespace

ProjectActions::Added ProjectActions::addProject(AppDelegate& app, const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {nullptr, blankMessage()};
    const QString name = capitalizeFirst(trimmed);
    if (nameTaken(app, name, nullptr))
        return {nullptr, existsMessage()};
    Project* project = app.managedObjectContext().insertProject();
    project->setName(name);
    project->setCreatedDate(app.clock().now());
    app.saveAction();
    app.addProjectObject(project);
    app.notifCenter().post(notification::onChangeInProjectList);
    return {project, {}};
}

bool ProjectActions::renameProject(AppDelegate& app, Project& project, const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return false;
    const QString name = capitalizeFirst(trimmed);
    const QString old = project.name().value_or(QString());
    if (name == old)
        return false;
    // Another project's name, among those that are not the old one, is refused.
    const PatternMatcher isOld(old);
    for (const Project* p : app.getAllProjectsLists()) {
        if (p->name() && !isOld.matches(*p->name()) && *p->name() == name)
            return false;
    }
    project.setName(name);
    app.saveAction();
    app.prepareAllProjectLists();
    app.notifCenter().post(notification::onChangeInProjectList);
    return true;
}

void ProjectActions::deleteProject(AppDelegate& app, Project& project)
{
    const std::vector<ReminderInfo*> items = project.toReminders();
    app.removeProjectObject(&project);
    ObjectContext& context = app.managedObjectContext();
    for (ReminderInfo* item : items)
        context.deleteObject(item);
    context.deleteObject(&project);
    app.saveAction();
    app.notifCenter().post(notification::onChangeInProjectList);
}

Project* ProjectActions::duplicateAsNew(AppDelegate& app, const Project& project)
{
    ObjectContext& context = app.managedObjectContext();
    Project* copy = context.insertProject();
    copy->setName(project.name().value_or(QString()) + QStringLiteral(" Copy"));
    copy->setCreatedDate(app.clock().now());
    copy->setUniqueId(QStringLiteral("<to make>"));
    for (const ReminderInfo* item : std::vector<ReminderInfo*>(project.toReminders())) {
        ReminderInfo* twin = context.insertReminderInfo();
        twin->setUniqueId(item->uniqueId());
        twin->setTitle(item->title());
        twin->setDurationHr(item->durationHr());
        twin->setDurationMin(item->durationMin());
        twin->setShouldRemind(item->shouldRemind());
        twin->setRemindBefore(item->remindBefore());
        twin->setToProject(copy);
        app.addLulletObject(twin);
    }
    app.saveAction();
    app.addProjectObject(copy);
    app.notifCenter().post(notification::onDuplicationRequested, QVariant::fromValue(copy));
    return copy;
}

} // namespace lullet
