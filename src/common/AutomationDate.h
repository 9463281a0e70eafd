#pragma once

#include <QDateTime>
#include <QString>

// Dates as the system keeps them everywhere: days since 30 December 1899 as a double, the
// fraction being the time of day. One day later is plain addition of 1.0. For dates before
// 1899 the fraction counts forward from the whole day, as in the files this system reads.
namespace AutomationDate {

// Parses "MM/dd/yyyy"; the sentinels are parsed at the moment of use.
double FromText(const QString& monthDayYear);
inline double Never()
{
    return FromText(QStringLiteral("01/01/2100"));
}
inline double LongAgo()
{
    return FromText(QStringLiteral("01/01/1980"));
}

double FromDateTime(const QDateTime& local);
double FromDate(const QDate& date);
double FromTime(int hour, int minute, int second);
QDateTime ToDateTime(double date);

double DatePart(double date);
double TimePart(double date);
// 1 is Sunday, 7 is Saturday.
int Weekday(double date);
int Hour(double date);
int Minute(double date);
int Second(double date);

// Whole-unit differences b - a counted as the system counts them: the number of unit
// boundaries passed between the two moments, after truncating each to the second.
qint64 SecondsBetween(double a, double b);
qint64 MinutesBetween(double a, double b);
qint64 HoursBetween(double a, double b);

double AddSeconds(double date, double seconds);

// The moment as whole seconds since the epoch, truncated like SecondsBetween.
qint64 WholeSeconds(double date);

} // namespace AutomationDate
