#pragma once

#include <QString>

namespace lullet {

// One bar of a chart: what its axis calls it and how tall it stands.
struct ChartBar {
    QString label;
    double value = 0;
};

} // namespace lullet
