#include "control/ControlService.h"

#include "common/Clock.h"
#include "common/clsAppStatus.h"
#include "control/CallMessageBox.h"
#include "control/ProgramRequest.h"
#include "control/ProgramRequestView.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "diagnostics/clsError.h"
#include "formats/clsRecordingFormat.h"
#include "nightreeladaptor.h"
#include "recording/Recorder.h"
#include "recordingslist/RecordingsList.h"
#include "scheduling/ProgramListCommands.h"
#include "scheduling/Scheduler.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDebug>
#include <QRegularExpression>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace {

const QString kErrorPrefix = QStringLiteral("org.larkmoor.Nightreel1.Error.");
constexpr int kLongestManualSeconds = 24 * 3600 - 1;

// A refused request: the kind becomes the error's name, the text its message.
struct Refusal {
    QString kind;
    QString text;
};

// "Schedule Conflict" is ScheduleConflict, "No days selected" NoDaysSelected: every box
// title of the core names its kind.
QString KindOfTitle(const QString& title)
{
    QString kind;
    for (const QString& word : title.split(u' ', Qt::SkipEmptyParts))
        kind += word.left(1).toUpper() + word.mid(1);
    kind.remove(QRegularExpression(QStringLiteral("[^A-Za-z0-9]")));
    return kind.isEmpty() || kind == QStringLiteral("Error") ? QStringLiteral("Refused") : kind;
}

[[noreturn]] void Refuse(const CallMessageBox::Refusal& refusal)
{
    throw Refusal{KindOfTitle(refusal.title), refusal.text};
}

QString DateTimeText(double date)
{
    return AutomationDate::ToDateTime(date).toString(Qt::ISODate);
}

// The rows of a recordset clone, newest (highest ID) first.
QList<QVariantMap> Rows(const Recordset& source,
                        const std::function<QVariantMap(Recordset&)>& toMap)
{
    QList<std::pair<qint64, QVariantMap>> rows;
    Recordset rs = source.Clone();
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext())
        rows.append({rs.Value(QStringLiteral("ID")).toLongLong(), toMap(rs)});
    std::sort(rows.begin(), rows.end(),
              [](const auto& a, const auto& b) { return a.first > b.first; });
    QList<QVariantMap> maps;
    for (auto& row : rows)
        maps.append(std::move(row.second));
    return maps;
}

} // namespace

ControlService::ControlService(const ControlServices& services, QObject* parent)
    : QObject(parent)
    , m_s(services)
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    new NightreelAdaptor(this);
    Recorder& recorder = m_s.recorder;
    connect(&recorder, &Recorder::RecordingStarted, this, [this] {
        m_recordingFile = m_s.recorder.Status().FinalFile;
        emit RecordingStarted(m_s.recorder.Status().Description, m_recordingFile);
    });
    connect(&recorder, &Recorder::RecordingEnded, this, &ControlService::OnRecordingEnded);
    connect(&m_s.appStatus, &clsAppStatus::Update, this, &ControlService::OnModeMaybeChanged);
    connect(&recorder, &Recorder::UpdateModeDisplay, this, &ControlService::OnModeMaybeChanged);
    connect(&m_s.error, &clsError::IndicationUpdated, this, [this] {
        const QStringList conditions = m_s.error.ConditionTexts();
        if (conditions != m_conditions) {
            m_conditions = conditions;
            emit ConditionsChanged(conditions);
        }
    });
    m_mode = CurrentMode();
    m_conditions = m_s.error.ConditionTexts();
}

bool ControlService::Register(QDBusConnection bus)
{
    if (!bus.isConnected()) {
        qWarning().noquote() << tr("The control interface is not offered: no session bus.");
        return false;
    }
    if (!bus.registerObject(QString::fromLatin1(ObjectPath), this) ||
        !bus.registerService(QString::fromLatin1(ServiceName))) {
        qWarning().noquote() << tr("The control interface is not offered:")
                             << bus.lastError().message();
        return false;
    }
    return true;
}

void ControlService::Serve(const char* method, const std::function<void()>& body)
{
    try {
        const CallMessageBox::Capture capture(m_s.messageBox);
        if (!Trap(m_s.log, method, body))
            throw Refusal{QStringLiteral("Failed"), tr("The request failed; see the event log.")};
        if (capture.Refused())
            Refuse(*capture.Refused());
    } catch (const Refusal& refusal) {
        if (calledFromDBus())
            sendErrorReply(kErrorPrefix + refusal.kind, refusal.text);
    }
}

QString ControlService::CurrentMode()
{
    return m_s.recorder.Mode({}).panelText;
}

void ControlService::OnModeMaybeChanged()
{
    const QString mode = CurrentMode();
    if (mode == m_mode)
        return;
    m_mode = mode;
    emit ModeChanged(mode);
}

