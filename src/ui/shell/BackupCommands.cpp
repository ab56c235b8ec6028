#include "ui/shell/BackupCommands.h"

#include "core/app/Services.h"
#include "core/backup/Backups.h"
#include "ui/widgets/Dialogs.h"

#include <QDir>
#include <QStandardPaths>
#include <QWidget>

#include <utility>

namespace lullet {

BackupCommands::BackupCommands(const Services& services, QWidget* window, Reveal reveal,
                               QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_window(window)
    , m_reveal(std::move(reveal))
{
    Backups& backups = services.backups;
    connect(&backups, &Backups::backedUp, this,
            [this](const QString& destination) { m_reveal(destination); });
    connect(&backups, &Backups::backupFailed, this, [this](const QString& message) {
        Dialogs::inform(m_window, tr("The backup could not be made."), message);
    });
    connect(&backups, &Backups::restoreRefused, this, [this](const QString& why) {
        Dialogs::inform(m_window, tr("This file can't be restored. Nothing was changed."), why);
    });
    connect(&backups, &Backups::restoreFailed, this, [this](const QString& message) {
        Dialogs::inform(m_window, tr("The restore could not be done."), message);
    });
}

void BackupCommands::backUpNow()
{
    if (m_panelOpen)
        return;
    m_panelOpen = true;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString chosen = Dialogs::chooseFileToSave(
        m_window, tr("Back Up Now"), QDir(folder).filePath(m_services.backups.proposedFileName()));
    m_panelOpen = false;
    if (!chosen.isEmpty())
        m_services.backups.backUpTo(chosen);
}

void BackupCommands::restoreFromFile(const QString& shownProject)
{
    if (m_panelOpen || m_services.backups.isRestoring())
        return;
    m_panelOpen = true;
    const QString chosen = Dialogs::chooseFileToOpen(m_window, tr("Restore From File"),
                                                     m_services.backups.backupsFolder());
    m_panelOpen = false;
    if (!chosen.isEmpty())
        m_services.backups.restoreFrom(chosen, shownProject);
}

} // namespace lullet
