#include "scheduling/OccurrencesDue.h"

#include "scheduling/Scheduler.h"
#include "store/AppDatabase.h"

#include <algorithm>

QList<ProgramOccurrence> OccurrencesDue(Scheduler& scheduler, AppDatabase& database, double from,
                                        double to)
{
    QList<qint32> ids;
    Recordset rs = database.DataPrograms.recordset().Clone();
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext())
        ids.append(rs.Value(QStringLiteral("ID")).toInt());

    QList<ProgramOccurrence> due;
    for (const qint32 id : ids) {
        double reference = from;
        while (const auto o = scheduler.DetermineNextProgramToSchedule(true, reference, id)) {
            if (o->startDateTime > to)
                break;
            // One that was already running at from was no concern of this span.
            if (o->startDateTime > from)
                due.append(*o);
            reference = o->endDateTime;
        }
    }
    std::stable_sort(due.begin(), due.end(), [](const auto& a, const auto& b) {
        return a.startDateTime < b.startDateTime;
    });
    return due;
}
