#include "core/presentation/Segment.h"

#include <QCoreApplication>

namespace lullet::Segments {

namespace {

struct Entry {
    Segment segment;
    const char* name;
    View view;
};

constexpr std::array<Entry, 7> table = {{
    {Segment::Dashboard, QT_TRANSLATE_NOOP("Segment", "Dashboard"), View::Chart},
    {Segment::Lullets, QT_TRANSLATE_NOOP("Segment", "Lullets"), View::RepeatList},
    {Segment::Today, QT_TRANSLATE_NOOP("Segment", "Today"), View::LulletList},
    {Segment::Upcoming, QT_TRANSLATE_NOOP("Segment", "Upcoming"), View::CustomList},
    {Segment::Anytime, QT_TRANSLATE_NOOP("Segment", "Anytime"), View::LulletList},
    {Segment::Completed, QT_TRANSLATE_NOOP("Segment", "Completed"), View::CustomList},
    {Segment::Project, QT_TRANSLATE_NOOP("Segment", "Project"), View::ProjectList},
}};

constexpr bool tableInOrder()
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (std::size_t(table[i].segment) != i)
            return false;
    }
    return true;
}
static_assert(tableInOrder(), "the table is indexed by the segment");

const Entry& entry(Segment segment)
{
    return table[std::size_t(segment)];
}

} // namespace

QString name(Segment segment)
{
    return QLatin1String(entry(segment).name);
}

QString text(Segment segment)
{
    return QCoreApplication::translate("Segment", entry(segment).name);
}

std::optional<Segment> named(const QString& name)
{
    for (const Entry& e : table) {
        if (name.compare(QLatin1String(e.name), Qt::CaseInsensitive) == 0)
            return e.segment;
    }
    return std::nullopt;
}

View view(Segment segment)
{
    return entry(segment).view;
}

} // namespace lullet::Segments
