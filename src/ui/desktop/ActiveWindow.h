#pragma once

namespace lullet {

// What the window system says of the window the user is in.
class ActiveWindow {
public:
    // True when another program's window is active and full screen (a film, a presentation, a
    // game): a prompt shown beside it would open behind it. False wherever that can't be known.
    static bool isOtherProgramFullScreen();
};

} // namespace lullet
