#include "recording/RecordingControl.h"

#include "common/AutomationDate.h"
#include "common/MessageBox.h"
#include "common/RuntimeError.h"
#include "diagnostics/Trap.h"
#include "formats/FormatStore.h"
#include "formats/ModuleFileTime.h"
#include "formats/Mp3Info.h"
#include "recording/RecordingFileName.h"
#include "recording/RecordingTaskErrors.h"
#include "shell/AppContext.h"
#include "shell/StatusBarPlus.h"
#include "sideactions/LaunchCommands.h"
#include "taskcontract/RecParms.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>

using namespace TaskProtocol;

namespace {

const QString kDoNotClose = QStringLiteral("DO_NOT_CLOSE");
constexpr float kLeastRecordingMbytes = 0.001f;
constexpr double kDirectRecordingMbytes = 0.5;

[[noreturn]] void InvalidUseOfNull()
{
    throw RuntimeError(94, QStringLiteral("Invalid use of Null"));
}

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
    return QStringLiteral("Nightreel 2000 %1.%2")
        .arg(NIGHTREEL_VERSION_MAJOR)
        .arg(NIGHTREEL_VERSION_MINOR);
}

QString WithClosingSeparator(const QString& folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

} // namespace

RecordingControl::RecordingControl(AppContext& ctx, QObject* parent)
    : QObject(parent)
    , link(ctx)
    , m_ctx(ctx)
{
    FreeMegabytes = [](const QString& folder) {
        return StatusBarPlus::GetRecDirDiskSpaceMb(folder).free;
    };
    connect(&link, &RecordingTaskLink::StopRecording, this, &RecordingControl::StopRecording);
}

RecordingControl::~RecordingControl() = default;

void RecordingControl::ExitAndClear()
{
    m_ctx.appStatus.SetRecording(false);
}

void RecordingControl::StartRecording(qint32& ProgramId, double StartTime, double EndTime,
                                      QString& Description)
{
    if (m_ctx.appStatus.Suspended())
        return;
    // First of all: the steps below let events run, and the heartbeat must see a recording.
    m_ctx.appStatus.SetRecording(true);
    m_ctx.recordingStatus.StopRequested = false;
    // A failure leaves Recording set on purpose: the clock or the keep-alive ends it.
    Trap(m_ctx.log, "StartRecording",
         [&] { StartRecordingSteps(ProgramId, StartTime, EndTime, Description); });
}

