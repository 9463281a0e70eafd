#include "recording/Heartbeat.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/ProcessLauncher.h"
#include "common/UnattendedPath.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/Scheduler.h"
#include "store/Options.h"

#include <limits>

namespace {

constexpr int kClockJumpSeconds = 2500;
constexpr int kLaunchWindowSeconds = 30;
constexpr int kRelaunchSeconds = 120;
constexpr int kStopLeadSeconds = 90;
constexpr int kPurgeEveryHours = 22;
constexpr double kPurgeSpan = 5.0 / 1440.0;

// A launch is due from its time until 30 seconds later, and not again within 120 seconds.
bool LaunchDue(double now, double launchTime, double lastLaunch)
{
    return now >= launchTime &&
           now < AutomationDate::AddSeconds(launchTime, kLaunchWindowSeconds) &&
           now > AutomationDate::AddSeconds(lastLaunch, kRelaunchSeconds);
}

} // namespace

Heartbeat::Heartbeat(Clock& clock, EventLog& log, Options& options, ProcessLauncher& launcher,
                     Scheduler& scheduler, clsAppStatus& appStatus,
                     clsRecordingStatus& recordingStatus, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_log(log)
    , m_options(options)
    , m_launcher(launcher)
    , m_scheduler(scheduler)
    , m_appStatus(appStatus)
    , m_recordingStatus(recordingStatus)
    , m_lastLinkLaunch(AutomationDate::LongAgo())
    , m_lastAppLaunch(AutomationDate::LongAgo())
    , m_lastPurge(AutomationDate::LongAgo())
{
    connect(&Timer1, &IntervalTimer::timeout, this, &Heartbeat::Timer1_Timer);
}

void Heartbeat::Timer1_Timer()
{
    if (!m_appStatus.Ready())
        return;
    // No tick may arrive while this one waits or lets events run.
    Timer1.SetInterval(0);
    const UnattendedPath unattended;
    if (Trap(m_log, "Timer1_Timer", [this] { Tick(); }))
        Timer1.SetInterval(TickInterval);
}

void Heartbeat::Tick()
{
    const double now = m_clock.Now();
    qint64 secondsSinceLastTick = AutomationDate::SecondsBetween(m_lastTickTime, now);
    if (secondsSinceLastTick < std::numeric_limits<qint32>::min() ||
        secondsSinceLastTick > std::numeric_limits<qint32>::max())
        secondsSinceLastTick = 0;
    m_lastTickTime = now;

    Scheduler& scheduler = m_scheduler;
    const NextProgram& next = scheduler.next;
    const bool recording = m_appStatus.Recording();
    // A clock that was set or a machine that slept; while recording the end just comes later.
    if (std::abs(secondsSinceLastTick) > kClockJumpSeconds && !recording)
        scheduler.ScheduleNextRecording();

    if (!next.NextInternetLink.isEmpty() &&
        LaunchDue(now, next.NextLinkLaunchTime, m_lastLinkLaunch)) {
        if (next.NextStreamingPlayerClose.isEmpty())
            emit SnapshotWindowsBeforeLink();
        m_lastLinkLaunch = now;
        emit OpenInternetLink(next.NextInternetLink);
        scheduler.next.NextLinkLaunchTime = AutomationDate::Never();
    }

    if (!next.NextLaunchAppPrior.isEmpty() &&
        LaunchDue(now, next.NextAppLaunchTime, m_lastAppLaunch))
        LaunchAppPrior(now);

    if (m_appStatus.Recording()) {
        clsRecordingStatus& status = m_recordingStatus;
        if (!status.NextProgramScheduled &&
            now > AutomationDate::AddSeconds(status.EndTime, -kStopLeadSeconds)) {
            scheduler.ScheduleNextRecording();
            status.NextProgramScheduled = true;
        }
        // The receiver's stop request sets StopRequested; it is the only writer.
        if (now > status.EndTime && !status.StopRequested)
            emit StopRecordingDue();
    }
    if (!m_appStatus.Recording() && next.NextProgramFound) {
        if (now > next.NextProgramEnd)
            scheduler.ScheduleNextRecording();
        // A stream opened ahead still starts its recording at the due second.
        if (next.NextProgramFound && now >= next.RecordingOpenTime() && now < next.NextProgramEnd)
            emit StartRecordingDue(next.NextProgramId, qMax(now, next.NextProgramStart),
                                   next.NextProgramEnd, next.NextProgramDescription);
    }

    if (m_options.PurgeRecordings &&
        AutomationDate::HoursBetween(m_lastPurge, now) > kPurgeEveryHours)
        Purge(now);

    emit UpdateStatusBarPlus();
}

void Heartbeat::LaunchAppPrior(double now)
{
    m_lastAppLaunch = now;
    const QString command = m_scheduler.next.NextLaunchAppPrior;
    // The command runs as it stands: no file name is put into it ahead of a recording.
    if (!m_launcher.StartDetached(command, WindowStyleMinimizedNoActivate))
        m_log.LogEvent(EventWarning, tr("Invalid Launch Application command"),
                       tr("The command to launch an application is invalid.  Check the file "
                          "paths and that the applications exists.\r\nCommand= ") +
                           command);
    m_scheduler.next.NextAppLaunchTime = AutomationDate::Never();
}

void Heartbeat::Purge(double now)
{
    // Within five minutes from the purge time; the span does not wrap over midnight.
    const double timeOfDay = AutomationDate::TimePart(now);
    const double purgeTime = m_options.PurgeTime;
    if (timeOfDay < purgeTime || timeOfDay > purgeTime + kPurgeSpan)
        return;
    emit PurgeDue();
    m_lastPurge = m_clock.Now();
}
