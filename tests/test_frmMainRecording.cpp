// The main window's ways into the recording control: the heartbeat's start, the stop
// request of the clock and the disk guard, and the Stop and Pause commands of toolbar and
// menu. No recording task is involved: what is checked is who is asked what.
#include "TestContext.h"
#include "shell/Heartbeat.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QDir>
#include <QTest>

namespace {

struct Window {
    Window()
    {
        QDir().mkpath(tc.Root() + "/recordings");
        tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory",
                                     tc.Root() + "/recordings");
        form = std::make_unique<frmMain>(*tc.ctx, false);
        form->FirstActivate();
        form->Recording().link.SetTaskProgram(tc.Root() + "/no-such-task");
    }

    // A recording as the start leaves it, without a task behind it.
    void PretendRecording(qint32 programId)
    {
        tc.ctx->appStatus.SetRecording(true);
        tc.ctx->recordingStatus.ProgramId = programId;
        tc.ctx->recordingStatus.StopRequested = false;
    }

    TestContext tc;
    std::unique_ptr<frmMain> form;
};

} // namespace

class TestFrmMainRecording : public QObject {
    Q_OBJECT

private slots:
    void stopCommands_data();
    void stopCommands();
    void pauseCommandsToggle_data();
    void pauseCommandsToggle();
    void stopRequestOfClockOrDiskGuardArmsTheWatchdog();
    void heartbeatStartsTheRecording();
};

void TestFrmMainRecording::stopCommands_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("toolbar") << "ToolbarMain.Stop";
    QTest::newRow("menu") << "mnuStopCurrentRecording";
}

// Both pass the confirmation option: with it off, a manual recording stops at once.
void TestFrmMainRecording::stopCommands()
{
    QFETCH(QString, action);
    Window w;
    w.tc.ctx->options.ConfirmStopManualRecording = false;
    w.PretendRecording(-1);
    w.form->ui.Action(action)->trigger();
    QVERIFY(w.tc.messageBox.asked.isEmpty());
    QVERIFY(w.tc.ctx->recordingStatus.StopRequested);
}

void TestFrmMainRecording::pauseCommandsToggle_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("toolbar") << "ToolbarMain.Pause";
    QTest::newRow("menu") << "mnuPauseRecording";
}

void TestFrmMainRecording::pauseCommandsToggle()
{
    QFETCH(QString, action);
    Window w;
    w.PretendRecording(-1);
    w.form->ui.Action(action)->trigger();
    QVERIFY(w.tc.ctx->appStatus.Paused());
    w.form->ui.Action(action)->trigger();
    QVERIFY(!w.tc.ctx->appStatus.Paused());
}

void TestFrmMainRecording::stopRequestOfClockOrDiskGuardArmsTheWatchdog()
{
    Window w;
    w.PretendRecording(3);
    emit w.form->StopRecordingRequested();
    QVERIFY(w.tc.ctx->recordingStatus.StopRequested);
    QCOMPARE(w.form->Recording().link.tmrStopRecording.Interval(), 10000);
}

// The heartbeat's start reaches StartRecording: a manual start without a folder is refused
// with its message.
void TestFrmMainRecording::heartbeatStartsTheRecording()
{
    Window w;
    w.tc.ctx->options.DefaultRecordingDirectory.clear();
    emit w.form->Controller().heartbeat.StartRecordingDue(-1, w.tc.ctx->Now(),
                                                          w.tc.ctx->Now() + 0.01, "Manual");
    QCOMPARE(w.tc.messageBox.asked.size(), 1);
    QCOMPARE(w.tc.messageBox.asked[0].title, QString("Error"));
    QVERIFY(!w.tc.ctx->appStatus.Recording());
}

QTEST_MAIN(TestFrmMainRecording)
#include "test_frmMainRecording.moc"
