// One recording from a row of Programs to a file and a row of Recordings, with the real
// recording task capturing from a sound server of the test's own; what goes around it.
#include "NetworkManagerStandIn.h"
#include "Pactl.h"
#include "RecordingRig.h"
#include "SoxTone.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "formats/ModuleFileTime.h"
#include "recording/RecorderParts.h"
#include "sideactions/MixerProfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QSqlQuery>
#include <QTest>
#include <QTimer>
#include <QtEndian>
#include <cmath>
#include <memory>

namespace {
double At(const QString& time, int addDays = 0)
{
    return RecordingRig::At(time, addDays);
}

// The file holds the tone, at its level.
void VerifyTone(const QString& path, double skip = 0.0)
{
    double rms = 0, frequency = 0;
    QVERIFY2(ToneOf(path, rms, frequency, skip), qPrintable(path));
    QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));
    QVERIFY2(frequency > 900 && frequency < 1100, qPrintable(QString::number(frequency)));
}

// The process id of the task started ahead for the link's channel, 0 when none runs.
qint64 PrimedTaskOf(const RecordingTaskLink& link)
{
    const QByteArray wanted = "--primed" + QByteArray(1, '\0') + link.ServerName().toUtf8();
    for (const QString& entry : QDir("/proc").entryList(QDir::Dirs)) {
        QFile cmdline("/proc/" + entry + "/cmdline");
        if (entry.toLongLong() > 0 && cmdline.open(QIODevice::ReadOnly) &&
            cmdline.readAll().contains(wanted))
            return entry.toLongLong();
    }
    return 0;
}

} // namespace

class TestRecordingCycle : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<PulseFixture> m_pulse;

