// The main window forwards the Stop and Pause commands of toolbar and menu to the recorder.
// No recording task is involved: what is checked is who is asked what.
#include "TestContext.h"
#include "recording/RecorderParts.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QDir>
#include <QTest>

class TestFrmMainRecording : public QObject {
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
};

void TestFrmMainRecording::commands_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("pausedBefore");
    QTest::addColumn<bool>("pausedAfter");
    QTest::addColumn<bool>("stopped");
    QTest::newRow("toolbar Stop") << "ToolbarMain.Stop" << false << false << true;
    QTest::newRow("menu Stop") << "mnuStopCurrentRecording" << false << false << true;
    QTest::newRow("toolbar Pause pauses") << "ToolbarMain.Pause" << false << true << false;
    QTest::newRow("menu Pause resumes") << "mnuPauseRecording" << true << false << false;
    // The Recording menu's Pause (Ctrl+P) and Resume (Ctrl+U) do not toggle.
    QTest::newRow("Pause only") << "mnuPauseOnly" << true << true << false;
    QTest::newRow("Resume") << "mnuResume" << false << false << false;
}

// A manual recording as the start leaves it, without a task behind it; with the confirmation
// option off, Stop asks nothing.
void TestFrmMainRecording::commands()
{
    QFETCH(QString, action);
    QFETCH(bool, pausedBefore);
    QFETCH(bool, pausedAfter);
    QFETCH(bool, stopped);
    TestContext tc;
    QDir().mkpath(tc.Root() + "/recordings");
    tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory",
                                 tc.Root() + "/recordings");
    frmMain form(*tc.ctx, false);
    form.FirstActivate();
    tc.ctx->recorder.SetTaskProgram(tc.Root() + "/no-such-task");
    tc.ctx->options.ConfirmStopManualRecording = false;
    tc.ctx->appStatus.SetRecording(true);
    RecorderParts::Status(tc.ctx->recorder).ProgramId = -1;
    tc.ctx->appStatus.SetPaused(pausedBefore);
    form.ui.Action(action)->trigger();
    QCOMPARE(tc.ctx->appStatus.Paused(), pausedAfter);
    QCOMPARE(tc.ctx->recorder.Status().StopRequested, stopped);
    QVERIFY(tc.messageBox.asked.isEmpty());
}

QTEST_MAIN(TestFrmMainRecording)
#include "test_frmMainRecording.moc"
