#include "Programs.h"
#include "RecordingLauncher.h"
#include "StoreParts.h"
#include "common/RuntimeError.h"
#include "common/clsAppStatus.h"
#include "recording/Heartbeat.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/Scheduler.h"

#include <QSignalSpy>
#include <QTest>

using AutomationDate::AddSeconds;

namespace {

double At(const QString& time, int day = 1)
{
    return Programs::At(2026, 6, day, time);
}

// A heartbeat on its own over the store's parts and a scheduler, ticked by hand at the times
// the test sets; what it hands on is read from its signals.
struct Fixture : StoreParts {
    Fixture()
    {
        appStatus.SetReady(true);
        clock.Set(At("12:00:00"));
    }
    void TickAt(double date)
    {
        clock.Set(date);
        heartbeat.Timer1_Timer();
    }
    NextProgram& next() { return scheduler.next; }
    RecordingLauncher launcher;
    Scheduler scheduler{clock, database, log, messageBox, options};
    clsAppStatus appStatus;
    clsRecordingStatus status;
    Heartbeat heartbeat{clock, log, options, launcher, scheduler, appStatus, status};
};

} // namespace

class TestHeartbeat : public QObject {
    Q_OBJECT

private slots:
    // No round before the application is ready, the timer still running; a round that fails
    // is logged under the heartbeat's name and ends the timer.
    void theTimer()
    {
        Fixture f;
        f.appStatus.SetReady(false);
        f.heartbeat.Start();
        QSignalSpy rounds(&f.heartbeat, &Heartbeat::UpdateStatusBarPlus);
        f.heartbeat.Timer1_Timer();
        QCOMPARE(rounds.size(), 0);
        QCOMPARE(f.heartbeat.Timer1.Interval(), 250);
        f.appStatus.SetReady(true);
        connect(&f.heartbeat, &Heartbeat::UpdateStatusBarPlus, this,
                [] { throw RuntimeError(ErrorNumber::PathFileAccess, "Path/File access error"); });
        f.heartbeat.Timer1_Timer();
        QCOMPARE(rounds.size(), 1);
        QCOMPARE(f.heartbeat.Timer1.Interval(), 0);
        QVERIFY(f.LogEntries().last().details.startsWith("Module: Timer1_Timer\r\n"));
    }

    void aClockJumpSchedulesAnew_data()
    {
        QTest::addColumn<int>("jump");
        QTest::addColumn<bool>("recording");
        QTest::addColumn<bool>("scheduled");
        QTest::newRow("2500 s") << 2500 << false << false;
        QTest::newRow("2501 s") << 2501 << false << true;
        QTest::newRow("set back an hour") << -3600 << false << true;
        QTest::newRow("set back while recording") << -3600 << true << false;
    }
    void aClockJumpSchedulesAnew()
    {
        QFETCH(int, jump);
        QFETCH(bool, recording);
        Fixture f;
        f.status.EndTime = At("00:00:00", 2);
        f.appStatus.SetRecording(recording);
        f.TickAt(At("12:00:00")); // the first tick counts no difference
        f.AddProgram(Programs::Weekly("Added behind its back", "20:00:00", "21:00:00", "1111111"));
        f.TickAt(AddSeconds(At("12:00:00"), jump));
        QTEST(f.next().NextProgramFound, "scheduled");
    }

    // The link opens from its time until 30 seconds later, not within 120 s of the last; the
    // windows are noted first unless the player is to be kept.
    void theLinkWindow_data()
    {
        QTest::addColumn<int>("tickAfter");
        QTest::addColumn<int>("lastLaunchBefore");
        QTest::addColumn<bool>("keepPlayer");
        QTest::addColumn<bool>("opened");
        QTest::newRow("a second early") << -1 << -1 << false << false;
        QTest::newRow("on time, player kept") << 0 << -1 << true << true;
        QTest::newRow("29 s late") << 29 << -1 << false << true;
        QTest::newRow("woke 31 s late") << 31 << -1 << false << false;
        QTest::newRow("opened 100 s ago") << 0 << 100 << false << false;
        QTest::newRow("opened 121 s ago") << 0 << 121 << false << true;
    }
    void theLinkWindow()
    {
        QFETCH(int, tickAfter);
        QFETCH(int, lastLaunchBefore);
        QFETCH(bool, keepPlayer);
        QFETCH(bool, opened);
        Fixture f;
        const double linkTime = At("19:59:55");
        f.next().NextInternetLink = "http://radio.example/stream";
        f.next().NextStreamingPlayerClose = keepPlayer ? "DO_NOT_CLOSE" : "";
        if (lastLaunchBefore >= 0) {
            f.next().NextLinkLaunchTime = AddSeconds(linkTime, -lastLaunchBefore);
            f.TickAt(f.next().NextLinkLaunchTime);
        }
        f.next().NextLinkLaunchTime = linkTime;
        QSignalSpy openings(&f.heartbeat, &Heartbeat::OpenInternetLink);
        QSignalSpy snapshots(&f.heartbeat, &Heartbeat::SnapshotWindowsBeforeLink);
        f.TickAt(AddSeconds(linkTime, tickAfter));
        QCOMPARE(openings.size(), opened ? 1 : 0);
        QCOMPARE(snapshots.size(), opened && !keepPlayer ? 1 : 0);
        QCOMPARE(f.next().NextLinkLaunchTime, opened ? AutomationDate::Never() : linkTime);
    }

