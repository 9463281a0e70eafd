#include "recording/ConversionQueue.h"

#include "common/AutomationDate.h"
#include "common/UnattendedPath.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "formats/ModuleFileTime.h"
#include "platform/DiskSpace.h"
#include "platform/OpenFiles.h"
#include "recording/ConversionQueueFile.h"
#include "recording/clsRecordingStatus.h"
#include "sideactions/LaunchCommands.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

QString FolderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

// `path` itself when free, else the first free of "name (2).ext", "name (3).ext"...
QString FreeFileName(const QString& path)
{
    const int dot = path.lastIndexOf(u'.');
    QString candidate = path;
    for (int n = 2; QFileInfo::exists(candidate); ++n)
        candidate = path.left(dot) + QStringLiteral(" (%1)").arg(n) + path.mid(dot);
    return candidate;
}

} // namespace

ConversionQueue::ConversionQueue(EventLog& log, const Options& options, clsAppStatus& appStatus,
                                 ProcessLauncher& launcher,
                                 const clsRecordingStatus& recordingStatus, DiskSpace& diskSpace,
                                 const QString& queueFile, QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_launcher(launcher)
    , m_recordingStatus(recordingStatus)
    , m_diskSpace(diskSpace)
    , m_queueFile(queueFile)
{
    connect(&TimerConvert, &IntervalTimer::timeout, this, &ConversionQueue::TimerConvert_Timer);
}

void ConversionQueue::Start()
{
    // The timer runs also when the saved queue can't be read; that failure goes on to the
    // start-up, which goes on after it.
    TimerConvert.SetInterval(IdleInterval);
    InRoutine("Convert MP3 Timer", [&] { LoadSavedQueue(); });
}

void ConversionQueue::Add(const std::shared_ptr<clsConvertToMP3Request>& request)
{
    Mp3ConvertQueue.append(request);
    SaveQueue();
}

void ConversionQueue::LoadSavedQueue()
{
    if (m_savedQueueLoaded)
        return;
    m_savedQueueLoaded = true;
    const QStringList queued = QueuedCaptures();
    Mp3ConvertQueueList saved;
    // A request whose capture is gone has nothing left to convert; one queued in this run
    // before the start is there already.
    for (const auto& request : ConversionQueueFile::Load(m_queueFile))
        if (QFileInfo::exists(request->SourceFile) && !queued.contains(request->SourceFile))
            saved.append(request);
    Mp3ConvertQueue = saved + Mp3ConvertQueue;
}

QStringList ConversionQueue::QueuedCaptures() const
{
    QStringList captures;
    if (m_appStatus.Converting() && CurrentConvertRequest)
        captures << CurrentConvertRequest->SourceFile;
    for (const auto& request : Mp3ConvertQueue)
        captures << request->SourceFile;
    return captures;
}

QStringList ConversionQueue::KeepLeftCaptures(const QStringList& captures)
{
    const QStringList queued = QueuedCaptures();
    const QSet<QString> held = OpenFiles::HeldByOtherProcesses(captures);
    QStringList kept;
    for (const QString& capture : captures) {
        if (queued.contains(capture) || held.contains(capture))
            continue;
        // Judged as the end of a recording judges one: under a thousandth of a megabyte,
        // no sound was written.
        if (ModuleFileTime::GetFileSizeMbytes(capture) < 0.001f) {
            QFile::remove(capture);
            continue;
        }
        const QString wave = FreeFileName(capture.chopped(4));
        if (!QFile::rename(capture, wave))
            continue;
        kept << wave;
        m_log.LogEvent(EventWarning, tr("Recording kept in PCM format"),
                       tr("The following recording was being made when Nightreel "
                          "2000 ended; it was not converted to MP3 and is kept as a "
                          "PCM wave file.\r\nFile: ") +
                           wave);
    }
    return kept;
}

bool ConversionQueue::HasWork() const
{
    return m_appStatus.Converting() || (!Mp3ConvertQueue.isEmpty() && !m_heldForLibrary);
}

QString ConversionQueue::ResultFile(const clsConvertToMP3Request& request)
{
    // Both results end in a four-letter extension (".MP3", ".WAV"); the capture already has
    // ".WAV.TMP", so a wave result must not simply add ".TMP".
    return request.DestinationFile.chopped(4) + QStringLiteral(".MP3.TMP");
}

QString ConversionQueue::StatusBarDisplay() const
{
    return m_appStatus.Converting() && CurrentConvertRequest
               ? CurrentConvertRequest->StatusBarDisplay()
               : QString();
}

QString ConversionQueue::RunningDestination() const
{
    return m_appStatus.Converting() && CurrentConvertRequest
               ? CurrentConvertRequest->DestinationFile
               : QString();
}

void ConversionQueue::TimerConvert_Timer()
{
    // Stopped for the tick, so that the events let through inside it can't enter it again;
    // each branch sets the interval as its last step.
    TimerConvert.SetInterval(0);
    const UnattendedPath unattended;
    // Converting stays as it was: an interrupted conversion goes on at the next tick.
    if (!Trap(m_log, "Convert MP3 Timer", [&] { Tick(); }))
        TimerConvert.SetInterval(IdleInterval);
}

void ConversionQueue::Tick()
{
    if (!m_appStatus.Converting())
        IdleBranch();
    else if (StopMp3Conversion)
        StopBranch();
    else
        StepBranch();
}

void ConversionQueue::IdleBranch()
{
    if (Mp3ConvertQueue.isEmpty() || m_heldForLibrary) {
        UnattendedPath::LetEventsRun();
        TimerConvert.SetInterval(IdleInterval);
        return;
    }
    CurrentConvertRequest = Mp3ConvertQueue.takeFirst();
    StopMp3Conversion = false;
    const clsConvertToMP3Request& request = *CurrentConvertRequest;
    // A conversion started on a nearly full disk would only fill it.
    const DiskSpaceMb disk = m_diskSpace.GetRecDirDiskSpaceMb(FolderOf(request.DestinationFile));
    if (disk.free + 0.5 < m_options.StopRecMegsLeft) {
        KeepCapture(request, tr("There was not enough disk space to convert it."));
        SaveQueue();
        TimerConvert.SetInterval(IdleInterval);
        return;
    }
    const QByteArray source = QFile::encodeName(request.SourceFile);
    const QByteArray result = QFile::encodeName(ResultFile(request));
    // The records with their extra bytes, as they lie in a wave file's format chunk.
    const QByteArray sourceFormat = request.SourceFormat.Record();
    const QByteArray destinationFormat = request.DestinationFormat.Record();
    const int32_t code = m_encoder.StartEncodeMp3(
        source.constData(), result.constData(),
        reinterpret_cast<const NightreelWaveFormat*>(sourceFormat.constData()),
        reinterpret_cast<const NightreelWaveFormat*>(destinationFormat.constData()),
        request.DestinationFormat.SaveMP3FileExtension ? 0 : 1);
    if (code == EncoderLibrary::LibraryMissing) {
        HoldForLibrary(code);
        return;
    }
    if (code != 0) {
        FailureBranch(code);
        return;
    }
    m_appStatus.SetConverting(true);
    UnattendedPath::LetEventsRun();
    TimerConvert.SetInterval(ConvertingInterval);
}

void ConversionQueue::StepBranch()
{
    clsConvertToMP3Request& request = *CurrentConvertRequest;
    int32_t percent = 0;
    int32_t finished = 0;
    int32_t code = m_encoder.EncodeNextBuffer(&percent, &finished);
    if (code != 0) {
        FailureBranch(code);
        return;
    }
    request.PercentComplete = qint16(percent);
    if (finished != 1) {
        UnattendedPath::LetEventsRun();
        TimerConvert.SetInterval(ConvertingInterval);
        return;
    }
    code = Finish(request);
    if (code != 0) {
        FailureBranch(code);
        return;
    }
    ListResult(request, false);
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
    OpenFiles::RemoveUnlessInUse({request.SourceFile});
    m_appStatus.SetConverting(false);
    SaveQueue();
    LaunchAfterRecording(m_log, m_launcher, true, request.LaunchAppAfter,
                         request.LaunchAfterOnlyIfOk, request.DestinationFile);
    UnattendedPath::LetEventsRun();
    TimerConvert.SetInterval(IdleInterval);
}

void ConversionQueue::StopBranch()
{
    // The waiting recordings are not converted, and their launches are not run; their
    // captures stay as they are.
    while (!Mp3ConvertQueue.isEmpty())
        KeepCapture(*Mp3ConvertQueue.takeFirst(),
                    tr("The MP3 conversions were stopped before it was converted."));
    clsConvertToMP3Request& request = *CurrentConvertRequest;
    const int32_t code = Finish(request);
    if (code != 0) {
        FailureBranch(code);
        return;
    }
    // The partial MP3 is saved, as the user was told; the whole recording stays beside it.
    ListResult(request, true);
    KeepCapture(request, tr("Its MP3 conversion was stopped part-way."));
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
    m_appStatus.SetConverting(false);
    SaveQueue();
    UnattendedPath::LetEventsRun();
    LaunchAfterRecording(m_log, m_launcher, true, request.LaunchAppAfter,
                         request.LaunchAfterOnlyIfOk, request.DestinationFile);
    TimerConvert.SetInterval(IdleInterval);
}

void ConversionQueue::FailureBranch(int32_t code)
{
    const clsConvertToMP3Request& request = *CurrentConvertRequest;
    m_log.LogEvent(EventError, tr("Error Converting to MP3"),
                   tr("Error Code: ") + QString::number(code) + tr("\r\nDescription: ") +
                       request.Description);
    m_encoder.Mp3ConvertErrorCleanUp();
    // Only the incomplete result goes: the recording itself is kept.
    QFile::remove(ResultFile(request));
    KeepCapture(request, tr("Its MP3 conversion failed."));
    LaunchAfterRecording(m_log, m_launcher, false, request.LaunchAppAfter,
                         request.LaunchAfterOnlyIfOk, request.DestinationFile);
    m_appStatus.SetConverting(false);
    SaveQueue();
    TimerConvert.SetInterval(IdleInterval);
}

void ConversionQueue::HoldForLibrary(int32_t code)
{
    const clsConvertToMP3Request& request = *CurrentConvertRequest;
    m_log.LogEvent(EventError, tr("Error Converting to MP3"),
                   tr("Error Code: ") + QString::number(code) + tr("\r\nDescription: ") +
                       request.Description + QStringLiteral("\r\n") + m_encoder.ErrorString() +
                       tr("\r\nThe recordings waiting for conversion are kept and "
                          "converted at the next start of Nightreel 2000."));
    Mp3ConvertQueue.prepend(CurrentConvertRequest);
    m_heldForLibrary = true;
    SaveQueue();
    TimerConvert.SetInterval(IdleInterval);
}

int32_t ConversionQueue::Finish(const clsConvertToMP3Request& request)
{
    // Each text gets one blank at its end, which the library takes off again.
    const QByteArray software = (request.SoftwareName + u' ').toUtf8();
    const QByteArray date = (Options::DateText(request.StartTime) + u' ' +
                             Options::TimeText(AutomationDate::TimePart(request.StartTime)) + u' ')
                                .toUtf8();
    const QByteArray title = (request.Description + u' ').toUtf8();
    return m_encoder.FinishEncodeMp3(software.constData(), date.constData(), title.constData());
}

void ConversionQueue::ListResult(clsConvertToMP3Request& request, bool stoppedEarly)
{
    // A file that took the name meanwhile is not replaced.
    request.DestinationFile = FreeFileName(request.DestinationFile);
    if (!QFile::rename(ResultFile(request), request.DestinationFile))
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           tr("Path/File access error: ") + request.DestinationFile);
    // A converted file's date is the end of the recording that its size gives, not the end
    // of the conversion; the row reads it, and the row's tag then changes it again.
    const float size = ModuleFileTime::GetFileSizeMbytes(request.DestinationFile);
    const qint32 seconds = request.DestinationFormat.CalcSecondsFromMbytes(size);
    const double end = AutomationDate::AddSeconds(request.StartTime, seconds);
    ModuleFileTime::SetFileDateTime(request.DestinationFile, end);
    emit DoEndOfRecordingStuff(request.Description, request.DestinationFile, request.StartTime,
                               stoppedEarly ? end : request.EndTime,
                               request.DestinationFormat.TextCompressionMethodShort,
                               request.DestinationFormat);
    ModuleFileTime::SetFileDateTime(request.DestinationFile, end);
}