void ControlService::OnRecordingEnded()
{
    const bool ok = !m_s.recorder.Status().Failed;
    const double since = m_s.recorder.Status().StartTime;
    const QString file = std::exchange(m_recordingFile, QString());
    // A task that reports a failure has its recording stopped first and the report logged
    // right after: the reason is read once that is done.
    QTimer::singleShot(0, this, [this, file, ok, since] {
        emit RecordingEnded(file, ok, ok ? QString() : FailureReason(since));
    });
}

QString ControlService::FailureReason(double since) const
{
    Recordset rs = m_s.database.ElogRecordset().Clone();
    QString reason;
    qint64 newest = -1;
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
        const qint64 id = rs.Value(QStringLiteral("ID")).toLongLong();
        if (rs.Value(QStringLiteral("Type")).toInt() == EventError &&
            rs.Value(QStringLiteral("DateAndTime")).toDouble() >= since && id > newest) {
            newest = id;
            reason = rs.Value(QStringLiteral("Message")).toString() + QStringLiteral(": ") +
                     rs.Value(QStringLiteral("Details")).toString();
        }
    }
    return reason.isEmpty() ? tr("The recording failed; see the event log.") : reason;
}

QVariantMap ControlService::Status()
{
    QVariantMap status{{"mode", CurrentMode()},
                       {"recording", m_s.appStatus.Recording()},
                       {"paused", m_s.appStatus.Paused()},
                       {"converting", m_s.appStatus.Converting()}};
    if (m_s.appStatus.Recording()) {
        const clsRecordingStatus& recording = m_s.recorder.Status();
        status.insert("description", recording.Description);
        status.insert("file", recording.FinalFile);
        status.insert("elapsed",
                      uint(AutomationDate::SecondsBetween(recording.StartTime, m_s.clock.Now())));
        status.insert("end", DateTimeText(recording.EndTime));
    }
    const NextProgram& next = m_s.scheduler.next;
    if (next.NextProgramFound) {
        status.insert("next_id", next.NextProgramId);
        status.insert("next_description", next.NextProgramDescription);
        status.insert("next_start", DateTimeText(next.NextProgramStart));
    }
    return status;
}

QList<QVariantMap> ControlService::NextPrograms(int count)
{
    QList<QVariantMap> chain;
    // The forecast's chain: each search starts at the end of the occurrence before.
    auto found = m_s.scheduler.DetermineNextProgramToSchedule(true, m_s.clock.Now());
    while (found && chain.size() < count) {
        chain.append({{"id", found->programId},
                      {"description", found->description},
                      {"start", DateTimeText(found->startDateTime)},
                      {"end", DateTimeText(found->endDateTime)}});
        found = m_s.scheduler.DetermineNextProgramToSchedule(true, found->endDateTime);
    }
    return chain;
}

QList<QVariantMap> ControlService::Programs()
{
    QList<QVariantMap> programs;
    Serve("Programs", [&] {
        programs = Rows(m_s.database.DataPrograms.recordset(), [this](Recordset& rs) {
            return ProgramRequest::ToMap(rs.Value(QStringLiteral("ID")).toInt(),
                                         ProgramEditor::ReadProgramRow(m_s.mixerFolder, rs));
        });
        std::reverse(programs.begin(), programs.end());
    });
    return programs;
}

void ControlService::RequireProgram(qint64 id)
{
    Recordset rs = m_s.database.DataPrograms.recordset().Clone();
    rs.FindFirst(QStringLiteral("ID = ") + QString::number(id));
    if (rs.NoMatch())
        throw Refusal{QStringLiteral("NoSuchProgram"), tr("There is no program %1.").arg(id)};
}

qint64 ControlService::RunProgramCommand(qint64 bookmark, const QVariantMap& changes,
                                         const std::function<void(ProgramListCommands&)>& command)
{
    ProgramRequestView view({m_s.log, m_s.database, m_s.clock, m_s.options, m_s.messageBox},
                            bookmark, changes);
    ProgramListCommands commands({m_s.database, m_s.scheduler, m_s.messageBox, m_s.clock,
                                  m_s.defaultFormat, m_s.mixerFolder},
                                 view);
    command(commands);
    if (view.Refused())
        Refuse(*view.Refused());
    return view.CurrentBookmark();
}

int ControlService::AddProgram(const QVariantMap& program)
{
    int id = 0;
    Serve("AddProgram", [&] {
        id = int(RunProgramCommand(-1, program, [](ProgramListCommands& c) { c.AddNewProgram(); }));
        if (id < 0)
            throw Refusal{QStringLiteral("Failed"),
                          tr("The program was not saved; see the event log.")};
    });
    return id;
}

void ControlService::UpdateProgram(int id, const QVariantMap& changes)
{
    Serve("UpdateProgram", [&] {
        RequireProgram(id);
        RunProgramCommand(id, changes, [](ProgramListCommands& c) { c.EditProgram(); });
    });
}

void ControlService::RemoveProgram(int id)
{
    Serve("RemoveProgram", [&] {
        RequireProgram(id);
        RunProgramCommand(id, {}, [](ProgramListCommands& c) { c.RemovePrograms(); });
    });
}

