#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace lullet {

struct Services;

// What the user asks of the backups, from the window's menu or the backup settings: the file
// panels, one at a time, and every outcome said to the user, a failure above all. Messages go
// over the window the last request came from.
class BackupCommands final : public QObject {
    Q_OBJECT
public:
    using Reveal = std::function<void(const QString& path)>;
    // The name of the project the main view shows, to find again after a restore.
    using ShownProject = std::function<QString()>;
    // `reveal` shows a finished copy to the user, in the file manager unless told otherwise.
    BackupCommands(const Services& services, QWidget* window, Reveal reveal,
                   ShownProject shownProject = {}, QObject* parent = nullptr);

    // A copy saved where the user chooses.
    void backUpNow(QWidget* from = nullptr);
    // A restore from any file the user chooses, once they agree to have their data replaced.
    void restoreFromFile(QWidget* from = nullptr);
    // A restore from a listed copy, once they agree; a copy whose file has gone is said.
    void restoreFrom(const QString& path, QWidget* from = nullptr);
    // A listed copy saved where the user chooses, replacing a file there.
    void saveCopyOf(const QString& path, QWidget* from = nullptr);

private:
    QWidget* over(QWidget* from);
    QString chooseFileToSave(const QString& caption, const QString& proposed);
    bool confirmRestore();
    // A locked Lullet copies and replaces nothing: the user is told and nothing happens.
    bool refuseWhileLocked(QWidget* from);
    void startRestore(const QString& path);

    const Services& m_services;
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_lastFrom;
    Reveal m_reveal;
    ShownProject m_shownProject;
    // A panel is up: a second request does nothing.
    bool m_panelOpen = false;
};

} // namespace lullet
