#pragma once

#include <QIcon>

namespace lullet::TabIcons {

// The preferences tabs' icons, drawn here for desktops whose icon theme has none of the names.
QIcon general();
QIcon security();
QIcon backup();
QIcon sync();
QIcon schedule();
QIcon moreInfo();

} // namespace lullet::TabIcons
