#pragma once

#include <QCoreApplication>
#include <QString>

namespace lullet {

// The XDG autostart entry that starts Lullet in the tray when the user logs in. The entry's
// presence is the truth: the desktop's own startup settings may remove it behind our back.
class Autostart {
    Q_DECLARE_TR_FUNCTIONS(Autostart)

public:
    // The entry named after the program's id in "autostart" below $XDG_CONFIG_HOME, or below
    // ~/.config when that is unset or not an absolute path.
    static QString defaultPath();

    // `program` is the executable the entry starts.
    Autostart(QString entryPath, QString program);

    bool isOn() const;
    // Writes or removes the entry; false, with errorMessage(), when that can't be done.
    bool setOn(bool on);
    QString errorMessage() const { return m_error; }
    QString entryPath() const { return m_path; }

    // The Exec line's program, quoted as desktop entries require.
    static QString quotedProgram(const QString& program);

private:
    bool write();
    bool remove();

    QString m_path;
    QString m_program;
    QString m_error;
};

} // namespace lullet
