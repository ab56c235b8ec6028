#pragma once

namespace lullet {

class Db;

// The layout of the store file: our application id, the schema version and the ordered steps
// that bring an older file up to date.
class StoreSchema {
public:
    // "Lull" in ASCII: tells our files from any other SQLite database.
    static constexpr int applicationId = 0x4C756C6C;
    static int latestVersion();

    enum class Check {
        // An empty database, ready to be stamped.
        Fresh,
        Ours,
        // A database of another program.
        Foreign,
        // Ours, from a newer Lullet.
        Newer,
        // Ours, with a version no Lullet writes.
        Damaged,
        // The look could not be completed (the file is busy or unreadable): nothing is known.
        Unknown,
    };
    // Looks at an open file without changing it.
    static Check check(Db& db);
    // Stamps a fresh file and runs every step it lacks, each in its own transaction.
    static bool migrate(Db& db);
    // True when the file holds our three tables.
    static bool hasTables(Db& db);
};

} // namespace lullet
