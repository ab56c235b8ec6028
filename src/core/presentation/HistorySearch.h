#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <functional>
#include <vector>

namespace lullet {

class Library;
class Project;
class TextSearch;

// The items of the history on disk whose titles hold any of a search's terms. Typing into the
// search field mostly narrows the last search: each term grows, so every title it finds was
// found last time. The rows found last time are remembered, with their titles' bytes, and such a
// search looks at them alone instead of reading every title of the store again; it finds exactly
// what reading them all would. A search that finds too much to keep small is not remembered, and
// what is remembered is dropped as soon as the history changes as a whole.
class HistorySearch {
public:
    explicit HistorySearch(Library& library);

    using Visit = std::function<void(qint64 rowId, QByteArrayView title, const Project* project)>;
    // Calls `visit` for each item of the history whose title `search`, made of `terms`, matches,
    // in the order of the store.
    void find(const QStringList& terms, const TextSearch& search, const Visit& visit);
    void forget();

    // What is remembered at most: titles' bytes and each row's share, in bytes.
    static constexpr qsizetype rememberedBytes = 1 << 20;

private:
    struct Row {
        qint64 rowId = 0;
        const Project* project = nullptr;
        // The title's bytes in m_titles.
        int start = 0;
        int size = 0;
    };

    // Whether every title `terms` can match was matched by the remembered search.
    bool narrows(const QStringList& terms) const;
    void findAmongRemembered(const TextSearch& search, const Visit& visit);
    void findInStore(const TextSearch& search, const Visit& visit);

    Library& m_library;
    bool m_remembers = false;
    QStringList m_terms;
    quint32 m_version = 0;
    std::vector<Row> m_rows;
    QByteArray m_titles;
};

} // namespace lullet
