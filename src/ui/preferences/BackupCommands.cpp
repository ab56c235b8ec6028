#include "ui/preferences/BackupCommands.h"

#include "core/app/Services.h"
#include "core/backup/Backups.h"
#include "core/security/Lock.h"
#include "ui/widgets/Dialogs.h"

#include <QFile>
#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace lullet {

BackupCommands::BackupCommands(const Services& services, QWidget* window, Reveal reveal,
                               ShownProject shownProject, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_window(window)
    , m_reveal(std::move(reveal))
    , m_shownProject(std::move(shownProject))
{
    Backups& backups = services.backups;
    connect(&backups, &Backups::backedUp, this,
            [this](const QString& destination) { m_reveal(destination); });
    connect(&backups, &Backups::backupFailed, this, [this](const QString& message) {
        Dialogs::inform(over(m_lastFrom), tr("The backup could not be made."), message);
    });
    connect(&backups, &Backups::restoreRefused, this, [this](const QString& why) {
        Dialogs::inform(over(m_lastFrom), tr("This file can't be restored. Nothing was changed."),
                        why);
    });
    connect(&backups, &Backups::restoreFailed, this, [this](const QString& message) {
        Dialogs::inform(over(m_lastFrom), tr("The restore could not be done."), message);
    });
    connect(&backups, &Backups::pruneFailed, this, [this](const QString& failures) {
        Dialogs::inform(over(m_lastFrom),
                        tr("Some old backups could not be deleted, so they stay in the list."),
                        failures);
    });
}

QWidget* BackupCommands::over(QWidget* from)
{
    return from ? from : m_window.data();
}

QString BackupCommands::chooseFileToSave(const QString& caption, const QString& proposed)
{
    m_panelOpen = true;
    QString chosen = Dialogs::chooseFileToSave(over(m_lastFrom), caption, proposed);
    m_panelOpen = false;
    return chosen;
}

bool BackupCommands::refuseWhileLocked(QWidget* from)
{
    if (!m_services.lock.isLocked())
        return false;
    Dialogs::inform(over(from), tr("Lullet is locked."),
                    tr("Enter your password first, then back up or restore your data."));
    return true;
}

void BackupCommands::backUpNow(QWidget* from)
{
    if (m_panelOpen || refuseWhileLocked(from))
        return;
    m_lastFrom = from;
    const QString chosen =
        chooseFileToSave(tr("Back Up Now"), m_services.backups.proposedFileName());
    if (!chosen.isEmpty())
        m_services.backups.backUpTo(chosen);
}

bool BackupCommands::confirmRestore()
{
    return Dialogs::confirm(over(m_lastFrom), tr("Confirm Restore"),
                            tr("All data will be replaced.\nDo you want to proceed?"));
}

void BackupCommands::restoreFromFile(QWidget* from)
{
    if (m_panelOpen || m_services.backups.isRestoring() || refuseWhileLocked(from))
        return;
    m_lastFrom = from;
    if (!confirmRestore())
        return;
    m_panelOpen = true;
    const QString chosen = Dialogs::chooseFileToOpen(over(from), tr("Restore From File"),
                                                     m_services.backups.backupsFolder());
    m_panelOpen = false;
    if (!chosen.isEmpty())
        startRestore(chosen);
}

void BackupCommands::restoreFrom(const QString& path, QWidget* from)
{
    if (m_services.backups.isRestoring())
        return;
    m_lastFrom = from;
    if (!QFile::exists(path)) {
        Dialogs::inform(over(from), tr("This backup's file is gone, so it can't be restored."),
                        path);
        return;
    }
    if (confirmRestore())
        startRestore(path);
}

void BackupCommands::startRestore(const QString& path)
{
    m_services.backups.restoreFrom(path, m_shownProject ? m_shownProject() : QString());
}

void BackupCommands::saveCopyOf(const QString& path, QWidget* from)
{
    if (m_panelOpen)
        return;
    m_lastFrom = from;
    const QString chosen = chooseFileToSave(tr("Save a Copy"), QFileInfo(path).fileName());
    if (chosen.isEmpty())
        return;
    // Unlike a new backup, a copy of a listed one replaces what stands at the destination.
    if (QFile::exists(chosen) && !QFile::remove(chosen)) {
        Dialogs::inform(over(from), tr("The copy could not be saved."),
                        tr("%1 is in the way and can't be replaced.").arg(chosen));
        return;
    }
    QFile source(path);
    if (!source.copy(chosen)) {
        Dialogs::inform(over(from), tr("The copy could not be saved."), source.errorString());
        return;
    }
    m_reveal(chosen);
}

} // namespace lullet
