#include "core/sync/LocalRecords.h"

#include "core/library/Library.h"
#include "core/store/ObjectContext.h"
#include "core/sync/ChangeLog.h"
#include "core/sync/RecordFields.h"
#include "core/sync/SyncIdentity.h"

namespace lullet {

namespace {

QPair<int, qint64> key(Record::Entity entity, qint64 rowId)
{
    return {int(entity), rowId};
}

} // namespace

LocalRecords::LocalRecords(Library& library, ChangeLog& changeLog, SyncLedger& ledger)
    : m_library(library)
    , m_changeLog(changeLog)
    , m_ledger(ledger)
{
}

void LocalRecords::refresh()
{
    m_byRow.clear();
    const auto add = [this](const auto& records) {
        for (Record* record : records) {
            if (record->rowId())
                m_byRow.insert(key(record->entity(), record->rowId()), record);
        }
    };
    add(m_library.projects());
    add(m_library.rules());
    add(m_library.items());
    m_indexed = true;
}

void LocalRecords::bringIn(const std::vector<SyncLedger::Entry>& entries)
{
    refresh();
    std::vector<qint64> wanted;
    for (const SyncLedger::Entry& entry : entries) {
        if (entry.entity == Record::Entity::Item && entry.rowId &&
            !m_byRow.contains(key(entry.entity, *entry.rowId)))
            wanted.push_back(*entry.rowId);
    }
    if (wanted.empty() || !m_library.holdsHistory())
        return;
    for (const qint64 rowId : wanted)
        m_library.bringIn(rowId);
    refresh();
}

Record* LocalRecords::recordOf(const SyncLedger::Entry& entry)
{
    if (!m_indexed)
        refresh();
    if (!entry.rowId)
        return nullptr;
    Record* record = m_byRow.value(key(entry.entity, *entry.rowId));
    return record && record->hasContext() ? record : nullptr;
}

QHash<qint64, LocalRecords::OnDisk> LocalRecords::onDisk(const QSet<qint64>& rowIds)
{
    QHash<qint64, OnDisk> found;
    if (rowIds.isEmpty())
        return found;
    m_library.readHistory({rowIds.begin(), rowIds.end()}, [&](const Item& item) {
        found.insert(item.rowId(), {fieldsOf(item), SyncIdentity::uidFor(item)});
    });
    return found;
}

QString LocalRecords::uidOf(const Project* project)
{
    if (!project)
        return {};
    if (QString known = m_uids.value(project); !known.isEmpty())
        return known;
    const std::optional<SyncLedger::Entry> entry =
        m_ledger.byRow(Record::Entity::Project, project->rowId());
    if (!entry || entry->uid.isEmpty())
        return {};
    m_uids.insert(project, entry->uid);
    return entry->uid;
}

Project* LocalRecords::projectOf(const QString& uid)
{
    if (Record* made = m_made.value(uid); made && made->entity() == Record::Entity::Project)
        return static_cast<Project*>(made);
    const std::optional<SyncLedger::Entry> entry = m_ledger.byUid(uid);
    if (!entry || entry->entity != Record::Entity::Project)
        return nullptr;
    return static_cast<Project*>(recordOf(*entry));
}

QJsonObject LocalRecords::fieldsOf(const Record& record, const QJsonObject& base)
{
    QJsonObject fields =
        RecordFields::of(record, [this](const Project* project) { return uidOf(project); });
    const QString link = QStringLiteral("toProject");
    if (!fields.contains(link) && base.contains(link) && !projectOf(base.value(link).toString()))
        fields.insert(link, base.value(link));
    return fields;
}

QString LocalRecords::projectName(const QJsonObject& fields)
{
    const Project* project = projectOf(fields.value(QLatin1String("toProject")).toString());
    return project ? project->name().value_or(QString()) : QString();
}

Record* LocalRecords::make(const QJsonObject& fields, const QString& uid)
{
    Record* record = nullptr;
    switch (RecordFields::kindOf(fields).value_or(Record::Entity::Item)) {
    case Record::Entity::Project: {
        Project* project = m_library.newProject();
        change(*project, fields);
        m_library.addProject(project);
        record = project;
        break;
    }
    case Record::Entity::Rule: {
        Rule* rule = m_library.newRule();
        change(*rule, fields);
        m_library.addRule(rule);
        record = rule;
        break;
    }
    case Record::Entity::Item: {
        Item* item = m_library.newItem();
        change(*item, fields);
        m_library.addItem(item);
        record = item;
        break;
    }
    }
    m_changeLog.assignUid(record, uid);
    m_made.insert(uid, record);
    m_uids.insert(record, uid);
    return record;
}

void LocalRecords::change(Record& record, const QJsonObject& fields)
{
    RecordFields::apply(fields, record, [this](const QString& uid) { return projectOf(uid); });
}

void LocalRecords::remove(Record& record)
{
    switch (record.entity()) {
    case Record::Entity::Item:
        m_library.deleteItem(static_cast<Item*>(&record));
        return;
    case Record::Entity::Rule:
        m_library.removeRule(static_cast<Rule*>(&record));
        break;
    case Record::Entity::Project:
        // Its items only leave it: each item's deletion, if any, comes on its own.
        break;
    }
    m_library.context().deleteObject(&record);
}

} // namespace lullet
