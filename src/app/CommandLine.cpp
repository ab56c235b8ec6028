#include "app/CommandLine.h"

#include "ui/desktop/Translations.h"

#include <QCoreApplication>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace lullet {

namespace {

// The options themselves are the same in every language.
constexpr const char* options = "[--quick-add] [--in-tray] [--pause [MINUTES]] [--resume] [--help] "
                                "[--version]";

QByteArray usage(const Translations& translations)
{
    return translations.text("CommandLine", QT_TRANSLATE_NOOP("CommandLine", "Usage: lullet %1"))
               .arg(QLatin1String(options))
               .toLocal8Bit() +
           '\n';
}

// A whole number of minutes, from 1 to a year's.
bool isMinutes(const char* text)
{
    if (!text || !*text || std::strlen(text) > 6)
        return false;
    for (const char* c = text; *c; ++c) {
        if (!std::isdigit(static_cast<unsigned char>(*c)))
            return false;
    }
    const long minutes = std::strtol(text, nullptr, 10);
    return minutes >= 1 && minutes <= 366L * 24 * 60;
}

void printHelp(const Translations& translations)
{
    std::fputs(usage(translations).constData(), stdout);
    std::fputs(
        translations
            .text("CommandLine",
                  QT_TRANSLATE_NOOP(
                      "CommandLine",
                      "\n"
                      "Schedules short health pauses and your tasks, from the tray.\n"
                      "\n"
                      "  --quick-add  open the quick-add window of the running Lullet\n"
                      "  --in-tray    start in the tray without opening the window\n"
                      "  --pause [MINUTES]\n"
                      "               pause the reminders of the running Lullet for MINUTES, or "
                      "until\n"
                      "               resumed\n"
                      "  --resume     resume the reminders\n"
                      "  --help       show this help and exit\n"
                      "  --version    show the version and exit\n"
                      "\n"
                      "A second launch brings the running Lullet forward.\n"))
            .toLocal8Bit()
            .constData(),
        stdout);
}

} // namespace

int CommandLine::parse(int argc, char* argv[], CommandLine& into, const Translations& translations)
{
    for (int i = 1; i < argc; ++i) {
        const char* option = argv[i];
        if (std::strcmp(option, "--quick-add") == 0) {
            into.quickAdd = true;
        } else if (std::strcmp(option, "--in-tray") == 0) {
            into.inTray = true;
        } else if (std::strcmp(option, "--pause") == 0) {
            into.pause = true;
            if (i + 1 < argc && isMinutes(argv[i + 1]))
                into.pauseMinutes = int(std::strtol(argv[++i], nullptr, 10));
        } else if (std::strcmp(option, "--resume") == 0) {
            into.resume = true;
        } else if (std::strcmp(option, "--relaunch") == 0) {
            // Only the program gives this to itself; help keeps quiet about it.
            into.relaunch = true;
        } else if (std::strcmp(option, "--help") == 0 || std::strcmp(option, "-h") == 0) {
            printHelp(translations);
            return 0;
        } else if (std::strcmp(option, "--version") == 0) {
            std::printf("lullet %s\n", PROJECT_VERSION);
            return 0;
        } else {
            const QString unknown = translations.text(
                "CommandLine", QT_TRANSLATE_NOOP("CommandLine", "lullet: unknown option '%1'"));
            std::fprintf(stderr, "%s\n%s", qPrintable(unknown.arg(QString::fromLocal8Bit(option))),
                         usage(translations).constData());
            return 2;
        }
    }
    return -1;
}

} // namespace lullet
