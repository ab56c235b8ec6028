#include "core/text/PatternMatcher.h"

#include "core/dates/IcuString.h"
#include "core/text/LocalizedText.h"

#include <unicode/regex.h>

namespace lullet {

struct PatternMatcher::Compiled {
    std::unique_ptr<icu::RegexMatcher> matcher;
    // The pattern as literal text, folded, when it is no valid expression.
    QString literal;
};

PatternMatcher::PatternMatcher(const QString& pattern)
    : m_compiled(std::make_unique<Compiled>())
{
    UErrorCode status = U_ZERO_ERROR;
    auto matcher = std::make_unique<icu::RegexMatcher>(
        toIcu(LocalizedText::foldDiacritics(pattern)), UREGEX_CASE_INSENSITIVE, status);
    if (U_SUCCESS(status))
        m_compiled->matcher = std::move(matcher);
    else
        m_compiled->literal = LocalizedText::foldCaseAndDiacritics(pattern);
}

PatternMatcher::~PatternMatcher() = default;

bool PatternMatcher::isValid() const
{
    return m_compiled->matcher != nullptr;
}

bool PatternMatcher::matches(const QString& text) const
{
    if (!m_compiled->matcher)
        return LocalizedText::foldCaseAndDiacritics(text) == m_compiled->literal;
    // The matcher keeps a reference to its input; the folded text must outlive the match.
    const icu::UnicodeString input = toIcu(LocalizedText::foldDiacritics(text));
    m_compiled->matcher->reset(input);
    UErrorCode status = U_ZERO_ERROR;
    const bool whole = m_compiled->matcher->matches(status);
    return U_SUCCESS(status) && whole;
}

} // namespace lullet
