#pragma once

#include "core/model/BackupInfo.h"

#include <QString>

#include <vector>

namespace lullet {

class Settings;

// The list of the copies the program made itself ("backupFiles2"), newest first, with the files
// it names in the "backups" folder. A copy the user saved elsewhere is never listed.
class BackupList {
public:
    BackupList(Settings& settings, QString backupsFolder);

    std::vector<BackupInfo> entries() const;
    // A new copy at the top of the list, written at once.
    void add(const BackupInfo& info);
    // Copies older than "backupOption" allows leave the list with their files: 0 keeps all, 1
    // keeps what was made in the six days before today and today, any other value keeps nothing.
    // Only files in the backups folder are ever deleted, whatever the list says. A copy whose
    // file can't be deleted stays listed; the answer says which and why, or is empty.
    QString prune(Date now);
    // One copy leaves the list, and its file goes. The answer is empty, or why the file could
    // not be deleted (the entry goes all the same: a copy that can't be deleted can't be
    // trusted as one either).
    QString remove(const QString& path);
    // Every listed copy goes, and the list's key with them; the answer as for remove().
    QString removeAll();

    // "12 KB", "1.2 MB": the file's size as a file manager shows it (decimal units), "Zero Byte"
    // when the file can't be read.
    static QString sizeToDisplay(const QString& path);
    // The moment as a file name may hold it: medium date and time, with ":" and "/" made "-",
    // "," made a space, and no narrow or no-break space.
    static QString timestampText(Date now);

private:
    void store(const std::vector<BackupInfo>& list);
    // Deletes a listed copy's file, only ever inside the backups folder.
    QString deleteFile(const QString& path) const;

    Settings& m_settings;
    QString m_folder;
};

} // namespace lullet
