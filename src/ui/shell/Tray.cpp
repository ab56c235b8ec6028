#include "ui/shell/Tray.h"

#include "ui/desktop/TrayIconPainter.h"
#include "ui/shell/MainWindow.h"
#include "ui/widgets/Popover.h"

#include <QCursor>
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

void Tray::showIcon(QMenu* menu)
{
    m_icon = new QSystemTrayIcon(TrayIconPainter::make(), this);
    m_icon->setToolTip(QStringLiteral("Lullet"));
    m_icon->setContextMenu(menu);
    connect(m_icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason != QSystemTrayIcon::Trigger)
                    return;
                m_lastClick = QCursor::pos();
                Q_EMIT clicked();
            });
    m_icon->show();
}

QRect Tray::anchorRect() const
{
    if (m_icon) {
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
        m_popover = new Popover(make(), &m_window);
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
    m_popover = new Popover(make());
    m_popover->showBelow(anchorRect());
}

void Tray::togglePopover(const ContentFactory& makeRunningList)
{
    if (m_popover && m_popover->isShown())
        closePopover();
    else
        show(makeRunningList);
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
