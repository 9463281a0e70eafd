#pragma once

#include "scheduling/ProgramOccurrence.h"

#include <QList>

class AppDatabase;
class Scheduler;

// The occurrences that fell due in a span of time (their start after from, at or before to),
// by the very rules of the next-program search: weekdays, runs across midnight and cancel
// marks as that search reads them, without clearing any mark. Each program is followed on
// its own from one occurrence's end to the next, so that one program's occurrences never
// hide another's. Oldest first.
QList<ProgramOccurrence> OccurrencesDue(Scheduler& scheduler, AppDatabase& database, double from,
                                        double to);
