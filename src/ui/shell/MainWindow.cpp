#include "ui/shell/MainWindow.h"

#include "ui/help/Links.h"
#include "ui/help/UserGuide.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHideEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>

namespace lullet {

namespace {
// What a window manager's title bar and borders may take, before the window is shown and its
// real frame known.
const QSize frameAllowance(16, 48);
} // namespace

QList<QKeySequence> MainWindow::preferencesShortcuts()
{
    // Desktops that name no key for preferences get the one most programs use.
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Preferences);
    if (keys.isEmpty())
        keys << QKeySequence(Qt::CTRL | Qt::Key_Comma);
    return keys;
}

void MainWindow::setLocked(bool locked)
{
    for (QAction* action : std::as_const(m_dataActions))
        action->setEnabled(!locked);
}

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(QStringLiteral("Lullet"));
    auto* placeholder = new QLabel(this);
    placeholder->setAlignment(Qt::AlignCenter);
    setCentralWidget(placeholder);

    makeLulletMenu();
    makeHelpMenu();
}

void MainWindow::makeLulletMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&Lullet"));
    QAction* quickAdd = file->addAction(tr("Quick &Add"));
    quickAdd->setShortcut(QKeySequence::New);
    connect(quickAdd, &QAction::triggered, this, &MainWindow::quickAddRequested);
    file->addSeparator();
    QAction* backUp = file->addAction(tr("&Back Up Now…"));
    connect(backUp, &QAction::triggered, this, &MainWindow::backUpRequested);
    QAction* restore = file->addAction(tr("&Restore From File…"));
    connect(restore, &QAction::triggered, this, &MainWindow::restoreRequested);
    m_dataActions = {quickAdd, backUp, restore};
    file->addSeparator();
    QAction* preferences = file->addAction(tr("&Preferences…"));
    m_lulletMenu = file;
    m_preferences = preferences;
    preferences->setShortcuts(preferencesShortcuts());
    preferences->setMenuRole(QAction::PreferencesRole);
    connect(preferences, &QAction::triggered, this, &MainWindow::preferencesRequested);
    file->addSeparator();
    QAction* quit = file->addAction(tr("&Quit Lullet"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &MainWindow::quitRequested);
}

void MainWindow::makeHelpMenu()
{
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    QAction* slides = help->addAction(tr("Lullet &Help"));
    slides->setShortcut(QKeySequence::HelpContents);
    connect(slides, &QAction::triggered, this, &MainWindow::helpRequested);
    connect(help->addAction(tr("&User's Guide")), &QAction::triggered, this,
            [this] { UserGuide::open(this); });
    help->addSeparator();
    const std::pair<QString, QUrl> pages[] = {
        {tr("&Frequently Asked Questions"), Links::faq()},
        {tr("&Website"), Links::website()},
        {tr("&Privacy Policy"), Links::privacy()},
        {tr("&Terms and Conditions"), Links::terms()},
    };
    for (const auto& [title, url] : pages) {
        connect(help->addAction(title), &QAction::triggered, this,
                [this, url = url] { Links::open(url, this); });
    }
    help->addSeparator();
    connect(help->addAction(tr("&Contact Us…")), &QAction::triggered, this,
            &MainWindow::contactRequested);
}

void MainWindow::applyWelcomeSizing()
{
    // Only a title and a close button: the welcome pages have one size.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    setMaximumSize(800, 600);
    resize(800, 600);
}

void MainWindow::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    // A minimised window is hidden too, but keeps its place.
    if (!event->spontaneous())
        Q_EMIT hidden();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // Only the user's close is turned into a minimise: quitting closes every window, and a
    // refused close would cancel the quit.
    if (!m_closingMinimises || !event->spontaneous()) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    showMinimized();
}

void MainWindow::applyWorkingSizing(bool locked)
{
    // A small screen, or a large scale, can't hold 600 by 600: the window may then be as small
    // as the screen's free area leaves room for, with its title bar and frame.
    QSize size(600, 600);
    if (const QScreen* shown = screen())
        size = size.boundedTo(shown->availableGeometry().size() - frameAllowance);
    setMinimumSize(size);
    // The largest width and the largest height over all screens, each taken separately.
    int maxWidth = 0;
    int maxHeight = 0;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        maxWidth = std::max(maxWidth, screen->geometry().width());
        maxHeight = std::max(maxHeight, screen->geometry().height());
    }
    if (maxWidth > 0 && maxHeight > 0)
        setMaximumSize(maxWidth, maxHeight);
    if (!locked)
        resize(size);
}

} // namespace lullet
