#pragma once

#include <QString>

namespace lullet {

// A sentence with a count in it, in the user's language. Its source is the English text for
// several, with %n, marked QT_TRANSLATE_N_NOOP: each translation gives it in all the forms its
// language needs. English is the language of the sources and has no translation to give its
// singular, so a caller whose English takes the singular for this count passes it as `singular`.
class CountedText {
public:
    static QString text(const char* context, const char* plural, qint64 n,
                        const char* singular = nullptr);
};

} // namespace lullet
