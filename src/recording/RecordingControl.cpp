#include "recording/RecordingControl.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/MessageBox.h"
#include "common/RuntimeError.h"
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
#include "recording/RecordingFileName.h"
#include "recording/RecordingTaskErrors.h"
#include "recording/RecordingTaskLink.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/Scheduler.h"
#include "scheduling/StreamingPlayerClose.h"
#include "sideactions/HangUpConnections.h"
#include "sideactions/LaunchCommands.h"
#include "sideactions/MixerProfiles.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskErrors.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QThread>
#include <cmath>

using namespace TaskProtocol;

namespace {

constexpr float kLeastRecordingMbytes = 0.001f;
constexpr double kDirectRecordingMbytes = 0.5;

QString TextColumn(const Recordset& rs, const QString& column, bool trimmed)
{
    if (rs.IsNull(column))
        return QString();
    const QString value = rs.Value(column).toString();
    return trimmed ? value.trimmed() : value;
}

bool BoolColumn(const Recordset& rs, const QString& column)
{
    return !rs.IsNull(column) && rs.Value(column).toInt() != 0;
}

QString SoftwareName()
{
    return QCoreApplication::translate("RecordingControl", "Nightreel 2000 %1.%2")
        .arg(NIGHTREEL_VERSION_MAJOR)
        .arg(NIGHTREEL_VERSION_MINOR);
}

const QString kCaptureEnding = QStringLiteral(".WAV.TMP");

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

QString WithClosingSeparator(const QString& folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

} // namespace

RecordingControl::RecordingControl(const RecorderServices& services, RecordingTaskLink& link,
                                   clsRecordingStatus& status, ConversionQueue& conversion,
                                   const clsManualRecord& manual, QObject* parent)
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

QString RecordingControl::UnusedFileName(const QString& folder, QString& baseName,
                                         const QString& extension, const QStringList& endings,
                                         const QString& description)
{
    const QString wanted = baseName;
    baseName = FreeBaseName(folder, wanted, endings);
    if (baseName != wanted)
        m_s.log.LogEvent(EventInformation, tr("Recording saved under a new name"),
                         tr("A file named \"%1\" is already in the recording folder "
                            "and is kept. The recording \"%2\" is saved as \"%3\".")
                             .arg(wanted + extension, description, baseName + extension));
    return folder + baseName + extension;
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
        m_format.SetWaveFormatEx(m_s.log, *format);
        m_status.CompressionText =
            m_format.TextCompressionMethodShort + tr("   (Kept as broadcast)");
    });
}

void RecordingControl::OnTaskNotResponding()
{
    Trap(m_s.log, "tmrKeepAlive_Timer", [&] {
        if (m_status.Failed)
            return;
        m_s.log.LogEvent(
            EventError, tr("No response from recording task."),
            tr("Perform a test recording with a PCM recording format. If the error "
               "does not reoccur, there may have been a problem with the recording "
               "format.  Otherwise, the recording task may be locked and require a "
               "system restart. \rThe error occurred during the following recording: ") +
                m_status.Description);
        m_status.Failed = true;
        StopRecording();
    });
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
    if (m_s.appStatus.Suspended())
        return;
    // First of all: the steps below let events run, and the heartbeat must see a recording.
    m_s.appStatus.SetRecording(true);
    m_status.StopRequested = false;
    m_status.WriteFailed = false;
    // A failure leaves Recording set on purpose: the clock or the keep-alive ends it.
    Trap(m_s.log, "StartRecording",
         [&] { StartRecordingSteps(ProgramId, StartTime, EndTime, Description); });
}

