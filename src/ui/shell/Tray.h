#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <functional>

class QMenu;
class QSystemTrayIcon;

namespace lullet {

class MainWindow;
class Popover;

// The tray icon and the one popover that hangs from it. Prompts and the running list take turns
// in that popover: new content waits until the old popover has closed. Without a tray the
// popover opens at the top right of the screen; with the main window full screen it opens inside
// the window.
class Tray final : public QObject {
    Q_OBJECT
public:
    using ContentFactory = std::function<QWidget*()>;

    explicit Tray(MainWindow& window, QObject* parent = nullptr);
    ~Tray() override;

    // Makes the icon, with its menu, and puts it in the panel unless the user keeps it out.
    void showIcon(QMenu* menu, bool visible);
    // The user may keep the icon out of the panel; the popover then hangs from the top right.
    void setIconVisible(bool visible);
    // Told to the panel only when it differs: an unchanged text wakes nothing.
    void setToolTip(const QString& text);
    // The icon shows that the reminders are paused.
    void setPaused(bool paused);
    // Shows new content in the popover, after the open one, if any, has closed.
    void show(const ContentFactory& make);
    // Closes with the fade; the popover still counts as the open one until replaced.
    void closePopover();
    // Closes at once and forgets the popover.
    void closePopoverImmediate();
    // Destroys the popover and its content now; never from inside the content.
    void dropPopover();

    Popover* popover() const { return m_popover; }
    // Where the popover hangs: the tray icon, else the last click on it, else the top right.
    QRect anchorRect() const;

Q_SIGNALS:
    void clicked();
    // Escape in the popover: its content is to be dismissed.
    void dismissRequested();
    // The content is about to go, closed or replaced: a question it asked goes unanswered.
    void retiring(QWidget* content);

private:
    void retire(Popover* popover);
    Popover* makePopover(const ContentFactory& make, QWidget* host);

    MainWindow& m_window;
    QSystemTrayIcon* m_icon = nullptr;
    QPointer<Popover> m_popover;
    QPointer<Popover> m_retired;
    QPoint m_lastClick;
    QString m_toolTip = QStringLiteral("Lullet");
    bool m_paused = false;

protected:
    // The icon is drawn again when the desktop's colours change.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lullet
