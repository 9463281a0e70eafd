#include "shell/StatusBarPlus.h"

#include "common/AutomationDate.h"
#include "common/TextHelpers.h"
#include "shell/AppContext.h"

#include <QStorageInfo>

namespace StatusBarPlus {
namespace {

constexpr double kBytesPerMb = 1048576.0;

const QString kDiskStopMessage =
    QStringLiteral("Recording stopped due to insufficient disk space.");

QString OneDecimal(double value)
{
    return QString::number(value, 'f', 1);
}

QString SecondsOrMinutes(double from, double to, const QString& what)
{
    const qint64 seconds = std::max<qint64>(0, AutomationDate::SecondsBetween(from, to));
    if (seconds >= 120)
        return QString::number(AutomationDate::MinutesBetween(from, to)) +
               QStringLiteral(" minutes ") + what;
    return QString::number(seconds) + QStringLiteral(" seconds ") + what;
}

} // namespace

DiskSpaceMb FromBytes(qint64 totalBytes, qint64 freeBytes)
{
    DiskSpaceMb d;
    d.total = totalBytes / kBytesPerMb;
    d.free = freeBytes / kBytesPerMb;
    d.used = d.total - d.free;
    d.usedPercent = d.total < 1.0 ? 100.0f : float(d.used / d.total * 100.0);
    return d;
}

DiskSpaceMb GetRecDirDiskSpaceMb(const QString& folder)
{
    if (Text::Trim(folder).size() < 3)
        return {};
    const QStorageInfo storage(folder);
    if (!storage.isValid())
        return {};
    return FromBytes(storage.bytesTotal(), storage.bytesAvailable());
}

QString ElapsedText(const AppContext& ctx)
{
    const qint64 seconds = AutomationDate::SecondsBetween(ctx.recordingStatus.StartTime, ctx.Now());
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

QString ElapsedRemainingText(const AppContext& ctx)
{
    const double now = ctx.Now();
    return SecondsOrMinutes(ctx.recordingStatus.StartTime, now, QStringLiteral("elapsed")) +
           QStringLiteral(", ") +
           SecondsOrMinutes(now, ctx.recordingStatus.EndTime, QStringLiteral("remaining"));
}

Update Run(AppContext& ctx, const QString& convertingText)
{
    const bool folderKnown = !ctx.error.InvalidRecordingDirectory();
    return Run(ctx, convertingText,
               folderKnown ? GetRecDirDiskSpaceMb(ctx.options.DefaultRecordingDirectory)
                           : DiskSpaceMb());
}

Update Run(AppContext& ctx, const QString& convertingText, const DiskSpaceMb& disk)
{
    Update u;
    const bool recording = ctx.appStatus.Recording();
    if (recording)
        u.modeToolTip = ElapsedRemainingText(ctx);
    else if (ctx.appStatus.Converting())
        u.modeText = convertingText;
    if (ctx.error.InvalidRecordingDirectory())
        return u;

    const qint16 stopLimit = ctx.options.StopRecMegsLeft;
    if (disk.free + 0.5 < stopLimit) {
        ctx.error.SetDiskLowStopRecording(true);
        if (recording) {
            u.postStop = true;
            ctx.log.LogEvent(EventError, kDiskStopMessage,
                             QStringLiteral("Recording Description: ") +
                                 ctx.recordingStatus.Description +
                                 QStringLiteral("\r\nRemove recordings from disk or change the "
                                                "recording directory to a different disk drive."));
        }
        if (ctx.appStatus.Converting()) {
            ctx.log.LogEvent(
                EventError,
                QStringLiteral("MP3 conversion stopped due to insufficient disk space."),
                QStringLiteral("Remove recordings from disk or change the default recording "
                               "directory to a different disk drive."));
            ctx.StopMp3Conversion = true;
        }
    } else {
        ctx.error.SetDiskLowStopRecording(false);
    }
    if (u.postStop && ctx.recordingStatus.StopRequested)
        u.postStop = false;
    else if (u.postStop)
        ctx.recordingStatus.StopRequested = true;
    ctx.error.SetDiskLowWarn(disk.free < ctx.options.WarnRecMegsLeft);

    u.diskText = QStringLiteral("Disk Space Used: ") + OneDecimal(disk.usedPercent) + u'%';
    u.diskToolTip = OneDecimal(disk.usedPercent) + QStringLiteral("% used, ") +
                    OneDecimal(disk.free) + QStringLiteral(" Megabytes remaining");
    return u;
}

} // namespace StatusBarPlus
