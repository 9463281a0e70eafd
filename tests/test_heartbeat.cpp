#include "LogCapture.h"
#include "Programs.h"
#include "TestContext.h"
#include "recording/Heartbeat.h"

#include <QSignalSpy>
#include <QTest>

using AutomationDate::AddSeconds;
using Programs::At;

namespace {

// A heartbeat on its own over a fresh context's parts, ticked by hand at the times the test
// sets; what it hands on is read from its signals.
struct Fixture {
    Fixture()
        : heartbeat(tc.clock, tc.ctx->log, tc.ctx->options, tc.launcher, tc.ctx->scheduler,
                    tc.ctx->appStatus, status)
    {
        tc.ctx->appStatus.SetReady(true);
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
    }
    void TickAt(double date)
    {
        tc.clock.Set(date);
        heartbeat.Timer1_Timer();
    }
    NextProgram& next() { return tc.ctx->scheduler.next; }

    TestContext tc;
    clsRecordingStatus status;
    Heartbeat heartbeat;
};

} // namespace

class TestHeartbeat : public QObject {
    Q_OBJECT

private slots:
    void idlesUntilTheApplicationIsReady()
    {
        Fixture f;
        f.tc.ctx->appStatus.SetReady(false);
        f.heartbeat.Start();
        QSignalSpy status(&f.heartbeat, &Heartbeat::UpdateStatusBarPlus);
        f.heartbeat.Timer1_Timer();
        QCOMPARE(status.size(), 0);
        QCOMPARE(f.heartbeat.Timer1.Interval(), 250);
        f.tc.ctx->appStatus.SetReady(true);
        f.heartbeat.Timer1_Timer();
        QCOMPARE(status.size(), 1);
        QCOMPARE(f.heartbeat.Timer1.Interval(), 250);
    }

    void aFailedTickEndsTheHeartbeat()
    {
        Fixture f;
        f.tc.OpenDatabase();
        f.heartbeat.Start();
        connect(&f.heartbeat, &Heartbeat::UpdateStatusBarPlus, this,
                [] { throw RuntimeError(ErrorNumber::PathFileAccess, "Path/File access error"); });
        f.TickAt(At(2026, 6, 1, "12:00:00"));
        QCOMPARE(f.heartbeat.Timer1.Interval(), 0);
        Recordset& log = f.tc.ctx->database.ElogRecordset();
        log.MoveLast();
        QVERIFY(log.Value("Details").toString().startsWith("Module: Timer1_Timer\r\n"));
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
        Fixture f;
        f.tc.OpenDatabase();
        f.status.EndTime = At(2026, 6, 2, "00:00:00");
        QFETCH(bool, recording);
        QFETCH(bool, scheduled);
        f.tc.ctx->appStatus.SetRecording(recording);
        f.TickAt(At(2026, 6, 1, "12:00:00")); // the first tick counts no difference
        f.tc.AddProgram(
            Programs::Weekly("Added behind its back", "20:00:00", "21:00:00", "1111111"));
        f.TickAt(AddSeconds(At(2026, 6, 1, "12:00:00"), jump));
        QCOMPARE(f.next().NextProgramFound, scheduled);
    }

