#pragma once

#include <QString>

#include <array>
#include <optional>

namespace lullet {

// What the main view shows: one of the sidebar's segments, or a project's list.
enum class Segment { Dashboard, Lullets, Today, Upcoming, Anytime, Completed, Project };

// The views the main window switches between. A segment is shown by one of them; the add-task
// panel of a project is reached from the project's list.
enum class View { Chart, RepeatList, LulletList, CustomList, ProjectList, AddTaskList };

// The one table of the segments: their names, their texts and their views.
namespace Segments {

// The six above the projects, in the sidebar's order.
inline constexpr std::array<Segment, 6> sidebar = {Segment::Dashboard, Segment::Lullets,
                                                   Segment::Today,     Segment::Upcoming,
                                                   Segment::Anytime,   Segment::Completed};

// The segment's own name ("Today", "Project"), never translated.
QString name(Segment segment);
// The segment as the user reads it.
QString text(Segment segment);
// The segment of that name, compared ignoring case.
std::optional<Segment> named(const QString& name);
View view(Segment segment);

} // namespace Segments

} // namespace lullet
