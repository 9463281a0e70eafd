#pragma once

#include "common/AutomationDate.h"

// The one way to read the present time. Every routine asks the application context's
// clock; tests put in one that they can set and advance.
class Clock {
public:
    virtual ~Clock() = default;
    // The present local time as an automation date.
    virtual double Now() const = 0;
    // Milliseconds from the present until the date, for a timer that is to meet a second.
    virtual qint64 MsecsUntil(double date) const
    {
        return qint64(AutomationDate::SecondsBetween(Now(), date)) * 1000;
    }
};

class SystemClock : public Clock {
public:
    // Whole seconds, as the system worked: a reading with milliseconds would let two
    // helpers disagree on which day 23:59:59.7 belongs to.
    double Now() const override
    {
        const QDateTime now = QDateTime::currentDateTime();
        const QTime time = now.time();
        return AutomationDate::FromDateTime(
            QDateTime(now.date(), QTime(time.hour(), time.minute(), time.second())));
    }
    // Counted from the present millisecond.
    qint64 MsecsUntil(double date) const override
    {
        return QDateTime::currentDateTime().msecsTo(AutomationDate::ToDateTime(date));
    }
};
