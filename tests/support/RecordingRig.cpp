#include "RecordingRig.h"

#include "recording/RecorderParts.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QSqlQuery>
#include <QTest>

RecordingRig::RecordingRig(bool opened)
{
    folder = tc.Root() + "/recordings";
    QDir().mkpath(folder);
    tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", folder);
    tc.ctx->options.DefaultRecordingDirectory = folder;
    recorder().SetTaskProgram(TaskProgram());
    QObject::connect(&RecorderParts::HeartbeatTimer(recorder()), &Heartbeat::StartRecordingDue,
                     [this] { ++starts; });
    if (opened) {
        ctx().manualRequest.Format.SetToPcm(1, 22050, 16);
        tc.OpenDatabase();
        tc.ctx->appStatus.SetReady(true);
    }
}

QString RecordingRig::TaskProgram()
{
    return QCoreApplication::applicationDirPath() + "/../src/nightreel-rec";
}

QString RecordingRig::StartSound(std::unique_ptr<PulseFixture>& pulse)
{
    if (!QFile::exists(TaskProgram()))
        return "the recording task is not built";
    pulse = std::make_unique<PulseFixture>();
    if (!pulse->Running())
        return "no PulseAudio server could be started";
    return pulse->PlayTone() ? QString() : QString("no tone could be played");
}

qint64 RecordingRig::AddProgram(const QVariantHash& row)
{
    QVariantHash full = Programs::WithPcmFormat(row);
    for (const char* profile : {"MixerProfileBefore", "MixerProfileAfter"})
        if (!full.contains(profile))
            full.insert(profile, "");
    return tc.AddProgram(full);
}

qint64 RecordingRig::AddProgramAt10(const QVariantHash& sideActions)
{
    QVariantHash row = Programs::Weekly("Stream", "10:00:10", "10:00:13", "0100000");
    row.insert(sideActions);
    return AddProgram(row);
}

bool RecordingRig::Run(double from, const std::function<void()>& atStart, int limitMs)
{
    tc.clock.Set(from);
    ctx().scheduler.ScheduleNextRecording();
    QElapsedTimer elapsed;
    elapsed.start();
    bool began = false;
    while (elapsed.elapsed() < limitMs) {
        tc.clock.Set(AutomationDate::AddSeconds(from, elapsed.elapsed() / 1000.0));
        RecorderParts::HeartbeatTimer(recorder()).Timer1_Timer();
        const bool recording = ctx().appStatus.Recording();
        if ((recording || starts > 0) && !began) {
            began = true;
            parmsAtStart = RecParms::Read(recorder().ParameterFile());
            if (atStart)
                atStart();
        }
        if (began && !ctx().appStatus.Recording())
            return true;
        QTest::qWait(50);
    }
    return false;
}

void RecordingRig::StartManual(double from, double seconds, const QString& description)
{
    RecorderParts::Status(recorder()).ProgramId = -1;
    tc.clock.Set(from);
    RecorderParts::Control(recorder())
        .StartRecording(-1, from, AutomationDate::AddSeconds(from, seconds), description);
}

bool RecordingRig::WaitUntilStopped(int ms)
{
    return QTest::qWaitFor([this] { return !ctx().appStatus.Recording(); }, ms);
}

QList<RecordingRow> RecordingRig::Recordings() const
{
    QList<RecordingRow> rows;
    QSqlQuery q(tc.ctx->database.db.Connection());
    q.exec("SELECT Title, File, StartTime, EndTime, Size, CompressionMethod FROM Recordings "
           "ORDER BY ID");
    while (q.next())
        rows.append({q.value(0).toString(), q.value(1).toString(), q.value(2).toDouble(),
                     q.value(3).toDouble(), q.value(4).toFloat(), q.value(5).toString()});
    return rows;
}

QStringList RecordingRig::Logged(const QString& message) const
{
    QStringList details;
    for (const LogEntry& e : tc.LogEntries())
        if (e.message == message)
            details << e.details;
    return details;
}

QStringList RecordingRig::Files(const QStringList& filter) const
{
    return QDir(folder).entryList(filter, QDir::Files, QDir::Name);
}
