#pragma once

#include <QString>

#include <unicode/uversion.h>

#include <memory>

U_NAMESPACE_BEGIN
class Calendar;
class Locale;
class TimeZone;
U_NAMESPACE_END

namespace lullet {

// The user's current calendar: always Gregorian (some locales default to Buddhist or Persian
// calendars), in the current locale and time zone. Every thread gets its own calendar, cloned
// from a prototype, so calendar work needs no lock; changing the locale or the zone invalidates
// every thread's copy.
class CalendarContext {
public:
    // The calendar of the calling thread, set to the current locale and zone. Callers set its
    // time before they read it; it is never shared between threads.
    static icu::Calendar& calendar();
    static icu::Locale locale();
    static std::unique_ptr<icu::TimeZone> timeZone();
    static int firstWeekday();

    // Name such as "de_DE" or "en_US"; an empty name restores the system's locale.
    static void setLocale(const QString& name);
    // IANA zone id such as "Europe/Berlin"; an empty id restores the system's zone.
    static void setTimeZone(const QString& ianaId);
    // Counts changes of locale or zone, so that caches of derived objects know when to rebuild.
    static int generation();
};

} // namespace lullet
