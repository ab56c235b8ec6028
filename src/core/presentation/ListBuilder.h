#pragma once

#include "core/dates/Date.h"
#include "core/presentation/ListRow.h"
#include "core/presentation/Segment.h"

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace lullet {

class Clock;
class Item;
class Library;
class Project;

// Which items each list shows, and in which order: "Today", "Anytime" and a project's list, and
// the custom listings "Upcoming" and "Completed", by day.
class ListBuilder {
    Q_DECLARE_TR_FUNCTIONS(ListBuilder)

public:
    struct Scope {
        Segment segment = Segment::Today;
        Project* project = nullptr;
        bool showRunningOnly = false;

        bool isAnytime() const { return segment == Segment::Anytime; }
        bool isToday() const { return segment == Segment::Today; }
        bool isCustomListing() const
        {
            return segment == Segment::Upcoming || segment == Segment::Completed;
        }
        // The list's name: the project's, or the segment's.
        QString title() const;
    };

    // The days ahead within which an item already shows in "Today".
    static int reminderWindowDays(const Item& item);

    // Today's bounds, worked out once for a whole list.
    struct Today {
        Date start;
        Date end;
        explicit Today(Date now);
        bool contains(Date d) const { return d >= start && d < end; }
        // Calendar days from today to the day of `d`.
        qint64 daysTo(Date d) const;
    };

    // The rule of a scope, worked out once for a pass over many items.
    class Filter {
    public:
        Filter(const Scope& scope, Date now);
        bool accepts(const Item& item) const;

    private:
        Today m_today;
        Project* m_project;
        bool m_anytime;
        bool m_todayWithoutProject;
        bool m_runningOnly;
    };
    // Whether the item belongs in the list of the scope now.
    static bool belongs(const Item& item, const Scope& scope, Date now);

    // The items in memory of the scope, in the lists' order. The history on disk is the
    // ListLines' to add.
    static std::vector<Item*> itemsFor(const Scope& scope, Library& library, Date now);

    // "Wed 25, Nov 2026": the heading of a day's group.
    static QString dayHeading(Date day);
};

} // namespace lullet
