#pragma once

#include <QString>

#include <array>

namespace lullet {

// A store file with the side files SQLite keeps beside it, handled as one: a log or a journal
// left beside another main file would be replayed into it.
class StoreFiles {
public:
    static constexpr std::array<const char*, 3> sideSuffixes = {"-wal", "-shm", "-journal"};

    static void remove(const QString& path);
    static void removeSideFiles(const QString& path);
    // Renames the main file and the side files it has, replacing whatever has the new names, each
    // in one step; false when the main file is missing or could not be renamed.
    static bool rename(const QString& from, const QString& to);
    // Makes a file's content, or a folder's entries (what a rename changed), durable on the disk.
    static bool sync(const QString& path);
};

} // namespace lullet
