// The tray icon's picture and tip follow the mode flags and the error state, animate with
// the timer, and reach the platform only when something changed.
#include "CountingSysTray.h"
#include "MemoryLog.h"
#include "ScriptedMessageBox.h"
#include "common/clsAppStatus.h"
#include "tray/clsSysTrayMgr.h"

#include <QTest>

namespace {
// A manager over fresh mode flags and a log in memory; its icon is the counting stand-in.
struct Tray {
    void Suspend()
    {
        messageBox.answers << MsgResult::Yes;
        appStatus.HandleSuspendMenuClickEvent(messageBox);
    }
    void LogErrors(int n)
    {
        for (int i = 0; i < n; ++i)
            memory.log.LogEvent(EventError, "Something failed", "while nobody watched");
    }
    // The pictures that the icon was given, from the given call on.
    QList<int> Frames(qsizetype from = 0) const
    {
        QList<int> frames;
        for (const auto& c : calls.calls.mid(from)) {
            if (c.op == "ChangeSystemTrayIcon")
                frames << c.picture.index;
        }
        return frames;
    }

    MemoryLog memory;
    clsAppStatus appStatus;
    ScriptedMessageBox messageBox;
    SysTrayCalls calls;
    clsSysTrayMgr mgr{memory.log, appStatus, memory.error,
                      std::make_unique<CountingSysTray>(calls)};
};

} // namespace

Q_DECLARE_METATYPE(SysTrayList)

class TestSysTray : public QObject {
    Q_OBJECT

private slots:
    void stateChoosesPictureAndTip_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<int>("unviewed");
        QTest::addColumn<QString>("tip"); // after "Nightreel 2000 - "
        QTest::addColumn<SysTrayList>("list");
        QTest::addColumn<int>("index");