    // The link opens from its time until 30 seconds later, not within 120 s of the last.
    void theLinkWindow_data()
    {
        QTest::addColumn<int>("tickAfter");
        QTest::addColumn<int>("lastLaunchBefore");
        QTest::addColumn<QString>("close");
        QTest::addColumn<bool>("opened");
        QTest::addColumn<bool>("snapshot");
        QTest::newRow("a second early") << -1 << -1 << "" << false << false;
        QTest::newRow("on time, automatic player") << 0 << -1 << "" << true << true;
        QTest::newRow("on time, player kept") << 0 << -1 << "DO_NOT_CLOSE" << true << false;
        QTest::newRow("29 s late") << 29 << -1 << "" << true << true;
        QTest::newRow("woke 31 s late") << 31 << -1 << "" << false << false;
        QTest::newRow("opened 100 s ago") << 0 << 100 << "" << false << false;
        QTest::newRow("opened 121 s ago") << 0 << 121 << "" << true << true;
    }
    void theLinkWindow()
    {
        QFETCH(int, tickAfter);
        QFETCH(int, lastLaunchBefore);
        QFETCH(QString, close);
        QFETCH(bool, opened);
        QFETCH(bool, snapshot);
        Fixture f;
        const double linkTime = At(2026, 6, 1, "19:59:55");
        f.next().NextInternetLink = "http://radio.example/stream";
        f.next().NextStreamingPlayerClose = close;
        if (lastLaunchBefore >= 0) {
            f.next().NextLinkLaunchTime = AddSeconds(linkTime, -lastLaunchBefore);
            f.TickAt(f.next().NextLinkLaunchTime);
        }
        f.next().NextLinkLaunchTime = linkTime;
        QSignalSpy openings(&f.heartbeat, &Heartbeat::OpenInternetLink);
        QSignalSpy snapshots(&f.heartbeat, &Heartbeat::SnapshotWindowsBeforeLink);
        f.TickAt(AddSeconds(linkTime, tickAfter));
        QCOMPARE(openings.size(), opened ? 1 : 0);
        QCOMPARE(snapshots.size(), snapshot ? 1 : 0);
        QCOMPARE(f.next().NextLinkLaunchTime, opened ? AutomationDate::Never() : linkTime);
    }

    void theApplicationBeforeARecording()
    {
        Fixture f;
        f.tc.OpenDatabase();
        f.next().NextLaunchAppPrior = "/opt/missing/player --quiet";
        f.next().NextAppLaunchTime = At(2026, 6, 1, "19:59:00");
        f.tc.launcher.failing.insert("/opt/missing/player --quiet");
        f.TickAt(At(2026, 6, 1, "19:59:10"));
        QCOMPARE(f.tc.launcher.started, QStringList{"/opt/missing/player --quiet"});
        QCOMPARE(f.next().NextAppLaunchTime, AutomationDate::Never());
        Recordset& log = f.tc.ctx->database.ElogRecordset();
        log.MoveLast();
        QCOMPARE(log.Value("Type").toInt(), 1);
        QCOMPARE(log.Value("Message").toString(),
                 QStringLiteral("Invalid Launch Application command"));
        QCOMPARE(log.Value("Details").toString(),
                 QStringLiteral("The command to launch an application is invalid.  Check the "
                                "file paths and that the applications exists.\r\n"
                                "Command= /opt/missing/player --quiet"));
    }

    void aDueProgramStartsAndEndsByTheClock()
    {
        Fixture f;
        NextProgram& next = f.next();
        next.NextProgramFound = true;
        next.NextProgramId = 7;
        next.NextProgramDescription = "News";
        next.NextProgramStart = At(2026, 6, 1, "20:00:00");
        next.NextProgramEnd = At(2026, 6, 1, "20:30:00");
        QSignalSpy start(&f.heartbeat, &Heartbeat::StartRecordingDue);
        f.TickAt(At(2026, 6, 1, "19:59:59"));
        QCOMPARE(start.size(), 0);
        f.TickAt(At(2026, 6, 1, "20:10:00")); // late: records what is left
        QCOMPARE(start.size(), 1);
        QCOMPARE(start[0][0].toInt(), 7);
        QCOMPARE(start[0][1].toDouble(), At(2026, 6, 1, "20:10:00"));
        QCOMPARE(start[0][2].toDouble(), At(2026, 6, 1, "20:30:00"));
        QCOMPARE(start[0][3].toString(), QStringLiteral("News"));

        // While it records, the clock asks for the stop strictly after its end, until the
        // stop request has been made.
        f.tc.ctx->appStatus.SetRecording(true);
        f.status.EndTime = At(2026, 6, 1, "20:30:00");
        QSignalSpy stop(&f.heartbeat, &Heartbeat::StopRecordingDue);
        f.TickAt(At(2026, 6, 1, "20:28:30"));
        QVERIFY(!f.status.NextProgramScheduled);
        f.TickAt(At(2026, 6, 1, "20:28:31"));
        QVERIFY(f.status.NextProgramScheduled);
        f.TickAt(At(2026, 6, 1, "20:30:00"));
        QCOMPARE(stop.size(), 0);
        f.TickAt(At(2026, 6, 1, "20:30:01"));
        QCOMPARE(stop.size(), 1);
        f.status.StopRequested = true;
        f.TickAt(At(2026, 6, 1, "20:30:02"));
        QCOMPARE(stop.size(), 1);
        QCOMPARE(start.size(), 1);
    }

