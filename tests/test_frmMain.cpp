#include "LogCapture.h"
#include "Programs.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "recording/ModeDisplay.h"
#include "recording/RecorderParts.h"
#include "shell/frmMain.h"
#include "tray/SysTrayPictures.h"
#include "tray/clsSysTrayMgr.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
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

    TestContext tc;
    std::unique_ptr<frmMain> form;
};

} // namespace

class TestFrmMain : public QObject {
    Q_OBJECT

private slots:
    void startsInItsOrder()
    {
        Started s;
        s.tc.OpenDatabase();
        s.tc.AddProgram(Programs::Weekly("Every day", "20:00:00", "21:00:00", "1111111"));
        s.tc.ctx->database.CloseAll();
        s.form = std::make_unique<frmMain>(*s.tc.ctx, false);
        // Loaded, not yet activated: no database, no heartbeat, not ready.
        QVERIFY(!s.tc.ctx->appStatus.Ready());
        QVERIFY(!s.tc.ctx->database.db.IsOpen());
        QCOMPARE(RecorderParts::HeartbeatTimer(s.tc.ctx->recorder).Timer1.Interval(), 0);

        s.form->FirstActivate();
        QVERIFY(s.tc.ctx->appStatus.Ready());
        QVERIFY(s.tc.ctx->database.db.IsOpen());
        QVERIFY(s.tc.ctx->scheduler.next.NextProgramFound);
        QCOMPARE(RecorderParts::HeartbeatTimer(s.tc.ctx->recorder).Timer1.Interval(), 250);
        QCOMPARE(s.form->ui.DBGridPrograms->model()->rowCount(), 1);
        QVERIFY(s.form->ui.Action("mnuEdit")->isEnabled());
        QVERIFY(!s.form->ui.Action("mnuRecordingsPlay")->isEnabled());
        QCOMPARE(s.form->windowTitle(), QStringLiteral("Nightreel 2000"));
        QCOMPARE(s.form->ui.ModeStatus->text(), QStringLiteral("STOPPED"));
        QVERIFY(s.form->ui.DiskStatus->text().startsWith("Disk Space Used: "));
        QVERIFY(s.tc.messageBox.asked.isEmpty());
    }

