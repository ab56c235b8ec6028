#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace lullet {

struct Services;

// The menu's "Back Up Now…" and "Restore From File…": the file panels, one at a time, and every
// outcome said to the user, a failure above all.
class BackupCommands final : public QObject {
    Q_OBJECT
public:
    using Reveal = std::function<void(const QString& path)>;
    // `reveal` shows a finished copy to the user, in the file manager unless told otherwise.
    BackupCommands(const Services& services, QWidget* window, Reveal reveal,
                   QObject* parent = nullptr);

    void backUpNow();
    // `shownProject`: the name of the project the main view shows, to find again afterwards.
    void restoreFromFile(const QString& shownProject);

private:
    const Services& m_services;
    QPointer<QWidget> m_window;
    Reveal m_reveal;
    // A panel is up: a second request does nothing.
    bool m_panelOpen = false;
};

} // namespace lullet
