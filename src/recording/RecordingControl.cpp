#include "recording/RecordingControl.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/MessageBox.h"
#include "common/TextHelpers.h"
#include "common/UnattendedPath.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "formats/FormatStore.h"
#include "formats/ModuleFileTime.h"
#include "formats/Mp3Info.h"
#include "platform/DiskSpace.h"
#include "recording/ConversionQueue.h"
#include "recording/RecordingTaskErrors.h"
#include "recording/RecordingTaskLink.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/Scheduler.h"
#include "sideactions/HangUpConnections.h"
#include "sideactions/LaunchCommands.h"
#include "sideactions/MixerProfiles.h"
#include "store/AppDatabase.h"
#include "store/EachStep.h"
#include "store/Options.h"
#include "store/ProgramRow.h"
#include "store/RecordingRow.h"
#include "taskcontract/CueSheetPath.h"
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskErrors.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <cmath>

using namespace TaskProtocol;

namespace {

QString SoftwareName()
{
    return QCoreApplication::translate("RecordingControl", "Nightreel 2000 %1.%2")
        .arg(NIGHTREEL_VERSION_MAJOR)
        .arg(NIGHTREEL_VERSION_MINOR);
}

// The start on the task's clock, in milliseconds since 1970, for a stream opened ahead that
// must begin on the due second itself. The program's clock reads whole seconds, the second
// under way; a clock with finer readings (a test's) is taken as it reads.
qint64 DueMsecs(const Clock& clock, double start)
{
    const double now = clock.Now();
    const qint64 real = QDateTime::currentMSecsSinceEpoch();
    const double nowSeconds = now * 86400.0;
    const bool wholeSeconds = std::abs(nowSeconds - std::round(nowSeconds)) < 0.001;
    const qint64 base = wholeSeconds ? real / 1000 * 1000 : real;
    return base + qint64(std::llround((start - now) * 86400000.0));
}

// A step of the start or the end of a recording that the rest goes on after, as their rules
// say: its failure, marked with the routine's name, is kept for the caller to report. False
// when it failed.
template <typename Body>
bool KeptStep(QList<std::exception_ptr>& failed, const char* routine, Body&& body)
{
    const QList<std::exception_ptr> failure = EachStep([&] { InRoutine(routine, body); });
    failed += failure;
    return failure.isEmpty();
}

template <typename Body> bool StartStep(QList<std::exception_ptr>& failed, Body&& body)
{
    return KeptStep(failed, "StartRecording", body);
}

} // namespace

RecordingControl::RecordingControl(const RecordingControlServices& services,
                                   RecordingTaskLink& link, clsRecordingStatus& status,
                                   ConversionQueue& conversion, const clsManualRecord& manual,
                                   QObject* parent)
    : QObject(parent)
    , m_s(services)
    , m_link(link)
    , m_status(status)
    , m_conversion(conversion)
    , m_manual(manual)
    , m_player(services.clock, services.windows, services.log)
{
    connect(&m_link, &RecordingTaskLink::StopRecording, this, &RecordingControl::StopRecording);
    connect(&m_link, &RecordingTaskLink::TaskError, this, &RecordingControl::OnTaskError);
    connect(&m_link, &RecordingTaskLink::StreamFormatKept, this,
            &RecordingControl::OnStreamFormatKept);
    connect(&m_link, &RecordingTaskLink::TaskNotResponding, this,
            &RecordingControl::OnTaskNotResponding);
}

RecordingControl::~RecordingControl() = default;

void RecordingControl::ExitAndClear()
{
    m_s.appStatus.SetRecording(false);
}

void RecordingControl::OnTaskError(qint32 code, const QString& detail)
{
    // A task may report more than once; only the first report ends the recording. The
    // report comes after the stop, as the system logged it.
    if (m_status.Failed || m_status.WriteFailed)
        return;
    // What was written before the disk filled or went away is kept and listed like a
    // recording stopped early; any other error fails the recording.
    if (TaskError::IsWriteError(code))
        m_status.WriteFailed = true;
    else
        m_status.Failed = true;
    StopRecording();
    ReportRecordingTaskError(m_s.log, code, detail);
}

void RecordingControl::OnStreamFormatKept(const QByteArray& record)
{
    Trap(m_s.log, "OnStreamFormatKept", [&] {
        const std::optional<WaveFormatRecord> format = WaveFormatRecord::Decode(record);
        if (!format || format->wFormatTag != clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3)
            return;
        m_format.SetWaveFormatEx(*format);
        m_status.CompressionText =
            m_format.TextCompressionMethodShort + tr("   (Kept as broadcast)");
    });
}

