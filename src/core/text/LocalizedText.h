#pragma once

#include <QString>

namespace lullet {

// Text comparisons in the user's language, as lists of names expect them.
class LocalizedText {
public:
    // Negative, zero or positive, like a locale-aware "localizedCompare": accents and case are
    // ordered the way the user's language orders them.
    static int compare(const QString& a, const QString& b);
};

} // namespace lullet
