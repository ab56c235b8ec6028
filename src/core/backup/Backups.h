#pragma once

#include "core/backup/BackupList.h"
#include "core/backup/StoreCopy.h"
#include "core/model/BackupInfo.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <optional>

namespace lullet {

class Catalogue;
class Clock;
class Library;
class RunningItem;
class Settings;
class Store;

// Copies of the store and restores from them. A copy is made on a worker thread, one at a time,
// from a connection of its own; the records and the lists stay on the main thread, where every
// result comes back. A restore looks at the chosen file, saves, copies the file through SQLite
// beside the store while it checks it (so what was checked is what comes in), makes a listed
// safety copy of the present data, and only then swaps the files; a failure at any step leaves
// the store in use as it was and says why.
class Backups final : public QObject {
    Q_OBJECT
public:
    struct Services {
        const Clock& clock;
        Settings& settings;
        Store& store;
        Library& library;
        Catalogue& catalogue;
        RunningItem& running;
    };
    explicit Backups(const Services& services, QObject* parent = nullptr);
    // Waits for a copy under way: it never outlives the program's records.
    ~Backups() override;

    QString backupsFolder() const;
    BackupList list() const;
    // The name a copy saved by hand is offered under: "Lullet Backup-<moment>.sqlite".
    QString proposedFileName() const;
    bool isRestoring() const { return m_restoring; }

    // At launch, before anything else: old listed copies go, as "backupOption" says. A copy
    // whose file can't be deleted stays listed, and pruneFailed() says so once the launch is
    // done.
    void pruneAtLaunch();
    // The launch's copy, in the backups folder, listed.
    void createLaunchBackup();
    // A copy saved by hand where the user chose; not listed.
    void backUpTo(const QString& destination);
    // Replaces the store with the file at `path`. `shownProject` is the name of the project the
    // main view shows, handed back by restored() so that the view can find it again.
    void restoreFrom(const QString& path, const QString& shownProject);

Q_SIGNALS:
    // A copy was made and listed.
    void backupCreated(const lullet::BackupInfo& info);
    // A copy saved by hand is written.
    void backedUp(const QString& destination);
    // A copy could not be made: nobody may believe it exists.
    void backupFailed(const QString& message);
    // The chosen file was not touched nor the store: why it can't be restored.
    void restoreRefused(const QString& why);
    // The restore could not be done; the store in use is as it was.
    void restoreFailed(const QString& message);
    // Old copies could not be deleted at launch, and stay listed: which, and why.
    void pruneFailed(const QString& failures);
    // Every list was read again from the restored store.
    void restored(const QString& shownProject);

private:
    using Done = std::function<void(const StoreCopy::Result&)>;
    void copyInBackground(const QString& source, const QString& destination, Done done,
                          StoreCopy::Check check = {});
    // A new file in the backups folder, listed as `type` once written.
    void makeListedCopy(const QString& type, const std::function<void(bool ok)>& then);
    // Why the chosen file can't be restored, before anything is read of it.
    std::optional<QString> refusal(const QString& path) const;
    // Where copies are written before they are moved to their place.
    QString workFolder() const;
    void swap(const QString& shownProject);

    Services m_services;
    QThreadPool m_worker;
    bool m_restoring = false;
};

} // namespace lullet
