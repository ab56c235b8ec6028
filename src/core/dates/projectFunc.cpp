#include "core/dates/projectFunc.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"

#include <array>
#include <cmath>

namespace lullet {

QString projectFunc::getDayName(const QString& day)
{
    static const std::array<QString, 7> names = {
        QStringLiteral("SUNDAY"),    QStringLiteral("MONDAY"),   QStringLiteral("TUESDAY"),
        QStringLiteral("WEDNESDAY"), QStringLiteral("THURSDAY"), QStringLiteral("FRIDAY"),
        QStringLiteral("SATURDAY")};
    bool ok = false;
    const int index = day.toInt(&ok);
    if (!ok || day.size() != 1 || index < 1 || index > 7)
        return {};
    return names[std::size_t(index - 1)];
}

QString projectFunc::ChangeMonthName(int month)
{
    static const std::array<QString, 12> names = {
        QStringLiteral("JANUARY"), QStringLiteral("FEBRUARY"), QStringLiteral("MARCH"),
        QStringLiteral("APRIL"),   QStringLiteral("MAY"),      QStringLiteral("JUNE"),
        QStringLiteral("JULY"),    QStringLiteral("AUGUST"),   QStringLiteral("SEPTEMBER"),
        QStringLiteral("OCTOBER"), QStringLiteral("NOVEMBER"), QStringLiteral("DECEMBER")};
    if (month < 0 || month > 11)
        return {};
    return names[std::size_t(month)];
}

QString projectFunc::dateStringFromDate(int option, Date date)
{
    QString pattern;
    switch (option) {
    case 0:
        pattern = QStringLiteral("yyyy-MM-dd");
        break;
    case 1:
        pattern = QStringLiteral("yyyy/MM/dd");
        break;
    case 3:
        pattern = QStringLiteral("MM");
        break;
    case 4:
        pattern = QStringLiteral("yyyy");
        break;
    case 5:
        pattern = QStringLiteral("MMMM");
        break;
    default:
        pattern = QStringLiteral("dd");
        break;
    }
    // A fixed locale, so that file names and report keys read the same everywhere.
    return date.toString(DateFormat::custom(pattern, QStringLiteral("en_US")));
}

Date projectFunc::returnDateComp(Date date)
{
    return date.dateAtStartOfDay();
}

Date projectFunc::returnDateTimeComp(Date date)
{
    return date.setTimeOfDate(date.hour(), 0, 0);
}

QString projectFunc::transformedValue(Date date, const Clock& clock)
{
    const Date now = clock.now();
    const Date yesterday(now.timeIntervalSince1970() - 86400);
    if (date.isEqualToDateIgnoringTime(yesterday))
        return QStringLiteral("Yesterday");
    if (date.isEqualToDateIgnoringTime(now))
        return QStringLiteral("Today");
    return date.toString(DateFormat::custom(QStringLiteral("dd MMM YYYY")));
}

QString projectFunc::stringFromTimeInterval(double interval)
{
    const double ti = std::trunc(interval);
    const int ms = int(std::fmod(interval, 1.0) * 1000);
    const int seconds = int(std::fmod(ti, 60.0));
    const int minutes = int(std::fmod(ti / 60.0, 60.0));
    const int hours = int(qint64(ti) / 3600);
    return QString::asprintf("%.2d:%.2d:%.2d.%.3d", hours, minutes, seconds, ms);
}

} // namespace lullet