void RecordingControl::StartRecordingSteps(qint32 ProgramId, double StartTime, double EndTime,
                                           const QString& Description)
{
    clsRecordingStatus& status = m_status;
    const QString softwareName = SoftwareName();
    QString folder = m_s.options.DefaultRecordingDirectory;
    clsRecordingFormat chosen;
    QString description;
    QString userName;
    QString prefix;
    QString suffix;

    if (ProgramId != -1) {
        Recordset programs = m_s.database.DataPrograms.recordset().Clone();
        programs.FindFirst(QStringLiteral("Id = ") + QString::number(ProgramId));
        if (programs.NoMatch()) {
            ExitAndClear();
            return;
        }
        status.ProgramId = ProgramId;
        if (programs.IsNull(QStringLiteral("Description")))
            ThrowInvalidUseOfNull();
        description = programs.Value(QStringLiteral("Description")).toString();
        status.LaunchAppAfter = TextColumn(programs, QStringLiteral("LaunchAppAfter"), true);
        status.LaunchAfterOnlyIfOk = BoolColumn(programs, QStringLiteral("LaunchAfterOnlyIfOk"));
        status.InternetLink = TextColumn(programs, QStringLiteral("InternetLink"), true);
        status.MixerProfileBefore =
            TextColumn(programs, QStringLiteral("MixerProfileBefore"), true);
        status.MixerProfileAfter = TextColumn(programs, QStringLiteral("MixerProfileAfter"), true);
        // Intended: the NULL test looks at MixerProfileAfter, so a NULL StreamingPlayerClose
        // under an after-profile fails the start through the trap.
        if (programs.IsNull(QStringLiteral("MixerProfileAfter")))
            status.StreamingPlayerClose = StreamingPlayerClose::DoNotClose;
        else if (programs.IsNull(QStringLiteral("StreamingPlayerClose")))
            ThrowInvalidUseOfNull();
        else
            status.StreamingPlayerClose =
                programs.Value(QStringLiteral("StreamingPlayerClose")).toString().trimmed();
        status.HangupInternetConnection =
            BoolColumn(programs, QStringLiteral("HangupInternetConnection"));
        status.StreamUrl = TextColumn(programs, QStringLiteral("StreamUrl"), true);
        status.InputName = TextColumn(programs, QStringLiteral("InputName"), true);
        if (status.InputName.isEmpty())
            status.InputName = m_s.options.RecordingInput;
        userName = TextColumn(programs, QStringLiteral("FilenameUser"), false);
        prefix = TextColumn(programs, QStringLiteral("FilenamePrefix"), false);
        suffix = TextColumn(programs, QStringLiteral("FilenameSuffix"), false);
        ReadFormat(m_s.log, chosen, programs);
    } else if (!folder.isEmpty()) {
        description = Description;
        chosen.CopyFrom(m_manual.Format);
        userName = m_manual.Filename;
        status.StreamUrl = m_manual.StreamUrl.trimmed();
        status.InputName = m_s.options.RecordingInput;
        status.LaunchAppAfter.clear();
        status.InternetLink.clear();
        status.MixerProfileBefore.clear();
        status.MixerProfileAfter.clear();
        status.StreamingPlayerClose = StreamingPlayerClose::DoNotClose;
        status.HangupInternetConnection = false;
    } else {
        m_s.messageBox.Show(
            tr("Error"),
            tr("Invalid Recording Directory. Select a recording directory in Options."),
            MsgIcon::Exclamation, MsgButtons::Ok);
        ExitAndClear();
        return;
    }

    status.NextProgramScheduled = false;
    // Whole days of the span are lost on purpose: the length only feeds the parameter file
    // and the space figures, while the clock decides the end.
    const double span = EndTime - StartTime;
    status.DurationSeconds = AutomationDate::Hour(span) * 3600 + AutomationDate::Minute(span) * 60 +
                             AutomationDate::Second(span);
    folder = WithClosingSeparator(folder);

    std::unique_ptr<clsRecordingFormat> pcmCapture;
    const clsRecordingFormat* capture = &chosen;
    double spaceNeeded = kDirectRecordingMbytes;
    QString spaceNote;
    QString baseName;
    QString extension;
    QString finalFile;
    m_convertRequest.reset();
    if (chosen.wFormatTag() != clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 || !chosen.ConvertToMP3) {
        status.ConvertToMP3 = false;
        const bool mp3Extension =
            chosen.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 &&
            chosen.SaveMP3FileExtension;
        NewRecordingFileName(m_s.clock.Now(), m_s.options.DefaultRecordFileNameFormat, userName,
                             prefix, suffix, folder, mp3Extension, baseName, extension);
        finalFile = UnusedFileName(folder, baseName, extension, {extension}, description);
        status.RecordingFile = finalFile;
    } else {
        status.ConvertToMP3 = true;
        pcmCapture = std::make_unique<clsRecordingFormat>();
        pcmCapture->SetToPcm(chosen.nChannels(), chosen.nSamplesPerSec(), 16);
        capture = pcmCapture.get();
        // The MP3 and its PCM source exist side by side until the conversion ends.
        spaceNeeded = double(chosen.CalcStorageMbytesSng(status.DurationSeconds) +
                             pcmCapture->CalcStorageMbytesSng(status.DurationSeconds));
        spaceNote = tr("Note: Converted MP3 recordings require additional storage "
                       "for the initial PCM wave file recording.\r\n");
        NewRecordingFileName(m_s.clock.Now(), m_s.options.DefaultRecordFileNameFormat, userName,
                             prefix, suffix, folder, chosen.SaveMP3FileExtension, baseName,
                             extension);
        // The capture beside the final name is free as well: it may be one still queued.
        finalFile =
            UnusedFileName(folder, baseName, extension, {extension, kCaptureEnding}, description);
        status.RecordingFile = folder + baseName + kCaptureEnding;
        m_convertRequest = std::make_shared<clsConvertToMP3Request>();
        clsConvertToMP3Request& request = *m_convertRequest;
        request.SourceFile = status.RecordingFile;
        request.DestinationFile = finalFile;
        request.SourceFormat.CopyFrom(*pcmCapture);
        request.DestinationFormat.CopyFrom(chosen);
        request.Description = description;
        request.SoftwareName = chosen.SaveMP3FileExtension ? QString() : softwareName;
        request.StartTime = StartTime;
        request.ManualRecording = status.ProgramId == -1;
        request.LaunchAppAfter = status.LaunchAppAfter;
        request.LaunchAfterOnlyIfOk = status.LaunchAfterOnlyIfOk;
    }
    if (m_s.appStatus.Converting())
        spaceNote += tr(" Additional space is also needed for any temporary PCM files "
                        "that are currently being converted to MP3.");

    // Only a manual recording is refused for space; a scheduled one is left to the disk
    // guard, and a direct one needs just half a megabyte above the limit whatever its length.
    const double freeMbytes = m_s.diskSpace.GetRecDirDiskSpaceMb(folder).free;
    const double required = double(m_s.options.StopRecMegsLeft) + spaceNeeded;
    if (ProgramId == -1 && required > freeMbytes) {
        m_s.messageBox.Show(
            tr("Recording not started due to insufficient disk space."),
            tr("The recording was not started since there is not enough disk space.  "
               "Remove recordings from disk, change the recording directory to a "
               "different disk drive, or shorten the recording time. ") +
                spaceNote,
            MsgIcon::Exclamation, MsgButtons::Ok);
        m_s.scheduler.CancelRecording(ProgramId, m_status.EndTime);
        m_s.scheduler.ScheduleNextRecording();
        ExitAndClear();
        return;
    }

    RecParms parms;
    parms.softwareName = softwareName;
    parms.description = description;
    parms.startText = Options::DateText(StartTime) + u' ' +
                      Options::TimeText(AutomationDate::TimePart(StartTime));
    parms.outputPath = status.RecordingFile;
    parms.lengthSeconds = status.DurationSeconds;
    parms.format = capture->WaveFormat();
    parms.silenceThresholdDb = m_s.options.SilenceThresholdDb;
    parms.silenceSeconds = m_s.options.SilenceAlarm ? m_s.options.SilenceAlarmSeconds : 0;
    parms.streamUrl = status.StreamUrl;
    parms.dueStartMsecs = status.StreamUrl.isEmpty() ? 0 : DueMsecs(m_s.clock, StartTime);
    parms.finalPath = finalFile;
    parms.inputName = status.StreamUrl.isEmpty() ? status.InputName : QString();

    // The keep-alive runs from before the parameter file is written.
    m_link.StartKeepAlive();

    status.StartTime = StartTime;
    status.EndTime = EndTime;
    status.FinalFile = finalFile;
    status.Description = description;
    status.CompressionText = chosen.TextCompressionMethod;
    m_format.CopyFrom(chosen);

    const QString parameterFile = m_link.ParameterFile();
    QFile::remove(parameterFile);
    UnattendedPath::LetEventsRun();
    parms.Write(parameterFile);
    UnattendedPath::LetEventsRun();

    status.Failed = false;
    if (!m_link.ActivateNightreeltask()) {
        // The activation has logged why.
        status.Failed = true;
        StopRecording();
        return;
    }
    m_link.StartKeepAlive();

    // The mixer is set once the task is up and right before capture, never earlier.
    if (!Text::Trim(status.MixerProfileBefore).isEmpty())
        m_s.mixerProfiles.ActivateMixerProfile(status.MixerProfileBefore);
    UnattendedPath::LetEventsRun();

    const qint32 result = m_link.SendMessage(REC_MSG_START);
    if (result >= 1) {
        status.Failed = true;
        StopRecording();
        ReportRecordingTaskError(m_s.log, result);
        return;
    }

    emit RecordingStarted();
    m_s.appStatus.SetPaused(false);
    emit UpdateModeDisplay();
    // The player that the link opened is found among the windows that are new by now.
    if (!status.InternetLink.isEmpty() && status.StreamingPlayerClose.isEmpty())
        m_player.SnapshotWindowsAtRecordingStart();
    if (m_s.options.ShowRecordingTimeInTaskBar)
        emit ShowRecordingStatusForm();
}

