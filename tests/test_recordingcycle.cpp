// One recording from a row of Programs to a file and a row of Recordings, with the real
// recording task capturing from a PulseAudio server of the test's own: the start by the
// heartbeat, the file's name, the end by the clock, the row, the occurrence's mark, the
// next occurrence, the launch after the recording, and the ways a recording fails.
#include "Pactl.h"
#include "ProgramListFixture.h"
#include "Programs.h"
#include "PulseFixture.h"
#include "SoxTone.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "formats/CodecCatalogue.h"
#include "formats/ModuleFileTime.h"
#include "sideactions/MixerProfiles.h"
#include "taskcontract/RecParms.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSqlQuery>
#include <QStorageInfo>
#include <QTest>
#include <QTimer>
#include <QtEndian>
#include <cmath>
#include <functional>
#include <memory>

namespace {

// Monday, 1 June 2026.
const QDate kDay(2026, 6, 1);

struct RecordingRow {
    QString title;
    QString file;
    double start;
    double end;
    double size;
};

// The program's own recorder over a fresh context, with the real recording task; its
// heartbeat is ticked by hand.
class Cycle {
public:
    Cycle()
        : control(&tc.ctx->recorder.Control())
    {
        tc.OpenDatabase();
        folder = tc.Root() + "/recordings";
        QDir().mkpath(folder);
        tc.ctx->options.DefaultRecordingDirectory = folder;
        tc.ctx->appStatus.SetReady(true);
        recorder().Link().SetTaskProgram(QCoreApplication::applicationDirPath() +
                                         "/../src/nightreel-rec");
        QObject::connect(&recorder().HeartbeatTimer(), &Heartbeat::StartRecordingDue,
                         [this] { ++starts; });
    }

    AppContext& ctx() { return *tc.ctx; }
    Recorder& recorder() { return tc.ctx->recorder; }

    qint64 AddProgram(const QVariantHash& row)
    {
        const qint64 id = tc.AddProgram(Programs::WithPcmFormat(row));
        ctx().database.DataPrograms.Requery();
        return id;
    }

    // Runs the clock at real speed from `from`, ticking the heartbeat by hand, until the
    // recording has begun and ended again or the limit is reached.
    bool RecordOnce(double from, const std::function<void()>& whileRecording = {})
    {
        tc.clock.Set(from);
        ctx().scheduler.ScheduleNextRecording();
        QElapsedTimer elapsed;
        elapsed.start();
        bool began = false;
        while (elapsed.elapsed() < 20000) {
            tc.clock.Set(AutomationDate::AddSeconds(from, elapsed.elapsed() / 1000.0));
            recorder().HeartbeatTimer().Timer1_Timer();
            const bool recording = ctx().appStatus.Recording();
            if ((recording || starts > 0) && !began) {
                began = true;
                parmsAtStart = RecParms::Read(recorder().Link().ParameterFile());
                durationAtStart = recorder().Status().DurationSeconds;
                if (whileRecording)
                    whileRecording();
            }
            if (began && !ctx().appStatus.Recording())
                return true;
            QTest::qWait(50);
        }
        return false;
    }

    // A manual recording of 16-bit mono at 22.05 kHz, asked for at `time`; returns that moment.
    double ManualAt(const QString& time)
    {
        recorder().Status().ProgramId = -1;
        recorder().Manual().Format.SetToPcm(1, 22050, 16);
        const double from = Programs::At(kDay.year(), kDay.month(), kDay.day(), time);
        tc.clock.Set(from);
        return from;
    }

    QList<LogEntry> Entries() const { return tc.LogEntries(); }

    QList<RecordingRow> Recordings() const
    {
        QList<RecordingRow> rows;
        QSqlQuery q(tc.ctx->database.db.Connection());
        q.exec("SELECT Title, File, StartTime, EndTime, Size FROM Recordings ORDER BY ID");
        while (q.next())
            rows.append({q.value(0).toString(), q.value(1).toString(), q.value(2).toDouble(),
                         q.value(3).toDouble(), q.value(4).toDouble()});
        return rows;
    }

    QVariant ProgramColumn(qint64 id, const QString& column) const
    {
        QSqlQuery q(tc.ctx->database.db.Connection());
        q.exec(QStringLiteral("SELECT [%1] FROM Programs WHERE ID = %2").arg(column).arg(id));
        return q.next() ? q.value(0) : QVariant();
    }

    QStringList FilesInFolder() const { return QDir(folder).entryList(QDir::Files); }

