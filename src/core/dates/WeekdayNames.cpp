#include "core/dates/WeekdayNames.h"

#include <QCoreApplication>

#include <array>

namespace lullet {

namespace {

const char* english(int weekday)
{
    static const std::array<const char*, 7> names = {QT_TRANSLATE_NOOP("WeekdayNames", "Sunday"),
                                                     QT_TRANSLATE_NOOP("WeekdayNames", "Monday"),
                                                     QT_TRANSLATE_NOOP("WeekdayNames", "Tuesday"),
                                                     QT_TRANSLATE_NOOP("WeekdayNames", "Wednesday"),
                                                     QT_TRANSLATE_NOOP("WeekdayNames", "Thursday"),
                                                     QT_TRANSLATE_NOOP("WeekdayNames", "Friday"),
                                                     QT_TRANSLATE_NOOP("WeekdayNames", "Saturday")};
    return weekday < 1 || weekday > 7 ? nullptr : names[std::size_t(weekday - 1)];
}

} // namespace

QString WeekdayNames::name(int weekday)
{
    const char* name = english(weekday);
    return name ? QCoreApplication::translate("WeekdayNames", name) : QString();
}

} // namespace lullet
