#include "core/library/ProjectOrder.h"

#include "core/text/LocalizedText.h"

#include <algorithm>

namespace lullet {

void ProjectOrder::sortForReading(std::vector<Project*>& projects)
{
    std::stable_sort(projects.begin(), projects.end(), [](const Project* a, const Project* b) {
        return LocalizedText::compare(a->name().value_or(QString()),
                                      b->name().value_or(QString())) < 0;
    });
}

void ProjectOrder::sortByCodePoints(std::vector<Project*>& projects)
{
    std::stable_sort(projects.begin(), projects.end(), [](const Project* a, const Project* b) {
        return a->name().value_or(QString()) < b->name().value_or(QString());
    });
}

} // namespace lullet