    TestContext tc;
    QString folder;
    RecordingControl* control;
    std::optional<RecParms> parmsAtStart;
    qint32 durationAtStart = -1;
    int starts = 0;
};

double At(const QString& time, int addDays = 0)
{
    return Programs::At(kDay.year(), kDay.month(), kDay.day(), time) + addDays;
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

private slots:
    void initTestCase();
    void scheduledProgramRecordsIntoItsFile_data();
    void scheduledProgramRecordsIntoItsFile();
    void eachProgramRecordsFromItsInput_data();
    void eachProgramRecordsFromItsInput();
    void taskStartedAheadIsTakenOverOrEnded_data();
    void taskStartedAheadIsTakenOverOrEnded();
    void openWindowStartsAtOnceAndEndsByTheClock();
    void programEnteredThroughTheEditorIsRecorded();
    void dayLongRecordingStopsByTheClock();
    void recordingWithoutDataFails();
    void recordingToConvertCapturesPcmAndQueuesIt();
    void aStopAskedWhileTheTaskStartsReachesIt();
    void aWriteErrorKeepsWhatWasWritten();
    void diskGuardStopsAndKeepsTheRecording();
    void mixerProfilesAroundTheRecording();
    void refusedProfileStillRecords();
    // The last two stop the sound server.
    void captureErrorDeletesThePartialFile();
    void noSoundServerMeansNoRecording();

private:
    std::unique_ptr<PulseFixture> m_pulse;
};

void TestRecordingCycle::initTestCase()
{
    if (!QFile::exists(QCoreApplication::applicationDirPath() + "/../src/nightreel-rec"))
        QSKIP("the recording task is not built");
    m_pulse = std::make_unique<PulseFixture>();
    if (!m_pulse->Running())
        QSKIP("no PulseAudio server could be started");
    QVERIFY(m_pulse->PlayTone());
}

void TestRecordingCycle::scheduledProgramRecordsIntoItsFile_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("userName");
    QTest::addColumn<QString>("expectedName");
    QTest::addColumn<bool>("launcherFails");

    // The start is at 10:00:05 on 1 June 2026 by the test's clock.
    QTest::newRow("stamp") << ""
                           << ""
                           << ""
                           << "060126_100005.WAV" << false;
    QTest::newRow("prefix and suffix") << "Show_"
                                       << "_am"
                                       << ""
                                       << "Show_060126_100005_am.WAV" << false;
    QTest::newRow("user's name, launch fails") << "Show_"
                                               << "_am"
                                               << "  Morning news "
                                               << "Morning news.WAV" << true;
}

