#include "core/text/LocalizedText.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/IcuString.h"
#include "core/text/PatternMatcher.h"

#include <QTextBoundaryFinder>

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <memory>

namespace lullet {

int LocalizedText::compare(const QString& a, const QString& b)
{
    // One collator per thread, rebuilt when the user's locale changes.
    thread_local int generation = 0;
    thread_local std::unique_ptr<icu::Collator> collator;
    if (!collator || generation != CalendarContext::generation()) {
        generation = CalendarContext::generation();
        UErrorCode status = U_ZERO_ERROR;
        collator.reset(icu::Collator::createInstance(CalendarContext::locale(), status));
        if (U_FAILURE(status))
            collator.reset();
    }
    if (!collator)
        return a.compare(b);
    UErrorCode status = U_ZERO_ERROR;
    return int(collator->compare(toIcu(a), toIcu(b), status));
}

QString LocalizedText::capitalizeFirst(const QString& text)
{
    QTextBoundaryFinder graphemes(QTextBoundaryFinder::Grapheme, text);
    const qsizetype end = graphemes.toNextBoundary();
    if (end <= 0)
        return text;
    return text.left(end).toUpper() + text.mid(end);
}

QString LocalizedText::foldDiacritics(const QString& text)
{
    bool plain = true;
    for (const QChar c : text) {
        if (c.unicode() >= 0x80) {
            plain = false;
            break;
        }
    }
    if (plain)
        return text;
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
    const icu::Normalizer2* nfc = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status))
        return text;
    const icu::UnicodeString decomposed = nfd->normalize(toIcu(text), status);
    icu::UnicodeString stripped;
    for (int32_t i = 0; i < decomposed.length();) {
        const UChar32 c = decomposed.char32At(i);
        if (u_charType(c) != U_NON_SPACING_MARK)
            stripped.append(c);
        i += U16_LENGTH(c);
    }
    return fromIcu(nfc->normalize(stripped, status));
}

QString LocalizedText::foldCaseAndDiacritics(const QString& text)
{
    return foldDiacritics(text).toCaseFolded();
}

bool LocalizedText::equalsCD(const QString& a, const QString& b)
{
    return foldCaseAndDiacritics(a) == foldCaseAndDiacritics(b);
}

bool LocalizedText::matchesCD(const QString& text, const QString& pattern)
{
    return PatternMatcher(pattern).matches(text);
}

bool LocalizedText::containsCD(const QString& text, const QString& part)
{
    return foldDiacritics(text).contains(foldDiacritics(part), Qt::CaseInsensitive);
}

} // namespace lullet
