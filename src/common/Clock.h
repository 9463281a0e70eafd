#pragma once

#include "common/AutomationDate.h"

// The one way to read the present time. Every routine asks the application context's
// clock; tests put in one that they can set and advance.
class Clock {
public:
    virtual ~Clock() = default;
    // The present local time as an automation date.
    virtual double Now() const = 0;
};

class SystemClock : public Clock {
public:
    double Now() const override
    {
        return AutomationDate::FromDateTime(QDateTime::currentDateTime());
    }
};
