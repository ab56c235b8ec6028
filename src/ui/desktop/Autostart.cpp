#include "ui/desktop/Autostart.h"

#include "ui/desktop/AppId.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace lullet {

QString Autostart::defaultPath()
{
    QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (config.isEmpty() || QDir::isRelativePath(config))
        config = QDir::home().filePath(QStringLiteral(".config"));
    return QDir(config).filePath(QStringLiteral("autostart/%1.desktop").arg(QLatin1String(appId)));
}

Autostart::Autostart(QString entryPath, QString program)
    : m_path(std::move(entryPath))
    , m_program(std::move(program))
{
}

bool Autostart::isOn() const
{
    return QFileInfo(m_path).isFile();
}

bool Autostart::setOn(bool on)
{
    m_error.clear();
    return on ? write() : remove();
}

QString Autostart::quotedProgram(const QString& program)
{
    // Inside double quotes a desktop entry wants ", `, $ and \ escaped with a backslash; the
    // value is a string besides, whose own escaping doubles every backslash once more. A
    // percent sign is a field code unless doubled.
    QString quoted;
    for (const QChar c : program) {
        if (c == u'"' || c == u'`' || c == u'$')
            quoted += QStringLiteral("\\\\");
        else if (c == u'\\')
            quoted += QStringLiteral("\\\\\\");
        else if (c == u'%')
            quoted += u'%';
        quoted += c;
    }
    return u'"' + quoted + u'"';
}

bool Autostart::write()
{
    const QFileInfo entry(m_path);
    if (!QDir().mkpath(entry.path())) {
        m_error = tr("Cannot make the folder %1.").arg(entry.path());
        return false;
    }
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Lullet\n"
                                        "Comment=Start Lullet in the tray when you log in\n"
                                        "Exec=%1 --in-tray\n"
                                        "Icon=%2\n"
                                        "Terminal=false\n"
                                        "X-GNOME-Autostart-enabled=true\n")
                             .arg(quotedProgram(m_program), QLatin1String(appId));
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        m_error = tr("Cannot write %1: %2").arg(m_path, file.errorString());
        return false;
    }
    return true;
}

bool Autostart::remove()
{
    QFile file(m_path);
    if (!file.exists() || file.remove())
        return true;
    m_error = tr("Cannot remove %1: %2").arg(m_path, file.errorString());
    return false;
}

} // namespace lullet
