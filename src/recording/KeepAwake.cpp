#include "recording/KeepAwake.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "platform/SleepInhibitor.h"
#include "recording/ConversionQueue.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/Scheduler.h"
#include "store/Options.h"

#include <algorithm>

KeepAwake::KeepAwake(const Clock& clock, EventLog& log, const Options& options,
                     const clsAppStatus& appStatus, const Scheduler& scheduler,
                     const clsRecordingStatus& status, const ConversionQueue& conversion,
                     SleepInhibitor& inhibitor, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_scheduler(scheduler)
    , m_status(status)
    , m_conversion(conversion)
    , m_inhibitor(inhibitor)
{
    connect(&m_inhibitor, &SleepInhibitor::PrepareForSleep, this, &KeepAwake::OnPrepareForSleep);
}

double KeepAwake::WindowStart(const NextProgram& next)
{
    // The launch times themselves are cleared once used, so the lead comes from the delays.
    int lead = LeadSeconds;
    if (!next.NextInternetLink.isEmpty())
        lead = std::max<int>(lead, next.NextInternetLinkDelay);
    if (!next.NextLaunchAppPrior.isEmpty())
        lead = std::max<int>(lead, next.NextLaunchAppDelay);
    return AutomationDate::AddSeconds(next.NextProgramStart, -lead);
}

void KeepAwake::Update()
{
    Trap(m_log, "KeepAwake Update", [&] {
        const double now = m_clock.Now();
        const NextProgram& next = m_scheduler.next;
        const bool on = m_options.KeepAwakeForRecordings;
        m_inhibitor.SetWatching(on);
        QString why;
        if (on && m_appStatus.Recording())
            why = tr("Recording ") + m_status.Description;
        // A capture to convert waits in the queue for a moment before its conversion starts.
        else if (on && m_conversion.HasWork())
            why = tr("Converting a recording to MP3");
        else if (on && next.NextProgramFound && now >= WindowStart(next) &&
                 now < next.NextProgramEnd)
            why = tr("Recording ") + next.NextProgramDescription;
        if (why.isEmpty())
            m_inhibitor.Release();
        else
            m_inhibitor.Block(why);
        UpdateWakeAlarm(now);
    });
}

void KeepAwake::UpdateWakeAlarm(double now)
{
    const NextProgram& next = m_scheduler.next;
    qint64 alarm = 0;
    if (m_options.KeepAwakeForRecordings && next.NextProgramFound) {
        const double wake = WindowStart(next);
        // An alarm in the past does nothing: the machine is up and blocked by then. The
        // clock's helper takes none within the coming minute; the one set stays.
        if (wake > now && wake < AutomationDate::AddSeconds(now, LeadSeconds))
            return;
        if (wake > now) {
            if (wake != m_wakeTime) {
                m_wakeTime = wake;
                m_wakeEpochSeconds = AutomationDate::ToDateTime(wake).toSecsSinceEpoch();
            }
            alarm = m_wakeEpochSeconds;
        }
    }
    // An alarm that others set is left alone until there is one of ours to set.
    if (alarm == m_wakeAlarm || (alarm == 0 && m_wakeAlarm < 0))
        return;
    m_wakeAlarm = alarm;
    m_wakeAlarmSet = m_inhibitor.SetWakeAlarm(alarm) && alarm != 0;
    if (!m_wakeAlarmSet && alarm != 0 && !m_wakeAlarmMissingSaid) {
        m_wakeAlarmMissingSaid = true;
        m_log.LogEvent(EventInformation, tr("No wake alarm"),
                       tr("The computer's clock has no wake alarm that Nightreel "
                          "2000 may set (its helper nightreel-wake is not installed "
                          "or not allowed), so a computer that sleeps will not "
                          "wake by itself for a recording."));
    }
}

void KeepAwake::OnPrepareForSleep(bool start)
{
    Trap(m_log, "KeepAwake OnPrepareForSleep", [&] {
        if (!start || !m_options.KeepAwakeForRecordings)
            return;
        const NextProgram& next = m_scheduler.next;
        QString description;
        double startTime = 0.0;
        if (m_appStatus.Recording()) {
            description = m_status.Description;
            startTime = m_status.StartTime;
        } else if (next.NextProgramFound && !m_wakeAlarmSet) {
            // With an alarm set the machine wakes ahead of the program.
            description = next.NextProgramDescription;
            startTime = next.NextProgramStart;
        } else {
            return;
        }
        m_log.LogEvent(EventWarning, tr("Computer going to sleep"),
                       tr("The computer is going to sleep and will not wake by "
                          "itself for the following recording:\r\n") +
                           description + tr("\r\nStart: ") + Options::DateText(startTime));
    });
}
