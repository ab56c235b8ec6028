#pragma once

#include <QString>

#include <memory>

namespace lullet {

// One pattern compiled once, for testing many texts against it. Case and diacritics are ignored
// as in LocalizedText::matchesCD, whose meaning it shares: a pattern that is no valid regular
// expression ("Review (draft") reads as literal text.
class PatternMatcher {
public:
    explicit PatternMatcher(const QString& pattern);
    ~PatternMatcher();
    PatternMatcher(const PatternMatcher&) = delete;
    PatternMatcher& operator=(const PatternMatcher&) = delete;

    bool isValid() const;
    bool matches(const QString& text) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

} // namespace lullet
