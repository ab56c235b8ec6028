#pragma once

#include <QIcon>

namespace lullet::TabIcons {

// The preferences tabs' icons, drawn here for desktops whose icon theme has none of the names,
// in the ink given: the palette's text colour, so that they show on a dark window as on a light.
QIcon general(const QColor& ink);
QIcon security(const QColor& ink);
QIcon backup(const QColor& ink);
QIcon sync(const QColor& ink);
QIcon schedule(const QColor& ink);
QIcon moreInfo(const QColor& ink);

} // namespace lullet::TabIcons
