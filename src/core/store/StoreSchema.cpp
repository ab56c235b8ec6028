#include "core/store/StoreSchema.h"

#include "core/store/Db.h"
#include "core/store/Transaction.h"

#include <QByteArray>

#include <array>

namespace lullet {

namespace {

// Each step takes the file from the version before it to its own number. Steps are never edited
// once released: a change of layout is a new step.
constexpr std::array<const char*, 3> steps = {
    R"sql(
CREATE TABLE Project (
    id INTEGER PRIMARY KEY,
    name TEXT,
    createdDate REAL,
    uniqueId TEXT
);
CREATE TABLE RepeatReminderInfo (
    id INTEGER PRIMARY KEY,
    uniqueId TEXT,
    title TEXT,
    notes TEXT,
    durationHr INTEGER,
    durationMin INTEGER,
    shouldRemind INTEGER,
    remindBefore INTEGER,
    dtReminder REAL,
    repeatInterval INTEGER,
    repeatIntervalType INTEGER,
    repeatOption INTEGER,
    dtRepeatUpto REAL,
    isCustom INTEGER,
    isToDoOrJob INTEGER,
    isActive INTEGER
);
CREATE TABLE ReminderInfo (
    id INTEGER PRIMARY KEY,
    uniqueId TEXT,
    title TEXT,
    notes TEXT,
    durationHr INTEGER,
    durationMin INTEGER,
    shouldRemind INTEGER,
    remindBefore INTEGER,
    dtReminder REAL,
    dtReminderPostponed REAL,
    repeatInterval INTEGER,
    repeatIntervalType INTEGER,
    repeatOption INTEGER,
    dtRepeatUpto REAL,
    hasStarted INTEGER,
    hasFinished INTEGER,
    timeLimit INTEGER,
    elapsedTime INTEGER,
    timeLimitExtendedBy INTEGER,
    runningTimeCovered INTEGER,
    toProject INTEGER REFERENCES Project(id) ON DELETE SET NULL
);
CREATE INDEX ReminderInfo_toProject ON ReminderInfo(toProject);
)sql",
    // The history, finished and not started, as its lists and sums read it without a look at
    // the table's texts: by project, with its dates and times.
    R"sql(
CREATE INDEX ReminderInfo_history ON ReminderInfo(toProject, repeatOption, elapsedTime,
    timeLimit, durationHr, durationMin, dtReminder, dtReminderPostponed)
    WHERE hasFinished = 1 AND coalesce(hasStarted, 0) = 0;
)sql",
    // What synchronisation knows of each record (entity 0 a project, 1 a rule, 2 an item): its
    // UID and resource on the server, the resource's version (etag) and its text as both sides
    // last agreed on it, and the time and sequence number of the last local change not yet sent
    // (pending). A record deleted here keeps its entry, without a row, until the server knows.
    // Records made before this step have never been sent: all of them wait for the first sync.
    R"sql(
CREATE TABLE SyncRecord (
    id INTEGER PRIMARY KEY,
    entity INTEGER NOT NULL,
    rowId INTEGER,
    uid TEXT UNIQUE,
    href TEXT,
    etag TEXT,
    synced TEXT,
    changedAt REAL,
    pending INTEGER
);
CREATE UNIQUE INDEX SyncRecord_row ON SyncRecord(entity, rowId);
CREATE INDEX SyncRecord_href ON SyncRecord(href);
CREATE INDEX SyncRecord_pending ON SyncRecord(pending) WHERE pending IS NOT NULL;
CREATE TABLE SyncState (
    key TEXT PRIMARY KEY,
    value TEXT
);
INSERT INTO SyncRecord (entity, rowId, pending) SELECT 0, id, 1 FROM Project;
INSERT INTO SyncRecord (entity, rowId, pending) SELECT 1, id, 1 FROM RepeatReminderInfo;
INSERT INTO SyncRecord (entity, rowId, pending) SELECT 2, id, 1 FROM ReminderInfo;
)sql",
};

} // namespace

int StoreSchema::latestVersion()
{
    return int(steps.size());
}

bool StoreSchema::hasTables(Db& db)
{
    const auto count =
        db.queryInt("SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name IN "
                    "('Project', 'RepeatReminderInfo', 'ReminderInfo')");
    return count && *count == 3;
}

StoreSchema::Check StoreSchema::check(Db& db)
{
    const auto appId = db.queryInt("PRAGMA application_id");
    const auto version = db.queryInt("PRAGMA user_version");
    const auto objects = db.queryInt("SELECT count(*) FROM sqlite_schema");
    if (!appId || !version || !objects)
        return Check::Unknown;
    if (*appId == 0 && *version == 0 && *objects == 0)
        return Check::Fresh;
    if (*appId != applicationId)
        return Check::Foreign;
    if (*version < 0)
        return Check::Damaged;
    if (*version > latestVersion())
        return Check::Newer;
    return Check::Ours;
}

bool StoreSchema::migrate(Db& db)
{
    if (db.queryInt("PRAGMA application_id").value_or(0) == 0) {
        const QByteArray stamp = "PRAGMA application_id = " + QByteArray::number(applicationId);
        if (!db.exec(stamp.constData()))
            return false;
    }
    int version = int(db.queryInt("PRAGMA user_version").value_or(0));
    if (version < 0)
        return false;
    for (; version < latestVersion(); ++version) {
        Transaction txn(db);
        const QByteArray bump = "PRAGMA user_version = " + QByteArray::number(version + 1);
        if (!txn.isActive() || !db.exec(steps[std::size_t(version)]) ||
            !db.exec(bump.constData()) || !txn.commit())
            return false;
    }
    return true;
}

} // namespace lullet