        const auto row = [](const char* tag, const char* flags, int unviewed, const char* tip,
                            SysTrayList list, int index) {
            QTest::newRow(tag) << QString(flags) << unviewed << QString(tip) << list << index;
        };
        using L = SysTrayList;
        // Each row also sets what lower rows look at, to show that the first match wins. The
        // phases are at 1: odd, so a pause shows its second picture.
        row("suspended", "suspended,playing,converting,warning", 2, "SUSPENDED", L::General, 4);
        row("paused", "recording,paused,converting,warning", 0, "RECORDING PAUSED", L::Pause, 2);
        row("paused, playing", "recording,paused,playing", 0, "RECORDING PAUSED", L::Pause, 4);
        row("recording, playing", "recording,playing,converting", 0, "PLAYING and RECORDING",
            L::RecordAndPlay, 1);
        row("recording hides a warning", "recording,converting,warning", 1, "RECORDING", L::Record,
            1);
        row("converting, playing", "playing,converting,warning", 0, "PLAYING & CONVERTING TO MP3",
            L::ConvertAndPlay, 1);
        row("converting", "converting,warning", 0, "CONVERTING TO MP3", L::Convert, 1);
        row("playing hides a warning", "playing,warning", 2, "PLAYING", L::General, 3);
        row("warning before the log", "warning", 2, "Errors or warnings are present.", L::General,
            2);
        row("one unviewed entry", "", 1, "Error occurred, check the error log", L::General, 2);
        row("two unviewed entries", "", 2, "Errors occurred, check the error log", L::General, 2);
        row("nothing", "", 0, "STOPPED", L::General, 1);
    }

    // The state is set through the flags and the log as the program sets it; nothing calls
    // Update by hand: the manager follows the changes by itself.
    void stateChoosesPictureAndTip()
    {
        QFETCH(QString, flags);
        QFETCH(int, unviewed);
        QFETCH(QString, tip);
        QFETCH(SysTrayList, list);
        QFETCH(int, index);

        Tray t;
        clsAppStatus& s = t.appStatus;
        t.LogErrors(unviewed);
        t.memory.error.SetDiskLowWarn(flags.contains("warning"));
        if (flags.contains("suspended"))
            t.Suspend();
        s.SetPlaying(flags.contains("playing"));
        s.SetConverting(flags.contains("converting"));
        s.SetRecording(flags.contains("recording"));
        s.SetPaused(flags.contains("paused"));

        QCOMPARE(t.mgr.CurrentTip(), "Nightreel 2000 - " + tip);
        QVERIFY((t.mgr.CurrentIcon() == SysTrayPicture{list, index}));
        // What the icon was last given is what the manager holds.
        QCOMPARE(t.calls.calls.last().tip, t.mgr.CurrentTip());
    }

    // The timer's ticks do nothing before the application is ready. Then each tick shows the
    // next frame, one call each; a conversion that follows starts at the convert phase that
    // the ticks reached, not at its first frame.
    void recordingGoesRoundSixteenFramesAndPhasesAreNeverReset()
    {
        Tray t;
        t.appStatus.SetRecording(true);
        t.appStatus.SetReady(false);
        emit t.mgr.tmrSystray.timeout();
        QCOMPARE(t.mgr.RecordPhase(), 1);
        t.appStatus.SetReady(true);
        const qsizetype before = t.calls.calls.size();
        for (int i = 0; i < 18; ++i)
            emit t.mgr.tmrSystray.timeout();
        // Frame 1 is on show since the recording began; the events go on from there.
        QCOMPARE(t.Frames(before),
                 (QList<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 1, 2}));
        QCOMPARE(t.calls.Count("ChangeSystemTrayTip"), 0);
        QCOMPARE(t.mgr.RecordPhase(), 3);
        QCOMPARE(t.mgr.ConvertPhase(), 18 % 5 + 1);

        t.appStatus.SetConverting(true);
        t.appStatus.SetRecording(false);
        QVERIFY((t.mgr.CurrentIcon() == SysTrayPicture{SysTrayList::Convert, 4}));
        QCOMPARE(t.mgr.CurrentTip(), QString("Nightreel 2000 - CONVERTING TO MP3"));
        const qsizetype converting = t.calls.calls.size();
        for (int i = 0; i < 5; ++i)
            t.mgr.HandleTimerEvent();
        // Frame 4 is on show already: the first event changes nothing.
        QCOMPARE(t.Frames(converting), (QList<int>{5, 1, 2, 3}));
    }

    // The steady states make no call; a change of tip alone changes only the tip; a change of
    // picture sends both in one call.
    void onlyChangesReachThePlatform()
    {
        Tray t;
        QCOMPARE(t.calls.Count("Activate"), 1);
        for (int i = 0; i < 40; ++i)
            t.mgr.HandleTimerEvent();
        QCOMPARE(t.calls.Count(), 1);

        t.memory.error.SetDiskLowWarn(true);
        QCOMPARE(t.calls.Count("ChangeSystemTrayIcon"), 1);
        // The log entry raises the unviewed count while the warning still decides.
        t.LogErrors(1);
        QCOMPARE(t.calls.Count(), 2);
        t.memory.error.SetDiskLowWarn(false);
        QCOMPARE(t.calls.Count("ChangeSystemTrayIcon"), 1);
        QCOMPARE(t.calls.Count("ChangeSystemTrayTip"), 1);
        QCOMPARE(t.calls.calls.last().tip, t.mgr.CurrentTip());
        t.LogErrors(1);
        QCOMPARE(t.calls.Count("ChangeSystemTrayTip"), 2);
        QCOMPARE(t.calls.calls.last().tip, t.mgr.CurrentTip());
        for (int i = 0; i < 40; ++i)
            t.mgr.HandleTimerEvent();
        QCOMPARE(t.calls.Count(), 4);

        t.memory.error.ElogViewed();
        QCOMPARE(t.calls.Count("ChangeSystemTrayIcon"), 2);
        QCOMPARE(t.calls.calls.last().tip, QString("Nightreel 2000 - STOPPED"));
    }
};

QTEST_MAIN(TestSysTray)
#include "test_systray.moc"