private slots:

    void initTestCase()
    {
        if (const QString why = RecordingRig::StartSound(m_pulse); !why.isEmpty())
            QSKIP(qPrintable(why));
    }

    void scheduledProgramRecordsIntoItsFile_data()
    {
        QTest::addColumn<QString>("programInput");
        QTest::addColumn<QString>("optionsInput");
        QTest::addColumn<QString>("recorded");
        QTest::addColumn<bool>("tone");
        // The tone plays into recmic; quietsink.monitor hears nothing.
        QTest::newRow("the options' input") << ""
                                            << "quietsink.monitor"
                                            << "quietsink.monitor" << false;
        QTest::newRow("its own before the options'") << "recmic"
                                                     << "quietsink.monitor"
                                                     << "recmic" << true;
        QTest::newRow("gone: the default") << "unplugged.monitor"
                                           << ""
                                           << "unplugged.monitor" << true;
    }

    // A program records from its own input, else the options' one; one gone at the start gives a
    // recording of the default input. An older file of the same name is kept with its row: the
    // recording takes the next free name, noted in the log, and the command after it gets it.
    void scheduledProgramRecordsIntoItsFile()
    {
        QFETCH(QString, programInput);
        QFETCH(QString, optionsInput);
        QFETCH(QString, recorded);
        QFETCH(bool, tone);
        QByteArray module;
        QVERIFY(Pactl::Run({"load-module", "module-null-sink", "sink_name=quietsink"}, &module));
        const auto unload = qScopeGuard([&] { Pactl::Run({"unload-module", module}); });
        QVERIFY(Pactl::Run({"set-default-source", "recmic"}));

        RecordingRig r;
        r.ctx().options.RecordingInput = optionsInput;
        QVariantHash row = Programs::Weekly("Morning news", "10:00:05", "10:00:08", "0100000");
        row.insert({{"FilenamePrefix", "Show_"},
                    {"FilenameSuffix", "_am"},
                    {"LaunchAppAfter", "/usr/bin/after %p"},
                    {"LaunchAfterOnlyIfOk", -1},
                    {"InputName", programInput}});
        r.AddProgram(row);
        const QString older = r.folder + "/Show_060126_100005_am.WAV";
        const QString name = "Show_060126_100005_am (2).WAV";
        const QString path = r.folder + "/" + name;
        const QByteArray olderContent(4096, 'x');
        QVERIFY(WriteFile(older, olderContent));
        Recordset rs = r.ctx().database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("Title", "Older");
        rs.SetValue("File", older);
        rs.Update();

        QVERIFY(r.Run(At("10:00:04")));
        QCOMPARE(r.starts, 1);
        QVERIFY(r.parmsAtStart);
        QCOMPARE(r.parmsAtStart->outputPath, path);
        QCOMPARE(r.parmsAtStart->inputName, recorded);
        QCOMPARE(r.Files(), QStringList({name, QFileInfo(older).fileName()}));
        QCOMPARE(ReadFile(older), olderContent);
        double rms = -1, frequency = -1;
        // Silence has no frequency to measure.
        ToneOf(path, rms, frequency);
        if (tone)
            VerifyTone(path);
        else
            QVERIFY2(rms >= 0 && rms < 0.001, qPrintable(QString::number(rms)));

        const QList<RecordingRow> rows = r.Recordings();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].file, older);
        QCOMPARE(rows[1].title, QString("Morning news"));
        QCOMPARE(rows[1].file, path);
        // The times describe the file (written just now), not the test clock of June 2026, and
        // the length is what the data holds.
        QCOMPARE(rows[1].end, ModuleFileTime::FileDateTime(path));
        const double seconds = (rows[1].end - rows[1].start) * 86400.0;
        const double held = QFileInfo(path).size() / 88200.0;
        QVERIFY2(seconds >= 1.0 && std::abs(seconds - held) <= 0.6,
                 qPrintable(QString("%1 %2").arg(seconds).arg(held)));
        QCOMPARE(rows[1].size, ModuleFileTime::GetFileSizeMbytes(path));

        QVERIFY(r.ctx().scheduler.next.NextProgramFound);
        QCOMPARE(r.ctx().scheduler.next.NextProgramStart, At("10:00:05", 7));
        QCOMPARE(r.ctx().options.RecentRecordingFilename, path);
        QCOMPARE(r.tc.launcher.started, QStringList{"/usr/bin/after " + path});
        QStringList logged{"Recording saved under a new name"};
        if (recorded == "unplugged.monitor")
            logged << "Recording input not found: " + programInput +
                          "; the default input was used.";
        QCOMPARE(r.LoggedMessages(), logged);
        const QString renamed = r.Log()[0].details;
        QVERIFY2(renamed.contains("\"Show_060126_100005_am.WAV\"") &&
                     renamed.contains("\"" + name + "\""),
                 qPrintable(renamed));
    }

    void taskStartedAheadIsTakenOverOrEnded_data()
    {
        QTest::addColumn<QString>("meanwhile");
        QTest::addColumn<bool>("recorded");
        QTest::addColumn<QString>("logged");
        QTest::newRow("taken over") << "" << true << "";
        QTest::newRow("task died") << "kill" << true << "";
        QTest::newRow("program removed") << "DELETE FROM Programs" << false << "";
        QTest::newRow("format spoilt")
            << "UPDATE Programs SET wfx_cbSize = 9999" << false << "Module: SetWaveFormatEx";
    }

    // Seconds ahead of a scheduled start its task comes up with no file. The start takes it
    // over; a start refused by then ends it silently, and one that died is replaced.
    void taskStartedAheadIsTakenOverOrEnded()
    {
        QFETCH(QString, meanwhile);
        QFETCH(bool, recorded);
        QFETCH(QString, logged);

        RecordingRig r;
        r.AddProgram(Programs::Weekly("Primed", "10:00:05", "10:00:07", "0100000"));
        r.tc.clock.Set(At("10:00:02"));
        r.ctx().scheduler.ScheduleNextRecording();
        RecorderParts::HeartbeatTimer(r.recorder()).Timer1_Timer();
        qint64 primed = 0;
        QTRY_VERIFY_WITH_TIMEOUT((primed = PrimedTaskOf(RecorderParts::Link(r.recorder()))) != 0,
                                 5000);
        QTest::qWait(1000);
        QVERIFY(r.Files().isEmpty());
        if (meanwhile == "kill") {
            QVERIFY(QProcess::execute("kill", {"-KILL", QString::number(primed)}) == 0);
        } else if (!meanwhile.isEmpty()) {
            QSqlQuery(r.ctx().database.db.Connection()).exec(meanwhile);
            r.ctx().database.DataPrograms.Requery();
            r.ctx().scheduler.ScheduleNextRecording();
        }

        QElapsedTimer elapsed;
        elapsed.start();
        for (double at = At("10:00:04"); at <= At("10:00:09") && elapsed.elapsed() < 20000;
             at = AutomationDate::AddSeconds(at, 0.25)) {
            r.tc.clock.Set(at);
            RecorderParts::HeartbeatTimer(r.recorder()).Timer1_Timer();
            QTest::qWait(250);
        }
        QTRY_VERIFY_WITH_TIMEOUT(!r.ctx().appStatus.Recording(), 12000);
        QTRY_VERIFY_WITH_TIMEOUT(PrimedTaskOf(RecorderParts::Link(r.recorder())) == 0, 5000);
        QCOMPARE(r.Log().size(), logged.isEmpty() ? 0 : 1);
        if (!logged.isEmpty())
            QVERIFY2(r.Log()[0].details.contains(logged), qPrintable(r.Log()[0].details));
        if (!recorded) {
            // The occurrence is passed over: a start that failed was due once, and not again.
            const NextProgram& next = r.ctx().scheduler.next;
            QVERIFY(!next.NextProgramFound || next.NextProgramStart > At("10:00:09"));
            QCOMPARE(r.starts, logged.isEmpty() ? 0 : 1);
            QVERIFY(RecorderParts::Link(r.recorder()).StartedTasks().isEmpty());
            QVERIFY(r.Files().isEmpty());
            return;
        }
        QCOMPARE(r.starts, 1);
        QCOMPARE(RecorderParts::Link(r.recorder()).StartedTasks().size(), 1);
        QCOMPARE(RecorderParts::Link(r.recorder()).StartedTasks()[0] == primed,
                 meanwhile.isEmpty());
        QCOMPARE(r.Files(), QStringList{"060126_100005.WAV"});
        VerifyTone(r.folder + "/060126_100005.WAV");
        QCOMPARE(r.Recordings().size(), 1);
    }

    // A start whose plan fails and whose passing over fails too reports both, in the order
    // they failed, and clears Recording all the same.
    void aStartThatFailsTwiceReportsEachFailure()
    {
        RecordingRig r;
        const qint64 id =
            r.AddProgram(Programs::Weekly("Spoilt", "10:00:05", "10:00:07", "0100000"));
        QSqlQuery q(r.ctx().database.db.Connection());
        QVERIFY(q.exec("UPDATE Programs SET wfx_cbSize = 9999"));
        QVERIFY(q.exec("CREATE TRIGGER locked BEFORE UPDATE ON Programs "
                       "BEGIN SELECT RAISE(ABORT, 'locked'); END"));
        r.ctx().database.DataPrograms.Requery();
        r.tc.clock.Set(At("10:00:05"));
        RecorderParts::Control(r.recorder())
            .StartRecording(qint32(id), At("10:00:05"), At("10:00:07"), QString());
        const QList<LogEntry> log = r.Log();
        QCOMPARE(log.size(), 2);
        QVERIFY2(log[0].details.contains("Module: SetWaveFormatEx"), qPrintable(log[0].details));
        QVERIFY2(log[1].details.contains("Module: CancelRecording"), qPrintable(log[1].details));
        QVERIFY(!r.ctx().appStatus.Recording());
    }

    // A recording whose row can't be written stays on disk, the failure is logged, and the
    // end goes on to clear Recording.
    void aRowThatCannotBeWrittenKeepsTheRecording()
    {
        RecordingRig r;
        r.AddProgram(Programs::Weekly("Unlisted", "10:00:01", "10:00:03", "0100000"));
        QVERIFY(QSqlQuery(r.ctx().database.db.Connection())
                    .exec("CREATE TRIGGER locked BEFORE INSERT ON Recordings "
                          "BEGIN SELECT RAISE(ABORT, 'locked'); END"));
        QVERIFY(r.Run(At("10:00:00")));
        QCOMPARE(r.Files(), QStringList{"060126_100001.WAV"});
        QVERIFY(r.Recordings().isEmpty());
        const QList<LogEntry> log = r.Log();
        QCOMPARE(log.size(), 1);
        QVERIFY2(log[0].details.contains("Module: DoEndOfRecordingStuff"),
                 qPrintable(log[0].details));
        QVERIFY(!r.ctx().appStatus.Recording());
    }

    // A stop asked while the task still starts reaches it: no watchdog, and the task leaves.
    void aStopAskedWhileTheTaskStartsReachesIt()
    {
        RecordingRig r;
        QElapsedTimer elapsed;
        elapsed.start();
        QTimer::singleShot(0, [&] {
            QVERIFY(r.ctx().appStatus.Recording());
            r.recorder().StopCommand(false);
        });
        r.StartManual(At("12:00:00"), 60, "Stopped at once");
        QVERIFY(r.recorder().Status().StopRequested);
        QVERIFY(r.WaitUntilStopped(8000));
        QVERIFY2(elapsed.elapsed() < 8000, qPrintable(QString::number(elapsed.elapsed())));
        QCOMPARE(RecorderParts::Link(r.recorder()).tmrStopRecording.Interval(), 0);
        const QString task =
            "/proc/" + QString::number(RecorderParts::Link(r.recorder()).StartedTasks().last());
        QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(task), 3000);
    }

    // The disk takes no more (here a quarter megabyte): what was written is a good recording.
    void aWriteErrorKeepsWhatWasWritten()
    {
        RecordingRig r;
        const QString limited = r.tc.Root() + "/limited-task";
        QVERIFY(WriteFile(limited, ("#!/bin/sh\ntrap '' XFSZ\nexec prlimit --fsize=262144 " +
                                    RecordingRig::TaskProgram() + " \"$@\"\n")
                                       .toUtf8()));
        QVERIFY(QFile::setPermissions(limited, QFile::ReadOwner | QFile::ExeOwner));
        r.recorder().SetTaskProgram(limited);
        r.AddProgram(Programs::Weekly("Full disk", "10:00:01", "10:00:30", "0100000"));
        QVERIFY(r.Run(At("10:00:00")));

        const QString path = r.folder + "/060126_100001.WAV";
        QCOMPARE(r.Files(), QStringList{"060126_100001.WAV"});
        const qint64 size = QFileInfo(path).size();
        QVERIFY2(size > 100000 && size <= 262144, qPrintable(QString::number(size)));
        QCOMPARE(qint64(qFromLittleEndian<quint32>(ReadFile(path).constData() + 4)) + 8, size);
        VerifyTone(path);
        QVERIFY(!r.recorder().Status().Failed);
        const QList<RecordingRow> rows = r.Recordings();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0].file, path);
        const double seconds = (rows[0].end - rows[0].start) * 86400.0;
        QVERIFY2(std::abs(seconds - Soxi("-D", path).toDouble()) <= 0.6,
                 qPrintable(QString::number(seconds)));
        QCOMPARE(r.LoggedMessages(), QStringList{"Error writing recording file."});
        QCOMPARE(r.Log()[0].type, 2);
    }

    // The before-profile sets the source before capture (software volume is cubic: 50 % is
    // 18.06 dB down), the after-profile follows; an after-profile alone leaves the mixer be.
    void mixerProfilesAroundTheRecording()
    {
        RecordingRig r;
        MixerProfiles& profiles = r.ctx().mixerProfiles;
        Pactl::Volumes seventy;
        for (const char* percent : {"50", "70"}) {
            QVERIFY(Pactl::Run({"set-source-volume", "recmic", QString(percent) + "%"}));
            QCOMPARE(profiles.SaveMixerProfile(percent, r.tc.messageBox),
                     MixerProfiles::SaveOutcome::Added);
            seventy = Pactl::VolumesOf("source", "recmic");
        }
        QVERIFY(Pactl::Run({"set-source-volume", "recmic", "100%"}));
        const Pactl::Volumes full = Pactl::VolumesOf("source", "recmic");

        QVariantHash row = Programs::Weekly("After only", "10:00:01", "10:00:04", "0100000");
        row.insert("MixerProfileAfter", "70");
        r.AddProgram(row);
        QVERIFY(r.Run(At("10:00:00")));
        QCOMPARE(Pactl::VolumesOf("source", "recmic"), full);

        row = Programs::Weekly("Half", "10:01:01", "10:01:04", "0100000");
        row.insert({{"MixerProfileBefore", " 50 "}, {"MixerProfileAfter", "70"}});
        r.AddProgram(row);
        r.starts = 0;
        QVERIFY(r.Run(At("10:01:00")));
        QCOMPARE(r.starts, 1);
        QCOMPARE(Pactl::VolumesOf("source", "recmic"), seventy);
        QVERIFY(r.Log().isEmpty());

        const QList<RecordingRow> rows = r.Recordings();
        QCOMPARE(rows.size(), 2);
        double fullRms = 0, halfRms = 0, frequency = 0;
        QVERIFY(ToneOf(rows[0].file, fullRms, frequency, 0.5));
        QVERIFY(ToneOf(rows[1].file, halfRms, frequency, 0.5));
        const double db = 20.0 * std::log10(halfRms / fullRms);
        QVERIFY2(std::abs(db + 18.06) <= 0.5, qPrintable(QString::number(db)));
    }

    // The tone stops 2 s into capture and comes back 5 s later; the recording goes on.
    void silentStretchIsReportedOnce()
    {
        RecordingRig r;
        r.ctx().options.SilenceAlarmSeconds = 3;
        r.AddProgram(Programs::Weekly("Night watch", "10:00:10", "10:00:22", "0100000"));
        bool warnedWhileSilent = false;
        QElapsedTimer captured;
        double capturedSeconds = 0.0;
        QObject::connect(&r.recorder(), &Recorder::RecordingStarted, [&] {
            captured.start();
            QTimer::singleShot(2000, [this] { m_pulse->StopTone(); });
            QTimer::singleShot(6500, [&] {
                warnedWhileSilent =
                    r.ctx().error.RecordingSilent() && r.ctx().error.Indication().buttonVisible;
            });
            QTimer::singleShot(7000, [this] { m_pulse->PlayTone(); });
        });
        QObject::connect(&r.recorder(), &Recorder::RecordingEnded,
                         [&] { capturedSeconds = captured.elapsed() / 1000.0; });
        QVERIFY(r.Run(RecordingRig::At("10:00:08")));

        QVERIFY(warnedWhileSilent);
        QVERIFY(!r.ctx().error.RecordingSilent());
        const QList<LogEntry> entries = r.Log();
        QCOMPARE(r.LoggedMessages(),
                 (QStringList{"Recording is silent", "Recording has sound again"}));
        QVERIFY(entries[0].details.startsWith("Recording: Night watch\r\nSource: recmic\r\n"));
        QVERIFY(entries[0].details.endsWith("Peak level: no signal at all"));
        QVERIFY(entries[1].details.endsWith(" dBFS"));
        const double seconds = Soxi("-D", r.Recordings().value(0).file).toDouble();
        QVERIFY2(
            capturedSeconds > 8.0 && std::abs(seconds - capturedSeconds) < 0.6,
            qPrintable(QString("%1 s in the file, %2 captured").arg(seconds).arg(capturedSeconds)));
    }

    void recordingEndHangsUpTheDialUpLines_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<bool>("hangUp");
        QTest::addColumn<bool>("service");
        QTest::newRow("link and flag") << "http://radio.example/live" << true << true;
        QTest::newRow("no flag") << "http://radio.example/live" << false << true;
        QTest::newRow("no link") << "" << true << true;
        QTest::newRow("no network service") << "http://radio.example/live" << true << false;
    }
    // Only dial-up kinds, in the service's order, for a program with a web link and the flag;
    // nothing is logged either way.
    void recordingEndHangsUpTheDialUpLines()
    {
        QFETCH(QString, link);
        QFETCH(bool, hangUp);
        QFETCH(bool, service);
        std::optional<NetworkManagerStandIn> nm;
        QStringList expected;
        const QByteArray bus = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
        const auto restoreBus = qScopeGuard([&] { qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus); });
        if (service) {
            nm.emplace();
            if (!nm->Running())
                QSKIP("no private system bus with NetworkManager's stand-in could be started");
            // Dial-up kinds: a mobile modem, DSL over PPP and a phone's dial-up.
            QVERIFY(!nm->AddActiveConnection("wired", "802-3-ethernet").isEmpty());
            const QString modem = nm->AddActiveConnection("modem", "gsm");
            QVERIFY(!nm->AddActiveConnection("pan", "bluetooth", "panu").isEmpty());
            const QString dsl = nm->AddActiveConnection("dsl", "pppoe");
            QVERIFY(!nm->AddActiveConnection("tunnel", "vpn").isEmpty());
            const QString phone = nm->AddActiveConnection("phone", "bluetooth", "dun");
            if (hangUp && !link.isEmpty())
                expected = {modem, dsl, phone};
        } else {
            // A bus address where nothing listens.
            qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/system_bus_socket");
        }

        RecordingRig r;
        r.AddProgramAt10({{"InternetLink", link},
                          // The player is left alone: the hang-up doesn't depend on closing it.
                          {"StreamingPlayerClose", "DO_NOT_CLOSE"},
                          {"HangupInternetConnection", hangUp ? -1 : 0}});
        QVERIFY(r.Run(RecordingRig::At("10:00:08")));
        QCOMPARE(r.Recordings().size(), 1);
        QCOMPARE(r.LoggedMessages(), QStringList{});
        if (nm)
            QCOMPARE(nm->Deactivated(), expected);
    }

    void aFailedRecordingLeavesNothing_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("logged"); // the start of the first entry, message | details
        // The command after it: for good recordings only in the first row, always in the others.
        QTest::newRow("paused at once") << "pause"
                                        << "Recording failed | The following recording failed "
                                           "since no recording data was written:\r\nLost";
        // Last: they take the sound server away.
        QTest::newRow("server lost during capture")
            << "lost"
            << "Error occurred during recording process. | ";
        QTest::newRow("no server at the start") << "none"
                                                << "No audio driver found for recording. | ";
    }
    // The failure is logged, no file or row is left, and only the command not limited to good
    // recordings runs. An occurrence lost during capture is marked, so that it doesn't start
    // again.
    void aFailedRecordingLeavesNothing()
    {
        QFETCH(QString, how);
        QFETCH(QString, logged);
        if (how == "none")
            m_pulse->Stop();
        RecordingRig r;
        QVariantHash row = Programs::Weekly("Lost", "10:00:01", "10:00:05", "0100000");
        const bool onlyIfOk = how == "pause";
        row.insert(
            {{"LaunchAppAfter", "/usr/bin/after %f"}, {"LaunchAfterOnlyIfOk", onlyIfOk ? -1 : 0}});
        const qint64 id = r.AddProgram(row);
        QVERIFY(r.Run(At("10:00:00"), [&] {
            if (how == "pause") {
                r.recorder().PauseCommand("p");
            } else if (how == "lost") {
                QTest::qWait(1000);
                // A stream's titles up to then: they go with the recording.
                QVERIFY(WriteFile(r.folder + "/060126_100001.cue", "TITLE"));
                m_pulse->Stop();
            }
        }));
        QVERIFY(!r.Log().isEmpty());
        QCOMPARE(r.Log()[0].type, 2);
        const QString first = r.Log()[0].message + " | " + r.Log()[0].details;
        QVERIFY2(first.startsWith(logged), qPrintable(first));
        // The advice on recordings too short to hold any sound.
        QCOMPARE(first.contains("try extending the time by a few seconds."), how == "pause");
        QVERIFY(r.recorder().Status().Failed);
        QVERIFY(r.Files().isEmpty());
        QVERIFY(r.Recordings().isEmpty());
        QCOMPARE(r.tc.launcher.started,
                 onlyIfOk ? QStringList() : QStringList{"/usr/bin/after 060126_100001.WAV"});
        if (how == "none")
            return;
        QCOMPARE(r.Log().size(), 1);
        if (how == "pause")
            return;
        QCOMPARE(r.tc.ProgramColumn(id, "RecordingCancelled").toInt(), -1);
        QCOMPARE(r.tc.ProgramColumn(id, "RecordingCancelledEndDateAndTime").toDouble(),
                 At("10:00:05"));
        for (int i = 0; i < 10; ++i) {
            r.tc.clock.AdvanceSeconds(0.25);
            RecorderParts::HeartbeatTimer(r.recorder()).Timer1_Timer();
        }
        QCOMPARE(r.starts, 1);
        QVERIFY(!r.ctx().appStatus.Recording());
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestRecordingCycle, QCoreApplication)
#include "test_recordingcycle.moc"
