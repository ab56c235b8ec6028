#include "core/dates/StyledDateFormat.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/dates/Date.h"
#include "core/dates/IcuString.h"

#include <unicode/datefmt.h>
#include <unicode/dtptngen.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <optional>

namespace lullet {

namespace {

icu::DateFormat::EStyle icuStyle(DateStyle style)
{
    switch (style) {
    case DateStyle::None:
        return icu::DateFormat::kNone;
    case DateStyle::Short:
        return icu::DateFormat::kShort;
    case DateStyle::Medium:
        return icu::DateFormat::kMedium;
    case DateStyle::Long:
        return icu::DateFormat::kLong;
    case DateStyle::Full:
        return icu::DateFormat::kFull;
    }
    return icu::DateFormat::kNone;
}

// Everything the styled texts need, made once per thread and per locale or zone change.
struct ThreadFormats {
    int generation = 0;
    std::map<std::pair<DateStyle, DateStyle>, std::unique_ptr<icu::DateFormat>> formats;
    std::unique_ptr<icu::RelativeDateTimeFormatter> relative;
    // The words for two days back to two days ahead, once looked up.
    std::array<std::optional<QString>, 5> dayWords;
    std::array<QString, 24 * 60> shortTimes;
    icu::UnicodeString dateTimeGlue;

    void refresh()
    {
        if (generation == CalendarContext::generation())
            return;
        generation = CalendarContext::generation();
        formats.clear();
        relative.reset();
        dayWords.fill(std::nullopt);
        shortTimes.fill(QString());
        UErrorCode status = U_ZERO_ERROR;
        const icu::Locale locale = CalendarContext::locale();
        std::unique_ptr<icu::DateTimePatternGenerator> generator(
            icu::DateTimePatternGenerator::createInstance(locale, status));
        dateTimeGlue = U_SUCCESS(status) ? generator->getDateTimeFormat() : u"{1}, {0}";
    }

    icu::DateFormat* format(DateStyle dateStyle, DateStyle timeStyle)
    {
        auto& slot = formats[{dateStyle, timeStyle}];
        if (!slot) {
            slot.reset(icu::DateFormat::createDateTimeInstance(
                icuStyle(dateStyle), icuStyle(timeStyle), CalendarContext::locale()));
            if (slot)
                slot->adoptTimeZone(CalendarContext::timeZone().release());
        }
        return slot.get();
    }

    icu::RelativeDateTimeFormatter* relativeFormatter()
    {
        if (!relative) {
            UErrorCode status = U_ZERO_ERROR;
            relative = std::make_unique<icu::RelativeDateTimeFormatter>(
                CalendarContext::locale(), nullptr, UDAT_STYLE_LONG,
                UDISPCTX_CAPITALIZATION_FOR_STANDALONE, status);
            if (U_FAILURE(status))
                relative.reset();
        }
        return relative.get();
    }
};

ThreadFormats& threadFormats()
{
    thread_local ThreadFormats formats;
    formats.refresh();
    return formats;
}

QString formatWith(icu::DateFormat* format, Date date)
{
    if (!format)
        return {};
    icu::UnicodeString out;
    format->format(date.timeIntervalSince1970() * 1000.0, out);
    return fromIcu(out);
}

} // namespace

QString StyledDateFormat::relativeDayWord(int dayOffset)
{
    static constexpr UDateDirection directions[] = {UDAT_DIRECTION_LAST_2, UDAT_DIRECTION_LAST,
                                                    UDAT_DIRECTION_THIS, UDAT_DIRECTION_NEXT,
                                                    UDAT_DIRECTION_NEXT_2};
    if (dayOffset < -2 || dayOffset > 2)
        return {};
    ThreadFormats& formats = threadFormats();
    std::optional<QString>& cached = formats.dayWords[std::size_t(dayOffset) + 2];
    if (cached)
        return *cached;
    cached = QString();
    icu::RelativeDateTimeFormatter* relative = formats.relativeFormatter();
    if (!relative)
        return {};
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString out;
    relative->format(directions[dayOffset + 2], UDAT_ABSOLUTE_DAY, out, status);
    if (U_FAILURE(status) || out.isEmpty())
        return {};
    QString word = fromIcu(out);
    // A word that stands alone starts with a capital, whatever the locale data says.
    if (!word.isEmpty())
        word[0] = word[0].toUpper();
    cached = word;
    return word;
}

QString StyledDateFormat::pattern(DateStyle dateStyle, DateStyle timeStyle)
{
    const auto* simple =
        dynamic_cast<const icu::SimpleDateFormat*>(threadFormats().format(dateStyle, timeStyle));
    if (!simple)
        return {};
    icu::UnicodeString out;
    simple->toPattern(out);
    return fromIcu(out);
}

QString StyledDateFormat::format(Date date, DateStyle dateStyle, DateStyle timeStyle,
                                 const Clock* relativeTo)
{
    ThreadFormats& formats = threadFormats();
    if (dateStyle == DateStyle::None && timeStyle == DateStyle::Short) {
        // The short time shows only the hour and minute: lists ask for it on every row, so each
        // minute of the day is formatted once.
        const int minuteOfDay = date.hour() * 60 + date.minute();
        QString& cached = formats.shortTimes[std::size_t(minuteOfDay)];
        if (cached.isEmpty())
            cached = formatWith(formats.format(dateStyle, timeStyle), date);
        return cached;
    }
    if (!relativeTo || dateStyle == DateStyle::None)
        return formatWith(formats.format(dateStyle, timeStyle), date);

    const Date today = relativeTo->now().dateAtStartOfDay();
    const Date day = date.dateAtStartOfDay();
    // Calendar days apart, rounded because a day across a daylight-saving change is not 24 h.
    const double apart = (day.timeIntervalSince1970() - today.timeIntervalSince1970()) / 86400.0;
    QString word = std::fabs(apart) <= 2.5 ? relativeDayWord(int(std::lround(apart))) : QString();
    if (word.isEmpty())
        return formatWith(formats.format(dateStyle, timeStyle), date);
    if (timeStyle == DateStyle::None)
        return word;

    const QString time = formatWith(formats.format(DateStyle::None, timeStyle), date);
    // The locale's pattern that joins a date and a time, such as "{1}, {0}" or "{1} 'at' {0}".
    QString glued = fromIcu(formats.dateTimeGlue);
    glued.remove(u'\'');
    const qsizetype datePos = glued.indexOf(QStringLiteral("{1}"));
    const qsizetype timePos = glued.indexOf(QStringLiteral("{0}"));
    if (datePos < 0 || timePos < 0)
        return word + QStringLiteral(", ") + time;
    if (datePos < timePos)
        return glued.left(datePos) + word + glued.mid(datePos + 3, timePos - datePos - 3) + time +
               glued.mid(timePos + 3);
    return glued.left(timePos) + time + glued.mid(timePos + 3, datePos - timePos - 3) + word +
           glued.mid(datePos + 3);
}

} // namespace lullet
