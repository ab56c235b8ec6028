#pragma once

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/Rule.h"
#include "core/store/RecordColumns.h"
#include "core/store/Stmt.h"

#include <QByteArray>

#include <type_traits>

namespace lullet {

class StringPool;

// The SQL of the three tables, made from their columns: the statements that insert and update a
// record, and the reading and binding of its attributes.
class RecordSql {
public:
    template <class T> static const std::vector<Column<T>>& columnsOf()
    {
        if constexpr (std::is_same_v<T, Project>)
            return RecordColumns::project();
        else if constexpr (std::is_same_v<T, Rule>)
            return RecordColumns::rule();
        else
            return RecordColumns::item();
    }

    static const char* tableOf(Record::Entity entity)
    {
        switch (entity) {
        case Record::Entity::Project:
            return "Project";
        case Record::Entity::Rule:
            return "RepeatReminderInfo";
        case Record::Entity::Item:
            return "ReminderInfo";
        }
        return "";
    }

    template <class T> static QByteArray columnList()
    {
        QByteArray list;
        for (const auto& c : columnsOf<T>()) {
            if (!list.isEmpty())
                list += ", ";
            list += c.name;
        }
        if constexpr (std::is_same_v<T, Item>)
            list += ", toProject";
        return list;
    }

    template <class T> static QByteArray insertSql(const char* table)
    {
        const qsizetype count =
            qsizetype(columnsOf<T>().size()) + (std::is_same_v<T, Item> ? 1 : 0);
        QByteArray marks;
        for (qsizetype i = 0; i < count; ++i)
            marks += i ? ", ?" : "?";
        return QByteArray("INSERT INTO ") + table + " (" + columnList<T>() + ") VALUES (" + marks +
               ")";
    }

    template <class T> static QByteArray updateSql(const char* table)
    {
        QByteArray set;
        for (const auto& c : columnsOf<T>())
            set += QByteArray(set.isEmpty() ? "" : ", ") + c.name + " = ?";
        if constexpr (std::is_same_v<T, Item>)
            set += ", toProject = ?";
        return QByteArray("UPDATE ") + table + " SET " + set + " WHERE id = ?";
    }

    // Reads a record's attributes from column 1 on; answers the next column, for an item its
    // project link.
    template <class T> static int readColumns(const Stmt& stmt, T& record, StringPool& pool)
    {
        int i = 1;
        for (const auto& c : columnsOf<T>())
            c.read(stmt, i++, record, pool);
        return i;
    }

    // Binds every attribute and, for an item, its project link; answers the next free index.
    template <class T> static int bindAll(Stmt& stmt, const T& record)
    {
        int i = 0;
        for (const auto& c : columnsOf<T>())
            c.bind(stmt, i++, record);
        if constexpr (std::is_same_v<T, Item>) {
            const Project* project = record.toProject();
            stmt.bind(i++, project && project->rowId() ? std::optional<qint64>(project->rowId())
                                                       : std::nullopt);
        }
        return i;
    }
};

} // namespace lullet
