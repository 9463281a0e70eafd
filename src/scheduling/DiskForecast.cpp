#include "scheduling/DiskForecast.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "scheduling/Scheduler.h"

DiskForecast::DiskForecast(const Clock& clock, Scheduler& scheduler)
    : m_clock(clock)
    , m_scheduler(scheduler)
{
}

QList<DiskForecastRow> DiskForecast::Rows(double freeMbytes, qint16 stopMbytes,
                                          qint16 paddingSeconds) const
{
    QList<DiskForecastRow> rows;
    InRoutine("DiskForecast Rows", [&] {
        double remaining = freeMbytes;
        // Read-only: a lapsed cancellation stays in the table, but each search still tests
        // it against its own reference date, so later occurrences count once the chain has
        // passed it.
        auto found = m_scheduler.DetermineNextProgramToSchedule(true, m_clock.Now());
        while (found) {
            DiskForecastRow row;
            row.description = found->description;
            row.startTime = found->startDateTime;
            row.endTime = found->endDateTime;
            // Each recording is padded at both ends.
            const qint64 seconds =
                AutomationDate::SecondsBetween(found->startDateTime, found->endDateTime) +
                2 * paddingSeconds;
            // The running value keeps its fraction; only the row is rounded.
            remaining -= double(found->avgBytesPerSec) * double(seconds) / 1048576.0;
            bool last = false;
            if (remaining < stopMbytes) {
                remaining = stopMbytes;
                row.description = Text::Left(row.description, 25) + TruncatedMark();
                last = true;
            }
            row.remainingMbytes = qint32(Text::RoundHalfEven(remaining));
            rows.append(row);
            if (last || rows.size() >= MaxRows)
                break;
            found = m_scheduler.DetermineNextProgramToSchedule(true, found->endDateTime);
        }
    });
    return rows;
}
