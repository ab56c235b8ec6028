#include "core/store/StoreFiles.h"

#include <QFile>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace lullet {

namespace {

// rename(2) replaces the target in one step, where QFile::rename refuses an existing one.
bool renameOver(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

void StoreFiles::remove(const QString& path)
{
    QFile::remove(path);
    removeSideFiles(path);
}

void StoreFiles::removeSideFiles(const QString& path)
{
    for (const char* suffix : sideSuffixes)
        QFile::remove(path + QLatin1String(suffix));
}

bool StoreFiles::rename(const QString& from, const QString& to)
{
    if (!QFile::exists(from) || !renameOver(from, to))
        return false;
    for (const char* suffix : sideSuffixes) {
        const QString side = from + QLatin1String(suffix);
        if (QFile::exists(side))
            renameOver(side, to + QLatin1String(suffix));
    }
    return true;
}

bool StoreFiles::sync(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool synced = ::fsync(fd) == 0;
    ::close(fd);
    return synced;
}

} // namespace lullet