void RecordingControl::OnTaskNotResponding()
{
    if (m_status.Failed)
        return;
    m_s.log.LogEvent(EventError, tr("No response from recording task."),
                     tr("Perform a test recording with a PCM recording format. If the error "
                        "does not reoccur, there may have been a problem with the recording "
                        "format.  Otherwise, the recording task may be locked and require a "
                        "system restart. \rThe error occurred during the following "
                        "recording: ") +
                         m_status.Description);
    m_status.Failed = true;
    StopRecording();
}

void RecordingControl::RequestStop()
{
    if (m_status.StopRequested)
        return;
    m_status.StopRequested = true;
    m_link.PostStop();
}

void RecordingControl::StartRecording(qint32 ProgramId, double StartTime, double EndTime,
                                      const QString& Description)
{
    Trap(m_s.log, "StartRecording",
         [&] { BeginRecording(ProgramId, StartTime, EndTime, Description); });
}

void RecordingControl::BeginRecording(qint32 ProgramId, double StartTime, double EndTime,
                                      const QString& Description)
{
    if (m_s.appStatus.Suspended())
        return;
    // First of all: the steps below let events run, and the heartbeat must see a recording.
    m_s.appStatus.SetRecording(true);
    m_status.StopRequested = false;
    m_status.WriteFailed = false;
    QList<std::exception_ptr> failed;
    std::optional<PlannedRecording> planned;
    if (!StartStep(failed,
                   [&] { planned = PlanStart(ProgramId, StartTime, EndTime, Description); }))
        PassOverFailedStart(failed, ProgramId, EndTime);
    else if (const auto* refusal = std::get_if<RecordingRefusal>(&*planned))
        Refuse(failed, *refusal);
    else
        CarryOut(failed, std::get<RecordingPlan>(*planned), StartTime);
    ThrowFailures(failed);
}

void RecordingControl::PassOverFailedStart(QList<std::exception_ptr>& failed, qint32 ProgramId,
                                           double EndTime)
{
    // Nothing was captured and nothing runs (a program whose format can't be read ends here):
    // the occurrence is passed over as at the end of a recording, and the next one sought,
    // also when the program's row can't be marked.
    StartStep(failed, [&] { m_s.scheduler.CancelRecording(ProgramId, EndTime); });
    StartStep(failed, [&] {
        ExitAndClear();
        m_s.scheduler.ScheduleNextRecording();
    });
}

RecordingRequest RecordingControl::Request(qint32 ProgramId, double StartTime, double EndTime,
                                           const QString& Description) const
{
    RecordingRequest request;
    request.ProgramId = ProgramId;
    request.StartTime = StartTime;
    request.EndTime = EndTime;
    if (ProgramId == -1) {
        request.Format.CopyFrom(m_manual.Format);
        request.Description = Description;
        request.UserFileName = m_manual.Filename;
        request.StreamUrl = m_manual.StreamUrl;
        return request;
    }
    Recordset programs = m_s.database.DataPrograms.recordset().Clone();
    programs.FindFirst(QStringLiteral("Id = ") + QString::number(ProgramId));
    if (programs.NoMatch())
        return request;
    request.Program = ProgramRow::Read(programs);
    RequireStartValues(*request.Program);
    ReadFormat(request.Format, programs);
    return request;
}

RecordingSettings RecordingControl::Settings(bool manual) const
{
    const Options& o = m_s.options;
    RecordingSettings settings;
    settings.Folder = o.DefaultRecordingDirectory;
    settings.RecordingInput = o.RecordingInput;
    settings.FileNameFormat = o.DefaultRecordFileNameFormat;
    settings.StopRecMegsLeft = o.StopRecMegsLeft;
    // Only a manual recording is refused for space.
    if (manual && !settings.Folder.isEmpty())
        settings.FreeMbytes =
            m_s.diskSpace.GetRecDirDiskSpaceMb(RecordingFolder(settings.Folder)).free;
    settings.Converting = m_s.appStatus.Converting();
    settings.SilenceThresholdDb = o.SilenceThresholdDb;
    settings.SilenceSeconds = o.SilenceAlarm ? o.SilenceAlarmSeconds : 0;
    settings.SoftwareName = SoftwareName();
    return settings;
}