// A weekly program due within seconds records into the recording folder; an older file of
// the same name is kept with its row, and the new recording takes the next free name, noted
// once in the log; the row's times are the file's; the occurrence is marked and next week's
// is scheduled; the command after the recording gets the file's parts.
void TestRecordingCycle::scheduledProgramRecordsIntoItsFile()
{
    QFETCH(QString, prefix);
    QFETCH(QString, suffix);
    QFETCH(QString, userName);
    QFETCH(QString, expectedName);
    QFETCH(bool, launcherFails);

    Cycle c;
    QVariantHash row = Programs::Weekly("Morning news", "10:00:05", "10:00:08", "0100000");
    row.insert({{"FilenamePrefix", prefix},
                {"FilenameSuffix", suffix},
                {"FilenameUser", userName},
                {"LaunchAppAfter", "  /usr/bin/after %d|%p|%f|%b|%e|%%|%x  "},
                {"LaunchAfterOnlyIfOk", -1}});
    c.AddProgram(row);
    const QString older = c.folder + "/" + expectedName;
    const QString name = expectedName.chopped(4) + " (2).WAV";
    const QString path = c.folder + "/" + name;
    const QString expectedCommand = "/usr/bin/after " + c.folder + "/|" + path + "|" + name + "|" +
                                    name.chopped(4) + "|WAV|%|%x";
    if (launcherFails)
        c.tc.launcher.failing.insert(expectedCommand);

    // An older recording of the same name, on disk and in the list.
    const QByteArray olderContent(4096, 'x');
    {
        QFile old(older);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write(olderContent);
        Recordset rs = c.ctx().database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("Title", "Older");
        rs.SetValue("File", older);
        rs.Update();
    }

    QVERIFY(c.RecordOnce(At("10:00:04")));
    QCOMPARE(c.starts, 1);
    QVERIFY(c.parmsAtStart);
    QCOMPARE(c.parmsAtStart->outputPath, path);

    QStringList files = c.FilesInFolder();
    files.sort();
    QCOMPARE(files, QStringList({name, expectedName}));
    QFile kept(older);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), olderContent);
    double rms = 0, frequency = 0;
    QVERIFY(ToneOf(path, rms, frequency));
    QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));
    QVERIFY2(frequency > 900 && frequency < 1100, qPrintable(QString::number(frequency)));

    const QList<RecordingRow> rows = c.Recordings();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0].file, older);
    QCOMPARE(rows[1].title, QString("Morning news"));
    QCOMPARE(rows[1].file, path);
    // The times describe the file (written just now), not the test clock of June 2026.
    const double fileTime = ModuleFileTime::FileDateTime(path);
    QCOMPARE(rows[1].end, fileTime);
    // The length is what the data holds: the task's hand-shake shortens a recording whose
    // end is kept by the clock.
    const double seconds = (rows[1].end - rows[1].start) * 86400.0;
    const double held = QFileInfo(path).size() / 88200.0;
    QVERIFY2(seconds >= 1.0 && std::abs(seconds - held) <= 0.6,
             qPrintable(QString("%1 %2").arg(seconds).arg(held)));
    QCOMPARE(float(rows[1].size), ModuleFileTime::GetFileSizeMbytes(path));

    const NextProgram& next = c.ctx().scheduler.next;
    QVERIFY(next.NextProgramFound);
    QCOMPARE(next.NextProgramStart, At("10:00:05", 7));
    QCOMPARE(c.ctx().options.RecentRecordingFilename, path);

    QCOMPARE(c.tc.launcher.started, QStringList{expectedCommand});
    const QList<LogEntry> entries = c.Entries();
    QCOMPARE(entries.size(), launcherFails ? 2 : 1);
    QCOMPARE(entries[0].type, 0);
    QCOMPARE(entries[0].message, QString("Recording saved under a new name"));
    QVERIFY2(entries[0].details.contains("\"" + expectedName + "\"") &&
                 entries[0].details.contains("\"" + name + "\""),
             qPrintable(entries[0].details));
    if (launcherFails) {
        QCOMPARE(entries[1].message, QString("Invalid Launch Application command"));
        QVERIFY(entries[1].details.contains("that the application exists."));
    }
    QVERIFY(!c.ctx().appStatus.Recording());
}

void TestRecordingCycle::eachProgramRecordsFromItsInput_data()
{
    QTest::addColumn<QString>("programInput");
    QTest::addColumn<QString>("optionsInput");
    QTest::addColumn<QString>("recorded");
    QTest::addColumn<bool>("tone");

    // The tone plays into recmic; quietsink.monitor hears nothing.
    QTest::newRow("its own") << "quietsink.monitor"
                             << "recmic"
                             << "quietsink.monitor" << false;
    QTest::newRow("the options'") << ""
                                  << "quietsink.monitor"
                                  << "quietsink.monitor" << false;
    QTest::newRow("its own before the options'") << "recmic"
                                                 << "quietsink.monitor"
                                                 << "recmic" << true;
    QTest::newRow("gone: the default") << "unplugged.monitor"
                                       << ""
                                       << "unplugged.monitor" << true;
}

// A program records from the input it names, else from the options' one; an input that is
// gone at the start gives a recording of the default input and a line in the log.
void TestRecordingCycle::eachProgramRecordsFromItsInput()
{
    QFETCH(QString, programInput);
    QFETCH(QString, optionsInput);
    QFETCH(QString, recorded);
    QFETCH(bool, tone);

    QByteArray module;
    QVERIFY(Pactl::Run({"load-module", "module-null-sink", "sink_name=quietsink"}, &module));
    const auto unload = qScopeGuard([&] { Pactl::Run({"unload-module", module}); });
    QVERIFY(Pactl::Run({"set-default-source", "recmic"}));

    Cycle c;
    c.ctx().options.RecordingInput = optionsInput;
    QVariantHash row = Programs::Weekly("Morning news", "10:00:05", "10:00:08", "0100000");
    row.insert("InputName", programInput);
    c.AddProgram(row);
    QVERIFY(c.RecordOnce(At("10:00:04")));
    QVERIFY(c.parmsAtStart);
    QCOMPARE(c.parmsAtStart->inputName, recorded);

    double rms = -1, frequency = -1;
    // Silence has no frequency to measure.
    ToneOf(c.folder + "/060126_100005.WAV", rms, frequency);
    if (tone)
        QVERIFY2(rms > 0.1 && frequency > 900 && frequency < 1100,
                 qPrintable(QString("%1 %2").arg(rms).arg(frequency)));
    else
        QVERIFY2(rms >= 0 && rms < 0.001, qPrintable(QString::number(rms)));
    QStringList messages;
    for (const LogEntry& entry : c.Entries())
        messages << entry.message;
    const QString missing =
        "Recording input not found: " + programInput + "; the default input was used.";
    QCOMPARE(messages, recorded == "unplugged.monitor" ? QStringList{missing} : QStringList{});
}

