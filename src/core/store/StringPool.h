#pragma once

#include <QSet>
#include <QString>

namespace lullet {

// Hands out one shared copy of each distinct text read from the store. The occurrences of a rule
// repeat its id, title and notes thousands of times; sharing them keeps a large store small in
// memory. Lives only for one load.
class StringPool {
public:
    QString intern(const QString& text)
    {
        const auto it = m_texts.constFind(text);
        if (it != m_texts.constEnd())
            return *it;
        m_texts.insert(text);
        return text;
    }

private:
    QSet<QString> m_texts;
};

} // namespace lullet
