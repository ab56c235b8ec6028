#pragma once

#include "core/store/Db.h"
#include "core/store/HistoryOnDisk.h"
#include "core/store/ObjectContext.h"

#include <QString>

#include <memory>
#include <optional>

namespace lullet {

class Clock;

// The store file, its connection and the one object context.
class Store {
public:
    enum class Outcome {
        Opened,
        // A file stands where the folder should be.
        FolderIsFile,
        FolderNotCreated,
        // The file is positively no store of ours, or is damaged: it was moved aside, never
        // deleted, so the next launch starts empty and the user's file is still there.
        MovedAside,
        // Another program holds the file, or it can't be read now: nothing was moved.
        InUse,
        Unreadable,
        // The file can't be written; Lullet won't run on a store it can't save to.
        ReadOnly,
        // Ours, but it lacks its tables: the message says which file to move aside.
        MissingTables,
        // The disk has no room left: files left as they are.
        DiskFull,
        // Could not be opened for another reason: files left as they are.
        OpenFailed,
    };

    struct Result {
        Outcome outcome = Outcome::OpenFailed;
        QString message;
        // Where an unusable store was moved to.
        QString movedTo;
    };

    // The application-data folder: "Lullet" below the user's data location.
    static QString defaultFolder();
    static constexpr const char* storeFileName = "Lullet.sqlite";
    // Finished items of these last days are read at the opening with the open ones.
    static constexpr int residentHistoryDays = 14;

    // `patienceMs`: how long a busy file is waited for before the launch gives up.
    Store(QString folder, const Clock& clock, int patienceMs = 3000);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // Opens the folder, the file and the context and loads every record. A store set aside by a
    // restore that was cut short is put back first, and the result's message says so.
    Result open();
    bool isOpen() const { return m_open; }
    // Puts the restore's copy, made and checked at preparedPath(), in the store's place and opens
    // it as a launch does, with its migrations. The swap survives a crash at any moment: the
    // store in use is set aside at keptPath() until the new one is in place, and a launch puts it
    // back if the new one never was. The records read before keep their memory, without a
    // context, for whoever still holds them. On any failure the store it had is open again, and
    // the result says what went wrong.
    Result replaceWith(const QString& prepared);

    QString folder() const { return m_folder; }
    QString storePath() const;
    QString preparedPath() const;
    QString keptPath() const;
    // The store and the files that come and go beside it: none of them is a backup.
    bool isWorkingFile(const QString& path) const;
    Db& db() { return m_db; }
    ObjectContext& context() { return *m_context; }
    // The history the context leaves on disk.
    HistoryOnDisk& history() { return *m_history; }

private:
    enum class Inspection {
        Usable,
        NotADatabase,
        Foreign,
        Newer,
        Damaged,
        Busy,
        Unreadable,
        ReadOnly,
        NoRoom
    };
    Inspection inspect() const;
    Inspection inspectOnce() const;
    Result openFile();
    // What a launch says of a file it cannot use as found; none for a usable file.
    std::optional<Result> refusal(Inspection found);
    std::optional<Result> openDatabase();
    Result fail(Outcome outcome, const QString& what);
    Result diskFull() const;
    Result moveAside(const QString& why);
    // Closes the connection; the context forgets its records but keeps their memory.
    void close();
    // The store a restore set aside, back in its place when no other took it.
    std::optional<Result> putBackAfterCutRestore(QString& notice);
    // Lets SQLite roll back what a process stopped in the middle of a change left in the file.
    void recover() const;
    void keepPrivate() const;
    Result putBack(const Result& failed);

    QString m_folder;
    const Clock& m_clock;
    int m_patienceMs;
    Db m_db;
    // Made once and kept for the run: a replaced store's records must outlive the swap.
    std::unique_ptr<ObjectContext> m_context;
    std::unique_ptr<HistoryOnDisk> m_history;
    bool m_open = false;
};

} // namespace lullet
