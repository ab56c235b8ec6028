#pragma once

#include <QString>

namespace lullet {

// The desktop's file manager.
class FileManager {
public:
    // Opens the file's folder with the file selected (org.freedesktop.FileManager1), or, where
    // no file manager answers that, the folder itself.
    static void showFile(const QString& path);
};

} // namespace lullet
