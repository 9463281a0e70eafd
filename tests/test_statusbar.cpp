// The live figures of the status bar and the guard against a full disk, through the
// recorder that runs them on every tick.
#include "Programs.h"
#include "TestContext.h"
#include "recording/RecordingTaskLink.h"

#include <QDir>
#include <QTest>
#include <ctime>

class TestStatusBar : public QObject {
    Q_OBJECT

private slots:
    void diskFigures_data()
    {
        QTest::addColumn<double>("freeMb");
        QTest::addColumn<bool>("warn");
        QTest::addColumn<bool>("stop");
        QTest::newRow("plenty") << 1000.0 << false << false;
        QTest::newRow("exactly at the warning limit") << 50.0 << false << false;
        QTest::newRow("just under it") << 49.9 << true << false;
        QTest::newRow("stop limit with half a megabyte") << 24.5 << true << false;
        QTest::newRow("under the stop limit") << 24.4 << true << true;
    }
    void diskFigures()
    {
        QFETCH(double, freeMb);
        QFETCH(bool, warn);
        QFETCH(bool, stop);
        TestContext tc;
        tc.ctx->options.WarnRecMegsLeft = 50;
        tc.ctx->options.StopRecMegsLeft = 25;
        tc.ctx->options.DefaultRecordingDirectory = tc.Root();
        tc.diskSpace.freeMb = freeMb;
        StatusBarPlus::Update u;
        QObject::connect(&tc.ctx->recorder, &Recorder::StatusBarUpdated,
                         [&u](const StatusBarPlus::Update& update) { u = update; });
        tc.ctx->recorder.UpdateStatusBarPlus();
        QCOMPARE(tc.ctx->error.DiskLowWarn(), warn);
        QCOMPARE(tc.ctx->error.DiskLowStopRecording(), stop);
        QVERIFY(u.diskText.startsWith("Disk Space Used: "));
        QVERIFY(u.diskToolTip.endsWith(QString::number(freeMb, 'f', 1) + " Megabytes remaining"));
    }

    void aTinyDiskIsFull()
    {
        QCOMPARE(DiskSpaceMb::FromBytes(512 * 1024, 512 * 1024).usedPercent, 100.0f);
        QCOMPARE(DiskSpaceMb::FromBytes(4 * 1048576, 1048576).usedPercent, 75.0f);
        StorageDiskSpace disk;
        QCOMPARE(disk.GetRecDirDiskSpaceMb("/a").total, 0.0);
        QVERIFY(disk.GetRecDirDiskSpaceMb(QDir::tempPath()).total > 0.0);
    }

    void theDiskGuardWatchesTheFilesBeingWritten_data()
    {
        QTest::addColumn<bool>("converting");
        QTest::newRow("the live recording") << false;
        QTest::newRow("the running conversion") << true;
    }

    // The guard measures the disk of the file being written, not the folder that the options
    // name now, and logs once however many rounds the stop takes; the recording's stop posts
    // once and arms the watchdog that ends it if the task stays silent.
    void theDiskGuardWatchesTheFilesBeingWritten()
    {
        QFETCH(bool, converting);
        TestContext tc;
        tc.OpenDatabase();
        const QString written = tc.Root() + "/small disk";
        tc.ctx->options.DefaultRecordingDirectory = tc.Root();
        tc.ctx->options.StopRecMegsLeft = 25;
        tc.diskSpace.freeMb = 1000;
        tc.diskSpace.freeMbOf[written] = 10;
        Recorder& recorder = tc.ctx->recorder;
        if (converting) {
            auto request = std::make_shared<clsConvertToMP3Request>();
            request->DestinationFile = written + "/Concert.MP3";
            recorder.Conversion().CurrentConvertRequest = request;
            tc.ctx->appStatus.SetConverting(true);
        } else {
            tc.ctx->appStatus.SetRecording(true);
            recorder.Status().RecordingFile = written + "/Concert.WAV";
            recorder.Status().Description = "Concert";
            // The task has answered the start command (none here answers at once).
            recorder.Link().SendMessage(TaskProtocol::REC_MSG_START);
        }
        for (int round = 0; round < 3; ++round)
            recorder.UpdateStatusBarPlus();
        QCOMPARE(tc.CountRows("EventLog"), 1);
        QCOMPARE(recorder.Conversion().StopMp3Conversion, converting);
        QCOMPARE(recorder.Status().StopRequested, !converting);
        if (!converting)
            QCOMPARE(recorder.Link().tmrStopRecording.Interval(), 10000);
    }

    // Four times a second, for days: a round costs a few microseconds of the processor.
    void aRoundIsCheap()
    {
        TestContext tc;
        tc.ctx->options.DefaultRecordingDirectory = tc.Root();
        constexpr int kRounds = 2000;
        timespec from{}, to{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &from);
        for (int i = 0; i < kRounds; ++i)
            tc.ctx->recorder.UpdateStatusBarPlus();
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &to);
        const double us =
            ((to.tv_sec - from.tv_sec) * 1e9 + (to.tv_nsec - from.tv_nsec)) / 1e3 / kRounds;
        QVERIFY2(us < 20.0, qPrintable(QString::number(us)));
    }

    void elapsedTexts()
    {
        TestContext tc;
        clsRecordingStatus& status = tc.ctx->recorder.Status();
        status.StartTime = Programs::At(2026, 6, 1, "20:00:00");
        status.EndTime = Programs::At(2026, 6, 1, "21:00:00");
        const StatusBarPlus& bar = tc.ctx->recorder.StatusBar();
        tc.clock.Set(Programs::At(2026, 6, 1, "20:01:59"));
        QCOMPARE(bar.ElapsedText(), QStringLiteral("01:59"));
        QCOMPARE(bar.ElapsedRemainingText(),
                 QStringLiteral("119 seconds elapsed, 59 minutes remaining"));
        tc.clock.Set(Programs::At(2026, 6, 1, "21:00:30"));
        QCOMPARE(bar.ElapsedText(), QStringLiteral("01:00:30"));
        QCOMPARE(bar.ElapsedRemainingText(),
                 QStringLiteral("60 minutes elapsed, 0 seconds remaining"));
    }
};

QTEST_GUILESS_MAIN(TestStatusBar)
#include "platform/StorageDiskSpace.h"
#include "test_statusbar.moc"
