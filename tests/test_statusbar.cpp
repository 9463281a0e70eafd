// The live figures of the status bar and the guard of the disk, as every tick runs them.
#include "MemoryLog.h"
#include "Programs.h"
#include "RecordingLauncher.h"
#include "TestDiskSpace.h"
#include "common/clsAppStatus.h"
#include "recording/ConversionQueue.h"
#include "recording/StatusBarPlus.h"
#include "recording/clsRecordingStatus.h"
#include "store/Options.h"

#include <QTest>

namespace {

// The figures over a log in memory and the disk the test says; no conversion runs.
struct Bar {
    MemoryLog memory;
    Options options;
    clsAppStatus appStatus;
    clsRecordingStatus status;
    RecordingLauncher launcher;
    TestDiskSpace diskSpace;
    ConversionQueue conversion{memory.log, options, appStatus, launcher, status, diskSpace, {}};
    StatusBarPlus bar{memory.clock, memory.log, options,    appStatus,
                      memory.error, status,     conversion, diskSpace};
};

} // namespace

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
        Bar b;
        b.options.WarnRecMegsLeft = 50;
        b.options.StopRecMegsLeft = 25;
        b.options.DefaultRecordingDirectory = QDir::tempPath();
        b.diskSpace.freeMb = freeMb;
        const StatusBarPlus::Update u = b.bar.Run(QString(), nullptr);
        QTEST(b.memory.error.DiskLowWarn(), "warn");
        QTEST(b.memory.error.DiskLowStopRecording(), "stop");
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
        Bar b;
        b.status.StartTime = Programs::At(2026, 6, 1, "20:00:00");
        b.status.EndTime = Programs::At(2026, 6, 1, "21:00:00");
        b.memory.clock.Set(Programs::At(2026, 6, 1, "20:01:59"));
        QCOMPARE(b.bar.ElapsedRemainingText(),
                 QStringLiteral("119 seconds elapsed, 59 minutes remaining"));
        b.memory.clock.Set(Programs::At(2026, 6, 1, "21:00:30"));
        QCOMPARE(b.bar.ElapsedText(), QStringLiteral("01:00:30"));
        QCOMPARE(b.bar.ElapsedRemainingText(),
                 QStringLiteral("60 minutes elapsed, 0 seconds remaining"));
    }
};

QTEST_GUILESS_MAIN(TestStatusBar)
#include "test_statusbar.moc"
