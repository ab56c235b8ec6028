// The floor of the whole-program benchmark: a bare Qt program with a tray icon and nothing
// else, measured the same way as Lullet.
#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setBrush(Qt::gray);
    painter.drawEllipse(3, 3, 16, 16);
    painter.end();
    QSystemTrayIcon tray{QIcon(pixmap)};
    tray.show();
    return app.exec();
}
