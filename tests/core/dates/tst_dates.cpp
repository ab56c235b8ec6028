#include "core/dates/CalendarContext.h"
#include "core/dates/WeekdayNames.h"
#include "support/CalendarTest.h"
#include "support/FakeClock.h"

#include <unicode/calendar.h>

#include <cmath>
#include <random>
#include <thread>
#include <vector>

using namespace lullet;
using namespace lullet::test;

namespace {
constexpr double hour = 3600;
} // namespace

class TestDates : public CalendarTest {
    Q_OBJECT
private Q_SLOTS:
    void comparisonsAreInclusiveAndFollowTheClock()
    {
        const Date d = at(2026, 11, 22, 10, 15);
        QVERIFY(d.isEarlierThanDate(d));
        QVERIFY(d.isLaterThanDate(d));
        QVERIFY(d.isEarlierThanDate(d.dateByAddingSeconds(1)));
        QVERIFY(!d.isLaterThanDate(d.dateByAddingSeconds(1)));
        FakeClock clock(d);
        QVERIFY(d.isInFuture(clock));
        QVERIFY(d.isInPast(clock));

        // The day's neighbours follow the clock.
        clock.set(at(2026, 11, 22, 23, 59, 59));
        QVERIFY(at(2026, 11, 22, 0, 0, 0).isToday(clock));
        QVERIFY(!at(2026, 11, 23, 0, 0, 0).isToday(clock));
        QVERIFY(at(2026, 11, 23, 0, 0, 0).isTomorrow(clock));
        QVERIFY(at(2026, 11, 21, 12).isYesterday(clock));
        QVERIFY(at(2026, 11, 28).isWeekend());
        QVERIFY(at(2026, 11, 22).isWeekend());
        QVERIFY(at(2026, 11, 23).isWeekday());
        QVERIFY(at(2027, 3, 1).isNextYear(clock));
        QVERIFY(at(2025, 3, 1).isLastYear(clock));
        QVERIFY(at(2026, 11, 5).isSameMonthAsDate(clock.now()));
        QVERIFY(!at(2025, 11, 5).isSameMonthAsDate(clock.now()));

        // The same week needs the week number and less than seven days between.
        const Date sunday = at(2026, 11, 22, 12);
        QVERIFY(sunday.isSameWeekAsDate(at(2026, 11, 28, 12)));
        QVERIFY(!sunday.isSameWeekAsDate(at(2026, 11, 29, 12)));
        // Week 48 of two different years: same number, far apart.
        QVERIFY(!sunday.isSameWeekAsDate(at(2025, 11, 24, 12)));
        clock.set(sunday);
        QVERIFY(at(2026, 11, 30).isNextWeek(clock));
        QVERIFY(at(2026, 11, 16).isLastWeek(clock));
    }

    void monthAndYearStepsShortenAtTheMonthEnd()
    {
        const Date jan31 = at(2027, 1, 31, 9, 30);
        QCOMPARE(jan31.dateByAddingMonths(1), at(2027, 2, 28, 9, 30));
        QCOMPARE(at(2028, 1, 31, 9, 30).dateByAddingMonths(1), at(2028, 2, 29, 9, 30));
        // A leap day two years on lands on 28 February.
        QCOMPARE(at(2028, 2, 29, 8).dateByAddingMonths(24), at(2030, 2, 28, 8));
        QCOMPARE(jan31.dateBySubtractingDays(0), jan31);
        QCOMPARE(jan31.dateBySubtractingMonths(2), at(2026, 11, 30, 9, 30));
        QCOMPARE(jan31.dateByAddingWeeks(2), at(2027, 2, 14, 9, 30));
    }

    void daySuffersNoDaylightSavingDrift()
    {
        // Europe/Berlin springs forward on 29 March 2026 and falls back on 25 October 2026.
        const Date spring = at(2026, 3, 28, 10);
        QCOMPARE(spring.dateByAddingDays(1), at(2026, 3, 29, 10));
        QCOMPARE(spring.dateByAddingDays(1).timeIntervalSince1970() -
                     spring.timeIntervalSince1970(),
                 23 * hour);
        const Date autumn = at(2026, 10, 24, 10);
        QCOMPARE(autumn.dateByAddingDays(1).timeIntervalSince1970() -
                     autumn.timeIntervalSince1970(),
                 25 * hour);
        QCOMPARE(autumn.dateByAddingWeeks(1), at(2026, 10, 31, 10));
        QCOMPARE(at(2026, 3, 15, 10).dateByAddingMonths(1), at(2026, 4, 15, 10));
        // Hours are elapsed time, not wall time.
        QCOMPARE(spring.dateByAddingHours(24).timeIntervalSince1970(),
                 spring.timeIntervalSince1970() + 24 * hour);
        QCOMPARE(at(2026, 3, 29, 12).dateAtStartOfDay(), at(2026, 3, 29, 0));
    }

