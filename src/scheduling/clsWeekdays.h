#pragma once

#include <array>
#include <vector>

// The times a program occupies, laid onto one reference week, so that two programs can be
// tested for overlap without any calendar: a one-time program on a date counts as running
// on that weekday of every week.
class clsWeekdays {
public:
    // padSeconds widens every interval at both ends.
    explicit clsWeekdays(int padSeconds = 0)
        : m_padSeconds(padSeconds)
    {
    }
    // Adds the weekday of date (only the weekday is kept) from startTime to endTime.
    void OneTimeDtm(double date, double startTime, double endTime);
    // Adds startTime to endTime on each set day, index 0 being Sunday.
    void Weekdays(const std::array<bool, 7>& days, double startTime, double endTime);
    // True if any interval of this object overlaps any interval of other.
    bool IsConflictWith(const clsWeekdays& other) const;

private:
    void AddInterval(int dayIndex, double startTime, double endTime);

    // Begin and end of each interval in the reference week, in whole seconds, so that
    // padded windows that only touch compare exactly.
    std::vector<std::array<double, 2>> m_intervals;
    int m_padSeconds;
};
