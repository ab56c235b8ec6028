// Building "Today" and its statistics from a large store, the per-second refresh of the running
// row, the sidebar, the repeat list with its labels, and the dashboard.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/presentation/DashboardSummary.h"
#include "core/presentation/HistoryTotals.h"
#include "core/presentation/RowTexts.h"
#include "core/presentation/Sidebar.h"
#include "core/scheduling/Catalogue.h"
#include "ui/main/ItemListModel.h"
#include "ui/main/RepeatListModel.h"

#include <QCoreApplication>

using namespace lullet;
using namespace lullet::bench;

namespace {

volatile qint64 sink = 0;

// A screenful of rows, as a view asks for them.
void readScreen(const ItemListModel& list, int first)
{
    for (int row = first; row < std::min(first + 40, list.rowCount()); ++row)
        sink = sink + list.index(row, ItemListModel::TitleColumn).data().toString().size();
}

void benchToday(const Services& services)
{
    ItemListModel model(services, {}, RowTexts::ProjectName::InList);
    const double build = medianNanos(21, [&] {
        model.reload();
        sink = sink + model.lines().stats().totalTimeAllotted;
        readScreen(model, 0);
    });
    report("\"Today\" and its statistics from 50,000 items", build, 15e6);
    std::printf("  (%d rows)\n", model.rowCount());

    Item* running = model.itemAt(0);
    services.running.start(*running);
    running->setTimeLimit(1800);
    const double refresh = medianNanos(1001, [&] {
        running->setElapsedTime(running->elapsedTime().value_or(0) + 1);
        model.refreshItem(running);
        sink = sink + model.lines().stats().timeCompletedRunning;
        readScreen(model, 0);
    });
    report("refresh of the running row and the statistics", refresh, 0.5e6);
}

void benchSidebar(const Services& services, const Sidebar& sidebar)
{
    // The history on disk is read once for the sidebar's totals, when the window first shows.
    const double totals = medianNanos(1, [&] { sink = sink + sidebar.counts().completed; });
    report("the history's totals read from disk (once)", totals, 300e6);

    // While an item runs the sidebar's counts, and its project's progress, are recomputed every
    // second.
    const std::vector<SidebarRow> rows = sidebar.rows();
    const double counts = medianNanos(101, [&] {
        const Sidebar::Counts c = sidebar.counts();
        for (const SidebarRow& row : rows)
            sink = sink + sidebar.countFor(row, c).value_or(0);
        sink = sink + qint64(sidebar.projectProgress(*services.library.projects().front()) * 100);
    });
    report("sidebar counts over 50,000 items (each second)", counts, 3e6);
    const double full = medianNanos(21, [&] { sink = sink + qint64(sidebar.rows().size()); });
    report("the whole sidebar with every project's progress", full, 20e6);
}

void benchRepeats(const Services& services)
{
    // The repeat list: rebuilt at every change of a rule or an item, its labels each minute.
    RepeatListModel repeats(services.catalogue, services.texts);
    const auto readColumn = [&](int column) {
        for (int row = 0; row < repeats.rowCount(); ++row)
            sink = sink + repeats.index(row, column).data().toString().size();
    };
    const double repeatReload = medianNanos(101, [&] {
        repeats.reload();
        readColumn(RepeatListModel::LulletColumn);
        readColumn(RepeatListModel::NextColumn);
    });
    report("the repeat list with 100 rules, every row read", repeatReload, 5e6);
    std::printf("  (%d rows)\n", repeats.rowCount());
    const double labels = medianNanos(1001, [&] {
        repeats.refreshLabels();
        readColumn(RepeatListModel::NextColumn);
    });
    report("the repeat list's next-time labels (each minute)", labels, 1e6);
}

void benchCompleted(const Services& services)
{
    // "Completed" lists the whole history from disk, a line a row, and the texts of a screenful
    // at its top and deep down; the history is never read into memory.
    ItemListModel completed(services, {Segment::Completed, nullptr, false},
                            RowTexts::ProjectName::InList);
    const double completedBuild = medianNanos(5, [&] {
        completed.reload();
        sink = sink + completed.lines().stats().totalCount +
               qint64(completed.lines().usedByDay().size());
        readScreen(completed, 0);
        readScreen(completed, completed.rowCount() / 2);
    });
    report("\"Completed\" from the whole history, a screenful read", completedBuild, 100e6);
    std::printf("  (%d rows, %zu items in memory)\n", completed.rowCount(),
                services.library.items().size());
}

void benchSearch(Sidebar& sidebar)
{
    const std::vector<SidebarRow> rows = sidebar.rows();
    // A new search goes through every title, the history's read in place from disk.
    const double search = medianNanos(5, [&] {
        sidebar.endSearch();
        sink = sink + qint64(sidebar.search(QStringLiteral("walk, xyz"), rows).size());
    });
    report("a search of every title", search, 100e6);
    // Typing narrows it: each letter looks again only at what the last one found.
    const QStringList typed = {QStringLiteral("w"),     QStringLiteral("wa"),
                               QStringLiteral("wal"),   QStringLiteral("walk"),
                               QStringLiteral("walk,"), QStringLiteral("walk, x")};
    const double typing = medianNanos(5, [&] {
        sidebar.endSearch();
        for (const QString& text : typed)
            sink = sink + qint64(sidebar.search(text, rows).size());
    });
    report("a search typed a letter at a time (six searches)", typing, 50e6);
}

void benchDashboard(const Services& services)
{
    // The dashboard counts the items in memory at every change and every minute, and adds the
    // history's sums, read once.
    const double dashboard = medianNanos(21, [&] {
        const DashboardSummary summary =
            DashboardSummary::of(services.library.items(), services.library.projects(),
                                 services.history, services.clock, services.running);
        sink = sink + summary.current + summary.months[10] + qint64(summary.rows.size());
    });
    report("the dashboard's counts over 50,000 items", dashboard, 20e6);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);

    BenchLaunch launch(now);
    const Services& services = launch.launched.services();
    Sidebar sidebar(services.clock, services.library, services.catalogue, services.running,
                    services.history);
    std::printf("  (%zu items in memory of 50,000)\n", services.library.items().size());
    benchToday(services);
    benchSidebar(services, sidebar);
    benchRepeats(services);
    benchCompleted(services);
    benchSearch(sidebar);
    benchDashboard(services);
    return 0;
}
