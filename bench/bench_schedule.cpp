// Times the next-program search over large program lists and one idle heartbeat tick.
// Prints search_1000_ms=, search_10000_ms= and tick_us=, one per line.
#include "Programs.h"
#include "TestContext.h"
#include "recording/Heartbeat.h"
#include "recording/RecorderParts.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSqlQuery>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

void InsertPrograms(AppContext& ctx, int count)
{
    QSqlDatabase db = ctx.database.db.Connection();
    db.transaction();
    QSqlQuery q(db);
    q.prepare("INSERT INTO Programs (Enabled, Description, DescriptionText, Frequency, "
              "StartTime, EndTime, OneTimeDay, Sun, Mon, Tue, Wed, Thu, Fri, Sat, "
              "RecordingCancelled, wfx_nAvgBytesPerSec, StreamingPlayerClose, InternetLink, "
              "InternetLinkDelay, LaunchAppPrior, LaunchAppDelay) "
              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 0, 11025, 'DO_NOT_CLOSE', '', "
              "0, '', 0)");
    QRandomGenerator random(2000);
    const double today = Programs::At(2026, 6, 1, "00:00:00");
    for (int i = 0; i < count; ++i) {
        const QString name = QString("Program %1").arg(i, 5, 10, QChar('0'));
        q.addBindValue(random.bounded(10) ? -1 : 0);
        q.addBindValue(name);
        q.addBindValue(name);
        q.addBindValue(random.bounded(3) ? 1 : 0);
        q.addBindValue(random.bounded(1440) / 1440.0);
        q.addBindValue(random.bounded(1440) / 1440.0);
        q.addBindValue(today + random.bounded(60));
        for (int d = 0; d < 7; ++d)
            q.addBindValue(random.bounded(2) ? -1 : 0);
        q.exec();
    }
    db.commit();
    ctx.database.DataPrograms.Refresh();
}

double MedianMilliseconds(AppContext& ctx, int runs)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        ctx.scheduler.DetermineNextProgramToSchedule(false, ctx.Now());
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double SearchMilliseconds(int programs)
{
    TestContext tc;
    tc.OpenDatabase();
    InsertPrograms(*tc.ctx, programs);
    tc.clock.Set(Programs::At(2026, 6, 1, "12:00:00"));
    return MedianMilliseconds(*tc.ctx, 21);
}

double IdleTickMicroseconds()
{
    // The program's own heartbeat, with the status bar round it runs on every tick.
    TestContext tc;
    Heartbeat& heartbeat = RecorderParts::HeartbeatTimer(tc.ctx->recorder);
    tc.ctx->appStatus.SetReady(true);
    tc.ctx->options.DefaultRecordingDirectory = tc.Root();
    NextProgram& next = tc.ctx->scheduler.next;
    next.NextProgramFound = true;
    next.NextProgramStart = Programs::At(2026, 6, 2, "20:00:00");
    next.NextProgramEnd = Programs::At(2026, 6, 2, "21:00:00");
    next.NextInternetLink = "http://radio.example/";
    next.NextLinkLaunchTime = Programs::At(2026, 6, 2, "19:59:55");
    tc.ctx->options.PurgeRecordings = true;
    tc.ctx->options.PurgeTime = Programs::TimeOfDay("03:00:00");
    constexpr int kTicks = 100000;
    tc.clock.Set(Programs::At(2026, 6, 1, "12:00:00"));
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < kTicks; ++i) {
        tc.clock.AdvanceSeconds(0.25);
        heartbeat.Timer1_Timer();
    }
    return timer.nsecsElapsed() / 1e3 / kTicks;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    std::printf("search_1000_ms=%.3f\n", SearchMilliseconds(1000));
    std::printf("search_10000_ms=%.3f\n", SearchMilliseconds(10000));
    std::printf("tick_us=%.3f\n", IdleTickMicroseconds());
    return 0;
}
