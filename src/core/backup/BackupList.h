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
    // Only files in the backups folder are ever deleted, whatever the list says.
    void prune(Date now);

    // "12 KB", "1.2 MB": the file's size as a file manager shows it (decimal units), "Zero Byte"
    // when the file can't be read.
    static QString sizeToDisplay(const QString& path);
    // The moment as a file name may hold it: medium date and time, with ":" and "/" made "-",
    // "," made a space, and no narrow or no-break space.
    static QString timestampText(Date now);

private:
    void store(const std::vector<BackupInfo>& list);

    Settings& m_settings;
    QString m_folder;
};

} // namespace lullet
