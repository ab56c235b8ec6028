#pragma once

namespace lullet {

// The program's id on the desktop, in reverse-DNS form: the name of its desktop entry, its icon
// and its metainfo. The window system matches the running program to its entry by it.
inline constexpr char appId[] = LULLET_APP_ID;

} // namespace lullet
