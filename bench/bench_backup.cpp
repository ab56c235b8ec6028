// A backup of the 50,000-item store, and a restore of it with every list of an open main view
// built again.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/backup/Backups.h"
#include "ui/main/MainView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <cstdio>

using namespace lullet;
using namespace lullet::bench;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);
    BenchLaunch launch(now);
    const Services& services = launch.launched.services();
    Backups& backups = services.backups;
    const QString copy = QDir(launch.dir.path()).filePath(QStringLiteral("copy.sqlite"));

    const double backup = medianNanos(5, [&] {
        QFile::remove(copy);
        QSignalSpy done(&backups, &Backups::backedUp);
        backups.backUpTo(copy);
        done.wait(60000);
    });
    report("backup of 50,000 items (median)", backup, 300e6);
    std::printf("  (%lld bytes)\n", static_cast<long long>(QFile(copy).size()));

    MainView view(services);
    view.resize(900, 600);
    view.show();
    QCoreApplication::processEvents();
    const double restore = medianNanos(3, [&] {
        QSignalSpy done(&backups, &Backups::restored);
        backups.restoreFrom(copy, QString());
        done.wait(60000);
        // The views rebuild as the news of the reload reaches them.
        QCoreApplication::processEvents();
    });
    report("restore with its safety copy and every list (median)", restore, 1000e6);
    return 0;
}
