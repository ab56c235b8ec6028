#include "ui/shell/MainWindow.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>

namespace lullet {

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowTitle(QStringLiteral("Lullet"));
    auto* placeholder = new QLabel(this);
    placeholder->setAlignment(Qt::AlignCenter);
    setCentralWidget(placeholder);

    QMenu* file = menuBar()->addMenu(tr("&Lullet"));
    QAction* quit = file->addAction(tr("&Quit Lullet"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &MainWindow::quitRequested);
}

void MainWindow::applyWelcomeSizing()
{
    // Only a title and a close button: the welcome pages have one size.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    setMaximumSize(800, 600);
    resize(800, 600);
}

void MainWindow::applyWorkingSizing(bool locked)
{
    setMinimumSize(600, 600);
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
        resize(600, 600);
}

} // namespace lullet
