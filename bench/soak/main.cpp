// Thirty-one simulated days of the recorder on its own: a fortnight around the start of
// summer time, a day in June with the recorder stopped for six hours and the computer asleep
// for two, and a fortnight around the end of summer time. Prints occurrences_due=,
// started_once=, missed=, started_twice=, missed_unreported=, rss_growth_kb= and wall_s=, one per
// line, after the occurrences that the rules make fall or start again, each with its reason;
// differences from the rules follow as "fault:" lines, and the event log's rows as "logged:".
// --quiet leaves out the line per day on stderr; --clear-list-daily empties the recordings list
// each day, to tell the list's growth from a leak.
#include "SoakRun.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    SoakOptions options;
    options.taskProgram = NIGHTREEL_FAKETASK;
    options.stretches = {
        {QDate(2026, 3, 21), 15}, {QDate(2026, 6, 8), 1}, {QDate(2026, 10, 17), 15}};
    // On that Monday in June: the recorder stopped for six hours in the morning, and the
    // computer asleep for two in the afternoon; each ends in a program.
    options.outages = {{QDateTime(QDate(2026, 6, 8), QTime(4, 30)), 6, false},
                       {QDateTime(QDate(2026, 6, 8), QTime(15, 25)), 2, true}};
    options.clearListDaily = app.arguments().contains("--clear-list-daily");
    if (!app.arguments().contains("--quiet"))
        options.progress = [](const QString& line) {
            std::fprintf(stderr, "%s\n", qPrintable(line));
        };
    const SoakReport r = RunSoak(options);
    for (const QString& line : r.ruleCases)
        std::printf("%s\n", qPrintable(line));
    for (const QString& line : r.logged)
        std::printf("logged: %s\n", qPrintable(line));
    for (const QString& line : r.faults)
        std::printf("fault: %s\n", qPrintable(line));
    std::printf("occurrences_due=%d\n", r.occurrencesDue);
    std::printf("started_once=%d\n", r.startedOnce);
    std::printf("missed=%d\n", r.missed);
    std::printf("started_twice=%d\n", r.startedTwice);
    std::printf("missed_unreported=%d\n", r.missedUnreported);
    std::printf("rss_growth_kb=%lld\n", static_cast<long long>(r.rssGrowthKb));
    std::printf("wall_s=%.1f\n", r.wallSeconds);
    std::printf("recordings_rows=%d\n", r.recordingsRows);
    std::printf("ticks=%lld\n", static_cast<long long>(r.ticks));
    return r.missed == 0 && r.startedTwice == 0 && r.missedUnreported == 0 && r.faults.isEmpty()
               ? 0
               : 1;
}