void TestRecordingCycle::taskStartedAheadIsTakenOverOrEnded_data()
{
    QTest::addColumn<QString>("meanwhile");
    QTest::addColumn<bool>("recorded");

    QTest::newRow("taken over") << "" << true;
    QTest::newRow("task died") << "kill" << true;
    QTest::newRow("program removed") << "DELETE FROM Programs" << false;
    QTest::newRow("program disabled") << "UPDATE Programs SET Enabled = 0" << false;
}

// Seconds ahead of a scheduled start its task comes up with the capture open and no file.
// The start at the due second takes it over and records as any start would; a start that is
// refused by then ends it without a file or a word in the log, and one that died is replaced.
void TestRecordingCycle::taskStartedAheadIsTakenOverOrEnded()
{
    QFETCH(QString, meanwhile);
    QFETCH(bool, recorded);

    Cycle c;
    c.AddProgram(Programs::Weekly("Primed", "10:00:05", "10:00:07", "0100000"));
    c.tc.clock.Set(At("10:00:02"));
    c.ctx().scheduler.ScheduleNextRecording();
    c.recorder().HeartbeatTimer().Timer1_Timer();
    qint64 primed = 0;
    QTRY_VERIFY_WITH_TIMEOUT((primed = PrimedTaskOf(c.recorder().Link())) != 0, 5000);
    QTest::qWait(1000);
    QVERIFY(c.FilesInFolder().isEmpty());
    if (meanwhile == "kill") {
        QVERIFY(QProcess::execute("kill", {"-KILL", QString::number(primed)}) == 0);
    } else if (!meanwhile.isEmpty()) {
        QSqlQuery(c.ctx().database.db.Connection()).exec(meanwhile);
        c.ctx().database.DataPrograms.Requery();
        c.ctx().scheduler.ScheduleNextRecording();
    }

    QElapsedTimer elapsed;
    elapsed.start();
    for (double at = At("10:00:04"); at <= At("10:00:09") && elapsed.elapsed() < 20000;
         at = AutomationDate::AddSeconds(at, 0.25)) {
        c.tc.clock.Set(at);
        c.recorder().HeartbeatTimer().Timer1_Timer();
        QTest::qWait(250);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!c.ctx().appStatus.Recording(), 12000);
    QTRY_VERIFY_WITH_TIMEOUT(PrimedTaskOf(c.recorder().Link()) == 0, 5000);
    QCOMPARE(c.Entries().size(), 0);
    if (!recorded) {
        QCOMPARE(c.starts, 0);
        QVERIFY(c.recorder().Link().StartedTasks().isEmpty());
        QVERIFY(c.FilesInFolder().isEmpty());
        return;
    }
    QCOMPARE(c.starts, 1);
    QCOMPARE(c.recorder().Link().StartedTasks().size(), 1);
    QCOMPARE(c.recorder().Link().StartedTasks()[0] == primed, meanwhile.isEmpty());
    QCOMPARE(c.FilesInFolder(), QStringList{"060126_100005.WAV"});
    double rms = 0, frequency = 0;
    QVERIFY(ToneOf(c.folder + "/060126_100005.WAV", rms, frequency));
    QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));
    QCOMPARE(c.Recordings().size(), 1);
}

// A program whose window is already open starts on the first tick, with the length of what
// is left of it, and ends at its end.
void TestRecordingCycle::openWindowStartsAtOnceAndEndsByTheClock()
{
    Cycle c;
    c.AddProgram(Programs::Weekly("Window", "10:00:00", "10:00:04", "1111111"));
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(c.RecordOnce(At("10:00:02")));
    QCOMPARE(c.durationAtStart, 2);
    QVERIFY(c.parmsAtStart);
    QCOMPARE(c.parmsAtStart->lengthSeconds, 2);
    QCOMPARE(c.recorder().Status().EndTime, At("10:00:04"));
    QVERIFY(c.ctx().Now() > At("10:00:04"));
    QVERIFY2(elapsed.elapsed() < 8000, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(c.Recordings().size(), 1);
}

// A one-time program saved through the list's Add command, as the editor hands back its
// fields, is found by the schedule and recorded at its time.
void TestRecordingCycle::programEnteredThroughTheEditorIsRecorded()
{
    Cycle c;
    c.tc.clock.Set(At("09:59:55"));
    c.ctx().WfxDefault.SetToPcm(1, 11025, 8);
    FakeProgramListView view;
    view.answerForm = [](ProgramFormValues& v) {
        v.FormDescription = "Entered by hand";
        v.FormFrequency = 0;
        v.FormOneTimeDay = At("00:00:00");
        v.FormStartTime = Programs::TimeOfDay("10:00:00");
        v.FormEndTime = Programs::TimeOfDay("10:00:03");
    };
    ProgramListCommands(c.ctx().ForProgramList(), view).AddNewProgram();
    QCOMPARE(c.ctx().scheduler.next.NextProgramStart, At("10:00:00"));
    QVERIFY(c.RecordOnce(At("09:59:58")));
    const QList<RecordingRow> rows = c.Recordings();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows[0].title, QStringLiteral("Entered by hand"));
    QVERIFY(QFileInfo(rows[0].file).fileName().startsWith("060126_10000"));
}

