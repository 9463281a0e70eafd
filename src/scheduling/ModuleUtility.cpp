#include "scheduling/ModuleUtility.h"

#include "store/Recordset.h"

namespace {

const char* const kDayNames[7] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

} // namespace

bool TimeRangesOverlap(double a0, double a1, double b0, double b1)
{
    const bool bBeginsWithinA = b0 >= a0 && b0 < a1;
    const bool bEndsWithinA = b1 > a0 && b1 <= a1;
    const bool bEnclosesA = b0 <= a0 && b1 >= a1;
    return bBeginsWithinA || bEndsWithinA || bEnclosesA;
}

QString DaysString(const std::array<bool, 7>& days)
{
    QString text;
    for (int i = 0; i < 7; ++i) {
        if (!days[i])
            continue;
        if (!text.isEmpty())
            text += u',';
        text += QLatin1String(kDayNames[i]);
        // Two days in a row stay two names; only three or more become a range.
        const int run = ConsecDays(i, days);
        if (run > 2) {
            i += run - 1;
            text += u'-';
            text += QLatin1String(kDayNames[i]);
        }
    }
    return text;
}

int ConsecDays(int start, const std::array<bool, 7>& days)
{
    Q_ASSERT(start >= 0);
    // Intended: Saturday does not wrap to Sunday, so Sat+Sun is never one run.
    int count = 0;
    for (int i = start; i < 7 && days[i]; ++i)
        ++count;
    return count;
}

qint32 RecordsetCount(const Recordset& rs)
{
    Recordset clone = rs.Clone();
    if (clone.IsEOF())
        return 0;
    clone.MoveFirst();
    clone.MoveLast();
    return clone.RecordCount();
}