    void theApplicationBeforeARecording()
    {
        Fixture f;
        f.next().NextLaunchAppPrior = "/opt/missing/player --quiet";
        f.next().NextAppLaunchTime = At("19:59:00");
        f.launcher.failing.insert("/opt/missing/player --quiet");
        f.TickAt(At("19:59:10"));
        QCOMPARE(f.launcher.started, QStringList{"/opt/missing/player --quiet"});
        QCOMPARE(f.next().NextAppLaunchTime, AutomationDate::Never());
        QCOMPARE(f.LogEntries().last().message, QString("Invalid Launch Application command"));
    }

    // A program due at 20:00 (a stream opens ten seconds ahead, or its link's delay if
    // longer) starts at its due tick, a late tick records what is left; while it records
    // nothing else starts, and the clock asks for the stop strictly after its end, until the
    // stop request has been made.
    void aDueProgramStartsAndEndsByTheClock_data()
    {
        QTest::addColumn<QString>("stream");
        QTest::addColumn<int>("linkDelay");
        QTest::addColumn<QString>("firstDue");
        QTest::newRow("from the input") << "" << 0 << "20:00:00";
        QTest::newRow("a stream") << "http://radio.example.org/live.mp3" << 0 << "19:59:50";
        QTest::newRow("a stream, the link's delay")
            << "http://radio.example.org/live.mp3" << 30 << "19:59:30";
    }
    void aDueProgramStartsAndEndsByTheClock()
    {
        QFETCH(QString, stream);
        QFETCH(int, linkDelay);
        QFETCH(QString, firstDue);
        Fixture f;
        NextProgram& next = f.next();
        next.NextProgramFound = true;
        next.NextProgramId = 7;
        next.NextProgramDescription = "News";
        next.NextProgramStart = At("20:00:00");
        next.NextProgramEnd = At("20:30:00");
        next.NextStreamUrl = stream;
        next.NextInternetLinkDelay = qint16(linkDelay);
        QSignalSpy start(&f.heartbeat, &Heartbeat::StartRecordingDue);
        f.TickAt(AddSeconds(At(firstDue), -1));
        QCOMPARE(start.size(), 0);
        f.TickAt(stream.isEmpty() ? At("20:10:00") : At(firstDue));
        QCOMPARE(start.size(), 1);
        const double from = stream.isEmpty() ? At("20:10:00") : At("20:00:00");
        QCOMPARE(start[0], (QVariantList{7, from, At("20:30:00"), "News"}));

        f.appStatus.SetRecording(true);
        f.status.EndTime = At("20:30:00");
        QSignalSpy stop(&f.heartbeat, &Heartbeat::StopRecordingDue);
        f.TickAt(At("20:28:30"));
        QVERIFY(!f.status.NextProgramScheduled);
        f.TickAt(At("20:28:31"));
        QVERIFY(f.status.NextProgramScheduled);
        f.TickAt(At("20:30:00"));
        QCOMPARE(stop.size(), 0);
        f.TickAt(At("20:30:01"));
        f.status.StopRequested = true;
        f.TickAt(At("20:30:02"));
        QCOMPARE(stop.size(), 1);
        QCOMPARE(start.size(), 1);
    }

    // Ticks at the given times of consecutive days ("d hh:mm:ss", d from 0).
    void thePurgeWindow_data()
    {
        QTest::addColumn<QString>("purgeTime");
        QTest::addColumn<QStringList>("ticks");
        QTest::addColumn<int>("purges");
        QTest::newRow("the first span runs it")
            << "02:00:00" << QStringList{"0 01:59:59", "0 02:00:00"} << 1;
        QTest::newRow("not after five minutes") << "02:00:00" << QStringList{"0 02:05:01"} << 0;
        QTest::newRow("once in 22 hours")
            << "02:00:00" << QStringList{"0 02:00:00", "0 02:04:00", "1 02:00:00"} << 2;
        QTest::newRow("no wrap over midnight")
            << "23:58:00" << QStringList{"1 00:01:00", "1 00:02:30"} << 0;
    }
    void thePurgeWindow()
    {
        QFETCH(QString, purgeTime);
        QFETCH(QStringList, ticks);
        Fixture f;
        f.options.PurgeRecordings = true;
        f.options.PurgeTime = Programs::TimeOfDay(purgeTime);
        QSignalSpy purged(&f.heartbeat, &Heartbeat::PurgeDue);
        for (const QString& tick : ticks)
            f.TickAt(At(tick.section(' ', 1), 1 + tick.section(' ', 0, 0).toInt()));
        QTEST(int(purged.size()), "purges");
    }
};

QTEST_GUILESS_MAIN(TestHeartbeat)
#include "test_heartbeat.moc"
