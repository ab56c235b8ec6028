#pragma once

#include <QMetaType>

namespace lullet {

// What the window of a prompt does after an answer.
enum class PromptOutcome {
    // Stays open, as after a blank answer.
    Stay,
    // Closes with its fade.
    Close,
    // Closes with its fade, then the idle question may ask what the user is doing now.
    CloseAndAsk,
    // Closes at once, then the idle question may ask what the user is doing now.
    CloseAtOnceAndAsk,
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::PromptOutcome)
