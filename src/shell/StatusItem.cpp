#include "shell/StatusItem.h"

#include "shell/MainWindow.h"
#include "shell/Popover.h"
#include "shell/StatusIcon.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QSystemTrayIcon>

namespace lullet {

StatusItem::StatusItem(MainWindow& window, QObject* parent)
    : QObject(parent)
    , m_window(window)
{
}

StatusItem::~StatusItem()
{
    dropPopover();
}

void StatusItem::dropPopover()
{
    delete m_popover;
    m_popover = nullptr;
}

void StatusItem::openStatusMenu(QMenu* menu)
{
    m_tray = new QSystemTrayIcon(StatusIcon::make(), this);
    m_tray->setToolTip(QStringLiteral("Lullet"));
    m_tray->setContextMenu(menu);
    connect(m_tray, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason != QSystemTrayIcon::Trigger)
                    return;
                m_lastClick = QCursor::pos();
                Q_EMIT clicked();
            });
    m_tray->show();
}

QRect StatusItem::anchorRect() const
{
    if (m_tray) {
        const QRect icon = m_tray->geometry();
        if (icon.isValid() && !icon.isEmpty())
            return icon;
    }
    if (!m_lastClick.isNull())
        return QRect(m_lastClick, QSize(1, 1));
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(0, 0, 1280, 800);
    return QRect(area.right() - 40, area.top(), 32, 1);
}

void StatusItem::show(const ContentFactory& make)
{
    if (m_window.isFullScreen()) {
        // Inside a full-screen window the old prompt is dropped at once.
        if (m_popover)
            m_popover->deleteLater();
        m_popover = new Popover(make(), &m_window);
        m_popover->showInHost();
        return;
    }
    if (m_popover) {
        QPointer<Popover> old = m_popover;
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
    m_popover->activateWindow();
}

void StatusItem::togglePopover(const ContentFactory& makeRunningList)
{
    if (m_popover && m_popover->isShown())
        closePopover();
    else
        show(makeRunningList);
}

void StatusItem::closePopover()
{
    if (m_popover)
        m_popover->performClose();
}

void StatusItem::closePopoverImmediate()
{
    if (!m_popover)
        return;
    m_popover->hide();
    // The content may be the caller itself, still on the stack.
    m_popover->deleteLater();
    m_popover = nullptr;
}

} // namespace lullet
