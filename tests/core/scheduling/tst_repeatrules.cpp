#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/RepeatRules.h"
#include "support/CalendarTest.h"
#include "support/FakeClock.h"

#include <random>

using namespace lullet;
using namespace lullet::test;

namespace {

struct TestRule {
    lullet::Rule info;
    TestRule(std::optional<Date> anchor, int type, int count)
    {
        info.setDtReminder(anchor);
        info.setRepeatIntervalType(type);
        info.setRepeatInterval(count);
    }
};

} // namespace

class TestRepeatRules : public CalendarTest {
    Q_OBJECT
private Q_SLOTS:
    void theGrid_data()
    {
        QTest::addColumn<Date>("anchor");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("count");
        QTest::addColumn<Date>("now");
        QTest::addColumn<Date>("expected");
        const Date now = at(2026, 11, 23, 10, 30);
        using namespace RepeatUnit;
        const int minute = Minute, hour = Hour, day = Day, week = Week, month = Month, year = Year;
        QTest::newRow("today, same minute: the anchor itself")
            << at(2026, 11, 23, 10, 30) << hour << 1 << at(2026, 11, 23, 10, 30, 45)
            << at(2026, 11, 23, 10, 30);
        QTest::newRow("today, later hour: the anchor itself")
            << at(2026, 11, 23, 18, 0) << day << 1 << now << at(2026, 11, 23, 18, 0);
        QTest::newRow("today, a minute ago, hourly")
            << at(2026, 11, 23, 10, 29) << hour << 1 << now << at(2026, 11, 23, 11, 29);
        QTest::newRow("today 09:00, every 20 minutes")
            << at(2026, 11, 23, 9, 0) << minute << 20 << now << at(2026, 11, 23, 10, 40);
        QTest::newRow("yesterday 10:30 daily, now 10:30:00 exactly (inclusive)")
            << at(2026, 11, 22, 10, 30) << day << 1 << now << at(2026, 11, 23, 10, 30);
        QTest::newRow("tomorrow is stepped, not returned")
            << at(2026, 11, 24, 9, 0) << day << 1 << now << at(2026, 11, 25, 9, 0);
        QTest::newRow("next week, weekly")
            << at(2026, 11, 30, 9, 0) << week << 1 << now << at(2026, 12, 7, 9, 0);
        QTest::newRow("hourly rule keeps its minute")
            << at(2025, 1, 1, 10, 15) << hour << 1 << now << at(2026, 11, 23, 11, 15);
        QTest::newRow("29 February, every two years")
            << at(2028, 2, 29, 8, 0) << year << 2 << at(2029, 6, 1) << at(2030, 2, 28, 8, 0);
        QTest::newRow("the 31st shortens and stays short")
            << at(2027, 1, 31, 9, 0) << month << 1 << at(2027, 3, 1) << at(2027, 3, 28, 9, 0);
        QTest::newRow("daily keeps wall time across daylight saving")
            << at(2026, 3, 27, 10, 0) << day << 1 << at(2026, 3, 30, 9, 0)
            << at(2026, 3, 30, 10, 0);
        QTest::newRow("hourly counts real hours across daylight saving")
            << at(2026, 3, 29, 1, 15) << hour << 1 << at(2026, 3, 29, 3, 20)
            << at(2026, 3, 29, 4, 15);
    }

    void theGrid()
    {
        QFETCH(Date, anchor);
        QFETCH(int, type);
        QFETCH(int, count);
        QFETCH(Date, now);
        QFETCH(Date, expected);
        const TestRule rule(anchor, type, count);
        const FakeClock clock(now);
        QCOMPARE(RepeatRules::nextDate(rule.info, clock), std::optional<Date>(expected));
        QCOMPARE(RepeatRules::walkToNextDate(rule.info, clock), std::optional<Date>(expected));
    }

    void rulesThatCannotStep()
    {
        const FakeClock clock(at(2026, 11, 23, 10, 30));
        const TestRule noAnchor(std::nullopt, RepeatUnit::Day, 1);
        QCOMPARE(RepeatRules::nextDate(noAnchor.info, clock), std::optional<Date>(clock.now()));

        // Stored data with no usable step yields no date instead of looping for ever.
        const Date past = at(2026, 1, 1, 9, 0);
        QVERIFY(!RepeatRules::nextDate(TestRule(past, RepeatUnit::Minute, 0).info, clock));
        QVERIFY(!RepeatRules::nextDate(TestRule(past, RepeatUnit::Day, -3).info, clock));
        QVERIFY(!RepeatRules::nextDate(TestRule(past, 9, 1).info, clock));
        Rule missing;
        missing.setDtReminder(past);
        QVERIFY(!RepeatRules::nextDate(missing, clock));
        QVERIFY(!RepeatRules::hasUsableStep(missing));

        QCOMPARE(RepeatRules::stepAfter(TestRule(past, 9, 1).info, past), past);
        QCOMPARE(RepeatRules::stepAfter(TestRule(past, RepeatUnit::Year, 1).info, past),
                 at(2027, 1, 1, 9, 0));
    }

