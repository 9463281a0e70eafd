#include "recording/ConversionQueue.h"

#include "common/AutomationDate.h"
#include "common/UnattendedPath.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "formats/ModuleFileTime.h"
#include "platform/OpenFiles.h"
#include "recording/clsRecordingStatus.h"
#include "sideactions/LaunchCommands.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

ConversionQueue::ConversionQueue(EventLog& log, const Options& options, clsAppStatus& appStatus,
                                 ProcessLauncher& launcher,
                                 const clsRecordingStatus& recordingStatus, QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_launcher(launcher)
    , m_recordingStatus(recordingStatus)
{
    connect(&TimerConvert, &IntervalTimer::timeout, this, &ConversionQueue::TimerConvert_Timer);
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
    QString folder = m_options.DefaultRecordingDirectory;
    if (folder.size() > 1 && !folder.endsWith(u'/'))
        folder += u'/';
    if (!m_appStatus.Converting())
        IdleBranch();
    else if (StopMp3Conversion)
        StopBranch(folder);
    else
        StepBranch();
}

void ConversionQueue::IdleBranch()
{
    if (Mp3ConvertQueue.isEmpty()) {
        UnattendedPath::LetEventsRun();
        TimerConvert.SetInterval(IdleInterval);
        return;
    }
    CurrentConvertRequest = Mp3ConvertQueue.takeFirst();
    StopMp3Conversion = false;
    const clsConvertToMP3Request& request = *CurrentConvertRequest;
    const QByteArray source = QFile::encodeName(request.SourceFile);
    const QByteArray destination = QFile::encodeName(request.DestinationFile);
    // The records with their extra bytes, as they lie in a wave file's format chunk.
    const QByteArray sourceFormat = request.SourceFormat.Record();
    const QByteArray destinationFormat = request.DestinationFormat.Record();
    const int32_t code = m_encoder.StartEncodeMp3(
        source.constData(), destination.constData(),
        reinterpret_cast<const NightreelWaveFormat*>(sourceFormat.constData()),
        reinterpret_cast<const NightreelWaveFormat*>(destinationFormat.constData()),
        request.DestinationFormat.SaveMP3FileExtension ? 0 : 1);
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
    SetConvertedFileTime(request);
    emit DoEndOfRecordingStuff(
        request.Description, request.DestinationFile, request.StartTime, request.EndTime,
        request.DestinationFormat.TextCompressionMethodShort, request.DestinationFormat);
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
    RemoveCaptures({request.SourceFile});
    m_appStatus.SetConverting(false);
    LaunchAfterRecording(m_log, m_launcher, true, request.LaunchAppAfter,
                         request.LaunchAfterOnlyIfOk, request.DestinationFile);
    UnattendedPath::LetEventsRun();
    TimerConvert.SetInterval(IdleInterval);
}

void ConversionQueue::StopBranch(const QString& folder)
{
    // The waiting recordings are dropped; their captures go with the running one's below,
    // and their launches are not run.
    while (!Mp3ConvertQueue.isEmpty())
        Mp3ConvertQueue.removeFirst();
    const clsConvertToMP3Request& request = *CurrentConvertRequest;
    QStringList captures;
    const QDir dir(folder);
    for (const QString& name :
         dir.entryList({QStringLiteral("*.WAV.TMP")}, QDir::Files | QDir::Hidden))
        captures << dir.filePath(name);

    const int32_t code = Finish(request);
    if (code != 0) {
        RemoveCaptures(captures);
        FailureBranch(code);
        return;
    }
    const double end = SetConvertedFileTime(request);
    emit DoEndOfRecordingStuff(request.Description, request.DestinationFile, request.StartTime, end,
                               request.DestinationFormat.TextCompressionMethodShort,
                               request.DestinationFormat);
    emit UpdateRecordingsButtonsAndMenus();
    emit UpdateModeDisplay();
    RemoveCaptures(captures);
    m_appStatus.SetConverting(false);
    UnattendedPath::LetEventsRun();
    LaunchAfterRecording(m_log, m_launcher, true, request.LaunchAppAfter,
                         request.LaunchAfterOnlyIfOk, request.DestinationFile);
    TimerConvert.SetInterval(IdleInterval);
}

void ConversionQueue::FailureBranch(int32_t code)
{
    const clsConvertToMP3Request& request = *CurrentConvertRequest;
    m_log.LogEvent(EventError, QStringLiteral("Error Converting to MP3"),
                   QStringLiteral("Error Code: ") + QString::number(code) +
                       QStringLiteral("\r\nDescription: ") + request.Description);
    m_encoder.Mp3ConvertErrorCleanUp();
    // The recording is gone, and no row is written.
    QFile::remove(request.DestinationFile);
    RemoveCaptures({request.SourceFile});
    LaunchAfterRecording(m_log, m_launcher, false, request.LaunchAppAfter,
                         request.LaunchAfterOnlyIfOk, request.DestinationFile);
    m_appStatus.SetConverting(false);
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

double ConversionQueue::SetConvertedFileTime(const clsConvertToMP3Request& request)
{
    const float size = ModuleFileTime::GetFileSizeMbytes(request.DestinationFile);
    const qint32 seconds = request.DestinationFormat.CalcSecondsFromMbytes(m_log, size);
    const double end = AutomationDate::AddSeconds(request.StartTime, seconds);
    ModuleFileTime::SetFileDateTime(request.DestinationFile, end);
    return end;
}

void ConversionQueue::RemoveCaptures(const QStringList& paths)
{
    const QString live = m_appStatus.Recording() ? m_recordingStatus.RecordingFile : QString();
    OpenFiles::RemoveUnlessInUse(paths, {live});
}