// A day-long recording loses its whole day in the length written for the task; the clock
// then jumps to three seconds before the end, and the stop still comes from the clock.
void TestRecordingCycle::dayLongRecordingStopsByTheClock()
{
    Cycle c;
    AppContext& ctx = c.ctx();
    const double from = c.ManualAt("12:00:00");
    qint32 id = -1;
    QString description = "All day";
    c.control->StartRecording(id, from, from + 1.0, description);
    QVERIFY(ctx.appStatus.Recording());
    QCOMPARE(c.recorder().Status().DurationSeconds, 0);
    const std::optional<RecParms> parms = RecParms::Read(c.recorder().Link().ParameterFile());
    QVERIFY(parms);
    QCOMPARE(parms->lengthSeconds, 0);

    QElapsedTimer elapsed;
    elapsed.start();
    while (ctx.appStatus.Recording() && elapsed.elapsed() < 15000) {
        c.tc.clock.Set(AutomationDate::AddSeconds(from, 86397 + elapsed.elapsed() / 1000.0));
        c.recorder().HeartbeatTimer().Timer1_Timer();
        QTest::qWait(50);
    }
    QVERIFY(!ctx.appStatus.Recording());
    QVERIFY(ctx.Now() > from + 1.0);
    QVERIFY2(elapsed.elapsed() > 2500, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(c.Recordings().size(), 1);
}

// A recording paused at once holds no sound: it fails with the advice on short recordings,
// leaves neither file nor row, and the command meant only for good recordings is not run.
void TestRecordingCycle::recordingWithoutDataFails()
{
    Cycle c;
    QVariantHash row = Programs::Weekly("Silent", "10:00:01", "10:00:03", "0100000");
    row.insert({{"LaunchAppAfter", "/usr/bin/after %p"}, {"LaunchAfterOnlyIfOk", -1}});
    c.AddProgram(row);
    QVERIFY(c.RecordOnce(At("10:00:00"), [&] { c.control->ToolbarPauseResume("p"); }));
    const QList<LogEntry> entries = c.Entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].type, 2);
    QCOMPARE(entries[0].message, QString("Recording failed"));
    QVERIFY(entries[0].details.contains("Silent"));
    QVERIFY(entries[0].details.contains("try extending the time by a few seconds."));
    QVERIFY(c.recorder().Status().Failed);
    QVERIFY(c.FilesInFolder().isEmpty());
    QVERIFY(c.Recordings().isEmpty());
    QVERIFY(c.tc.launcher.started.isEmpty());
}

