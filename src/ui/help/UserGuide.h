#pragma once

#include <QString>

class QWidget;

namespace lullet {

// The user's guide, a PDF made with the program: beside the executable in a build, in the
// program's data folder once installed.
class UserGuide {
public:
    static constexpr char fileName[] = "Lullet User's Guide.pdf";

    // The first place that holds the guide, or empty.
    static QString path();
    // Opens the guide in the desktop's PDF viewer, or says why it could not.
    static void open(QWidget* parent);
};

} // namespace lullet
