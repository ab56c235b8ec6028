#pragma once

namespace lullet {

class Translations;

// What the program was asked to do on its command line. Read before any window system is
// touched, so that help, the version and a wrong option need no display.
struct CommandLine {
    // A desktop shortcut's request to add a task from anywhere.
    bool quickAdd = false;
    // A launch at login: the program starts in the tray, its window made when first asked for.
    bool inTray = false;
    // Started by the instance before it, which is ending: its lock is waited for.
    bool relaunch = false;
    // A meeting tool's or a script's: the reminders pause, for that many minutes or (0) until
    // resumed; or they resume.
    bool pause = false;
    int pauseMinutes = 0;
    bool resume = false;

    // Fills `into` and returns -1 when the program should go on; otherwise the exit status, once
    // help, the version or the usage line has been printed in the user's language.
    static int parse(int argc, char* argv[], CommandLine& into, const Translations& translations);
};

} // namespace lullet