// An MP3 format to be converted is captured as 16-bit PCM into a ".WAV.TMP" file beside the
// final name, and the end hands the request to the conversion queue instead of writing a row.
void TestRecordingCycle::recordingToConvertCapturesPcmAndQueuesIt()
{
    Cycle c;
    AppContext& ctx = c.ctx();
    c.recorder().Status().ProgramId = -1;
    c.recorder().Manual().Format.SetWaveFormatEx(
        ctx.log, WaveFormatRecord::Decode(CodecCatalogue::Mp3Record(2, 22050, 64)).value());
    c.recorder().Manual().Format.ConvertToMP3 = true;
    c.recorder().Manual().Format.SaveMP3FileExtension = true;
    c.tc.diskSpace.freeMb = 100000.0;
    const double from = At("12:00:00");
    c.tc.clock.Set(from);
    qint32 id = -1;
    QString description = "To convert";
    c.control->StartRecording(id, from, AutomationDate::AddSeconds(from, 60), description);
    QVERIFY(ctx.appStatus.Recording());
    const std::optional<RecParms> parms = RecParms::Read(c.recorder().Link().ParameterFile());
    QVERIFY(parms);
    QCOMPARE(parms->format.Encode(), CodecCatalogue::PcmRecord(2, 22050, 16));
    const QString capture = c.folder + "/060126_120000.WAV.TMP";
    QCOMPARE(parms->outputPath, capture);

    QTest::qWait(1500);
    c.tc.clock.AdvanceSeconds(2);
    c.control->HandleStopRecordingRequest(false);
    QTRY_VERIFY_WITH_TIMEOUT(!ctx.appStatus.Recording(), 12000);

    QCOMPARE(c.FilesInFolder(), QStringList{"060126_120000.WAV.TMP"});
    QVERIFY(c.Recordings().isEmpty());
    QCOMPARE(c.recorder().Conversion().Mp3ConvertQueue.size(), 1);
    const clsConvertToMP3Request& request = *c.recorder().Conversion().Mp3ConvertQueue.constFirst();
    QCOMPARE(request.SourceFile, capture);
    QCOMPARE(request.DestinationFile, c.folder + "/060126_120000.MP3");
    QCOMPARE(request.SourceFormat.wFormatTag(), quint16(1));
    QCOMPARE(request.DestinationFormat.wFormatTag(), quint16(85));
    QCOMPARE(request.Description, QString("To convert"));
    // A file that keeps the .MP3 extension gets an ID3 tag, not the software's name.
    QVERIFY(request.SoftwareName.isEmpty());
    QVERIFY(request.ManualRecording);
    QCOMPARE(request.StartTime, from);
    QCOMPARE(request.EndTime, ctx.Now());
}

// The user stops a manual recording while its task is still starting: the stop waits for the
// task and reaches it, so the recording ends at once, not by the watchdog, and the task
// leaves instead of writing on.
void TestRecordingCycle::aStopAskedWhileTheTaskStartsReachesIt()
{
    Cycle c;
    AppContext& ctx = c.ctx();
    const double from = c.ManualAt("12:00:00");
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer::singleShot(0, [&] {
        QVERIFY(ctx.appStatus.Recording());
        c.control->HandleStopRecordingRequest(false);
    });
    qint32 id = -1;
    QString description = "Stopped at once";
    c.control->StartRecording(id, from, AutomationDate::AddSeconds(from, 60), description);
    QVERIFY(c.recorder().Status().StopRequested);
    QTRY_VERIFY_WITH_TIMEOUT(!ctx.appStatus.Recording(), 8000);
    QVERIFY2(elapsed.elapsed() < 8000, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(c.recorder().Link().tmrStopRecording.Interval(), 0);
    const QString task = "/proc/" + QString::number(c.recorder().Link().StartedTasks().last());
    QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(task), 3000);
}

// The disk takes no more (here the task may write a quarter megabyte): what was written is a
// good recording. The task closes the file's header, the file is kept and listed with the
// length it holds, and the error is logged once.
void TestRecordingCycle::aWriteErrorKeepsWhatWasWritten()
{
    Cycle c;
    const QString limited = c.tc.Root() + "/limited-task";
    QVERIFY(WriteFile(limited, ("#!/bin/sh\ntrap '' XFSZ\nexec prlimit --fsize=262144 " +
                                c.recorder().Link().TaskProgram() + " \"$@\"\n")
                                   .toUtf8()));
    QVERIFY(QFile::setPermissions(limited, QFile::ReadOwner | QFile::ExeOwner));
    c.recorder().Link().SetTaskProgram(limited);
    c.AddProgram(Programs::Weekly("Full disk", "10:00:01", "10:00:30", "0100000"));
    QVERIFY(c.RecordOnce(At("10:00:00")));

    const QString path = c.folder + "/060126_100001.WAV";
    QCOMPARE(c.FilesInFolder(), QStringList{"060126_100001.WAV"});
    const QByteArray header = ReadFile(path).left(8);
    const qint64 size = QFileInfo(path).size();
    QVERIFY2(size > 100000 && size <= 262144, qPrintable(QString::number(size)));
    QCOMPARE(qint64(qFromLittleEndian<quint32>(header.constData() + 4)) + 8, size);
    double rms = 0, frequency = 0;
    QVERIFY(ToneOf(path, rms, frequency));
    QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));

    QVERIFY(!c.recorder().Status().Failed);
    const QList<RecordingRow> rows = c.Recordings();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows[0].file, path);
    const double seconds = (rows[0].end - rows[0].start) * 86400.0;
    QVERIFY2(std::abs(seconds - Soxi("-D", path).toDouble()) <= 0.6,
             qPrintable(QString::number(seconds)));
    const QList<LogEntry> entries = c.Entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].type, 2);
    QCOMPARE(entries[0].message, QString("Error writing recording file."));
}

