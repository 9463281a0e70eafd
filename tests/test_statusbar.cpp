// The live figures of the status bar, through the recorder that runs them on every tick.
#include "Programs.h"
#include "TestContext.h"
#include "platform/StorageDiskSpace.h"
#include "recording/RecorderParts.h"

#include <QTest>

class TestStatusBar : public QObject {
    Q_OBJECT

private slots:
    void diskFigures_data()
    {
        QTest::addColumn<double>("freeMb");
        QTest::addColumn<bool>("warn");
        QTest::addColumn<bool>("stop");
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
        QVERIFY(u.diskToolTip.endsWith(QString::number(freeMb, 'f', 1) + " Megabytes remaining"));
    }

    void aTinyDiskIsFull()
    {
        QCOMPARE(DiskSpaceMb::FromBytes(512 * 1024, 512 * 1024).usedPercent, 100.0f);
        QCOMPARE(DiskSpaceMb::FromBytes(4 * 1048576, 1048576).usedPercent, 75.0f);
        QCOMPARE(StorageDiskSpace().GetRecDirDiskSpaceMb("/a").total, 0.0);
    }

    void elapsedTexts()
    {
        TestContext tc;
        clsRecordingStatus& status = RecorderParts::Status(tc.ctx->recorder);
        status.StartTime = Programs::At(2026, 6, 1, "20:00:00");
        status.EndTime = Programs::At(2026, 6, 1, "21:00:00");
        const StatusBarPlus& bar = RecorderParts::StatusBar(tc.ctx->recorder);
        tc.clock.Set(Programs::At(2026, 6, 1, "20:01:59"));
        QCOMPARE(bar.ElapsedRemainingText(),
                 QStringLiteral("119 seconds elapsed, 59 minutes remaining"));
        tc.clock.Set(Programs::At(2026, 6, 1, "21:00:30"));
        QCOMPARE(bar.ElapsedText(), QStringLiteral("01:00:30"));
        QCOMPARE(bar.ElapsedRemainingText(),
                 QStringLiteral("60 minutes elapsed, 0 seconds remaining"));
    }
};

QTEST_GUILESS_MAIN(TestStatusBar)
#include "test_statusbar.moc"
