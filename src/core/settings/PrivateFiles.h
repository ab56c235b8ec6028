#pragma once

#include <QString>

namespace lullet {

// The user's data is nobody else's: the program's folders are 0700 and its files 0600, whatever
// they were made with before.
class PrivateFiles {
public:
    // Makes the folder, with its parents, and keeps it to its owner; false when it can't be.
    static bool makeFolder(const QString& path);
    // Keeps an existing file to its owner; a missing file is no error.
    static bool keepFile(const QString& path);
};

} // namespace lullet