    void weekAnchorsAroundNewYear_data()
    {
        // Each row is reckoned in the locale its name starts with.
        QTest::addColumn<Date>("day");
        QTest::addColumn<Date>("start");
        QTest::addColumn<Date>("end");
        QTest::newRow("en_US Thu 31 Dec")
            << at(2026, 12, 31, 15) << at(2026, 12, 27) << at(2027, 1, 2);
        QTest::newRow("en_US Fri 1 Jan") << at(2027, 1, 1, 8) << at(2026, 12, 27) << at(2027, 1, 2);
        QTest::newRow("en_US Sun 3 Jan") << at(2027, 1, 3, 8) << at(2027, 1, 3) << at(2027, 1, 9);
        QTest::newRow("de_DE Thu 31 Dec")
            << at(2026, 12, 31, 15) << at(2026, 12, 28) << at(2027, 1, 3);
        QTest::newRow("de_DE Sun 3 Jan")
            << at(2027, 1, 3, 23, 59) << at(2026, 12, 28) << at(2027, 1, 3);
        QTest::newRow("de_DE Mon 4 Jan")
            << at(2027, 1, 4, 0, 0, 1) << at(2027, 1, 4) << at(2027, 1, 10);
    }

    void weekAnchorsAroundNewYear()
    {
        QFETCH(Date, day);
        QFETCH(Date, start);
        QFETCH(Date, end);
        CalendarContext::setLocale(QString::fromLatin1(QTest::currentDataTag()).left(5));
        QCOMPARE(day.dateAtStartOfWeek(), start);
        // The end of the week is the start of its last day, at 00:00.
        QCOMPARE(day.dateAtEndOfWeek(), end);
    }

    void anchorsOfDayMonthAndYear()
    {
        const Date d = at(2026, 2, 14, 13, 45, 30);
        QCOMPARE(d.dateAtStartOfDay(), at(2026, 2, 14));
        QCOMPARE(d.dateAtEndOfDay(), at(2026, 2, 14, 23, 59, 59));
        QCOMPARE(Date(d.timeIntervalSince1970() + 0.25).dateAtEndOfDay(),
                 at(2026, 2, 14, 23, 59, 59));
        QCOMPARE(d.dateAtTheStartOfMonth(), at(2026, 2, 1, 13, 45, 30));
        QCOMPARE(d.dateAtTheEndOfMonth(), at(2026, 2, 28, 13, 45, 30));
        QCOMPARE(at(2026, 12, 5, 8).dateAtTheEndOfMonth(), at(2026, 12, 31, 8));
        QCOMPARE(d.dateAtTheStartOfYear(), at(2026, 1, 1, 13, 45, 30));
        QCOMPARE(d.dateAtTheEndOfYear(), at(2026, 12, 31, 13, 45, 30));
        QCOMPARE(d.setTimeOfDate(7, 5, 3), at(2026, 2, 14, 7, 5, 3));
        QCOMPARE(d.monthDays(), 28);
        QCOMPARE(at(2028, 2, 3).monthDays(), 29);
    }

    void differencesTruncateTowardZero()
    {
        const Date late = at(2026, 11, 22, 23);
        QCOMPARE(at(2026, 11, 23, 1).daysAfterDate(late), 0);
        QCOMPARE(late.dateByAddingHours(36).daysAfterDate(late), 1);
        QCOMPARE(late.daysAfterDate(late.dateByAddingHours(36)), -1);
        QCOMPARE(late.daysBeforeDate(late.dateByAddingHours(36)), 1);
        QCOMPARE(late.dateBySubtractingSeconds(90).minutesAfterDate(late), -1);
        QCOMPARE(late.dateByAddingMinutes(119).hoursAfterDate(late), 1);
        QCOMPARE(late.secondsBeforeDate(Date(late.timeIntervalSince1970() + 2.9)), 2);
    }

    void fieldReaders()
    {
        const Date d = at(2026, 11, 25, 10, 40, 10);
        const DateComponents c = d.components();
        QCOMPARE(*c.year, 2026);
        QCOMPARE(*c.month, 11);
        QCOMPARE(*c.day, 25);
        QCOMPARE(*c.weekday, 4);
        QCOMPARE(*c.weekdayOrdinal, 4);
        QCOMPARE(d.nearestHour(), 10);
        QCOMPARE(at(2026, 11, 25, 10, 40, 50).nearestHour(), 11);
        // A Wednesday: its week starts on Sunday the 22nd, the next on Sunday the 29th.
        QCOMPARE(d.firstDayOfWeek(), 22);
        QCOMPARE(d.lastDayOfWeek(), 29);
        QCOMPARE(d.weekdayToString(), QStringLiteral("Wednesday"));
        QCOMPARE(d.shortWeekdayToString(), QStringLiteral("Wed"));
        QCOMPARE(d.veryShortWeekdayToString(), QStringLiteral("W"));
        QCOMPARE(d.monthToString(), QStringLiteral("November"));
        QCOMPARE(d.shortMonthToString(), QStringLiteral("Nov"));
        CalendarContext::setLocale(QStringLiteral("de_DE"));
        QCOMPARE(d.weekdayToString(), QStringLiteral("Mittwoch"));
        QCOMPARE(at(2026, 3, 1).monthToString(), QStringLiteral("März"));
    }

