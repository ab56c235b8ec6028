#pragma once

#include <QString>

#include <optional>

namespace lullet {

// Looks at a file the user wants to restore before anything else is touched: it must be a
// whole SQLite database that passes SQLite's quick check and is a Lullet store this version can
// open, with its tables. The file is opened read-only and left as it was.
class RestoreCheck {
public:
    // Why the file can't be restored, in words for the user; nothing when it can.
    static std::optional<QString> refusal(const QString& path);
};

} // namespace lullet
