#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <vector>

namespace lullet {

// Whether a text holds any of some terms, ignoring case and diacritics, as a search reads them.
// Texts read straight from the store as UTF-8 are searched in place: a plain ASCII text is
// compared byte by byte, and only a text with other letters goes through the folding. A search
// of the whole history then costs little more than reading it.
class TextSearch {
public:
    explicit TextSearch(const QStringList& terms);

    bool isEmpty() const { return m_terms.isEmpty(); }
    bool matches(const QString& text) const;
    bool matches(QByteArrayView utf8) const;

private:
    QStringList m_terms;
    // Each term folded and lowered, where that leaves it plain ASCII; empty where it does not.
    std::vector<QByteArray> m_plain;
};

} // namespace lullet
