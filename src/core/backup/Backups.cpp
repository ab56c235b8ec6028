#include "core/backup/Backups.h"

#include "core/activity/RunningItem.h"
#include "core/backup/RestoreCheck.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/scheduling/Catalogue.h"
#include "core/settings/PrivateFiles.h"
#include "core/store/Store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace lullet {

namespace {

const QString backupType = QStringLiteral("Backup");
const QString safetyType = QStringLiteral("Restored Backup");

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
    list().prune(m_services.clock.now());
}

void Backups::copyInBackground(const QString& destination, Done done)
{
    const QString source = m_services.store.storePath();
    const QString work = QDir(m_services.store.folder()).filePath(QStringLiteral("temp"));
    QPointer<Backups> self(this);
    m_worker.start([self, source, destination, work, done = std::move(done)] {
        const StoreCopy::Result result = StoreCopy::copy(source, destination, work);
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
        Q_EMIT backupFailed(QStringLiteral("No backup was made: the folder %1 could not be "
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
    copyInBackground(path, [this, path, type, then](const StoreCopy::Result& result) {
        if (!result.ok) {
            Q_EMIT backupFailed(QStringLiteral("No backup was made. ") + result.message);
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
    copyInBackground(destination, [this, destination](const StoreCopy::Result& result) {
        if (result.ok)
            Q_EMIT backedUp(destination);
        else
            Q_EMIT backupFailed(QStringLiteral("No backup was made. ") + result.message);
    });
}

void Backups::restoreFrom(const QString& path, const QString& shownProject)
{
    if (m_restoring)
        return;
    if (const std::optional<QString> why = RestoreCheck::refusal(path)) {
        Q_EMIT restoreRefused(*why);
        return;
    }
    if (QFileInfo(path).canonicalFilePath() ==
        QFileInfo(m_services.store.storePath()).canonicalFilePath()) {
        Q_EMIT restoreRefused(QStringLiteral("That file is the store Lullet is using now."));
        return;
    }
    if (!m_services.library.save()) {
        Q_EMIT restoreFailed(QStringLiteral("Your latest changes could not be saved, so nothing "
                                            "was restored."));
        return;
    }
    m_restoring = true;
    // The present data is kept, and listed, before the store is touched.
    makeListedCopy(safetyType, [this, path, shownProject](bool ok) {
        if (!ok) {
            m_restoring = false;
            Q_EMIT restoreFailed(QStringLiteral("No safety copy of your present data could be "
                                                "made, so nothing was restored."));
            return;
        }
        swap(path, shownProject);
    });
}

void Backups::swap(const QString& path, const QString& shownProject)
{
    m_restoring = false;
    // Changes made while the safety copy was written are saved first: the copy lacks them, but
    // the store put back after a failure has them.
    m_services.library.save();
    // The running item is a record of the store that goes.
    m_services.running.forget();
    const Store::Result result = m_services.store.replaceWith(path);
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
