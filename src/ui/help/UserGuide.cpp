#include "ui/help/UserGuide.h"

#include "ui/help/Links.h"
#include "ui/widgets/Dialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QStandardPaths>

namespace lullet {

QString UserGuide::path()
{
    const QString name = QString::fromUtf8(fileName);
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString candidates[] = {
        programFolder.filePath(name),
        programFolder.filePath(QStringLiteral("../share/lullet/") + name),
        QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                               QStringLiteral("lullet/") + name),
    };
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty() && QFileInfo(candidate).isFile())
            return QFileInfo(candidate).canonicalFilePath();
    }
    return {};
}

void UserGuide::open(QWidget* parent)
{
    const QString guide = path();
    if (guide.isEmpty()) {
        Dialogs::inform(parent, QObject::tr("The user's guide is not installed."),
                        QObject::tr("You can read it on the website: %1")
                            .arg(Links::website().toDisplayString()));
        return;
    }
    Links::open(QUrl::fromLocalFile(guide), parent);
}

} // namespace lullet
