// Thirty simulated days of the recorder on its own: a fortnight around the start of summer
// time and one around its end. Prints occurrences_due=, started_once=, missed=,
// started_twice=, rss_growth_kb= and wall_s=, one per line, after the occurrences that the
// rules make fall or start again, each with its reason; differences from the rules follow
// as "fault:" lines. --quiet leaves out the line per day on stderr.
#include "SoakRun.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const bool quiet = app.arguments().contains("--quiet");
    const SoakReport r =
        RunSoak(NIGHTREEL_FAKETASK, {{QDate(2026, 3, 21), 15}, {QDate(2026, 10, 17), 15}},
                [quiet](const QString& line) {
                    if (!quiet)
                        std::fprintf(stderr, "%s\n", qPrintable(line));
                });
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
    std::printf("rss_growth_kb=%lld\n", static_cast<long long>(r.rssGrowthKb));
    std::printf("wall_s=%.1f\n", r.wallSeconds);
    std::printf("ticks=%lld\n", static_cast<long long>(r.ticks));
    return r.missed == 0 && r.startedTwice == 0 && r.faults.isEmpty() ? 0 : 1;
}
