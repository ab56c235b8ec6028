#pragma once

#include <QDir>
#include <QString>
#include <QWidget>

namespace lullet::test {

// For review: with LULLET_SHOTS set to a folder, a widget is saved there as a picture.
inline bool shotsWanted()
{
    return !qEnvironmentVariable("LULLET_SHOTS").isEmpty();
}

inline void saveShot(QWidget* widget, const QString& name)
{
    const QString folder = qEnvironmentVariable("LULLET_SHOTS");
    if (!folder.isEmpty())
        widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

} // namespace lullet::test