    void textsRelativeToTheClock()
    {
        const Date now = at(2026, 11, 22, 12);
        FakeClock clock(now);
        const auto relative = [&clock](Date d) { return d.relativeTimeToString(clock); };
        QCOMPARE(relative(now.dateBySubtractingSeconds(9)), QStringLiteral("just now"));
        QCOMPARE(relative(now.dateByAddingSeconds(30)), QStringLiteral("in 30 seconds"));
        QCOMPARE(relative(now.dateBySubtractingMinutes(1)), QStringLiteral("1 minute ago"));
        QCOMPARE(relative(now.dateBySubtractingMinutes(45)), QStringLiteral("45 minutes ago"));
        QCOMPARE(relative(now.dateByAddingHours(5)), QStringLiteral("in 5 hours"));
        QCOMPARE(relative(now.dateBySubtractingDays(1)), QStringLiteral("1 day ago"));
        const Date eightDaysAgo = now.dateBySubtractingDays(8);
        QCOMPARE(relative(eightDaysAgo), eightDaysAgo.toString());

        const auto day = [&clock](Date d) {
            return d.toString(DateStyle::Medium, DateStyle::None, &clock);
        };
        const Date tenFifteen = at(2026, 11, 22, 10, 15);
        const QString time = tenFifteen.toString(DateStyle::None, DateStyle::Short);
        QVERIFY2(time.startsWith(QStringLiteral("10:15")) && time.endsWith(QStringLiteral("AM")),
                 qPrintable(time));
        QCOMPARE(day(tenFifteen), QStringLiteral("Today"));
        QCOMPARE(day(at(2026, 11, 23)), QStringLiteral("Tomorrow"));
        QCOMPARE(day(at(2026, 11, 21, 23)), QStringLiteral("Yesterday"));
        QCOMPARE(day(at(2026, 11, 25)), QStringLiteral("Nov 25, 2026"));
        const QString both = tenFifteen.toString(DateStyle::Medium, DateStyle::Short, &clock);
        QVERIFY2(both.startsWith(QStringLiteral("Today")) && both.contains(time), qPrintable(both));
        // Without a clock nothing is relative.
        QCOMPARE(tenFifteen.toString(DateStyle::Medium, DateStyle::None),
                 QStringLiteral("Nov 22, 2026"));

        CalendarContext::setLocale(QStringLiteral("de_DE"));
        QCOMPARE(day(tenFifteen), QStringLiteral("Heute"));
        QCOMPARE(day(at(2026, 11, 24)), QStringLiteral("Übermorgen"));
        QCOMPARE(tenFifteen.toString(DateStyle::None, DateStyle::Short), QStringLiteral("10:15"));
    }

    void parsingFallsBackToNow()
    {
        const Date now = at(2026, 11, 22, 12);
        FakeClock clock(now);
        QCOMPARE(Date::fromString(u"", DateFormat::iso8601(), clock), now);
        QCOMPARE(Date::fromString(u"not a date", DateFormat::iso8601(), clock), now);
        QCOMPARE(Date::fromString(u"2026-11-22 trailing",
                                  DateFormat::custom(QStringLiteral("yyyy-MM-dd")), clock),
                 now);
        QCOMPARE(Date::fromString(u"/Date(5000)/", DateFormat::dotNet(), clock), Date(5));
        QCOMPARE(Date::fromString(u"/Date(x)/", DateFormat::dotNet(), clock), now);
        QCOMPARE(Date::fromString(u"2026-11-22", DateFormat::iso8601(), clock, TimeZone::Utc),
                 Date(1795305600));
        QCOMPARE(Date::fromString(u"2026-11-22T10:15:30+01:00", DateFormat::iso8601(), clock),
                 Date(1795305600 + 9 * 3600 + 15 * 60 + 30));
        QCOMPARE(Date::fromString(u"Sun, 22 Nov 2026 00:00:00 Z", DateFormat::rss(), clock),
                 Date(1795305600));
        QCOMPARE(Date::fromString(u"22.11.2026", DateFormat::custom(QStringLiteral("dd.MM.yyyy")),
                                  clock),
                 at(2026, 11, 22));
        QCOMPARE(iso8601FormatForDateString(u"2026-11-22T10:15:30"),
                 ISO8601Format::DateTimeMilliSec);
        QCOMPARE(iso8601FormatForDateString(u"2026-11"), ISO8601Format::YearMonth);
    }