void ConversionQueue::KeepCapture(const clsConvertToMP3Request& request, const QString& why)
{
    // Never the file a recording writes now (another instance's included).
    if (!QFileInfo::exists(request.SourceFile) ||
        !OpenFiles::HeldByOtherProcesses({request.SourceFile}).isEmpty() ||
        (m_appStatus.Recording() && request.SourceFile == m_recordingStatus.RecordingFile))
        return;
    // "name.WAV.TMP" is a complete wave file already: it only needs a wave file's name.
    const QString kept = FreeFileName(request.SourceFile.chopped(4));
    if (!QFile::rename(request.SourceFile, kept))
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           tr("Path/File access error: ") + request.SourceFile);
    emit DoEndOfRecordingStuff(request.Description, kept, request.StartTime, request.EndTime,
                               request.SourceFormat.TextCompressionMethodShort,
                               request.SourceFormat);
    m_log.LogEvent(EventWarning, tr("Recording kept in PCM format"),
                   tr("The following recording was not converted to MP3 and is kept "
                      "as a PCM wave file: ") +
                       request.Description + QStringLiteral("\r\n") + why + tr("\r\nFile: ") +
                       kept);
}

void ConversionQueue::SaveQueue()
{
    Mp3ConvertQueueList saved = Mp3ConvertQueue;
    if (m_appStatus.Converting() && CurrentConvertRequest)
        saved.prepend(CurrentConvertRequest);
    ConversionQueueFile::Save(m_queueFile, saved);
}