// The sound server goes away during capture: the task reports it, the partial file is
// deleted and no row is written.
// The recording folder on a small file system of its own: the guard stops the recording
// while the disk still holds its stop limit, and the recording ends as a good one, kept and
// listed.
void TestRecordingCycle::diskGuardStopsAndKeepsTheRecording()
{
    Cycle c;
    const QString small = c.tc.Root() + "/small";
    QDir().mkpath(small);
    if (QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=26m", "tmpfs", small}) != 0)
        QSKIP("no small file system can be mounted here (needs root)");
    const auto unmount = qScopeGuard([&] { QProcess::execute("umount", {"-l", small}); });
    c.folder = small;
    c.ctx().options.DefaultRecordingDirectory = small;
    c.ctx().options.StopRecMegsLeft = 25;
    c.ctx().options.WarnRecMegsLeft = 25;

    // 44.1 kHz 16-bit stereo: 1.5 Mbytes above the limit last about nine seconds.
    QVariantHash row = Programs::Weekly("Concert", "10:00:02", "11:00:00", "0100000");
    c.AddProgram(row);
    QSqlQuery(c.ctx().database.db.Connection())
        .exec("UPDATE Programs SET wfx_nChannels = 2, wfx_nAvgBytesPerSec = 176400, "
              "wfx_nBlockAlign = 4");
    c.ctx().database.DataPrograms.Requery();

    QVERIFY(c.RecordOnce(At("10:00:01")));
    QVERIFY(!c.recorder().Status().Failed);
    const QString path = small + "/060126_100002.WAV";
    QCOMPARE(c.FilesInFolder(), QStringList{"060126_100002.WAV"});
    const double freeMb = QStorageInfo(small).bytesAvailable() / 1048576.0;
    QVERIFY2(freeMb > 22.0, qPrintable(QString::number(freeMb)));
    QCOMPARE(c.Recordings().size(), 1);
    QCOMPARE(c.Recordings()[0].file, path);
    double rms = 0, frequency = 0;
    QVERIFY(ToneOf(path, rms, frequency));
    QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));
    // The recording ended well before its time, once the guard saw the limit.
    const double seconds = QFileInfo(path).size() / 176400.0;
    QVERIFY2(seconds > 4 && seconds < 14, qPrintable(QString::number(seconds)));

    const QList<LogEntry> entries = c.Entries();
    // One entry a round until the end: a stop that reaches the task ends it within a few
    // rounds, where a lost one ran until the disk was full (hundreds).
    QVERIFY2(!entries.isEmpty() && entries.size() <= 5,
             qPrintable(QString::number(entries.size())));
    for (const LogEntry& e : entries)
        QCOMPARE(e.message, QString("Recording stopped due to insufficient disk space."));
}

void TestRecordingCycle::captureErrorDeletesThePartialFile()
{
    Cycle c;
    const qint64 id =
        c.AddProgram(Programs::Weekly("Interrupted", "10:00:01", "10:00:30", "0100000"));
    QVERIFY(c.RecordOnce(At("10:00:00"), [this] {
        QTest::qWait(1000);
        m_pulse->Stop();
    }));
    const QList<LogEntry> entries = c.Entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].type, 2);
    QVERIFY(c.recorder().Status().Failed);
    QVERIFY(c.FilesInFolder().isEmpty());
    QVERIFY(c.Recordings().isEmpty());
    // The window is still open: the occurrence is marked and is not started again.
    QCOMPARE(c.ProgramColumn(id, "RecordingCancelled").toInt(), -1);
    QCOMPARE(c.ProgramColumn(id, "RecordingCancelledEndDateAndTime").toDouble(), At("10:00:30"));
    for (int i = 0; i < 10; ++i) {
        c.tc.clock.AdvanceSeconds(0.25);
        c.recorder().HeartbeatTimer().Timer1_Timer();
    }
    QCOMPARE(c.starts, 1);
    QVERIFY(!c.ctx().appStatus.Recording());
}

