#pragma once

#include <QString>

#include <unicode/unistr.h>

namespace lullet {

// QString and ICU both hold UTF-16, so the conversions copy code units and nothing more.
inline icu::UnicodeString toIcu(QStringView text)
{
    return icu::UnicodeString(reinterpret_cast<const char16_t*>(text.utf16()),
                              int32_t(text.size()));
}

inline QString fromIcu(const icu::UnicodeString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

} // namespace lullet
