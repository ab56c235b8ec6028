#pragma once

#include <QSet>
#include <QString>

namespace lullet {

// Hands out one shared copy of each distinct text read from the store. The occurrences of a rule
// repeat its id, title and notes thousands of times; sharing them keeps a large store small in
// memory. Lives only for one load.
class StringPool {
public:
    // Records read only to be looked at and dropped share nothing: their pool would only grow.
    enum class Share { Texts, None };

    explicit StringPool(Share share = Share::Texts)
        : m_share(share == Share::Texts)
    {
    }

    QString intern(const QString& text)
    {
        if (!m_share)
            return text;
        const auto it = m_texts.constFind(text);
        if (it != m_texts.constEnd())
            return *it;
        m_texts.insert(text);
        return text;
    }

private:
    bool m_share;
    QSet<QString> m_texts;
};

} // namespace lullet