    void formatting()
    {
        const Date d(1795305600); // 2026-11-22 00:00:00 UTC
        QCOMPARE(d.toString(DateFormat::iso8601(ISO8601Format::Date), TimeZone::Utc),
                 QStringLiteral("2026-11-22"));
        QCOMPARE(d.toString(DateFormat::iso8601(), TimeZone::Utc),
                 QStringLiteral("2026-11-22T00:00:00.000+0000"));
        QCOMPARE(d.toString(DateFormat::dotNet()), QStringLiteral("/Date(1795305600000+01)/"));
        QCOMPARE(d.toString(DateFormat::rss(), TimeZone::Utc),
                 QStringLiteral("Sun, 22 Nov 2026 00:00:00 +0000"));
    }

    // A weekday number read from disk may be out of range.
    void weekdayNames()
    {
        QCOMPARE(WeekdayNames::name(7), QStringLiteral("Saturday"));
        QCOMPARE(WeekdayNames::name(9), QString());
        QCOMPARE(WeekdayNames::name(0), QString());
    }

    // The arithmetic shortcuts must give the calendar's own answers, in zones with midnight
    // changes, half-hour changes and a skipped day.
    void shortcutsAgreeWithTheCalendar_data()
    {
        QTest::addColumn<QString>("zone");
        for (const char* zone : {"Europe/Berlin", "America/Sao_Paulo", "Asia/Beirut",
                                 "Australia/Lord_Howe", "Pacific/Apia", "America/New_York", "UTC"})
            QTest::newRow(zone) << QString::fromLatin1(zone);
    }

    void shortcutsAgreeWithTheCalendar()
    {
        QFETCH(QString, zone);
        CalendarContext::setTimeZone(zone);
        icu::Calendar& cal = CalendarContext::calendar();
        std::mt19937 rng(7);
        // 1995 to 2040, past the end of every zone's table of changes.
        std::uniform_real_distribution<double> moment(788'918'400.0, 2'209'075'200.0);
        std::uniform_int_distribution<int> days(-800, 800);
        for (int i = 0; i < 20000; ++i) {
            const Date d(std::floor(moment(rng)));
            const int n = i % 3 ? days(rng) : (i % 2 ? 1 : -1);
            UErrorCode status = U_ZERO_ERROR;
            cal.setTime(d.timeIntervalSince1970() * 1000.0, status);
            cal.add(UCAL_DATE, n, status);
            const Date added(cal.getTime(status) / 1000.0);
            QCOMPARE(d.dateByAddingDays(n), added);

            cal.setTime(d.timeIntervalSince1970() * 1000.0, status);
            cal.set(UCAL_HOUR_OF_DAY, 0);
            cal.set(UCAL_MINUTE, 0);
            cal.set(UCAL_SECOND, 0);
            cal.set(UCAL_MILLISECOND, 0);
            const Date start(cal.getTime(status) / 1000.0);
            QCOMPARE(d.dateAtStartOfDay(), start);

            const Date other(d.timeIntervalSince1970() + (i % 2 ? 1 : -1) * (i % 100000));
            const DateComponents a = d.components();
            QCOMPARE(d.hour(), *a.hour);
            QCOMPARE(d.minute(), *a.minute);
            QCOMPARE(d.seconds(), *a.second);
            const DateComponents b = other.components();
            QCOMPARE(d.isEqualToDateIgnoringTime(other),
                     a.year == b.year && a.month == b.month && a.day == b.day);
            QVERIFY(U_SUCCESS(status));
        }
    }

    void formattersAreSafeAcrossThreads()
    {
        const Date d(1795305600);
        const QString expected = d.toString(DateFormat::iso8601(), TimeZone::Utc);
        std::vector<std::thread> threads;
        std::atomic<int> mismatches{0};
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&] {
                FakeClock clock(Date(0));
                for (int i = 0; i < 500; ++i) {
                    if (d.toString(DateFormat::iso8601(), TimeZone::Utc) != expected ||
                        Date::fromString(expected, DateFormat::iso8601(), clock) != d ||
                        d.dateByAddingDays(i).dateBySubtractingDays(i) != d)
                        ++mismatches;
                }
            });
        }
        for (auto& t : threads)
            t.join();
        QCOMPARE(mismatches.load(), 0);
    }
};

LULLET_TEST_MAIN(TestDates)
#include "tst_dates.moc"
