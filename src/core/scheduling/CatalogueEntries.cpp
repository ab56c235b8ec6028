#include "core/scheduling/CatalogueEntries.h"

#include <QCoreApplication>

namespace lullet {

namespace {

CatalogueEntry entry(const char* name, const char* notes, const char* type, const char* duration,
                     const char* repeatType, const char* repeatValue)
{
    const auto text = [](const char* s) {
        return s ? std::optional<QString>(QString::fromUtf8(s)) : std::nullopt;
    };
    return {QString::fromUtf8(name), QString::fromUtf8(notes), text(type),
            text(duration),          text(repeatType),         text(repeatValue)};
}

} // namespace

QString CatalogueEntries::shown(const QString& text)
{
    return QCoreApplication::translate("CatalogueEntries", text.toUtf8().constData());
}

const QStringList& CatalogueEntries::groups()
{
    static const QStringList types = {
        QStringLiteral(QT_TRANSLATE_NOOP("CatalogueEntries", "Rest breaks")),
        QStringLiteral(QT_TRANSLATE_NOOP("CatalogueEntries", "Nutrition breaks")),
        QStringLiteral(QT_TRANSLATE_NOOP("CatalogueEntries", "Fitness breaks")),
        QStringLiteral(QT_TRANSLATE_NOOP("CatalogueEntries", "Light Food breaks"))};
    return types;
}

const std::vector<CatalogueEntry>& CatalogueEntries::entriesOf(const QString& group)
{
    static const std::vector<CatalogueEntry> none;
    const QStringList& types = groups();
    if (group == types[0])
        return rest();
    if (group == types[1])
        return nutrition();
    if (group == types[2])
        return fitness();
    if (group == types[3])
        return lightFood();
    return none;
}

// Repeat types: "0" minutes, "1" hours, "2" days.
const std::vector<CatalogueEntry>& CatalogueEntries::rest()
{
    static const std::vector<CatalogueEntry> set = {
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Lunch break"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Its time for lunch. Make sure you are having it on time."),
              "task", "1 h", "2", "1"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Tea break"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Small tea breaks improve concentration and garner energy."),
              "task", "10 m", "1", "3"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Washroom"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Remove any dirts and always keep yourself clean and fresh."),
              "lullet", nullptr, "1", "2"),
    };
    return set;
}

const std::vector<CatalogueEntry>& CatalogueEntries::nutrition()
{
    static const std::vector<CatalogueEntry> set = {
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Breakfast time"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Never skip your breakfast and do it on time, every day!"),
              "task", "30 m", "2", "1"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Fruits time"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Eat plenty of fruits and make your diet healthier."),
              "lullet", nullptr, "1", "2"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Water time"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Drink lots of water to hydrate your body through out the day."),
              "lullet", nullptr, "1", "1"),
    };
    return set;
}

const std::vector<CatalogueEntry>& CatalogueEntries::fitness()
{
    static const std::vector<CatalogueEntry> set = {
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Body stretching"),
              QT_TRANSLATE_NOOP(
                  "CatalogueEntries",
                  "Stretching exercises can improve your posture as well as relief stress."),
              "lullet", nullptr, "1", "1"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Walk break"),
              QT_TRANSLATE_NOOP(
                  "CatalogueEntries",
                  "A 20 minutes walk can increase blood flow to the brain and boost creativity."),
              "task", "10 m", "1", "3"),
        entry(
            QT_TRANSLATE_NOOP("CatalogueEntries", "Stand up"),
            QT_TRANSLATE_NOOP("CatalogueEntries", "Stand up and take some steps around the room."),
            "lullet", nullptr, "1", "2"),
        entry(
            QT_TRANSLATE_NOOP("CatalogueEntries", "power nap"),
            QT_TRANSLATE_NOOP(
                "CatalogueEntries",
                "A 10 minutes has been shown to improve cognitive function and decrease sleepiness "
                "and fatigue."),
            "task", "10 m", "2", "1"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Exercise break"),
              QT_TRANSLATE_NOOP(
                  "CatalogueEntries",
                  "Pick a decent workout in under 10 minutes to give your mind the needed rest."),
              "task", "30 m", "2", "1"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Meditation break"),
              QT_TRANSLATE_NOOP("CatalogueEntries",
                                "Relax your brain in a short amount of time by meditating."),
              "task", "30 m", "2", "1"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Eye exercise"),
              QT_TRANSLATE_NOOP("CatalogueEntries", "In every 20 minutes, take a break for at "
                                                    "least 20 seconds and look at objects that "
                                                    "are 20 feet away."),
              "lullet", nullptr, "0", "20"),
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Go out side and see some nature"),
              QT_TRANSLATE_NOOP(
                  "CatalogueEntries",
                  "Spending time in nature is good for your immune system and has been shown to "
                  "improve focus and relieve stress."),
              "task", "30 m", "0", "20"),
    };
    return set;
}

const std::vector<CatalogueEntry>& CatalogueEntries::lightFood()
{
    static const std::vector<CatalogueEntry> set = {
        entry(QT_TRANSLATE_NOOP("CatalogueEntries", "Snack break"),
              QT_TRANSLATE_NOOP(
                  "CatalogueEntries",
                  "Take healthy snack breaks and store enough energy to run through out the day."),
              nullptr, nullptr, nullptr, nullptr),
        entry(
            QT_TRANSLATE_NOOP("CatalogueEntries", "Coffee break"),
            QT_TRANSLATE_NOOP(
                "CatalogueEntries",
                "Coffee breaks can stimulate your focus and make you stay awake if you are feeling "
                "drowsy."),
            nullptr, nullptr, nullptr, nullptr),
    };
    return set;
}

} // namespace lullet
