#include "core/backup/Backups.h"

#include "core/activity/RunningItem.h"
#include "core/backup/RestoreCheck.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/scheduling/Catalogue.h"
#include "core/settings/PrivateFiles.h"
#include "core/store/Store.h"
#include "core/store/StoreFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace lullet {

namespace {

// Kept in the list of backups as they are; the backup panel shows them translated.
const QString backupType = QStringLiteral(QT_TRANSLATE_NOOP("Backups", "Backup"));
const QString safetyType = QStringLiteral(QT_TRANSLATE_NOOP("Backups", "Restored Backup"));

} // namespace

Backups::Backups(const Services& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
    // One copy at a time: they share the working file.
    m_worker.setMaxThreadCount(1);
}

Backups::~Backups()
{
    m_worker.waitForDone();
}

QString Backups::backupsFolder() const
{
    return QDir(m_services.store.folder()).filePath(QStringLiteral("backups"));
}

BackupList Backups::list() const
{
    return BackupList(m_services.settings, backupsFolder());
}

QString Backups::proposedFileName() const
{
    return QStringLiteral("Lullet Backup-") + BackupList::timestampText(m_services.clock.now()) +
           QStringLiteral(".sqlite");
}

void Backups::pruneAtLaunch()
{
    const QString failures = list().prune(m_services.clock.now());
    if (failures.isEmpty())
        return;
    // Told after the launch, once the windows listen.
    QMetaObject::invokeMethod(
        this, [this, failures] { Q_EMIT pruneFailed(failures); }, Qt::QueuedConnection);
}

QString Backups::workFolder() const
{
    return QDir(m_services.store.folder()).filePath(QStringLiteral("temp"));
}

void Backups::copyInBackground(const QString& source, const QString& destination, Done done,
                               StoreCopy::Check check)
{
    const QString work = workFolder();
    QPointer<Backups> self(this);
    m_worker.start(
        [self, source, destination, work, done = std::move(done), check = std::move(check)] {
            const StoreCopy::Result result = StoreCopy::copy(source, destination, work, check);
            // Back to the main thread; a program that has ended meanwhile drops it.
            if (self)
                QMetaObject::invokeMethod(
                    self, [done, result] { done(result); }, Qt::QueuedConnection);
        });
}

void Backups::makeListedCopy(const QString& type, const std::function<void(bool ok)>& then)
{
    const QString folder = backupsFolder();
    if (!PrivateFiles::makeFolder(folder)) {
        Q_EMIT backupFailed(tr("No backup was made: the folder %1 could not be "
                               "created.")
                                .arg(folder));
        then(false);
        return;
    }
    // Two copies in the same second get distinct names.
    const QString stamp = BackupList::timestampText(m_services.clock.now());
    QString path = QDir(folder).filePath(QStringLiteral("Backup-%1.sqlite").arg(stamp));
    for (int n = 2; QFile::exists(path); ++n)
        path = QDir(folder).filePath(QStringLiteral("Backup-%1 %2.sqlite").arg(stamp).arg(n));
    copyInBackground(
        m_services.store.storePath(), path,
        [this, path, type, then](const StoreCopy::Result& result) {
            if (!result.ok) {
                Q_EMIT backupFailed(tr("No backup was made. %1").arg(result.message));
                then(false);
                return;
            }
            const BackupInfo info{
                path, m_services.clock.now(), BackupList::sizeToDisplay(path), type, {}};
            list().add(info);
            Q_EMIT backupCreated(info);
            then(true);
        });
}

void Backups::createLaunchBackup()
{
    makeListedCopy(backupType, [](bool) {});
}

void Backups::backUpTo(const QString& destination)
{
    copyInBackground(m_services.store.storePath(), destination,
                     [this, destination](const StoreCopy::Result& result) {
                         if (result.ok)
                             Q_EMIT backedUp(destination);
                         else
                             Q_EMIT backupFailed(tr("No backup was made. %1").arg(result.message));
                     });
}

std::optional<QString> Backups::refusal(const QString& path) const
{
    const Store& store = m_services.store;
    const QString chosen = QFileInfo(path).canonicalFilePath();
    if (!chosen.isEmpty() && chosen == QFileInfo(store.storePath()).canonicalFilePath())
        return tr("That file is the store Lullet is using now.");
    const QString work = QFileInfo(workFolder()).canonicalFilePath();
    if (store.isWorkingFile(path) ||
        (!work.isEmpty() && chosen.startsWith(work + QLatin1Char('/'))))
        return tr("That file is one Lullet works with while it copies or restores, not a "
                  "backup.");
    return RestoreCheck::refusalOfFile(path);
}

void Backups::restoreFrom(const QString& path, const QString& shownProject)
{
    if (m_restoring)
        return;
    if (const std::optional<QString> why = refusal(path)) {
        Q_EMIT restoreRefused(*why);
        return;
    }
    if (!m_services.library.save()) {
        Q_EMIT restoreFailed(tr("Your latest changes could not be saved, so nothing "
                                "was restored."));
        return;
    }
    m_restoring = true;
    // The file comes in through SQLite, log and all, as one whole database beside the store, and
    // is checked in the same reading; only what passed is ever put in the store's place.
    const QString prepared = m_services.store.preparedPath();
    StoreFiles::remove(prepared);
    copyInBackground(
        path, prepared,
        [this, prepared, shownProject](const StoreCopy::Result& copied) {
            if (!copied.ok) {
                StoreFiles::remove(prepared);
                m_restoring = false;
                Q_EMIT restoreRefused(copied.message);
                return;
            }
            // The present data is kept, and listed, before the store is touched.
            makeListedCopy(safetyType, [this, prepared, shownProject](bool ok) {
                if (!ok) {
                    StoreFiles::remove(prepared);
                    m_restoring = false;
                    Q_EMIT restoreFailed(tr("No safety copy of your present data "
                                            "could be made, so nothing was "
                                            "restored."));
                    return;
                }
                swap(shownProject);
            });
        },
        RestoreCheck::refusalOfContent);
}

void Backups::swap(const QString& shownProject)
{
    m_restoring = false;
    // Changes made while the copies were written are saved first: the safety copy lacks them,
    // but the store put back after a failure has them.
    m_services.library.save();
    // The running item is a record of the store that goes.
    m_services.running.forget();
    const Store::Result result = m_services.store.replaceWith(m_services.store.preparedPath());
    // Restored or put back, the records were read anew: every list is built again.
    m_services.library.load();
    m_services.catalogue.rebuild();
    m_services.library.announceReloaded();
    if (result.outcome == Store::Outcome::Opened)
        Q_EMIT restored(shownProject);
    else
        Q_EMIT restoreFailed(result.message);
}

} // namespace lullet