void RecordingControl::HandleStopRecordingRequest(bool Confirm)
{
    Trap(m_s.log, "HandleStopRecordingRequest", [&] {
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
    Trap(m_s.log, "ToolbarPauseResume", [&] {
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
    emit UnloadRecordingStatusForm();
    if (!m_s.appStatus.Recording())
        return;
    // A failure leaves Recording set until the next call.
    Trap(m_s.log, "StopRecording", [&] { StopRecordingSteps(); });
}

void RecordingControl::StopRecordingSteps()
{
    clsRecordingStatus& status = m_status;
    m_link.RecordingOver();
    emit UpdateModeDisplay();
    // The task has closed the file; give the file system a moment. No events run here.
    QThread::msleep(250);

    const float size = QFile::exists(status.RecordingFile)
                           ? ModuleFileTime::GetFileSizeMbytes(status.RecordingFile)
                           : 0.0f;
    if (status.Failed) {
        QFile::remove(status.RecordingFile);
        LaunchAfterRecording(m_s.log, m_s.launcher, false, status.LaunchAppAfter,
                             status.LaunchAfterOnlyIfOk, status.FinalFile);
    } else if (size >= kLeastRecordingMbytes && status.ConvertToMP3) {
        // The conversion takes over: it writes the row and runs the launch after it.
        if (m_convertRequest) {
            m_convertRequest->EndTime = m_s.clock.Now();
            m_conversion.Add(m_convertRequest);
        }
    } else if (size >= kLeastRecordingMbytes) {
        // A failure here leaves the file on disk without a row; the after-actions go on.
        DoEndOfRecordingStuff(status.Description, status.FinalFile, status.StartTime,
                              m_s.clock.Now(), status.CompressionText, m_format);
        LaunchAfterRecording(m_s.log, m_s.launcher, true, status.LaunchAppAfter,
                             status.LaunchAfterOnlyIfOk, status.FinalFile);
    } else {
        m_s.log.LogEvent(EventError, tr("Recording failed"),
                         tr("The following recording failed since no recording data was "
                            "written:\r\n") +
                             status.Description +
                             tr("\r\n\r\nTry a different recording format or bit rate.  If you "
                                "are performing a short (under 30 seconds) recording, try "
                                "extending the time by a few seconds."));
        status.Failed = true;
        QFile::remove(status.RecordingFile);
        LaunchAfterRecording(m_s.log, m_s.launcher, false, status.LaunchAppAfter,
                             status.LaunchAfterOnlyIfOk, status.FinalFile);
    }

    // Manual recordings have no after-actions but the launch, which they never set.
    if (status.ProgramId != -1) {
        m_s.scheduler.CancelRecording(status.ProgramId, status.EndTime);
        if (!status.InternetLink.trimmed().isEmpty()) {
            const QString playerClose = status.StreamingPlayerClose.trimmed();
            if (!m_s.hasDisplay && playerClose != StreamingPlayerClose::DoNotClose)
                m_s.log.LogEvent(EventInformation, tr("Streaming player not closed"),
                                 tr("There is no display to close it on."));
            else if (playerClose.isEmpty())
                m_player.CloseNewWindows();
            else if (playerClose != StreamingPlayerClose::DoNotClose)
                m_player.CloseWindowsByTitle(playerClose);
            // A line opened for the stream is not left open.
            if (status.HangupInternetConnection)
                HangUpConnections(m_s.network);
        }
        // Intended: the test is on the before-profile, so an after-profile alone never applies;
        // an empty after-profile names no file and changes nothing.
        if (!Text::Trim(status.MixerProfileBefore).isEmpty())
            m_s.mixerProfiles.ActivateMixerProfile(status.MixerProfileAfter);
    }

    status.FinalFile.clear();
    m_s.appStatus.SetRecording(false);
    m_s.scheduler.ScheduleNextRecording();
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
    emit RecordingEnded();
}

void RecordingControl::DoEndOfRecordingStuff(const QString& Title, const QString& File,
                                             double StartTime, double EndTime,
                                             const QString& CompressionMethod,
                                             const clsRecordingFormat& Format)
{
    // The row's end is the file's time, not the end the caller saw.
    Q_UNUSED(EndTime);
    Trap(m_s.log, "DoEndOfRecordingStuff", [&] {
        // The row describes what the file holds, so pauses and late starts show in its times.
        const float size = ModuleFileTime::GetFileSizeMbytes(File);
        const qint32 seconds = Format.CalcSecondsFromMbytes(m_s.log, size);
        const double end = ModuleFileTime::FileDateTime(File);
        const double start = AutomationDate::AddSeconds(end, -seconds);

        Recordset& rs = m_s.database.DataRecordings.recordset();
        QString quoted = File;
        quoted.replace(u'\'', QStringLiteral("''"));
        rs.FindFirst(QStringLiteral("File = '") + quoted + u'\'');
        // A new recording of the same name replaces the old one in the list.
        if (!rs.NoMatch())
            rs.Delete();
        rs.AddNew();
        rs.SetValue(QStringLiteral("Title"), Title);
        rs.SetValue(QStringLiteral("File"), File);
        rs.SetValue(QStringLiteral("StartTime"), start);
        rs.SetValue(QStringLiteral("EndTime"), end);
        rs.SetValue(QStringLiteral("CompressionMethod"), CompressionMethod);
        rs.SetValue(QStringLiteral("Size"), double(size));
        rs.Update();
        const qint64 id = rs.LastModified();
        rs.Requery();
        rs.FindFirst(QStringLiteral("Id = ") + QString::number(id));

        if (File.endsWith(QStringLiteral(".mp3"), Qt::CaseInsensitive))
            Mp3File::WriteId3Tag(File, Title, QString(), QString(), QString(),
                                 tr("Nightreel 2000 Recording"), 12);

        m_s.options.SaveRecentRecording(m_s.registry, File, Title, StartTime);
    });
}
