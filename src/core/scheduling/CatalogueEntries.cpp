#include "core/scheduling/CatalogueEntries.h"

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

const QStringList& CatalogueEntries::groups()
{
    static const QStringList types = {
        QStringLiteral("Rest breaks"), QStringLiteral("Nutrition breaks"),
        QStringLiteral("Fitness breaks"), QStringLiteral("Light Food breaks")};
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
        entry("Lunch break", "Its time for lunch. Make sure you are having it on time.", "task",
              "1 h", "2", "1"),
        entry("Tea break", "Small tea breaks improve concentration and garner energy.", "task",
              "10 m", "1", "3"),
        entry("Washroom", "Remove any dirts and always keep yourself clean and fresh.", "lullet",
              nullptr, "1", "2"),
    };
    return set;
}

const std::vector<CatalogueEntry>& CatalogueEntries::nutrition()
{
    static const std::vector<CatalogueEntry> set = {
        entry("Breakfast time", "Never skip your breakfast and do it on time, every day!", "task",
              "30 m", "2", "1"),
        entry("Fruits time", "Eat plenty of fruits and make your diet healthier.", "lullet",
              nullptr, "1", "2"),
        entry("Water time", "Drink lots of water to hydrate your body through out the day.",
              "lullet", nullptr, "1", "1"),
    };
    return set;
}

const std::vector<CatalogueEntry>& CatalogueEntries::fitness()
{
    static const std::vector<CatalogueEntry> set = {
        entry("Body stretching",
              "Stretching exercises can improve your posture as well as relief stress.", "lullet",
              nullptr, "1", "1"),
        entry("Walk break",
              "A 20 minutes walk can increase blood flow to the brain and boost creativity.",
              "task", "10 m", "1", "3"),
        entry("Stand up", "Stand up and take some steps around the room.", "lullet", nullptr, "1",
              "2"),
        entry("power nap",
              "A 10 minutes has been shown to improve cognitive function and decrease sleepiness "
              "and fatigue.",
              "task", "10 m", "2", "1"),
        entry("Exercise break",
              "Pick a decent workout in under 10 minutes to give your mind the needed rest.",
              "task", "30 m", "2", "1"),
        entry("Meditation break", "Relax your brain in a short amount of time by meditating.",
              "task", "30 m", "2", "1"),
        entry("Eye exercise",
              "In every 20 minutes, take a break for at least 20 seconds and look at objects that "
              "are 20 feet away.",
              "lullet", nullptr, "0", "20"),
        entry("Go out side and see some nature",
              "Spending time in nature is good for your immune system and has been shown to "
              "improve focus and relieve stress.",
              "task", "30 m", "0", "20"),
    };
    return set;
}

const std::vector<CatalogueEntry>& CatalogueEntries::lightFood()
{
    static const std::vector<CatalogueEntry> set = {
        entry("Snack break",
              "Take healthy snack breaks and store enough energy to run through out the day.",
              nullptr, nullptr, nullptr, nullptr),
        entry("Coffee break",
              "Coffee breaks can stimulate your focus and make you stay awake if you are feeling "
              "drowsy.",
              nullptr, nullptr, nullptr, nullptr),
    };
    return set;
}

} // namespace lullet