void RecordingControl::Refuse(QList<std::exception_ptr>& failed, const RecordingRefusal& refusal)
{
    const bool passOver = refusal.Why == RecordingRefusal::Reason::NotEnoughSpace;
    // The recording is given up whatever fails on the way.
    StartStep(failed, [&] {
        if (!refusal.Title.isEmpty())
            m_s.messageBox.Show(refusal.Title, refusal.Text, MsgIcon::Exclamation, MsgButtons::Ok);
    });
    StartStep(failed, [&] {
        if (passOver)
            m_s.scheduler.CancelRecording(-1, m_status.EndTime);
    });
    StartStep(failed, [&] {
        if (passOver)
            m_s.scheduler.ScheduleNextRecording();
        ExitAndClear();
    });
}

PlannedRecording RecordingControl::PlanStart(qint32 ProgramId, double StartTime, double EndTime,
                                             const QString& Description)
{
    // The program is the one under way from here on, also when its row fails the plan.
    if (ProgramId != -1)
        m_status.ProgramId = ProgramId;
    return PlanRecording(Request(ProgramId, StartTime, EndTime, Description),
                         Settings(ProgramId == -1), m_s.clock.Now(),
                         [](const QString& path) { return QFileInfo::exists(path); });
}

void RecordingControl::CarryOut(QList<std::exception_ptr>& failed, const RecordingPlan& plan,
                                double StartTime)
{
    // Each step needs the one before. A failure leaves Recording set on purpose: the clock
    // or the keep-alive ends it, with this recording's status. Only the mixer profile may
    // fail without holding up the start.
    const auto step = [&failed](auto&& body) {
        return StartStep(failed, body);
    };
    bool taskUp = false;
    if (!step([&] { taskUp = StartTask(plan, StartTime); }))
        return;
    if (!taskUp) {
        // The activation has logged why.
        m_status.Failed = true;
        EndRecording(failed);
        return;
    }
    // The mixer is set once the task is up and right before capture, never earlier.
    if (!Text::Trim(m_status.MixerProfileBefore).isEmpty())
        step([&] { m_s.mixerProfiles.ActivateMixerProfile(m_status.MixerProfileBefore); });
    qint32 refused = 0;
    if (!step([&] { refused = StartCapture(); }) || refused < 1)
        return;
    m_status.Failed = true;
    EndRecording(failed);
    ReportRecordingTaskError(m_s.log, refused);
}

bool RecordingControl::StartTask(const RecordingPlan& plan, double StartTime)
{
    if (!plan.WantedFileName.isEmpty())
        m_s.log.LogEvent(EventInformation, tr("Recording saved under a new name"),
                         tr("A file named \"%1\" is already in the recording folder "
                            "and is kept. The recording \"%2\" is saved as \"%3\".")
                             .arg(plan.WantedFileName, plan.Status.Description,
                                  QFileInfo(plan.Status.FinalFile).fileName()));
    // The flags that a stop or a task report may have set since BeginRecording stay.
    const bool stopRequested = m_status.StopRequested;
    m_status = plan.Status;
    m_status.StopRequested = stopRequested;
    m_format.CopyFrom(plan.Format);
    m_convertRequest = plan.Conversion;
    RecParms parms = plan.Parms;
    if (!parms.streamUrl.isEmpty())
        parms.dueStartMsecs = DueMsecs(m_s.clock, StartTime);

    // The keep-alive runs from before the parameter file is written.
    m_link.StartKeepAlive();
    const QString parameterFile = m_link.ParameterFile();
    QFile::remove(parameterFile);
    UnattendedPath::LetEventsRun();
    parms.Write(parameterFile);
    UnattendedPath::LetEventsRun();
    if (!m_link.ActivateNightreeltask())
        return false;
    m_link.StartKeepAlive();
    return true;
}

qint32 RecordingControl::StartCapture()
{
    UnattendedPath::LetEventsRun();
    const qint32 result = m_link.SendMessage(REC_MSG_START);
    if (result >= 1)
        return result;

    emit RecordingStarted();
    m_s.appStatus.SetPaused(false);
    emit UpdateModeDisplay();
    // The player that the link opened is found among the windows that are new by now.
    if (!m_status.InternetLink.isEmpty() && m_status.StreamingPlayerClose.isEmpty())
        m_player.SnapshotWindowsAtRecordingStart();
    if (m_s.options.ShowRecordingTimeInTaskBar)
        emit ShowRecordingStatusForm();
    return result;
}

