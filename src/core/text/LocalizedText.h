#pragma once

#include <QString>

namespace lullet {

// Text comparisons in the user's language, as lists of names expect them.
class LocalizedText {
public:
    // Negative, zero or positive, like a locale-aware "localizedCompare": accents and case are
    // ordered the way the user's language orders them.
    static int compare(const QString& a, const QString& b);

    // The first user-perceived character in upper case, the rest as it is: "walk" is "Walk", and
    // a letter with a combining accent keeps its accent.
    static QString capitalizeFirst(const QString& text);

    // Removes accents and other combining marks: "Crème" becomes "Creme".
    static QString foldDiacritics(const QString& text);

    // A key that is equal for texts that differ only in case and diacritics.
    static QString foldCaseAndDiacritics(const QString& text);
    static bool equalsCD(const QString& a, const QString& b);

    // The whole text matches the regular expression, ignoring case and diacritics on both sides.
    // A pattern that is no valid expression reads as literal text.
    static bool matchesCD(const QString& text, const QString& pattern);

    // The text contains the other, ignoring case and diacritics on both sides.
    static bool containsCD(const QString& text, const QString& part);
};

} // namespace lullet
