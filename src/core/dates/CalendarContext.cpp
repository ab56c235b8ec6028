#include "core/dates/CalendarContext.h"

#include <QtGlobal>

#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <atomic>
#include <mutex>

namespace lullet {

namespace {

struct Settings {
    std::mutex mutex;
    icu::Locale locale = icu::Locale::getDefault();
    std::unique_ptr<icu::TimeZone> zone{icu::TimeZone::createDefault()};
    std::unique_ptr<icu::Calendar> prototype;
    std::atomic<int> generation{1};
};

Settings& settings()
{
    static Settings s;
    return s;
}

icu::Locale gregorian(icu::Locale locale)
{
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

// Builds the prototype under the settings lock.
std::unique_ptr<icu::Calendar> makePrototype(Settings& s)
{
    UErrorCode status = U_ZERO_ERROR;
    auto cal = std::make_unique<icu::GregorianCalendar>(*s.zone, gregorian(s.locale), status);
    if (U_FAILURE(status))
        qFatal("Cannot create a Gregorian calendar: %s", u_errorName(status));
    // Proleptic: no Julian calendar before 1582, as every date here is a modern one anyway.
    cal->setGregorianChange(-std::numeric_limits<double>::infinity(), status);
    cal->setLenient(true);
    return cal;
}

struct ThreadCalendar {
    int generation = 0;
    std::unique_ptr<icu::Calendar> calendar;
};

} // namespace

icu::Calendar& CalendarContext::calendar()
{
    thread_local ThreadCalendar local;
    Settings& s = settings();
    const int gen = s.generation.load(std::memory_order_acquire);
    if (local.generation != gen || !local.calendar) {
        std::lock_guard lock(s.mutex);
        if (!s.prototype)
            s.prototype = makePrototype(s);
        local.calendar.reset(s.prototype->clone());
        local.generation = s.generation.load(std::memory_order_relaxed);
    }
    return *local.calendar;
}

icu::Locale CalendarContext::locale()
{
    Settings& s = settings();
    std::lock_guard lock(s.mutex);
    return gregorian(s.locale);
}

std::unique_ptr<icu::TimeZone> CalendarContext::timeZone()
{
    Settings& s = settings();
    std::lock_guard lock(s.mutex);
    return std::unique_ptr<icu::TimeZone>(s.zone->clone());
}

int CalendarContext::firstWeekday()
{
    return calendar().getFirstDayOfWeek();
}

void CalendarContext::setLocale(const QString& name)
{
    Settings& s = settings();
    std::lock_guard lock(s.mutex);
    s.locale =
        name.isEmpty() ? icu::Locale::getDefault() : icu::Locale(name.toLatin1().constData());
    s.prototype.reset();
    s.generation.fetch_add(1, std::memory_order_release);
}

void CalendarContext::setTimeZone(const QString& ianaId)
{
    Settings& s = settings();
    std::lock_guard lock(s.mutex);
    if (ianaId.isEmpty()) {
        s.zone.reset(icu::TimeZone::detectHostTimeZone());
    } else {
        const auto id = icu::UnicodeString(reinterpret_cast<const char16_t*>(ianaId.utf16()),
                                           int32_t(ianaId.size()));
        s.zone.reset(icu::TimeZone::createTimeZone(id));
    }
    s.prototype.reset();
    s.generation.fetch_add(1, std::memory_order_release);
}

int CalendarContext::generation()
{
    return settings().generation.load(std::memory_order_acquire);
}

} // namespace lullet
