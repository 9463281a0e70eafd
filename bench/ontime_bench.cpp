// How late the first sound of a scheduled recording reaches its file: twenty scheduled starts
// by the program's recorder and the real recording task, with a sound server fed at 50 ms
// latency as a sound card delivers. The heartbeat runs at its own interval from a random
// phase, on the program's own clock; each program is due at a whole second.
// Prints ontime_median_ms= and ontime_worst_ms=, from the due second to the first sample on
// disk. Goals: 100 and 150.
#include "RecordingRig.h"
#include "recording/RecorderParts.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int kStarts = 20;

// Bytes of sound in the file so far; -1 before its header is there.
qint64 SoundBytes(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const qsizetype at = file.read(4096).indexOf("data");
    return at < 0 ? -1 : file.size() - (at + 8);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    std::unique_ptr<PulseFixture> pulse;
    if (const QString why = RecordingRig::StartSound(pulse); !why.isEmpty()) {
        std::fprintf(stderr, "ontime-bench: %s\n", qPrintable(why));
        return 1;
    }
    RecordingRig r;
    r.tc.clock.FollowSystemTime();
    AppContext& ctx = *r.tc.ctx;
    Heartbeat& heartbeat = RecorderParts::HeartbeatTimer(ctx.recorder);
    const auto runFor = [&](int ms, const std::function<bool()>& done) {
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < ms && !done())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        return done();
    };

    std::vector<qint64> lateMs;
    for (int i = 0; i < kStarts; ++i) {
        // A new phase of the heartbeat against the second.
        heartbeat.Timer1.SetInterval(0);
        runFor(QRandomGenerator::global()->bounded(1000), [] { return false; });
        heartbeat.Start();
        const QDateTime due = QDateTime::currentDateTime().addSecs(3);
        const QTime dueTime(due.time().hour(), due.time().minute(), due.time().second());
        r.AddProgram(Programs::OneTime(
            QStringLiteral("On time %1").arg(i), AutomationDate::FromDate(due.date()),
            dueTime.toString("HH:mm:ss"), dueTime.addSecs(2).toString("HH:mm:ss")));
        ctx.scheduler.ScheduleNextRecording();

        const qint64 dueMs = QDateTime(due.date(), dueTime).toMSecsSinceEpoch();
        const bool heard = runFor(8000, [&] {
            return ctx.appStatus.Recording() && SoundBytes(ctx.recorder.Status().RecordingFile) > 0;
        });
        const qint64 late = QDateTime::currentMSecsSinceEpoch() - dueMs;
        runFor(10000, [&] { return !ctx.appStatus.Recording(); });
        if (!heard) {
            std::fprintf(stderr, "ontime-bench: start %d wrote no sound\n", i + 1);
            return 1;
        }
        std::fprintf(stderr, "start %d: %lld ms\n", i + 1, static_cast<long long>(late));
        lateMs.push_back(late);
    }
    std::sort(lateMs.begin(), lateMs.end());
    std::printf("ontime_median_ms=%lld\n",
                static_cast<long long>((lateMs[kStarts / 2 - 1] + lateMs[kStarts / 2]) / 2));
    std::printf("ontime_worst_ms=%lld\n", static_cast<long long>(lateMs.back()));
    return 0;
}
