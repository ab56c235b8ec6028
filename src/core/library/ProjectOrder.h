#pragma once

#include "core/model/Project.h"

#include <vector>

namespace lullet {

// The two orders of projects. They look alike and differ on purpose, so they stand side by side.
// Both sort by name and keep projects of equal names in their order.
class ProjectOrder {
public:
    // The shared list, the sidebar and the project menus of the forms: as the user's language
    // orders words, ignoring case.
    static void sortForReading(std::vector<Project*>& projects);
    // The targets of a row's "Move to" and "Duplicate to": by the plain order of the names' code
    // points, capitals first, as the store sorts them.
    static void sortByCodePoints(std::vector<Project*>& projects);
};

} // namespace lullet
