#include "shell/ShellHost.h"

#include "authoring/QuickAddViewController.h"
#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "prompts/AlertViewController.h"
#include "prompts/LulletAlertViewController.h"
#include "prompts/ReminderViewController.h"
#include "prompts/TimeoverAlertViewController.h"
#include "shell/ContainerViewController.h"
#include "shell/MainWindow.h"
#include "shell/Popover.h"
#include "shell/RunningRemindersView.h"
#include "shell/StatusItem.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace lullet {

namespace {

// A prompt raised for an item that has since been deleted has nothing to ask.
bool gone(const ReminderInfo* item)
{
    return item && !item->hasContext();
}

} // namespace

ShellHost::ShellHost(MainWindow& window, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_status(new StatusItem(window, this))
{
    connect(&m_window, &MainWindow::resized, this, [this](QSize size) {
        if (m_app)
            m_app->notifCenter().post(notification::onWindowResize, size);
    });
    connect(m_status, &StatusItem::clicked, this, [this] {
        m_status->togglePopover([this]() -> QWidget* {
            auto* view = new RunningRemindersView(*m_app);
            connect(view, &RunningRemindersView::openWindowRequested, this, [this] {
                closePopover();
                bringMainWindowForward({});
            });
            connect(view, &RunningRemindersView::quitRequested, this, &ShellHost::quitRequested);
            return view;
        });
    });
}

ShellHost::~ShellHost() = default;

void ShellHost::attach(AppDelegate& app)
{
    m_app = &app;
}

void ShellHost::detach()
{
    m_status->dropPopover();
    delete windowQuickAdd;
    m_app = nullptr;
}

void ShellHost::openStatusMenu()
{
    auto* menu = new QMenu(&m_window);
    connect(menu->addAction(tr("Open Lullet")), &QAction::triggered, this,
            [this] { bringMainWindowForward({}); });
    menu->addSeparator();
    connect(menu->addAction(tr("Quit Lullet")), &QAction::triggered, this,
            &ShellHost::quitRequested);
    m_status->openStatusMenu(menu);
}

void ShellHost::prepareMainWindow(bool welcomeDone, bool locked)
{
    // The records are loaded by now.
    if (m_app && !qobject_cast<ContainerViewController*>(m_window.centralWidget())) {
        auto* container = new ContainerViewController(*m_app);
        connect(container, &ContainerViewController::proceededFromWelcome, this, [this] {
            m_window.setWindowFlags(Qt::Window);
            m_window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            m_window.applyWorkingSizing(false);
            m_window.show();
        });
        m_window.setCentralWidget(container);
    }
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

void ShellHost::makeReminderPopOver(ReminderInfo* item, ReminderInfo* previous)
{
    if (!m_app || gone(item) || gone(previous))
        return;
    m_status->show(
        [this, item, previous] { return new ReminderViewController(*m_app, item, previous); });
}

void ShellHost::makeIdleAlertPopOver(Date since, bool autoPromptMode)
{
    if (!m_app)
        return;
    // An idle question already on screen goes on counting instead of being replaced.
    const Popover* open = m_status->popover();
    if (open && open->isShown() && qobject_cast<AlertViewController*>(open->content())) {
        m_app->notifCenter().post(notification::onIdleTimeExtended, autoPromptMode);
        return;
    }
    m_status->show([this, since, autoPromptMode] {
        return new AlertViewController(*m_app, since, autoPromptMode);
    });
}

void ShellHost::makeTimeOverPopOver(ReminderInfo* item)
{
    if (!m_app || gone(item))
        return;
    m_status->show([this, item] { return new TimeoverAlertViewController(*m_app, item); });
}

void ShellHost::makeTODOPopOver(ReminderInfo* item)
{
    if (!m_app || gone(item))
        return;
    m_status->show([this, item] { return new LulletAlertViewController(*m_app, item); });
}

void ShellHost::onQuickAdd()
{
    if (!m_app)
        return;
    NotificationCenter& center = m_app->notifCenter();
    if (m_window.isVisible() && center.observerCount(notification::doAskQuickAdd) > 0)
        center.post(notification::doAskQuickAdd);
    else
        callQuickAdd();
}

void ShellHost::callQuickAdd()
{
    if (!m_app)
        return;
    if (!windowQuickAdd) {
        windowQuickAdd = new QuickAddViewController(*m_app);
        windowQuickAdd->setAttribute(Qt::WA_DeleteOnClose, false);
        windowQuickAdd->setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
        connect(windowQuickAdd, &QuickAddViewController::added, this, &ShellHost::dismissquickAdd);
        connect(this, &QObject::destroyed, windowQuickAdd, &QObject::deleteLater);
        // Where a launcher would be: centred, in the upper third of the screen.
        windowQuickAdd->adjustSize();
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect area = screen->availableGeometry();
            windowQuickAdd->move(area.center().x() - windowQuickAdd->width() / 2,
                                 area.top() + area.height() / 3 - windowQuickAdd->height() / 2);
        }
    }
    windowQuickAdd->show();
    windowQuickAdd->raise();
    windowQuickAdd->activateWindow();
    windowQuickAdd->txtTaskQuickAdd->setFocus();
}

void ShellHost::dismissquickAdd()
{
    if (!windowQuickAdd)
        return;
    windowQuickAdd->hide();
    windowQuickAdd->txtTaskQuickAdd->clear();
}

void ShellHost::closePopover()
{
    m_status->closePopover();
}

void ShellHost::closePopoverImmediate()
{
    m_status->closePopoverImmediate();
}

} // namespace lullet
