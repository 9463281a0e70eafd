#include "recording/StatusBarPlus.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/clsError.h"
#include "recording/ConversionQueue.h"
#include "recording/clsConvertToMP3Request.h"
#include "recording/clsRecordingStatus.h"
#include "store/Options.h"

#include <QCoreApplication>

namespace {

// The folder part of a path, with its closing separator.
QString FolderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

QString OneDecimal(double value)
{
    return QString::number(value, 'f', 1);
}

QString SecondsOrMinutes(double from, double to, const QString& what)
{
    const qint64 seconds = std::max<qint64>(0, AutomationDate::SecondsBetween(from, to));
    if (seconds >= 120)
        return QString::number(AutomationDate::MinutesBetween(from, to)) +
               QCoreApplication::translate("StatusBarPlus", " minutes ") + what;
    return QString::number(seconds) + QCoreApplication::translate("StatusBarPlus", " seconds ") +
           what;
}

} // namespace

StatusBarPlus::StatusBarPlus(Clock& clock, EventLog& log, const Options& options,
                             const clsAppStatus& appStatus, clsError& error,
                             const clsRecordingStatus& recordingStatus, ConversionQueue& conversion,
                             DiskSpace& diskSpace)
    : m_clock(clock)
    , m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_error(error)
    , m_recordingStatus(recordingStatus)
    , m_conversion(conversion)
    , m_diskSpace(diskSpace)
{
}

QString StatusBarPlus::ElapsedText() const
{
    const qint64 seconds =
        AutomationDate::SecondsBetween(m_recordingStatus.StartTime, m_clock.Now());
    const auto two = [](qint64 n) {
        return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
    };
    const qint64 h = seconds / 3600, m = seconds / 60 % 60, s = seconds % 60;
    if (h > 0)
        return two(h) + u':' + two(m) + u':' + two(s);
    if (m > 0)
        return two(m) + u':' + two(s);
    return two(s);
}

QString StatusBarPlus::ElapsedRemainingText() const
{
    const double now = m_clock.Now();
    return SecondsOrMinutes(m_recordingStatus.StartTime, now, QStringLiteral("elapsed")) +
           QStringLiteral(", ") +
           SecondsOrMinutes(now, m_recordingStatus.EndTime, QStringLiteral("remaining"));
}

StatusBarPlus::Update StatusBarPlus::Run(const QString& convertingText,
                                         const clsConvertToMP3Request* pendingConversion)
{
    Update u;
    const bool recording = m_appStatus.Recording();
    const bool converting = m_appStatus.Converting();
    if (recording)
        u.modeToolTip = ElapsedRemainingText();
    else if (converting)
        u.modeText = convertingText;
    // The panel and the conditions are those of the disk being recorded to: the live file's
    // while a recording runs, else the folder in the options.
    const QString live = recording ? FolderOf(m_recordingStatus.RecordingFile) : QString();
    const QString folder = live.isEmpty() ? m_options.DefaultRecordingDirectory : live;
    if (!recording && m_error.InvalidRecordingDirectory())
        return u;
    const DiskSpaceMb disk = m_diskSpace.GetRecDirDiskSpaceMb(folder);

    const bool low = disk.free + 0.5 < m_options.StopRecMegsLeft;
    m_error.SetDiskLowStopRecording(low);
    if (recording)
        u.postStop = GuardRecording(disk, pendingConversion);
    if (converting) {
        const QString result = FolderOf(m_conversion.RunningDestination());
        GuardConversion(result == folder ? disk : m_diskSpace.GetRecDirDiskSpaceMb(result));
    }
    m_error.SetDiskLowWarn(disk.free < m_options.WarnRecMegsLeft);

    if (disk.usedPercent != m_shownDisk.usedPercent || disk.free != m_shownDisk.free ||
        m_diskText.isEmpty()) {
        m_shownDisk = disk;
        m_diskText = tr("Disk Space Used: ") + OneDecimal(disk.usedPercent) + u'%';
        m_diskToolTip = OneDecimal(disk.usedPercent) + tr("% used, ") + OneDecimal(disk.free) +
                        tr(" Megabytes remaining");
    }
    u.diskText = m_diskText;
    u.diskToolTip = m_diskToolTip;
    return u;
}

bool StatusBarPlus::GuardRecording(const DiskSpaceMb& disk,
                                   const clsConvertToMP3Request* pendingConversion)
{
    const qint16 stopLimit = m_options.StopRecMegsLeft;
    QString details;
    if (m_recordingStatus.ConvertToMP3 && pendingConversion) {
        // The MP3 share of what the recording will have written by now must fit too.
        const qint64 total =
            AutomationDate::SecondsBetween(m_recordingStatus.StartTime, m_recordingStatus.EndTime);
        const qint64 elapsed =
            AutomationDate::SecondsBetween(m_recordingStatus.StartTime, m_clock.Now());
        const double fraction = total > 0 ? double(elapsed) / double(total) : 1.0;
        const float size = pendingConversion->DestinationFormat.CalcStorageMbytesSng(qint32(total));
        const double written = double(size) * fraction + 0.5;
        if (disk.free - written < stopLimit)
            details = tr(
                "\r\nRemove recordings from disk or change the recording directory to a "
                "different disk drive.  Note: MP3 conversion also requires temporary storage for "
                "the PCM recording in the default recording folder.  Since the PCM file is "
                "several times larger than the MP3 file, plenty of space is needed. Space is also "
                "needed for any temporary PCM files which have not finished converting.");
    }
    if (details.isEmpty() && disk.free + 0.5 < stopLimit)
        details = tr("\r\nRemove recordings from disk or change the recording "
                     "directory to a different disk drive.");
    if (details.isEmpty())
        return false;
    const QString recording =
        m_recordingStatus.RecordingFile + u'@' + QString::number(m_recordingStatus.StartTime);
    if (m_recordingLogged != recording) {
        m_recordingLogged = recording;
        m_log.LogEvent(EventError, tr("Recording stopped due to insufficient disk space."),
                       tr("Recording Description: ") + m_recordingStatus.Description + details);
    }
    return true;
}

void StatusBarPlus::GuardConversion(const DiskSpaceMb& disk)
{
    if (disk.free + 0.5 >= m_options.StopRecMegsLeft)
        return;
    m_conversion.StopMp3Conversion = true;
    const QString conversion = m_conversion.RunningDestination();
    if (m_conversionLogged == conversion)
        return;
    m_conversionLogged = conversion;
    m_log.LogEvent(EventError, tr("MP3 conversion stopped due to insufficient disk space."),
                   tr("Remove recordings from disk or change the default recording "
                      "directory to a different disk drive."));
}
