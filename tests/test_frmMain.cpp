#include "LogCapture.h"
#include "Programs.h"
#include "ScriptedMessageBox.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "recording/ModeDisplay.h"
#include "recording/RecorderParts.h"
#include "shell/frmMain.h"
#include "tray/clsSysTrayMgr.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolBar>
#include <QToolTip>

namespace {

// A context whose recording folder is set and exists, so that start-up asks nothing.
struct Started {
    explicit Started(bool withFolder = true)
    {
        if (withFolder) {
            QDir().mkpath(Folder());
            tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", Folder());
        }
    }
    QString Folder() const { return tc.Root() + "/recordings"; }
    void Activate()
    {
        form = std::make_unique<frmMain>(*tc.ctx, false);
        form->FirstActivate();
    }
    void AddRecording(const QString& file)
    {
        Recordset& rs = tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", file);
        rs.Update();
    }

    TestContext tc;
    std::unique_ptr<frmMain> form;
};

} // namespace

class TestFrmMain : public QObject {
    Q_OBJECT

private slots:
    void aFailedStartUpStepStillStartsTheHeartbeat_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::newRow("damaged database") << "database";
        QTest::newRow("sound system at the load") << "sound";
        QTest::newRow("disk figures before ready") << "disk";
    }
    // A step of the start-up that fails is logged and does not keep the later ones from
    // running: the options are read, the old parameter file and the conversions' leftover
    // temporary files go, the heartbeat starts and the program becomes ready.
    void aFailedStartUpStepStillStartsTheHeartbeat()
    {
        QFETCH(QString, failing);
        Started s;
        s.tc.ctx->registry.SaveSetting("Settings", "StopRecMegsLeft", "40");
        QVERIFY(WriteFile(s.tc.ctx->recorder.ParameterFile(), "left by a crash"));
        for (const char* name : {"a.WAV.TMP", "b.mp3.tmp", "keep.wav", "keep.TMP"})
            QVERIFY(WriteFile(s.Folder() + "/" + name, ""));
        if (failing == "database")
            QVERIFY(WriteFile(s.tc.ctx->database.DatabaseFile(),
                              QByteArray("not a database\n").repeated(100)));
        s.tc.audioDevices.fails = failing == "sound";
        s.tc.diskSpace.fails = failing == "disk";
        // The load's failure comes before the database is open: only the diagnostic output
        // has it.
        const LogCapture output;
        s.Activate();
        QVERIFY(s.tc.ctx->appStatus.Ready());
        QCOMPARE(RecorderParts::HeartbeatTimer(s.tc.ctx->recorder).Timer1.Interval(), 250);
        QCOMPARE(s.tc.ctx->options.StopRecMegsLeft, qint16(40));
        QVERIFY(!QFile::exists(s.tc.ctx->recorder.ParameterFile()));
        QCOMPARE(QDir(s.Folder()).entryList(QDir::Files), QStringList({"keep.TMP", "keep.wav"}));
        QVERIFY(output.Contains(failing == "database" ? "Module: InitializeControls"
                                                      : "Module: Main Form Load"));
    }

    // Without a recording folder (the user declines to pick one) or a capture source the
    // program runs on, with recording closed and the error shown, in the tray icon too (found
    // at the load, before the icon was made).
    void aMissingPartKeepsTheProgramRunning_data()
    {
        QTest::addColumn<bool>("folder");
        QTest::addColumn<int>("sources");
        QTest::newRow("no recording folder") << false << 1;
        QTest::newRow("no capture source") << true << 0;
    }
    void aMissingPartKeepsTheProgramRunning()
    {
        QFETCH(bool, folder);
        QFETCH(int, sources);
        Started s(folder);
        s.tc.audioDevices.sources.resize(sources);
        s.tc.messageBox.answers << MsgResult::No;
        s.Activate();
        QCOMPARE(s.tc.messageBox.asked.size(), folder ? 0 : 1);
        for (const auto& box : s.tc.messageBox.asked)
            QCOMPARE(box.title, QStringLiteral("Recording Folder Needed"));
        QVERIFY(s.tc.ctx->appStatus.Ready());
        QCOMPARE(s.tc.ctx->error.InvalidRecordingDirectory(), !folder);
        QCOMPARE(s.tc.ctx->error.NoAudioRecordDevice(), sources == 0);
        QVERIFY(!s.form->ui.Action("ToolbarMain.Record")->isEnabled());
        QVERIFY(s.form->ui.Action("ToolbarMain.Error")->isVisible());
        QVERIFY(s.form->ui.Action("mnuErrors")->isEnabled());
        QCOMPARE(s.form->ui.Action("mnuViewDiskStatus")->isEnabled(), folder);
        QCOMPARE(s.form->ui.DiskStatus->text().isEmpty(), !folder);
        QCOMPARE(s.form->SysTrayMgr()->CurrentTip(),
                 QStringLiteral("Nightreel 2000 - Errors or warnings are present."));
    }

    void leavingAsksOrRefuses_data()
    {
        QTest::addColumn<QString>("state"); // "bySystem": at log-out or shutdown
        QTest::addColumn<MsgResult>("answer");
        QTest::addColumn<QString>("asked"); // title: the start of the text; empty: nothing asked
        QTest::addColumn<bool>("closes");
        QTest::newRow("recording")
            << "recording" << MsgResult::Ok
            << "Recording in progress: Can not exit while recording." << false;
        QTest::newRow("recording at shutdown")
            << "recording,bySystem" << MsgResult::Ok << "Recording in progress: " << false;
        QTest::newRow("converting") << "converting" << MsgResult::Ok
                                    << "Converting to MP3: Can not exit while converting" << false;
        QTest::newRow("programs, No")
            << "program" << MsgResult::No << "Exit: You have scheduled recordings." << false;
        QTest::newRow("nothing, Yes")
            << "" << MsgResult::Yes << "Exit: Are you sure you want to exit?" << true;
        QTest::newRow("programs at log-out") << "program,bySystem" << MsgResult::No << "" << true;
    }
    void leavingAsksOrRefuses()
    {
        QFETCH(QString, state);
        QFETCH(MsgResult, answer);
        QFETCH(QString, asked);
        Started s;
        s.Activate();
        if (state.contains("program"))
            s.tc.AddProgram(Programs::Weekly("Show", "20:00:00", "21:00:00", "0100000"));
        s.tc.ctx->appStatus.SetRecording(state.contains("recording"));
        s.tc.ctx->appStatus.SetConverting(state.contains("converting"));
        s.tc.messageBox.answers << answer;
        // The window's own close; at log-out, the question that the session's end asks.
        QTEST(state.contains("bySystem") ? s.form->Controller().QueryUnload(true) : s.form->close(),
              "closes");
        QCOMPARE(s.tc.messageBox.asked.size(), asked.isEmpty() ? 0 : 1);
        for (const auto& box : s.tc.messageBox.asked)
            QVERIFY2((box.title + ": " + box.text).startsWith(asked), qPrintable(box.text));
    }

    void theModeTableDecidesByPriority_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<bool>("recordEnabled");
        QTest::addColumn<QString>("shown"); // the title after "Nightreel 2000", the panel
        QTest::newRow("stopped") << "" << true << " / STOPPED";
        QTest::newRow("suspended beats all")
            << "suspended,recording,converting,playing" << false << " - Suspended / SUSPENDED";
        QTest::newRow("paused") << "recording,paused,converting" << false
                                << " - Recording (PAUSED) / RECORDING PAUSED";
        QTest::newRow("recording")
            << "recording,converting,playing" << false << " - Recording / RECORDING";
        QTest::newRow("converting")
            << "converting,playing" << true << " - Converting to MP3 / track.wav";
        QTest::newRow("playing") << "playing" << true << " - Playing / PLAYING";
        QTest::newRow("paused without recording") << "paused" << true << " / STOPPED";
    }
    void theModeTableDecidesByPriority()
    {
        QFETCH(QString, flags);
        clsAppStatus status;
        clsError error;
        if (flags.contains("suspended")) {
            ScriptedMessageBox box;
            box.answers << MsgResult::Yes;
            status.HandleSuspendMenuClickEvent(box);
        }
        status.SetRecording(flags.contains("recording"));
        status.SetPaused(flags.contains("paused"));
        status.SetConverting(flags.contains("converting"));
        status.SetPlaying(flags.contains("playing"));
        ModeDisplay::Extra extra;
        extra.convertingText = "track.wav";
        const ModeDisplay d = ModeDisplay::Compute(status, error, extra);
        QFETCH(QString, shown);
        QCOMPARE(d.title + " / " + d.panelText, "Nightreel 2000" + shown);
        QTEST(d.recordEnabled, "recordEnabled");
        QCOMPARE(d.stopCaption,
                 flags.startsWith("converting") ? "Stop MP3 Conversion" : "Stop Current Recording");
    }

    // Busy, suspending is refused; a flag set to its value repaints nothing.
    void suspendingIsRefusedWhileBusy_data()
    {
        QTest::addColumn<bool>("recording");
        QTest::newRow("recording") << true;
        QTest::newRow("converting") << false;
    }
    void suspendingIsRefusedWhileBusy()
    {
        QFETCH(bool, recording);
        clsAppStatus status;
        ScriptedMessageBox box;
        status.SetRecording(recording);
        status.SetConverting(!recording);
        QSignalSpy updates(&status, &clsAppStatus::Update);
        status.SetRecording(recording);
        QCOMPARE(updates.size(), 0);
        status.HandleSuspendMenuClickEvent(box);
        QVERIFY(!status.Suspended());
        QCOMPARE(box.asked.at(0).title, QStringLiteral("Invalid request"));
    }

    void theProgramsTipShowsThePaddedTimes()
    {
        Started s;
        s.Activate();
        s.tc.ctx->options.PaddingSeconds = 120;
        s.tc.AddProgram(Programs::Weekly("Padded", "20:00:00", "21:00:00", "0100000"));
        s.form->show();
        QTableView* grid = s.form->ui.DBGridPrograms;
        const QPoint at = grid->visualRect(grid->model()->index(0, 0)).center();
        QHelpEvent help(QEvent::ToolTip, at, grid->viewport()->mapToGlobal(at));
        QApplication::sendEvent(grid->viewport(), &help);
        QCOMPARE(QToolTip::text().section(" (", 0, 0),
                 "Recorded from " + Options::TimeText(Programs::TimeOfDay("19:58:00")) + " to " +
                     Options::TimeText(Programs::TimeOfDay("21:02:00")));
    }

    void headerClicksSortAscendingThenDescending()
    {
        Started s;
        s.Activate();
        for (const char* name : {"Bravo", "Alpha"})
            s.tc.AddProgram(Programs::Weekly(name, "20:00:00", "21:00:00", "0100000"));
        QHeaderView* header = s.form->ui.DBGridPrograms->horizontalHeader();
        const auto first = [&] {
            return s.form->ui.DBGridPrograms->model()->index(0, 0).data().toString();
        };
        emit header->sectionClicked(0);
        QVERIFY(s.tc.ctx->database.DataPrograms.RecordSource().endsWith(" ASC"));
        QCOMPARE(first(), QStringLiteral("Alpha"));
        emit header->sectionClicked(0);
        QVERIFY(s.tc.ctx->database.DataPrograms.RecordSource().endsWith(" DESC"));
        QCOMPARE(first(), QStringLiteral("Bravo"));
        emit header->sectionClicked(1); // only the description sorts
        QVERIFY(s.tc.ctx->database.DataPrograms.RecordSource().endsWith(" DESC"));
    }

    void deletingTheLastRecordingLeavesOnlyAddAndLoad()
    {
        Started s;
        s.Activate();
        const QString file = s.Folder() + "/only.wav";
        QVERIFY(WriteFile(file, "RIFF"));
        s.AddRecording(file);
        QVERIFY(s.form->ui.Action("mnuRecordingsRemove")->isEnabled());
        s.form->ui.DBGridRecordings->selectRow(0);
        s.tc.messageBox.answers << MsgResult::Yes;
        s.form->ui.Action("ToolbarRecordings.Delete")->trigger();
        QCOMPARE(s.tc.messageBox.asked.last().title, QStringLiteral("Remove Recordings From Disk"));
        QVERIFY(!QFile::exists(file));
        QCOMPARE(s.form->ui.DBGridRecordings->model()->rowCount(), 0);
        // Only adding to the list and loading one are left, in the menu and on the tool bar.
        for (QAction* action :
             s.form->ui.mnuRecordings->actions() + s.form->ui.ToolbarRecordings->actions()) {
            const QString name = action->objectName() + action->text();
            if (!action->isSeparator())
                QVERIFY2(action->isEnabled() == name.contains(QRegularExpression("Add|Load")),
                         qPrintable(name));
        }
    }

    // Delete acts on the list that has the focus, with that list's question.
    void theDeleteKeyRemovesFromTheListInFocus_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("question");
        QTest::newRow("programs") << 0 << "Remove Programs";
        QTest::newRow("recordings") << 1 << "Remove Recordings From Disk";
    }
    void theDeleteKeyRemovesFromTheListInFocus()
    {
        QFETCH(int, page);
        Started s;
        s.Activate();
        s.tc.AddProgram(Programs::Weekly("Morning", "08:00:00", "09:00:00", "0100000"));
        s.AddRecording(s.Folder() + "/kept.wav");
        s.form->show();
        QVERIFY(QTest::qWaitForWindowActive(s.form.get()));
        s.form->ui.SSTab1->setCurrentIndex(page);
        QCOMPARE(s.form->ui.mnuPrograms->menuAction()->isVisible(), page == 0);
        QCOMPARE(s.form->ui.mnuRecordings->menuAction()->isVisible(), page == 1);
        QTableView* grid = page == 0 ? s.form->ui.DBGridPrograms : s.form->ui.DBGridRecordings;
        grid->selectRow(0);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(s.tc.messageBox.asked.size(), 1);
        QTEST(s.tc.messageBox.asked[0].title, "question");
    }

    // How a page reaches the browser is the web links' test; here, which page.
    void theHomePageGoesToTheBrowser()
    {
        Started s;
        s.Activate();
        s.form->ui.Action("mnuHelpHomePage")->trigger();
        QCOMPARE(s.tc.launcher.started.size(), 1);
        QVERIFY2(s.tc.launcher.started[0].endsWith("#contact"),
                 qPrintable(s.tc.launcher.started[0]));
    }

    void restoreAndCompactionFromTheMenu()
    {
        Started s;
        s.Activate();
        s.tc.AddProgram(Programs::Weekly("Kept", "20:00:00", "21:00:00", "1111111"));
        QSignalSpy mode(&s.tc.ctx->appStatus, &clsAppStatus::Update);
        s.form->ui.Action("mnuCompactDb")->trigger();
        QCOMPARE(mode.size(), 2); // maintenance on and off
        QCOMPARE(s.form->ui.DBGridPrograms->model()->rowCount(), 1);
        QVERIFY(s.tc.ctx->scheduler.next.NextProgramFound);

        s.tc.messageBox.answers << MsgResult::No;
        s.form->ui.Action("mnuRestoreOriginalDb")->trigger();
        QCOMPARE(s.tc.messageBox.asked.last().title, QStringLiteral("Restore Original Database"));
        QCOMPARE(s.form->ui.DBGridPrograms->model()->rowCount(), 1);

        s.tc.messageBox.answers << MsgResult::Yes;
        s.form->ui.Action("mnuRestoreOriginalDb")->trigger();
        QCOMPARE(s.form->ui.DBGridPrograms->model()->rowCount(), 0);
        QVERIFY(!s.tc.ctx->scheduler.next.NextProgramFound);
        QVERIFY(!s.form->ui.Action("mnuEdit")->isEnabled());
        QVERIFY(!s.tc.ctx->appStatus.Maintenance());
        QVERIFY(!s.tc.ctx->error.DatabaseMissing());
    }
};

QTEST_MAIN(TestFrmMain)
#include "test_frmMain.moc"