void ControlService::SetProgramEnabled(int id, bool enabled)
{
    Serve("SetProgramEnabled", [&] {
        RequireProgram(id);
        Recordset rs = m_s.database.DataPrograms.recordset().Clone();
        rs.SetBookmark(id);
        // The list's command toggles: it runs only when the program is not so already.
        if (Field::ToBool(rs.Value(QStringLiteral("Enabled"))) != enabled)
            RunProgramCommand(id, {}, [](ProgramListCommands& c) { c.ToggleProgramEnables(); });
    });
}

QString ControlService::StartManual(uint seconds, const QString& description)
{
    QString file;
    Serve("StartManual", [&] {
        if (seconds < 1 || seconds > uint(kLongestManualSeconds))
            throw Refusal{QStringLiteral("InvalidArgument"),
                          tr("A manual recording lasts from 1 second to 23:59:59.")};
        if (m_s.appStatus.Recording())
            throw Refusal{QStringLiteral("RecordingInProgress"),
                          tr("A recording is already in progress.")};
        if (description.trimmed().isEmpty())
            throw Refusal{QStringLiteral("DescriptionRequired"), tr("Please enter a description.")};
        clsManualRecord& request = m_s.manualRequest;
        request.Format.CopyFrom(m_s.defaultFormat);
        if (CheckFor2GbLimit(m_s.messageBox, request.Format, qint32(seconds)))
            return;
        request.DurationSeconds = qint32(seconds);
        request.Description = description;
        request.Filename.clear();
        request.Requested = true;
        m_s.recorder.StartManualRecording();
        if (!m_s.appStatus.Recording())
            throw Refusal{QStringLiteral("NotStarted"),
                          tr("The recording did not start; see the event log.")};
        file = m_s.recorder.Status().FinalFile;
    });
    return file;
}

void ControlService::Stop()
{
    Serve("Stop", [&] {
        if (!m_s.appStatus.Recording() && !m_s.appStatus.Converting())
            throw Refusal{QStringLiteral("NotRecording"),
                          tr("Nothing is being recorded or converted.")};
        m_s.recorder.StopCommand(false);
    });
}

bool ControlService::PauseResume()
{
    Serve("PauseResume", [&] {
        if (!m_s.appStatus.Recording())
            throw Refusal{QStringLiteral("NotRecording"), tr("Nothing is being recorded.")};
        m_s.recorder.PauseCommand(QStringLiteral("T"));
    });
    return m_s.appStatus.Paused();
}

QList<QVariantMap> ControlService::Recordings()
{
    QList<QVariantMap> recordings;
    Serve("Recordings", [&] {
        recordings = Rows(m_s.database.DataRecordings.recordset(), [](Recordset& rs) {
            return QVariantMap{
                {"id", rs.Value(QStringLiteral("ID")).toInt()},
                {"description", rs.Value(QStringLiteral("Title")).toString()},
                {"file", rs.Value(QStringLiteral("File")).toString()},
                {"start", DateTimeText(rs.Value(QStringLiteral("StartTime")).toDouble())},
                {"end", DateTimeText(rs.Value(QStringLiteral("EndTime")).toDouble())},
                {"format", rs.Value(QStringLiteral("CompressionMethod")).toString()},
                {"size_mb", rs.Value(QStringLiteral("Size")).toDouble()}};
        });
    });
    return recordings;
}

void ControlService::DeleteRecording(int id, bool deleteFile)
{
    Serve("DeleteRecording", [&] {
        const auto listed = [this, id] {
            Recordset rs = m_s.database.DataRecordings.recordset().Clone();
            rs.FindFirst(QStringLiteral("ID = ") + QString::number(id));
            return !rs.NoMatch();
        };
        if (!listed())
            throw Refusal{QStringLiteral("NoSuchRecording"),
                          tr("There is no recording %1.").arg(id)};
        if (deleteFile)
            m_s.recordingsList.DeleteFromDisk({id});
        else
            m_s.recordingsList.RemoveFromList({id});
        if (listed())
            throw Refusal{QStringLiteral("NotDeleted"),
                          tr("The file could not be deleted; see the event log.")};
    });
}

QStringList ControlService::Errors()
{
    return m_s.error.ConditionTexts();
}

QList<QVariantMap> ControlService::EventLog(int count)
{
    static const QStringList kTypes = {"information", "warning", "error"};
    QList<QVariantMap> entries;
    Serve("EventLog", [&] {
        entries = Rows(m_s.database.ElogRecordset(), [](Recordset& rs) {
            const int type = std::clamp(rs.Value(QStringLiteral("Type")).toInt(), 0, 2);
            return QVariantMap{
                {"type", kTypes[type]},
                {"time", DateTimeText(rs.Value(QStringLiteral("DateAndTime")).toDouble())},
                {"message", rs.Value(QStringLiteral("Message")).toString()},
                {"details", rs.Value(QStringLiteral("Details")).toString()}};
        });
    });
    return entries.mid(0, std::max(count, 0));
}
