#pragma once

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/Rule.h"

#include <functional>
#include <vector>

namespace lullet {

class Stmt;
class StringPool;

// How one attribute of a record maps to a column of its table.
template <class T> struct Column {
    const char* name;
    std::function<void(Stmt&, int, const T&)> bind;
    // Loading writes the attribute directly: a loaded record is not a changed one.
    std::function<void(const Stmt&, int, T&, StringPool&)> read;
};

// The attribute columns of the three tables, in table order, without the row id and, for
// Item, without the toProject link, which the context resolves itself.
class RecordColumns {
public:
    static const std::vector<Column<Project>>& project();
    static const std::vector<Column<Rule>>& rule();
    static const std::vector<Column<Item>>& item();

private:
    // An item's field kept beside its presence bit, and a flag kept as two bits.
    template <class V> static Column<Item> packed(const char* name, int field, V Item::*member);
    static Column<Item> packedFlag(const char* name, int field);
};

} // namespace lullet
