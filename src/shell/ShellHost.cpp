#include "shell/ShellHost.h"

#include "shell/MainWindow.h"
#include "shell/StatusIcon.h"

#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSystemTrayIcon>
#include <QTimer>

namespace lullet {

ShellHost::ShellHost(MainWindow& window, QObject* parent)
    : QObject(parent)
    , m_window(window)
{
}

ShellHost::~ShellHost() = default;

void ShellHost::openStatusMenu()
{
    m_tray = new QSystemTrayIcon(StatusIcon::make(), this);
    m_tray->setToolTip(QStringLiteral("Lullet"));
    auto* menu = new QMenu(&m_window);
    connect(menu->addAction(tr("Open Lullet")), &QAction::triggered, this,
            [this] { bringMainWindowForward({}); });
    menu->addSeparator();
    connect(menu->addAction(tr("Quit Lullet")), &QAction::triggered, this,
            &ShellHost::quitRequested);
    m_tray->setContextMenu(menu);
    connect(m_tray, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    bringMainWindowForward({});
            });
    m_tray->show();
}

void ShellHost::prepareMainWindow(bool welcomeDone, bool locked)
{
    if (welcomeDone)
        m_window.applyWorkingSizing(locked);
    else
        m_window.applyWelcomeSizing();
}

void ShellHost::bringMainWindowForward(const std::function<void()>& whenShown)
{
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    if (whenShown)
        QTimer::singleShot(0, this, whenShown);
}

bool ShellHost::askQuitAnyway(const QString& message, const QString& information)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Lullet"), message, QMessageBox::NoButton,
                    &m_window);
    box.setInformativeText(information);
    QPushButton* quit = box.addButton(tr("Quit anyway"), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == quit;
}

void ShellHost::presentError(const QString& message)
{
    QMessageBox::warning(&m_window, QStringLiteral("Lullet"), message);
}

} // namespace lullet
