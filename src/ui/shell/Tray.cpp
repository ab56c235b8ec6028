#include "ui/shell/Tray.h"

#include "ui/desktop/TrayIconPainter.h"
#include "ui/shell/MainWindow.h"
#include "ui/widgets/Popover.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QSystemTrayIcon>

namespace lullet {

Tray::Tray(MainWindow& window, QObject* parent)
    : QObject(parent)
    , m_window(window)
{
}

Tray::~Tray()
{
    delete m_popover;
}

void Tray::retire(Popover* popover)
{
    // Told once per popover, however many ways it goes.
    if (!popover || popover == m_retired)
        return;
    m_retired = popover;
    Q_EMIT retiring(popover->content());
}

void Tray::dropPopover()
{
    retire(m_popover);
    delete m_popover;
    m_popover = nullptr;
}

void Tray::showIcon(QMenu* menu, bool visible)
{
    m_icon = new QSystemTrayIcon(TrayIconPainter::make(m_paused), this);
    m_icon->setToolTip(m_toolTip);
    // Every widget hears of a new palette; the main window is always there to listen.
    m_window.installEventFilter(this);
    m_icon->setContextMenu(menu);
    connect(m_icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason != QSystemTrayIcon::Trigger)
                    return;
                m_lastClick = QCursor::pos();
                Q_EMIT clicked();
            });
    m_icon->setVisible(visible);
}

void Tray::setIconVisible(bool visible)
{
    // Without the icon, prompts open near the top right of the screen, not where it once was.
    if (!visible)
        m_lastClick = QPoint();
    if (m_icon)
        m_icon->setVisible(visible);
}

void Tray::setToolTip(const QString& text)
{
    if (text == m_toolTip)
        return;
    m_toolTip = text;
    if (m_icon)
        m_icon->setToolTip(text);
}

void Tray::setPaused(bool paused)
{
    if (paused == m_paused)
        return;
    m_paused = paused;
    if (m_icon)
        m_icon->setIcon(TrayIconPainter::make(paused));
}

bool Tray::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::PaletteChange && m_icon)
        m_icon->setIcon(TrayIconPainter::make(m_paused));
    return QObject::eventFilter(watched, event);
}

QRect Tray::anchorRect() const
{
    if (m_icon && m_icon->isVisible()) {
        const QRect icon = m_icon->geometry();
        if (icon.isValid() && !icon.isEmpty())
            return icon;
    }
    if (!m_lastClick.isNull())
        return QRect(m_lastClick, QSize(1, 1));
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(0, 0, 1280, 800);
    return QRect(area.right() - 40, area.top(), 32, 1);
}

void Tray::show(const ContentFactory& make)
{
    if (m_window.isFullScreen()) {
        // Inside a full-screen window the old prompt is dropped at once.
        if (m_popover) {
            retire(m_popover);
            m_popover->deleteLater();
        }
        m_popover = makePopover(make, &m_window);
        m_popover->showInHost();
        return;
    }
    if (m_popover) {
        QPointer<Popover> old = m_popover;
        retire(old);
        old->performClose([this, old, make] {
            if (m_popover == old)
                m_popover = nullptr;
            if (old)
                old->deleteLater();
            show(make);
        });
        return;
    }
    m_popover = makePopover(make, nullptr);
    m_popover->showBelow(anchorRect());
}

Popover* Tray::makePopover(const ContentFactory& make, QWidget* host)
{
    auto* popover = new Popover(make(), host);
    connect(popover, &Popover::escapePressed, this, &Tray::dismissRequested);
    return popover;
}

void Tray::closePopover()
{
    if (!m_popover)
        return;
    retire(m_popover);
    m_popover->performClose();
}

void Tray::closePopoverImmediate()
{
    if (!m_popover)
        return;
    retire(m_popover);
    m_popover->hide();
    // The content may be the caller itself, still on the stack.
    m_popover->deleteLater();
    m_popover = nullptr;
}

} // namespace lullet