void RecordingControl::HandleStopRecordingRequest(bool Confirm)
{
    InRoutine("HandleStopRecordingRequest", [&] {
        const clsRecordingStatus& status = m_status;
        if (m_s.appStatus.Recording()) {
            // A scheduled recording is never stopped without a question.
            if (Confirm || status.ProgramId != -1) {
                const QString text =
                    status.ConvertToMP3 ? tr("This will stop and convert the recording in progress "
                                             "to MP3.  Are you sure you want to stop recording?")
                                        : tr("This will stop and save the recording in progress.  "
                                             "Are you sure you want to stop recording?");
                if (m_s.messageBox.Show(tr("Nightreel 2000"), text, MsgIcon::None,
                                        MsgButtons::YesNo) != MsgResult::Yes)
                    return;
            }
            // The recording may have ended while the question stood; the request then posts
            // nothing, or posts to a task that is gone.
            RequestStop();
        } else if (m_s.appStatus.Converting()) {
            const auto& current = m_conversion.CurrentConvertRequest;
            if (Confirm || !current || !current->ManualRecording) {
                // The three blanks in the second text are intended.
                const QString text =
                    m_conversion.Mp3ConvertQueue.isEmpty()
                        ? tr("This will stop and save the MP3 conversion in progress. "
                             " Are you sure you want to stop the MP3 conversion?")
                        : tr("This will stop and save the MP3 conversion in progress "
                             "and abort the remaining MP3 conversions in the queue.   "
                             "Are you sure you want to stop the MP3 conversion?");
                if (m_s.messageBox.Show(tr("Nightreel 2000"), text, MsgIcon::Question,
                                        MsgButtons::YesNo) != MsgResult::Yes)
                    return;
            }
            m_conversion.StopMp3Conversion = true;
        }
    });
}

void RecordingControl::ToolbarPauseResume(const QString& Command)
{
    InRoutine("ToolbarPauseResume", [&] {
        const bool wasPaused = m_s.appStatus.Paused();
        const QString command = Command.toUpper();
        if (command == QStringLiteral("P"))
            m_s.appStatus.SetPaused(true);
        else if (command == QStringLiteral("R"))
            m_s.appStatus.SetPaused(false);
        else
            m_s.appStatus.SetPaused(!wasPaused);
        // The pause only changes what the task writes: the clock, the end, the disk guard
        // and the keep-alive all go on.
        if (m_s.appStatus.Paused() != wasPaused)
            m_link.SendMessage(REC_MSG_PAUSE_TOGGLE);
        emit UpdateModeDisplay();
    });
}

void RecordingControl::StopRecording()
{
    QList<std::exception_ptr> failed;
    EndRecording(failed);
    ReportEach(m_s.log, "StopRecording", failed);
}

void RecordingControl::EndRecording(QList<std::exception_ptr>& failed)
{
    emit UnloadRecordingStatusForm();
    if (!m_s.appStatus.Recording())
        return;
    // Each step needs the one before, and a failure leaves Recording set until the next
    // call; but the file's row, the program's cancel and the mixer profile may each fail
    // without holding up the rest.
    const clsRecordingStatus& status = m_status;
    const auto step = [&failed](auto&& body) {
        return KeptStep(failed, "StopRecording", body);
    };
    std::optional<RecordingEndPlan> plan;
    if (!step([&] { plan = EndCapture(); }))
        return;
    if (plan->file == RecordingEndPlan::File::List)
        step([&] {
            ListRecording(status.Description, status.FinalFile, status.StartTime,
                          status.CompressionText, m_format);
        });
    if (!step([&] { EndFile(plan->file); }))
        return;
    if (plan->cancelProgram)
        step([&] { m_s.scheduler.CancelRecording(status.ProgramId, status.EndTime); });
    if (!step([&] { EndPlayerAndConnection(*plan); }))
        return;
    if (plan->applyMixerProfileAfter)
        step([&] { m_s.mixerProfiles.ActivateMixerProfile(status.MixerProfileAfter); });
    step([&] { Finish(); });
}