    // The direct computation of minute and hour grids gives the walk's dates, whatever the
    // anchor's age, fraction of a second or place relative to now.
    void directGridsMatchTheWalk()
    {
        std::mt19937 rng(2026);
        std::uniform_real_distribution<double> when(1'600'000'000.0, 1'900'000'000.0);
        std::uniform_int_distribution<int> count(1, 180);
        std::uniform_int_distribution<int> kind(0, 9);
        for (int i = 0; i < 4000; ++i) {
            const Date now(std::floor(when(rng)));
            double anchorSeconds = when(rng);
            switch (kind(rng)) {
            case 0: // today, around now
                anchorSeconds = now.timeIntervalSince1970() + (i % 7200) - 3600;
                break;
            case 1: // exactly on the grid
                anchorSeconds = now.timeIntervalSince1970() - 60.0 * 20 * (i % 500);
                break;
            case 2: // whole seconds
                anchorSeconds = std::floor(anchorSeconds);
                break;
            default:
                break;
            }
            // A few days' worth of steps keeps the walk quick enough to run thousands of times.
            if (std::fabs(anchorSeconds - now.timeIntervalSince1970()) > 3e6)
                anchorSeconds = now.timeIntervalSince1970() - std::fmod(anchorSeconds, 3e6);
            const TestRule rule(Date(anchorSeconds), i % 2 ? RepeatUnit::Minute : RepeatUnit::Hour,
                                count(rng));
            const FakeClock clock(now);
            const auto direct = RepeatRules::nextDate(rule.info, clock);
            const auto walked = RepeatRules::walkToNextDate(rule.info, clock);
            QVERIFY(direct && walked);
            if (direct->timeIntervalSince1970() != walked->timeIntervalSince1970()) {
                QFAIL(qPrintable(QStringLiteral("anchor %1 now %2: %3 vs %4")
                                     .arg(anchorSeconds, 0, 'f', 6)
                                     .arg(now.timeIntervalSince1970(), 0, 'f', 0)
                                     .arg(direct->timeIntervalSince1970(), 0, 'f', 6)
                                     .arg(walked->timeIntervalSince1970(), 0, 'f', 6)));
            }
        }
    }

    // Day to year grids leap where stepping changes nothing, and land on the walk's very date:
    // through changes of offset of every kind (a skipped or repeated hour, half an hour, a
    // change at midnight, a skipped day), months too short for the anchor's day, and anchors
    // many centuries back.
    void calendarGridsMatchTheWalk()
    {
        std::mt19937 rng(31);
        const auto pick = [&rng](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(rng);
        };
        for (const char* zone :
             {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "America/Sao_Paulo",
              "Pacific/Apia", "Asia/Tehran", "Europe/London", "America/Havana"}) {
            CalendarContext::setTimeZone(QString::fromLatin1(zone));
            for (int i = 0; i < 120; ++i) {
                const int type = pick(RepeatUnit::Day, RepeatUnit::Year);
                const bool days = type == RepeatUnit::Day || type == RepeatUnit::Week;
                const int count = pick(0, 3) ? pick(1, 3) : pick(1, days ? 60 : 30);
                const Date now = at(pick(1905, 2060), pick(1, 12), pick(1, 28), pick(0, 23),
                                    pick(0, 59), pick(0, 59));
                // Early hours and late days meet the changes of offset and the short months.
                const int back = i == 0 ? 1500 : pick(-1, days ? 6 : 60);
                const Date anchor =
                    at(now.year() - back, pick(1, 12), pick(0, 1) ? pick(1, 28) : pick(25, 31),
                       pick(0, 1) ? pick(0, 3) : pick(0, 23), pick(0, 3) * 15, pick(0, 59));
                const TestRule rule(anchor, type, count);
                const FakeClock clock(now);
                const auto leaped = RepeatRules::nextDate(rule.info, clock);
                const auto walked = RepeatRules::walkToNextDate(rule.info, clock);
                QVERIFY(leaped && walked);
                if (leaped->timeIntervalSince1970() != walked->timeIntervalSince1970())
                    QFAIL(qPrintable(QStringLiteral("%1, unit %2 x %3, anchor %4, now %5: %6 "
                                                    "instead of %7")
                                         .arg(QLatin1String(zone))
                                         .arg(type)
                                         .arg(count)
                                         .arg(anchor.timeIntervalSince1970(), 0, 'f', 0)
                                         .arg(now.timeIntervalSince1970(), 0, 'f', 0)
                                         .arg(leaped->timeIntervalSince1970(), 0, 'f', 3)
                                         .arg(walked->timeIntervalSince1970(), 0, 'f', 3)));
            }
        }
    }
};

LULLET_TEST_MAIN(TestRepeatRules)
#include "tst_repeatrules.moc"
