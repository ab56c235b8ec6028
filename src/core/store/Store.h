#pragma once

#include "core/store/Db.h"
#include "core/store/ObjectContext.h"

#include <QString>

#include <memory>

namespace lullet {

// The store file, its connection and the one object context, built on first use.
class Clock;

class Store {
public:
    enum class Outcome {
        Opened,
        // A file stands where the folder should be.
        FolderIsFile,
        FolderNotCreated,
        // The file is no store of ours, or is damaged: it was moved aside, never deleted, so the
        // next launch starts empty and the user's file is still there.
        MovedAside,
        // Could not be opened for another reason (permissions, disk): files left as they are.
        OpenFailed,
    };

    struct Result {
        Outcome outcome = Outcome::OpenFailed;
        QString message;
        // Where an unreadable store was moved to.
        QString movedTo;
    };

    // The application-data folder: "Lullet" below the user's data location.
    static QString defaultFolder();
    static constexpr const char* storeFileName = "Lullet.sqlite";

    Store(QString folder, const Clock& clock);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // Opens the folder, the file and the context and loads every record.
    Result open();
    bool isOpen() const { return m_context != nullptr; }

    QString folder() const { return m_folder; }
    QString storePath() const;
    Db& db() { return m_db; }
    ObjectContext& context() { return *m_context; }

private:
    enum class Inspection { Usable, NotADatabase, Foreign, Newer, Damaged, Unreachable };
    Inspection inspect() const;
    Result openFile();
    Result moveAside(const QString& why);

    QString m_folder;
    const Clock& m_clock;
    Db m_db;
    std::unique_ptr<ObjectContext> m_context;
};

} // namespace lullet