RecordingEndPlan RecordingControl::EndCapture()
{
    m_link.RecordingOver();
    emit UpdateModeDisplay();
    // The task has closed the file; give the file system a moment. No events run here.
    QThread::msleep(250);

    const QString& file = m_status.RecordingFile;
    const float size = QFile::exists(file) ? ModuleFileTime::GetFileSizeMbytes(file) : 0.0f;
    return PlanRecordingEnd(m_status, size, m_s.hasDisplay);
}

void RecordingControl::Finish()
{
    m_status.FinalFile.clear();
    m_s.appStatus.SetRecording(false);
    m_s.scheduler.ScheduleNextRecording();
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
    emit RecordingEnded();
}

void RecordingControl::EndFile(RecordingEndPlan::File file)
{
    clsRecordingStatus& status = m_status;
    switch (file) {
    case RecordingEndPlan::File::Convert:
        // The conversion takes over: it writes the row and runs the launch after it.
        if (m_convertRequest) {
            m_convertRequest->EndTime = m_s.clock.Now();
            m_conversion.Add(m_convertRequest);
        }
        return;
    case RecordingEndPlan::File::List:
        // Listed before: a row that failed leaves the file on disk without one.
        break;
    case RecordingEndPlan::File::NoData:
        m_s.log.LogEvent(EventError, tr("Recording failed"),
                         tr("The following recording failed since no recording data was "
                            "written:\r\n") +
                             status.Description +
                             tr("\r\n\r\nTry a different recording format or bit rate.  If you "
                                "are performing a short (under 30 seconds) recording, try "
                                "extending the time by a few seconds."));
        status.Failed = true;
        [[fallthrough]];
    case RecordingEndPlan::File::Discard:
        QFile::remove(status.RecordingFile);
        QFile::remove(CueSheetPath(status.FinalFile));
        break;
    }
    LaunchAfterRecording(m_s.log, m_s.launcher, file == RecordingEndPlan::File::List,
                         status.LaunchAppAfter, status.LaunchAfterOnlyIfOk, status.FinalFile);
}

void RecordingControl::EndPlayerAndConnection(const RecordingEndPlan& plan)
{
    const clsRecordingStatus& status = m_status;
    switch (plan.player) {
    case RecordingEndPlan::Player::Leave:
        break;
    case RecordingEndPlan::Player::NoDisplayToCloseOn:
        m_s.log.LogEvent(EventInformation, tr("Streaming player not closed"),
                         tr("There is no display to close it on."));
        break;
    case RecordingEndPlan::Player::CloseNewWindows:
        m_player.CloseNewWindows();
        break;
    case RecordingEndPlan::Player::CloseByTitle:
        m_player.CloseWindowsByTitle(status.StreamingPlayerClose.trimmed());
        break;
    }
    if (plan.hangUp)
        HangUpConnections(m_s.network);
}

void RecordingControl::DoEndOfRecordingStuff(const QString& Title, const QString& File,
                                             double StartTime, double EndTime,
                                             const QString& CompressionMethod,
                                             const clsRecordingFormat& Format)
{
    // The row's end is the file's time, not the end the caller saw.
    Q_UNUSED(EndTime);
    Trap(m_s.log, "DoEndOfRecordingStuff",
         [&] { ListRecording(Title, File, StartTime, CompressionMethod, Format); });
}

void RecordingControl::ListRecording(const QString& Title, const QString& File, double StartTime,
                                     const QString& CompressionMethod,
                                     const clsRecordingFormat& Format)
{
    InRoutine("DoEndOfRecordingStuff", [&] {
        // The row describes what the file holds, so pauses and late starts show in its times.
        RecordingRow row;
        row.Title = Title;
        row.File = File;
        row.CompressionMethod = CompressionMethod;
        row.Size = ModuleFileTime::GetFileSizeMbytes(File);
        row.EndTime = ModuleFileTime::FileDateTime(File);
        row.StartTime =
            AutomationDate::AddSeconds(row.EndTime, -Format.CalcSecondsFromMbytes(row.Size));
        const qint64 id = WriteRecordingRow(m_s.database, row);
        Recordset& rs = m_s.database.DataRecordings.recordset();
        rs.Requery();
        rs.FindFirst(QStringLiteral("Id = ") + QString::number(id));

        if (File.endsWith(QStringLiteral(".mp3"), Qt::CaseInsensitive))
            Mp3File::WriteId3Tag(File, Title, QString(), QString(), QString(),
                                 tr("Nightreel 2000 Recording"), 12);

        m_s.options.SaveRecentRecording(m_s.registry, File, Title, StartTime);
    });
}
