#include "common/AutomationDate.h"

#include <cmath>

namespace AutomationDate {
namespace {

const QDate kEpoch(1899, 12, 30);
constexpr qint64 kMillisecondsPerDay = 86400000;

qint64 FloorDiv(qint64 value, qint64 unit)
{
    return value >= 0 ? value / unit : -((-value + unit - 1) / unit);
}

// The moment as whole milliseconds since the epoch on a straight time line.
qint64 LinearMilliseconds(double date)
{
    const double day = std::trunc(date);
    const double fraction = std::fabs(date - day);
    return std::llround(day * kMillisecondsPerDay) + std::llround(fraction * kMillisecondsPerDay);
}

// Every date this module makes goes through here, so that the same moment reached by
// different roads compares equal.
double FromLinearMilliseconds(qint64 ms)
{
    const qint64 day = FloorDiv(ms, kMillisecondsPerDay);
    const double fraction = double(ms - day * kMillisecondsPerDay) / kMillisecondsPerDay;
    return day >= 0 ? double(day) + fraction : double(day) - fraction;
}

// Truncated, like DatePart: every helper puts a moment into the same second and so the same
// day.
qint64 LinearSeconds(double date)
{
    return FloorDiv(LinearMilliseconds(date), 1000);
}

int SecondOfDay(double date)
{
    const qint64 s = LinearSeconds(date);
    return int(s - FloorDiv(s, 86400) * 86400);
}

} // namespace

double FromText(const QString& monthDayYear)
{
    return FromDate(QDate::fromString(monthDayYear, QStringLiteral("MM/dd/yyyy")));
}

double FromDate(const QDate& date)
{
    return double(kEpoch.daysTo(date));
}

double FromTime(int hour, int minute, int second)
{
    return FromLinearMilliseconds((hour * 3600 + minute * 60 + second) * qint64(1000));
}

double FromDateTime(const QDateTime& local)
{
    return FromLinearMilliseconds(kEpoch.daysTo(local.date()) * kMillisecondsPerDay +
                                  local.time().msecsSinceStartOfDay());
}

QDateTime ToDateTime(double date)
{
    const qint64 ms = LinearMilliseconds(date);
    const qint64 day = FloorDiv(ms, kMillisecondsPerDay);
    const QDate calendarDay = kEpoch.addDays(day);
    const QTime time = QTime::fromMSecsSinceStartOfDay(int(ms - day * kMillisecondsPerDay));
    const QDateTime local(calendarDay, time);
    if (local.isValid())
        return local;
    // A wall time that the clocks skipped when they went forward: read with the offset that
    // held before the change, it is as far after the change as it was after the gap's start.
    const int offsetBefore = QDateTime(calendarDay.addDays(-1), time).offsetFromUtc();
    return QDateTime(calendarDay, time, Qt::OffsetFromUTC, offsetBefore).toLocalTime();
}

double DatePart(double date)
{
    return std::trunc(date);
}

double TimePart(double date)
{
    return std::fabs(date - std::trunc(date));
}

int Weekday(double date)
{
    // 30 December 1899 was a Saturday.
    const qint64 day = FloorDiv(LinearSeconds(date), 86400);
    return int(((day % 7) + 7 + 6) % 7) + 1;
}

int Hour(double date)
{
    return SecondOfDay(date) / 3600;
}
int Minute(double date)
{
    return SecondOfDay(date) / 60 % 60;
}
int Second(double date)
{
    return SecondOfDay(date) % 60;
}

qint64 SecondsBetween(double a, double b)
{
    return LinearSeconds(b) - LinearSeconds(a);
}

qint64 MinutesBetween(double a, double b)
{
    return FloorDiv(LinearSeconds(b), 60) - FloorDiv(LinearSeconds(a), 60);
}

qint64 HoursBetween(double a, double b)
{
    return FloorDiv(LinearSeconds(b), 3600) - FloorDiv(LinearSeconds(a), 3600);
}

qint64 WholeSeconds(double date)
{
    return LinearSeconds(date);
}

double AddSeconds(double date, double seconds)
{
    return FromLinearMilliseconds(LinearMilliseconds(date) + std::llround(seconds * 1000.0));
}

} // namespace AutomationDate
