#include "core/text/TextSearch.h"

#include "core/text/LocalizedText.h"

#include <algorithm>
#include <cctype>

namespace lullet {

namespace {

bool isPlain(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char lowered(char c)
{
    return char(std::tolower(static_cast<unsigned char>(c)));
}

} // namespace

TextSearch::TextSearch(const QStringList& terms)
    : m_terms(terms)
{
    for (const QString& term : terms) {
        const QByteArray folded = LocalizedText::foldCaseAndDiacritics(term).toUtf8();
        m_plain.push_back(isPlain(folded) ? folded.toLower() : QByteArray());
    }
}

bool TextSearch::matches(const QString& text) const
{
    return std::any_of(m_terms.begin(), m_terms.end(), [&text](const QString& term) {
        return LocalizedText::containsCD(text, term);
    });
}

bool TextSearch::matches(QByteArrayView utf8) const
{
    if (!isPlain(utf8))
        return matches(QString::fromUtf8(utf8));
    for (std::size_t i = 0; i < m_plain.size(); ++i) {
        const QByteArray& term = m_plain[i];
        if (term.isEmpty()) {
            // A term of other letters can still match plain text, once folded.
            if (LocalizedText::containsCD(QString::fromLatin1(utf8), m_terms[int(i)]))
                return true;
            continue;
        }
        const auto found = std::search(utf8.begin(), utf8.end(), term.begin(), term.end(),
                                       [](char a, char b) { return lowered(a) == b; });
        if (found != utf8.end())
            return true;
    }
    return false;
}

} // namespace lullet
