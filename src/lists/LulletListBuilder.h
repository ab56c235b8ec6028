#pragma once

#include "core/dates/Date.h"
#include "lists/LulletRow.h"

#include <QString>

#include <vector>

namespace lullet {

class AppDelegate;
class Project;
class ReminderInfo;

// Which items "Today", "Anytime" and a project's list show, and in which order.
class LulletListBuilder {
public:
    struct Scope {
        QString segment = QStringLiteral("Today");
        Project* project = nullptr;
        bool showRunningOnly = false;

        bool isAnytime() const { return segment == QStringLiteral("Anytime"); }
        bool isToday() const { return segment == QStringLiteral("Today"); }
        bool isCustomListing() const
        {
            return segment == QStringLiteral("Upcoming") || segment == QStringLiteral("Completed");
        }
    };

    // The days ahead within which an item already shows in "Today".
    static int reminderWindowDays(const ReminderInfo& item);
    // Whether the item belongs in the list of the scope.
    static bool belongs(const ReminderInfo& item, const Scope& scope, AppDelegate& app);

    // Today's bounds, worked out once for a whole list.
    struct Today {
        Date start;
        Date end;
        explicit Today(Date now);
        bool contains(Date d) const { return d >= start && d < end; }
        // Calendar days from today to the day of `d`.
        qint64 daysTo(Date d) const;
    };
    static bool belongs(const ReminderInfo& item, const Scope& scope, const Today& today);

    // The rule of a scope, worked out once for a pass over many items.
    class Filter {
    public:
        Filter(const Scope& scope, Date now);
        bool accepts(const ReminderInfo& item) const;

    private:
        Today m_today;
        Project* m_project;
        bool m_anytime;
        bool m_todayWithoutProject;
        bool m_runningOnly;
    };
    // Unfinished before finished; within each, the earlier date first.
    static void getSortedArray(std::vector<ReminderInfo*>& items);
    // The items of the scope, in order.
    static std::vector<ReminderInfo*> prepareLulletListArray(const Scope& scope, AppDelegate& app);

    // "Wed 25, Nov 2026": the heading of a day's group.
    static QString dayHeading(Date day);
    // Rows grouped by day, each day under its heading, the days in date order and the items
    // without a date last under "AnyTime".
    static std::vector<LulletRow> groupByDay(const std::vector<ReminderInfo*>& items,
                                             AppDelegate& app, bool withProjectName);

    // "Upcoming" (unfinished items dated after now, the nearest day first) or "Completed"
    // (finished dated items, the newest day first), by day; within a day the later first. A
    // heading carries the day's count and the time used on it.
    static std::vector<LulletRow> customListing(const QString& segment, AppDelegate& app);
    // Seconds used by day, the days in time order, for the chart.
    static std::vector<std::pair<Date, int>> timeUsedByDay(const std::vector<LulletRow>& rows);
};

} // namespace lullet
