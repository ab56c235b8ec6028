#pragma once

#include <QtGlobal>

#include <algorithm>
#include <optional>

namespace lullet {

class ObjectContext;

// A record of the store. Every attribute is optional, as stored data may lack any of them.
// Records belong to the one ObjectContext of the application, which owns them for the whole run:
// a deleted record stays valid memory, flagged, so that no list or view can dangle.
class Record {
public:
    enum class Entity { Project, Rule, Item };

    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    virtual ~Record() = default;

    virtual Entity entity() const = 0;
    // The row of the record in the store; 0 until its first save.
    qint64 rowId() const { return m_rowId; }
    // False once the record is deleted or its context was reset: it is then no longer part of
    // the data and only kept alive so that stale pointers stay harmless.
    bool hasContext() const { return m_context != nullptr && !m_deleted; }
    bool isDeleted() const { return m_deleted; }

protected:
    Record() = default;

    template <class T, class U> void assign(std::optional<T>& field, U&& value)
    {
        std::optional<T> next(std::forward<U>(value));
        if (field == next)
            return;
        field = std::move(next);
        changed();
    }
    void changed();

    // Hours and minutes of a planned duration as seconds.
    static int plannedLength(const std::optional<int>& hours, const std::optional<int>& minutes)
    {
        return std::max(0, hours.value_or(0)) * 3600 + std::max(0, minutes.value_or(0)) * 60;
    }

private:
    friend class ObjectContext;
    friend class HistoryOnDisk;

    ObjectContext* m_context = nullptr;
    qint64 m_rowId = 0;
    bool m_inserted = false;
    bool m_updated = false;
    bool m_deleted = false;
};

} // namespace lullet