    void aFailedStartUpStepStillStartsTheHeartbeat_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::newRow("damaged database") << "database";
        QTest::newRow("sound system at the load") << "sound";
        QTest::newRow("disk figures before ready") << "disk";
    }
    // A step of the start-up that fails is logged and does not keep the later ones from
    // running: the options are read, the old parameter file goes, the heartbeat starts and
    // the program becomes ready.
    void aFailedStartUpStepStillStartsTheHeartbeat()
    {
        QFETCH(QString, failing);
        Started s;
        s.tc.ctx->registry.SaveSetting("Settings", "StopRecMegsLeft", "40");
        QVERIFY(WriteFile(s.tc.ctx->recorder.ParameterFile(), "left by a crash"));
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
        if (failing != "database")
            QVERIFY(output.Contains("Module: Main Form Load"));
    }

    void noRecordingFolderKeepsTheProgramRunning()
    {
        Started s(false);
        s.tc.messageBox.answers << MsgResult::No;
        s.Activate();
        QCOMPARE(s.tc.messageBox.asked.size(), 1);
        QCOMPARE(s.tc.messageBox.asked[0].title, QStringLiteral("Recording Folder Needed"));
        QCOMPARE(s.tc.messageBox.asked[0].text,
                 QStringLiteral("Nightreel 2000 requires a valid recording folder for recording "
                                "to occur.  Select Recording folder?"));
        QVERIFY(s.tc.ctx->appStatus.Ready());
        QVERIFY(s.tc.ctx->error.InvalidRecordingDirectory());
        QVERIFY(!s.form->ui.Action("ToolbarMain.Record")->isEnabled());
        QVERIFY(!s.form->ui.Action("mnuViewDiskStatus")->isEnabled());
        QVERIFY(s.form->ui.Action("ToolbarMain.Error")->isVisible());
        QCOMPARE(s.form->ui.DiskStatus->text(), QString());
    }

    void noCaptureSourceIsAnError()
    {
        Started s;
        s.tc.audioDevices.sources = 0;
        s.Activate();
        QVERIFY(s.tc.ctx->error.NoAudioRecordDevice());
        QVERIFY(!s.form->ui.Action("ToolbarMain.Record")->isEnabled());
        QVERIFY(s.form->ui.Action("mnuErrors")->isEnabled());
        // Found at the load, before the tray icon was made: the icon shows it all the same.
        QCOMPARE(s.form->SysTrayMgr()->CurrentTip(),
                 QStringLiteral("Nightreel 2000 - Errors or warnings are present."));
    }

    void leftoverTemporaryFilesGoAtStart()
    {
        Started s;
        for (const char* name : {"a.WAV.TMP", "b.mp3.tmp", "keep.wav", "keep.TMP"}) {
            QFile f(s.Folder() + "/" + name);
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
        s.Activate();
        QCOMPARE(QDir(s.Folder()).entryList(QDir::Files), QStringList({"keep.TMP", "keep.wav"}));
    }

    void leavingAsksOrRefuses_data()
    {
        QTest::addColumn<bool>("recording");
        QTest::addColumn<bool>("converting");
        QTest::addColumn<bool>("program");
        QTest::addColumn<bool>("bySystem");
        QTest::addColumn<MsgResult>("answer");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("closes");
        QTest::newRow("recording")
            << true << false << false << false << MsgResult::Ok << "Recording in progress"
            << "Can not exit while recording. Please stop the recording or "
               "wait for it complete."
            << false;
        QTest::newRow("recording at shutdown")
            << true << false << false << true << MsgResult::Ok << "Recording in progress"
            << "" << false;
        QTest::newRow("converting")
            << false << true << false << false << MsgResult::Ok << "Converting to MP3"
            << "Can not exit while converting to MP3. Please stop the "
               "conversion or wait for it complete."
            << false;
        QTest::newRow("programs, No") << false << false << true << false << MsgResult::No << "Exit"
                                      << "You have scheduled recordings. No recording will occur "
                                         "if you exit. Are you sure you want to exit?"
                                      << false;
        QTest::newRow("nothing, Yes")
            << false << false << false << false << MsgResult::Yes << "Exit"
            << "Are you sure you want to exit?" << true;
        QTest::newRow("programs at log-out")
            << false << false << true << true << MsgResult::No << ""
            << "" << true;
    }
    void leavingAsksOrRefuses()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(bool, closes);
        QFETCH(bool, program);
        QFETCH(bool, recording);
        QFETCH(bool, converting);
        QFETCH(MsgResult, answer);
        QFETCH(bool, bySystem);
        Started s;
        s.Activate();
        if (program)
            s.tc.AddProgram(Programs::Weekly("Show", "20:00:00", "21:00:00", "0100000"));
        s.tc.ctx->appStatus.SetRecording(recording);
        s.tc.ctx->appStatus.SetConverting(converting);
        s.tc.messageBox.answers << answer;
        QCOMPARE(s.form->Controller().QueryUnload(bySystem), closes);
        if (title.isEmpty()) {
            QVERIFY(s.tc.messageBox.asked.isEmpty());
        } else {
            QCOMPARE(s.tc.messageBox.asked.size(), 1);
            QCOMPARE(s.tc.messageBox.asked[0].title, title);
            if (!text.isEmpty())
                QCOMPARE(s.tc.messageBox.asked[0].text, text);
        }
    }

    void theModeTableDecidesByPriority_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("panel");
        QTest::newRow("stopped") << ""
                                 << "Nightreel 2000"
                                 << "STOPPED";
        QTest::newRow("suspended beats all") << "suspended,recording,converting,playing"
                                             << "Nightreel 2000 - Suspended"
                                             << "SUSPENDED";
        QTest::newRow("paused") << "recording,paused,converting"
                                << "Nightreel 2000 - Recording (PAUSED)"
                                << "RECORDING PAUSED";
        QTest::newRow("recording") << "recording,converting,playing"
                                   << "Nightreel 2000 - Recording"
                                   << "RECORDING";
        QTest::newRow("converting") << "converting,playing"
                                    << "Nightreel 2000 - Converting to MP3"
                                    << "track.wav";
        QTest::newRow("playing") << "playing"
                                 << "Nightreel 2000 - Playing"
                                 << "PLAYING";
        QTest::newRow("paused without recording") << "paused"
                                                  << "Nightreel 2000"
                                                  << "STOPPED";
    }
    void theModeTableDecidesByPriority()
    {
        QFETCH(QString, flags);
        TestContext tc;
        clsAppStatus& status = tc.ctx->appStatus;
        status.SetRecording(flags.contains("recording"));
        status.SetPaused(flags.contains("paused"));
        status.SetConverting(flags.contains("converting"));
        status.SetPlaying(flags.contains("playing"));
        if (flags.contains("suspended")) {
            status.SetRecording(false);
            status.SetConverting(false);
            tc.messageBox.answers << MsgResult::Yes;
            status.HandleSuspendMenuClickEvent(tc.messageBox);
            status.SetRecording(flags.contains("recording"));
            status.SetConverting(flags.contains("converting"));
        }
        ModeDisplay::Extra extra;
        extra.convertingText = "track.wav";
        QFETCH(QString, title);
        QFETCH(QString, panel);
        const ModeDisplay d = ModeDisplay::Compute(tc.ctx->appStatus, tc.ctx->error, extra);
        QCOMPARE(d.title, title);
        QCOMPARE(d.panelText, panel);
        QCOMPARE(d.recordEnabled, !flags.contains("recording") && !flags.contains("suspended"));
        QCOMPARE(d.stopCaption,
                 flags.startsWith("converting") ? "Stop MP3 Conversion" : "Stop Current Recording");
    }

    void aFlagSetToItsValueRepaintsNothing()
    {
        TestContext tc;
        QSignalSpy updates(&tc.ctx->appStatus, &clsAppStatus::Update);
        tc.ctx->appStatus.SetPaused(false);
        QCOMPARE(updates.size(), 0);
        tc.ctx->appStatus.SetPaused(true);
        tc.ctx->appStatus.SetPaused(true);
        QCOMPARE(updates.size(), 1);
    }

    void suspendingIsRefusedWhileBusy_data()
    {
        QTest::addColumn<bool>("recording");
        QTest::addColumn<QString>("text");
        QTest::newRow("recording")
            << true << "Please stop the recording in process prior to suspending.";
        QTest::newRow("converting") << false
                                    << "Please stop the MP3 conversion in process prior to "
                                       "suspending.";
    }
    void suspendingIsRefusedWhileBusy()
    {
        QFETCH(bool, recording);
        QFETCH(QString, text);
        TestContext tc;
        tc.ctx->appStatus.SetRecording(recording);
        tc.ctx->appStatus.SetConverting(!recording);
        tc.ctx->appStatus.HandleSuspendMenuClickEvent(tc.messageBox);
        QVERIFY(!tc.ctx->appStatus.Suspended());
        QCOMPARE(tc.messageBox.asked.at(0).title, QStringLiteral("Invalid request"));
        QCOMPARE(tc.messageBox.asked.at(0).text, text);
    }

    void thePageDecidesTheMenu()
    {
        Started s;
        s.Activate();
        s.form->ui.Action("mnuViewRecordings")->trigger();
        QCOMPARE(s.form->ui.SSTab1->currentIndex(), 1);
        QVERIFY(!s.form->ui.mnuPrograms->menuAction()->isVisible());
        QVERIFY(s.form->ui.mnuRecordings->menuAction()->isVisible());
        QVERIFY(s.form->ui.Action("mnuViewRecordings")->isChecked());
        QVERIFY(!s.form->ui.Action("mnuViewPrograms")->isChecked());
        s.form->ui.SSTab1->setCurrentIndex(0);
        QVERIFY(s.form->ui.mnuPrograms->menuAction()->isVisible());
        QVERIFY(!s.form->ui.mnuRecordings->menuAction()->isVisible());
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
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("RIFF");
        f.close();
        Recordset& rs = s.tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", file);
        rs.Update();
        QVERIFY(s.form->ui.Action("mnuRecordingsRemove")->isEnabled());
        s.form->ui.DBGridRecordings->selectRow(0);
        s.tc.messageBox.answers << MsgResult::Yes;
        s.form->ui.Action("ToolbarRecordings.Delete")->trigger();
        QCOMPARE(s.tc.messageBox.asked.last().title, QStringLiteral("Remove Recordings From Disk"));
        QVERIFY(!QFile::exists(file));
        QCOMPARE(s.form->ui.DBGridRecordings->model()->rowCount(), 0);
        for (const char* name :
             {"mnuRecordingsPlay", "mnuRecordingsRemove", "mnuDetails", "mnuRecordingsExplore",
              "mnuRecordingsCopyFilename", "mnuRecordingsRemoveFromList", "mnuClearList",
              "mnuSaveList", "mnuRecordingsSelectAll", "ToolbarRecordings.Play",
              "ToolbarRecordings.save_list"})
            QVERIFY2(!s.form->ui.Action(name)->isEnabled(), name);
        for (const char* name : {"mnuAddFileToList", "mnuAddFolderToList", "mnuLoadList",
                                 "ToolbarRecordings.add_to_list", "ToolbarRecordings.load_list"})
            QVERIFY2(s.form->ui.Action(name)->isEnabled(), name);
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
        Recordset& rs = s.tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", s.Folder() + "/kept.wav");
        rs.Update();
        s.form->show();
        QVERIFY(QTest::qWaitForWindowActive(s.form.get()));
        s.form->ui.SSTab1->setCurrentIndex(page);
        QTableView* grid = page == 0 ? s.form->ui.DBGridPrograms : s.form->ui.DBGridRecordings;
        grid->selectRow(0);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(s.tc.messageBox.asked.size(), 1);
        QTEST(s.tc.messageBox.asked[0].title, "question");
    }

    void playingAMissingFileSaysSo()
    {
        Started s;
        s.Activate();
        Recordset& rs = s.tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", s.Folder() + "/moved.wav");
        rs.Update();
        s.form->ui.DBGridRecordings->selectRow(0);
        emit s.form->ui.DBGridRecordings->doubleClicked(
            s.form->ui.DBGridRecordings->model()->index(0, 0));
        QCOMPARE(s.tc.messageBox.asked.last().title, QStringLiteral("Recording file not found"));
    }

    // The maker's page is a web page: it goes to the program for HTML files.
    void theHomePageGoesToTheBrowser()
    {
        Started s;
        s.Activate();
        s.form->ui.Action("mnuHelpHomePage")->trigger();
        QCOMPARE(s.tc.launcher.probed.size(), 1);
        QVERIFY(s.tc.launcher.probed[0].endsWith("/temphtm.HTM"));
        QCOMPARE(s.tc.launcher.started.size(), 1);
        QVERIFY2(s.tc.launcher.started[0].startsWith("browser.desktop ") &&
                     s.tc.launcher.started[0].endsWith("#contact"),
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
