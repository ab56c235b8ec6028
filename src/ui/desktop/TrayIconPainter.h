#pragma once

#include <QIcon>

namespace lullet {

// The status item's icon, drawn rather than loaded so that it needs no image plugin: a crescent
// in one colour, the panel's text colour, so it reads on light and dark panels alike.
// Paused, two bars stand in the crescent's hollow.
class TrayIconPainter {
public:
    static QIcon make(bool paused = false);
};

} // namespace lullet