// Without a sound server the task can't start: the activation logs why, and there is no
// file and no row.
void TestRecordingCycle::noSoundServerMeansNoRecording()
{
    m_pulse->Stop();
    Cycle c;
    QVariantHash row = Programs::Weekly("No sound", "10:00:01", "10:00:05", "0100000");
    row.insert({{"LaunchAppAfter", "/usr/bin/after %f"}, {"LaunchAfterOnlyIfOk", 0}});
    const qint64 id = c.AddProgram(row);
    QVERIFY(c.RecordOnce(At("10:00:00")));
    QVERIFY(!c.Entries().isEmpty());
    QCOMPARE(c.Entries().constFirst().type, 2);
    QVERIFY(c.recorder().Status().Failed);
    QVERIFY(c.FilesInFolder().isEmpty());
    QVERIFY(c.Recordings().isEmpty());
    // The command not limited to good recordings runs after a failed one too.
    QCOMPARE(c.tc.launcher.started.size(), 1);
    QVERIFY(c.tc.launcher.started[0].startsWith("/usr/bin/after 060126_1000"));
    QCOMPARE(c.ProgramColumn(id, "RecordingCancelled").toInt(), -1);
}

// The before-profile sets the recording source right before capture (software volume is
// cubic: 50 % is 18.06 dB down) and the after-profile follows the recording; a program with
// only an after-profile leaves the mixer alone.
void TestRecordingCycle::mixerProfilesAroundTheRecording()
{
    Cycle c;
    MixerProfiles& profiles = c.ctx().mixerProfiles;
    Pactl::Volumes seventy;
    for (const char* percent : {"50", "70"}) {
        QVERIFY(Pactl::Run({"set-source-volume", "recmic", QString(percent) + "%"}));
        QCOMPARE(profiles.SaveMixerProfile(percent, c.tc.messageBox),
                 MixerProfiles::SaveOutcome::Added);
        seventy = Pactl::VolumesOf("source", "recmic");
    }
    QVERIFY(Pactl::Run({"set-source-volume", "recmic", "100%"}));
    const Pactl::Volumes full = Pactl::VolumesOf("source", "recmic");

    QVariantHash row = Programs::Weekly("After only", "10:00:01", "10:00:04", "0100000");
    row.insert("MixerProfileAfter", "70");
    c.AddProgram(row);
    QVERIFY(c.RecordOnce(At("10:00:00")));
    QCOMPARE(Pactl::VolumesOf("source", "recmic"), full);

    row = Programs::Weekly("Half", "10:01:01", "10:01:04", "0100000");
    row.insert({{"MixerProfileBefore", " 50 "}, {"MixerProfileAfter", "70"}});
    c.AddProgram(row);
    c.starts = 0;
    QVERIFY(c.RecordOnce(At("10:01:00")));
    QCOMPARE(c.starts, 1);
    QCOMPARE(Pactl::VolumesOf("source", "recmic"), seventy);
    QVERIFY(c.Entries().isEmpty());

    const QList<RecordingRow> rows = c.Recordings();
    QCOMPARE(rows.size(), 2);
    double fullRms = 0, halfRms = 0, frequency = 0;
    QVERIFY(ToneOf(rows[0].file, fullRms, frequency, 0.5));
    QVERIFY(ToneOf(rows[1].file, halfRms, frequency, 0.5));
    QVERIFY2(frequency > 900 && frequency < 1100, qPrintable(QString::number(frequency)));
    const double db = 20.0 * std::log10(halfRms / fullRms);
    qInfo("the source at 50 %%: %.2f dB", db);
    QVERIFY2(std::abs(db + 18.06) <= 0.5, qPrintable(QString::number(db)));
}

// A profile the server refuses in part is logged with the library's number; the recording
// goes on.
void TestRecordingCycle::refusedProfileStillRecords()
{
    Cycle c;
    MixerProfiles& profiles = c.ctx().mixerProfiles;
    QDir().mkpath(profiles.Folder());
    QFile file(profiles.PathOf("Line in"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("nightreel-mixer-profile 1\n"
               "source recmic front-left,front-right line-in 0 65536 65536\n");
    file.close();
    QVariantHash row = Programs::Weekly("Refused", "10:00:01", "10:00:04", "0100000");
    row.insert("MixerProfileBefore", "Line in");
    c.AddProgram(row);
    QVERIFY(c.RecordOnce(At("10:00:00")));

    const QList<LogEntry> entries = c.Entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].type, 1);
    QCOMPARE(entries[0].message, QString("Error activating mixer profile"));
    QCOMPARE(entries[0].details, QString("Error number = 4"));
    QCOMPARE(c.Recordings().size(), 1);
    double rms = 0, frequency = 0;
    QVERIFY(ToneOf(c.Recordings()[0].file, rms, frequency));
    QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));
}

QTEST_GUILESS_MAIN(TestRecordingCycle)
#include "test_recordingcycle.moc"
