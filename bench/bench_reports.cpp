// A report of every one of 50,000 items to PDF: the time, and the memory it takes on top of the
// loaded store, which stays flat because pages are drawn one after another.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/presentation/ListLines.h"
#include "core/reports/Report.h"
#include "ui/reports/ReportCommands.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#include <sys/resource.h>

using namespace lullet;
using namespace lullet::bench;

namespace {

long peakKiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);
    BenchLaunch launch(now);
    const Services& services = launch.launched.services();
    // "Completed": the whole history, by day, read from disk page by page.
    ListLines lines(services.clock, services.library, services.history, services.running);
    lines.build({Segment::Completed, nullptr, false});
    const Report everything =
        Report::ofLines(QStringLiteral("Everything"), lines, services.library, services.clock);
    const QString path = launch.dir.filePath(QStringLiteral("report.pdf"));
    const long before = peakKiB();
    const double write = medianNanos(3, [&] { ReportCommands::writePdf(everything, path); });
    report("a report of 50,000 items to PDF", write, 2e9);
    std::printf("  (%lld KiB file, peak memory +%ld KiB while writing)\n",
                static_cast<long long>(QFile(path).size() / 1024), peakKiB() - before);
    return 0;
}
