// Building "Today" and its statistics from a large store, and the per-second refresh of the
// running row.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/app/AppDelegate.h"
#include "core/dates/CalendarContext.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "lists/LulletListModel.h"
#include "lists/Segments.h"
#include "lists/TaskStats.h"
#include "support/FakeClock.h"
#include "support/RecordingHost.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace lullet;
using namespace lullet::bench;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);

    BenchLaunch launch(now);
    AppDelegate& delegate = launch.delegate;

    LulletListModel model(delegate, {}, true);
    volatile qint64 sink = 0;
    const double build = medianNanos(21, [&] {
        model.loadLulletLists();
        sink = sink + TaskStats::getTaskStats(model.rows(), delegate).totalTimeAllotted;
    });
    report("\"Today\" and its statistics from 50,000 items", build, 15e6);
    std::printf("  (%d rows)\n", model.rowCount());

    ReminderInfo* running = model.rows().front().representedObject;
    running->setHasStarted(true);
    running->setTimeLimit(1800);
    running->setElapsedTime(0);
    delegate.objReminderRunningNow = running;
    const double refresh = medianNanos(1001, [&] {
        running->setElapsedTime(running->elapsedTime().value_or(0) + 1);
        model.refreshItem(running);
        sink = sink + TaskStats::getTaskStats(model.rows(), delegate).timeCompletedRunning;
    });
    report("refresh of the running row and the statistics", refresh, 0.5e6);

    // While an item runs the sidebar's counts, and its project's progress, are recomputed every
    // second.
    const std::vector<SidebarRow> rows = Segments::prepareSegments(delegate);
    const double counts = medianNanos(101, [&] {
        const Segments::Counts c = Segments::Counts::compute(delegate);
        for (const SidebarRow& row : rows)
            sink = sink + Segments::countFor(row, c).value_or(0);
        sink = sink +
               qint64(Segments::projectProgress(*delegate.mArrAllProjects.front(), delegate) * 100);
    });
    report("sidebar counts over 50,000 items (each second)", counts, 3e6);
    const double full =
        medianNanos(21, [&] { sink = sink + qint64(Segments::prepareSegments(delegate).size()); });
    report("the whole sidebar with every project's progress", full, 20e6);
    return 0;
}
