#pragma once

#include "core/dates/Date.h"
#include "core/model/Record.h"

#include <QString>

#include <vector>

namespace lullet {

class Item;

// A named group of items.
class Project final : public Record {
public:
    Entity entity() const override { return Entity::Project; }

    const std::optional<QString>& name() const { return m_name; }
    void setName(std::optional<QString> v) { assign(m_name, std::move(v)); }
    const std::optional<Date>& createdDate() const { return m_createdDate; }
    void setCreatedDate(std::optional<Date> v) { assign(m_createdDate, v); }
    // "<to make>" for a project duplicated as new, unset otherwise: never an identifier.
    const std::optional<QString>& uniqueId() const { return m_uniqueId; }
    void setUniqueId(std::optional<QString> v) { assign(m_uniqueId, std::move(v)); }

    // The inverse of Item::toProject(); kept in step by Item::setToProject().
    const std::vector<Item*>& toReminders() const { return m_toReminders; }

private:
    friend class Item;
    friend class ObjectContext;
    friend class RecordColumns;

    std::optional<QString> m_name;
    std::optional<Date> m_createdDate;
    std::optional<QString> m_uniqueId;
    std::vector<Item*> m_toReminders;
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::Project*)