    // A stream is opened ahead (ten seconds, or the link's delay if longer), and its
    // recording still starts at the due second.
    void aStreamProgramOpensAheadOfItsStart_data()
    {
        QTest::addColumn<int>("linkDelay");
        QTest::addColumn<QString>("firstStartTick");
        QTest::newRow("ten seconds") << 0 << "19:59:50";
        QTest::newRow("the link's delay") << 30 << "19:59:30";
    }
    void aStreamProgramOpensAheadOfItsStart()
    {
        QFETCH(int, linkDelay);
        QFETCH(QString, firstStartTick);
        Fixture f;
        NextProgram& next = f.next();
        next.NextProgramFound = true;
        next.NextProgramStart = At(2026, 6, 1, "20:00:00");
        next.NextProgramEnd = At(2026, 6, 1, "20:30:00");
        next.NextStreamUrl = "http://radio.example.org/live.mp3";
        next.NextInternetLinkDelay = qint16(linkDelay);
        QSignalSpy start(&f.heartbeat, &Heartbeat::StartRecordingDue);
        f.TickAt(AutomationDate::AddSeconds(At(2026, 6, 1, firstStartTick), -1));
        QCOMPARE(start.size(), 0);
        f.TickAt(At(2026, 6, 1, firstStartTick));
        QCOMPARE(start.size(), 1);
        QCOMPARE(start[0][1].toDouble(), At(2026, 6, 1, "20:00:00"));
    }

    // Ticks at the given times of consecutive days ("d hh:mm:ss", d from 0).
    void thePurgeWindow_data()
    {
        QTest::addColumn<QString>("purgeTime");
        QTest::addColumn<QStringList>("ticks");
        QTest::addColumn<int>("purges");
        QTest::newRow("the first span runs it")
            << "02:00:00" << QStringList{"0 01:59:59", "0 02:00:00"} << 1;
        QTest::newRow("five minutes") << "02:00:00" << QStringList{"0 02:05:00"} << 1;
        QTest::newRow("not after") << "02:00:00" << QStringList{"0 02:05:01"} << 0;
        QTest::newRow("once in 22 hours")
            << "02:00:00" << QStringList{"0 02:00:00", "0 02:04:00", "1 02:00:00"} << 2;
        QTest::newRow("no wrap over midnight")
            << "23:58:00" << QStringList{"1 00:01:00", "1 00:02:30"} << 0;
        QTest::newRow("before midnight") << "23:58:00" << QStringList{"0 23:59:59"} << 1;
    }
    void thePurgeWindow()
    {
        QFETCH(QString, purgeTime);
        QFETCH(QStringList, ticks);
        QFETCH(int, purges);
        Fixture f;
        f.tc.ctx->options.PurgeRecordings = true;
        f.tc.ctx->options.PurgeTime = Programs::TimeOfDay(purgeTime);
        QSignalSpy purged(&f.heartbeat, &Heartbeat::PurgeDue);
        for (const QString& tick : ticks) {
            const int day = tick.section(' ', 0, 0).toInt();
            f.TickAt(At(2026, 6, 1 + day, tick.section(' ', 1)));
        }
        QCOMPARE(purged.size(), purges);
    }
};

QTEST_GUILESS_MAIN(TestHeartbeat)
#include "test_heartbeat.moc"