void RecordingControl::StartRecordingSteps(qint32& ProgramId, double StartTime, double EndTime,
                                           QString& Description)
{
    clsRecordingStatus& status = m_ctx.recordingStatus;
    const QString softwareName = SoftwareName();
    QString folder = m_ctx.options.DefaultRecordingDirectory;
    clsRecordingFormat chosen;
    QString description;
    QString userName;
    QString prefix;
    QString suffix;

    if (ProgramId != -1) {
        Recordset programs = m_ctx.database.DataPrograms.recordset().Clone();
        programs.FindFirst(QStringLiteral("Id = ") + QString::number(ProgramId));
        if (programs.NoMatch()) {
            ExitAndClear();
            return;
        }
        status.ProgramId = ProgramId;
        if (programs.IsNull(QStringLiteral("Description")))
            InvalidUseOfNull();
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
            status.StreamingPlayerClose = kDoNotClose;
        else if (programs.IsNull(QStringLiteral("StreamingPlayerClose")))
            InvalidUseOfNull();
        else
            status.StreamingPlayerClose =
                programs.Value(QStringLiteral("StreamingPlayerClose")).toString().trimmed();
        status.HangupInternetConnection =
            BoolColumn(programs, QStringLiteral("HangupInternetConnection"));
        userName = TextColumn(programs, QStringLiteral("FilenameUser"), false);
        prefix = TextColumn(programs, QStringLiteral("FilenamePrefix"), false);
        suffix = TextColumn(programs, QStringLiteral("FilenameSuffix"), false);
        ReadFormat(m_ctx.log, chosen, programs);
    } else if (!folder.isEmpty()) {
        description = Description;
        chosen.CopyFrom(ManualFormat);
        userName = ManualFilenameUser;
        status.LaunchAppAfter.clear();
        status.InternetLink.clear();
        status.MixerProfileBefore.clear();
        status.MixerProfileAfter.clear();
        status.StreamingPlayerClose = kDoNotClose;
        status.HangupInternetConnection = false;
    } else {
        m_ctx.messageBox.Show(
            QStringLiteral("Error"),
            QStringLiteral("Invalid Recording Directory. Select a recording directory in Options."),
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
    ConvertRequest.reset();
    if (chosen.wFormatTag() != clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 || !chosen.ConvertToMP3) {
        status.ConvertToMP3 = false;
        const bool mp3Extension =
            chosen.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 &&
            chosen.SaveMP3FileExtension;
        finalFile = NewRecordingFileName(m_ctx, userName, prefix, suffix, folder, mp3Extension,
                                         baseName, extension);
        status.RecordingFile = finalFile;
        // An old recording of the same name is replaced without a question.
        QFile::remove(finalFile);
    } else {
        status.ConvertToMP3 = true;
        pcmCapture = std::make_unique<clsRecordingFormat>();
        pcmCapture->SetToPcm(chosen.nChannels(), chosen.nSamplesPerSec(), 16);
        capture = pcmCapture.get();
        // The MP3 and its PCM source exist side by side until the conversion ends.
        spaceNeeded = double(chosen.CalcStorageMbytesSng(status.DurationSeconds) +
                             pcmCapture->CalcStorageMbytesSng(status.DurationSeconds));
        spaceNote = QStringLiteral("Note: Converted MP3 recordings require additional storage "
                                   "for the initial PCM wave file recording.\r\n");
        finalFile = NewRecordingFileName(m_ctx, userName, prefix, suffix, folder,
                                         chosen.SaveMP3FileExtension, baseName, extension);
        status.RecordingFile = folder + baseName + QStringLiteral(".WAV.TMP");
        QFile::remove(status.RecordingFile);
        ConvertRequest = std::make_shared<clsConvertToMP3Request>();
        clsConvertToMP3Request& request = *ConvertRequest;
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
    if (m_ctx.appStatus.Converting())
        spaceNote += QStringLiteral(" Additional space is also needed for any temporary PCM files "
                                    "that are currently being converted to MP3.");

    // Only a manual recording is refused for space; a scheduled one is left to the disk
    // guard, and a direct one needs just half a megabyte above the limit whatever its length.
    const double freeMbytes = FreeMegabytes(folder);
    const double required = double(m_ctx.options.StopRecMegsLeft) + spaceNeeded;
    if (ProgramId == -1 && required > freeMbytes) {
        m_ctx.messageBox.Show(
            QStringLiteral("Recording not started due to insufficient disk space."),
            QStringLiteral("The recording was not started since there is not enough disk space.  "
                           "Remove recordings from disk, change the recording directory to a "
                           "different disk drive, or shorten the recording time. ") +
                spaceNote,
            MsgIcon::Exclamation, MsgButtons::Ok);
        m_ctx.scheduler.CancelRecording(ProgramId);
        m_ctx.scheduler.ScheduleNextRecording();
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

    // The keep-alive runs from before the parameter file is written.
    link.KeepAliveMissCount = 0;
    link.tmrKeepAlive.SetInterval(RecordingTaskLink::KeepAliveInterval);

    status.StartTime = StartTime;
    status.EndTime = EndTime;
    status.FinalFile = finalFile;
    status.Description = description;
    status.CompressionText = chosen.TextCompressionMethod;
    Format.CopyFrom(chosen);

    const QString parameterFile = link.ParameterFile();
    QFile::remove(parameterFile);
    QCoreApplication::processEvents();
    parms.Write(parameterFile);
    QCoreApplication::processEvents();

    status.Failed = false;
    if (!link.ActivateNightreeltask()) {
        // The activation has logged why.
        status.Failed = true;
        StopRecording();
        return;
    }
    link.KeepAliveMissCount = 0;
    link.tmrKeepAlive.SetInterval(RecordingTaskLink::KeepAliveInterval);

    // The place where the program's before-profile of the mixer goes in, once the task is up
    // and right before capture: ActivateMixerProfile(status.MixerProfileBefore).
    QCoreApplication::processEvents();

    const qint32 result = link.SendMessage(REC_MSG_START);
    if (result >= 1) {
        status.Failed = true;
        StopRecording();
        ReportRecordingTaskError(m_ctx.log, result);
        return;
    }

    // The place where the tray's animation timer starts (tmrSystray at 500 ms).
    m_ctx.appStatus.SetPaused(false);
    emit UpdateModeDisplay();
    // The place where the windows are noted after the link opened a streaming player, when
    // the program has an InternetLink and no StreamingPlayerClose title:
    // SnapshotWindowsAtRecordingStart().
    if (m_ctx.options.ShowRecordingTimeInTaskBar)
        emit ShowRecordingStatusForm();
}

void RecordingControl::HandleStopRecordingRequest(bool Confirm)
{
    Trap(m_ctx.log, "HandleStopRecordingRequest", [&] {
        const clsRecordingStatus& status = m_ctx.recordingStatus;
        if (m_ctx.appStatus.Recording()) {
            // A scheduled recording is never stopped without a question.
            if (Confirm || status.ProgramId != -1) {
                const QString text =
                    status.ConvertToMP3
                        ? QStringLiteral("This will stop and convert the recording in progress "
                                         "to MP3.  Are you sure you want to stop recording?")
                        : QStringLiteral("This will stop and save the recording in progress.  "
                                         "Are you sure you want to stop recording?");
                if (m_ctx.messageBox.Show(QStringLiteral("Nightreel 2000"), text, MsgIcon::None,
                                          MsgButtons::YesNo) != MsgResult::Yes)
                    return;
            }
            // The recording may have ended while the question stood; the link then posts
            // nothing, or posts to a task that is gone.
            link.RequestStop();
        } else if (m_ctx.appStatus.Converting()) {
            if (Confirm || !CurrentConvertRequest || !CurrentConvertRequest->ManualRecording) {
                // The three blanks in the second text are intended.
                const QString text =
                    Mp3ConvertQueue.isEmpty()
                        ? QStringLiteral("This will stop and save the MP3 conversion in progress. "
                                         " Are you sure you want to stop the MP3 conversion?")
                        : QStringLiteral("This will stop and save the MP3 conversion in progress "
                                         "and abort the remaining MP3 conversions in the queue.   "
                                         "Are you sure you want to stop the MP3 conversion?");
                if (m_ctx.messageBox.Show(QStringLiteral("Nightreel 2000"), text, MsgIcon::Question,
                                          MsgButtons::YesNo) != MsgResult::Yes)
                    return;
            }
            m_ctx.StopMp3Conversion = true;
        }
    });
}

void RecordingControl::ToolbarPauseResume(const QString& Command)
{
    Trap(m_ctx.log, "ToolbarPauseResume", [&] {
        const bool wasPaused = m_ctx.appStatus.Paused();
        const QString command = Command.toUpper();
        if (command == QStringLiteral("P"))
            m_ctx.appStatus.SetPaused(true);
        else if (command == QStringLiteral("R"))
            m_ctx.appStatus.SetPaused(false);
        else
            m_ctx.appStatus.SetPaused(!wasPaused);
        // The pause only changes what the task writes: the clock, the end, the disk guard
        // and the keep-alive all go on.
        if (m_ctx.appStatus.Paused() != wasPaused)
            link.SendMessage(REC_MSG_PAUSE_TOGGLE);
        emit UpdateModeDisplay();
    });
}

void RecordingControl::StopRecording()
{
    emit UnloadRecordingStatusForm();
    if (!m_ctx.appStatus.Recording())
        return;
    // A failure leaves Recording set until the next call.
    Trap(m_ctx.log, "StopRecording", [&] { StopRecordingSteps(); });
}

void RecordingControl::StopRecordingSteps()
{
    clsRecordingStatus& status = m_ctx.recordingStatus;
    link.tmrKeepAlive.SetInterval(0);
    emit UpdateModeDisplay();
    // The task has closed the file; give the file system a moment. No events run here.
    QThread::msleep(250);

    const float size = QFile::exists(status.RecordingFile)
                           ? ModuleFileTime::GetFileSizeMbytes(status.RecordingFile)
                           : 0.0f;
    if (status.Failed) {
        QFile::remove(status.RecordingFile);
        LaunchAfterRecording(m_ctx, false, status.LaunchAppAfter, status.LaunchAfterOnlyIfOk,
                             status.FinalFile);
    } else if (size >= kLeastRecordingMbytes && status.ConvertToMP3) {
        // The conversion takes over: it writes the row and runs the launch after it.
        if (ConvertRequest) {
            ConvertRequest->EndTime = m_ctx.Now();
            Mp3ConvertQueue.append(ConvertRequest);
        }
    } else if (size >= kLeastRecordingMbytes) {
        // A failure here leaves the file on disk without a row; the after-actions go on.
        DoEndOfRecordingStuff(status.Description, status.FinalFile, status.StartTime, m_ctx.Now(),
                              status.CompressionText, Format);
        LaunchAfterRecording(m_ctx, true, status.LaunchAppAfter, status.LaunchAfterOnlyIfOk,
                             status.FinalFile);
    } else {
        m_ctx.log.LogEvent(
            EventError, QStringLiteral("Recording failed"),
            QStringLiteral("The following recording failed since no recording data was "
                           "written:\r\n") +
                status.Description +
                QStringLiteral("\r\n\r\nTry a different recording format or bit rate.  If you "
                               "are performing a short (under 30 seconds) recording, try "
                               "extending the time by a few seconds."));
        status.Failed = true;
        QFile::remove(status.RecordingFile);
        LaunchAfterRecording(m_ctx, false, status.LaunchAppAfter, status.LaunchAfterOnlyIfOk,
                             status.FinalFile);
    }

    // Manual recordings have no after-actions but the launch, which they never set.
    if (status.ProgramId != -1) {
        m_ctx.scheduler.CancelRecording(status.ProgramId);
        if (!status.InternetLink.trimmed().isEmpty()) {
            // The place where the streaming player is closed: CloseNewWindows() when
            // StreamingPlayerClose is empty, otherwise CloseWindowsByTitle(StreamingPlayerClose)
            // unless it is "DO_NOT_CLOSE".
            // The place where the dial-up line is hung up when HangupInternetConnection is set:
            // HangUpConnections().
        }
        // Intended: the test is on the before-profile, so an after-profile alone never applies.
        // The place where the after-profile goes in when MixerProfileBefore is set:
        // ActivateMixerProfile(status.MixerProfileAfter).
    }

    status.FinalFile.clear();
    m_ctx.appStatus.SetRecording(false);
    m_ctx.scheduler.ScheduleNextRecording();
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
}

void RecordingControl::DoEndOfRecordingStuff(const QString& Title, const QString& File,
                                             double StartTime, double EndTime,
                                             const QString& CompressionMethod,
                                             const clsRecordingFormat& Format)
{
    // The row's end is the file's time, not the end the caller saw.
    Q_UNUSED(EndTime);
    Trap(m_ctx.log, "DoEndOfRecordingStuff", [&] {
        // The row describes what the file holds, so pauses and late starts show in its times.
        const float size = ModuleFileTime::GetFileSizeMbytes(File);
        const qint32 seconds = Format.CalcSecondsFromMbytes(m_ctx.log, size);
        const double end = ModuleFileTime::FileDateTime(File);
        const double start = AutomationDate::AddSeconds(end, -seconds);

        Recordset& rs = m_ctx.database.DataRecordings.recordset();
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
                                 QStringLiteral("Nightreel 2000 Recording"), 12);

        m_ctx.options.SaveRecentRecording(m_ctx.registry, File, Title, StartTime);
    });
}
