#include "core/settings/PrivateFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace lullet {

bool PrivateFiles::makeFolder(const QString& path)
{
    if (!QFileInfo(path).isDir() && !QDir().mkpath(path))
        return false;
    return QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                           QFileDevice::ExeOwner);
}

bool PrivateFiles::keepFile(const QString& path)
{
    if (!QFileInfo::exists(path))
        return true;
    return QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

} // namespace lullet
