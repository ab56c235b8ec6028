#include "core/presentation/HistorySearch.h"

#include "core/library/Library.h"
#include "core/store/ObjectContext.h"
#include "core/text/LocalizedText.h"
#include "core/text/TextSearch.h"

#include <QSet>

#include <algorithm>
#include <cstring>

namespace lullet {

HistorySearch::HistorySearch(Library& library)
    : m_library(library)
{
}

void HistorySearch::find(const QStringList& terms, const TextSearch& search, const Visit& visit)
{
    if (terms.isEmpty()) {
        forget();
        return;
    }
    if (narrows(terms)) {
        m_terms = terms;
        findAmongRemembered(search, visit);
        return;
    }
    forget();
    findInStore(search, visit);
    if (m_remembers)
        m_terms = terms;
}

void HistorySearch::forget()
{
    m_remembers = false;
    m_terms.clear();
    // Given back, not kept for the next search: the largest is a megabyte.
    m_rows = {};
    m_titles = {};
}

bool HistorySearch::narrows(const QStringList& terms) const
{
    // The history changed as a whole (a save that deleted some of it, a store read again): the
    // rows remembered may be gone. Rows read into memory since are passed over one by one.
    if (!m_remembers || m_version != m_library.historyVersion())
        return false;
    // A title holding a new term holds the old one it contains, and so was found last time. Both
    // containments ignore case and diacritics alike.
    return std::all_of(terms.begin(), terms.end(), [this](const QString& term) {
        return std::any_of(m_terms.begin(), m_terms.end(), [&term](const QString& old) {
            return LocalizedText::containsCD(term, old);
        });
    });
}

void HistorySearch::findAmongRemembered(const TextSearch& search, const Visit& visit)
{
    // An item read into memory since belongs to the memory's search now.
    const QSet<qint64> inMemory = m_library.context().itemRowIds();
    // What still matches moves down over what no longer does, in the store's order.
    std::size_t kept = 0;
    int end = 0;
    for (const Row& row : m_rows) {
        const QByteArrayView title(m_titles.constData() + row.start, row.size);
        if (inMemory.contains(row.rowId) || !search.matches(title))
            continue;
        visit(row.rowId, title, row.project);
        std::memmove(m_titles.data() + end, title.data(), std::size_t(row.size));
        m_rows[kept++] = {row.rowId, row.project, end, row.size};
        end += row.size;
    }
    m_rows.resize(kept);
    m_titles.truncate(end);
}

void HistorySearch::findInStore(const TextSearch& search, const Visit& visit)
{
    m_remembers = true;
    m_version = m_library.historyVersion();
    const bool read = m_library.scanHistoryTitles(
        [&](qint64 rowId, QByteArrayView title, const Project* project) {
            if (!search.matches(title))
                return;
            visit(rowId, title, project);
            if (!m_remembers)
                return;
            const qsizetype used =
                m_titles.size() + title.size() + qsizetype((m_rows.size() + 1) * sizeof(Row));
            if (used > rememberedBytes) {
                forget();
                return;
            }
            m_rows.push_back({rowId, project, int(m_titles.size()), int(title.size())});
            m_titles.append(title);
        });
    // Only the whole of what matches may stand for the next search.
    if (!read)
        forget();
}

} // namespace lullet
