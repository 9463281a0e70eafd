// The main window forwards the Stop and Pause commands of toolbar and menu to the recorder.
// No recording task is involved: what is checked is who is asked what.
#include "TestContext.h"
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
        tc.ctx->recorder.Link().SetTaskProgram(tc.Root() + "/no-such-task");
    }

    // A recording as the start leaves it, without a task behind it.
    void PretendRecording(qint32 programId)
    {
        tc.ctx->appStatus.SetRecording(true);
        tc.ctx->recorder.Status().ProgramId = programId;
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
    void pauseAndResumeEntriesDoOneThingEach();
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
    QVERIFY(w.tc.ctx->recorder.Status().StopRequested);
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

// The Recording menu's Pause (Ctrl+P) and Resume (Ctrl+U) do not toggle.
void TestFrmMainRecording::pauseAndResumeEntriesDoOneThingEach()
{
    Window w;
    w.PretendRecording(-1);
    for (int i = 0; i < 2; ++i) {
        w.form->ui.Action("mnuPauseOnly")->trigger();
        QVERIFY(w.tc.ctx->appStatus.Paused());
    }
    for (int i = 0; i < 2; ++i) {
        w.form->ui.Action("mnuResume")->trigger();
        QVERIFY(!w.tc.ctx->appStatus.Paused());
    }
}

QTEST_MAIN(TestFrmMainRecording)
#include "test_frmMainRecording.moc"
