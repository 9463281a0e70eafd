#include "recording/Recorder.h"

#include "common/Clock.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "sideactions/ViewHtmlFile.h"

Recorder::Recorder(const RecorderServices& services, QObject* parent)
    : QObject(parent)
    , m_clock(services.clock)
    , m_log(services.log)
    , m_appStatus(services.appStatus)
    , m_error(services.error)
    , m_messageBox(services.messageBox)
    , m_launcher(services.launcher)
    , m_runtimeFolder(services.runtimeFolder)
    , m_hasDisplay(services.hasDisplay)
    , m_manual(services.manualRequest)
    , m_conversion(services.log, services.options, services.appStatus, services.launcher, m_status,
                   services.diskSpace, services.dataFolder + QStringLiteral("/conversions.json"))
    , m_link(services.log, services.appStatus, services.runtimeFolder)
    , m_control(services, m_link, m_status, m_conversion, m_manual)
    , m_heartbeat(services.clock, services.log, services.options, services.launcher,
                  services.scheduler, services.appStatus, m_status)
    , m_statusBar(services.clock, services.log, services.options, services.appStatus,
                  services.error, m_status, m_conversion, services.diskSpace)
    , m_silenceAlarm(services.log, services.error, m_status)
    , m_streamGaps(services.log, m_status)
    , m_keepAwake(services.clock, services.log, services.options, services.appStatus,
                  services.scheduler, m_status, m_conversion, services.sleepInhibitor)
    , m_missed(services.clock, services.log, services.registry, services.scheduler,
               services.database, services.appStatus, m_status, services.sleepInhibitor)
    , m_primed(services.clock, services.log, services.options, services.database,
               services.scheduler, services.appStatus, m_link)
{
    connect(&m_heartbeat, &Heartbeat::StartRecordingDue, &m_control,
            &RecordingControl::StartRecording);
    connect(&m_heartbeat, &Heartbeat::StopRecordingDue, &m_control, &RecordingControl::RequestStop);
    connect(&m_heartbeat, &Heartbeat::UpdateStatusBarPlus, this, &Recorder::UpdateStatusBarPlus);
    connect(&m_heartbeat, &Heartbeat::SnapshotWindowsBeforeLink, this,
            [this] { m_control.Player().SnapshotWindowsBeforeLink(); });
    connect(&m_heartbeat, &Heartbeat::OpenInternetLink, this, &Recorder::OpenInternetLink);
    connect(&m_heartbeat, &Heartbeat::PurgeDue, this, &Recorder::PurgeDue);
    connect(&m_control, &RecordingControl::UpdateModeDisplay, this, &Recorder::UpdateModeDisplay);
    connect(&m_control, &RecordingControl::RecordingStarted, this, &Recorder::RecordingStarted);
    connect(&m_control, &RecordingControl::RecordingEnded, this, &Recorder::RecordingEnded);
    connect(&m_control, &RecordingControl::UpdateRecordingsButtonsAndMenus, this,
            &Recorder::UpdateRecordingsButtonsAndMenus);
    connect(&m_control, &RecordingControl::ShowRecordingStatusForm, this,
            &Recorder::ShowRecordingStatusForm);
    connect(&m_control, &RecordingControl::UnloadRecordingStatusForm, this,
            &Recorder::UnloadRecordingStatusForm);
    connect(&m_link, &RecordingTaskLink::MinimizeToTray, this, &Recorder::MinimizeToTray);
    connect(&m_conversion, &ConversionQueue::DoEndOfRecordingStuff, &m_control,
            &RecordingControl::DoEndOfRecordingStuff);
    connect(&m_conversion, &ConversionQueue::UpdateRecordingsButtonsAndMenus, this,
            &Recorder::UpdateRecordingsButtonsAndMenus);
    connect(&m_conversion, &ConversionQueue::UpdateModeDisplay, this, &Recorder::UpdateModeDisplay);
    ConnectUnattended();
}

void Recorder::ConnectUnattended()
{
    connect(&m_link, &RecordingTaskLink::InputSilent, &m_silenceAlarm, &SilenceAlarm::InputSilent);
    connect(&m_link, &RecordingTaskLink::SoundReturned, &m_silenceAlarm,
            &SilenceAlarm::SoundReturned);
    connect(&m_control, &RecordingControl::RecordingStarted, &m_silenceAlarm, &SilenceAlarm::Reset);
    connect(&m_link, &RecordingTaskLink::StreamGap, &m_streamGaps, &StreamGapLog::StreamGap);
    connect(&m_control, &RecordingControl::RecordingEnded, &m_silenceAlarm, &SilenceAlarm::Reset);
    // Each tick, and at once when a recording or a conversion ends.
    connect(&m_heartbeat, &Heartbeat::UpdateStatusBarPlus, &m_keepAwake, &KeepAwake::Update);
    connect(&m_control, &RecordingControl::RecordingEnded, &m_keepAwake, &KeepAwake::Update);
    connect(&m_conversion, &ConversionQueue::UpdateModeDisplay, &m_keepAwake, &KeepAwake::Update);
    connect(&m_heartbeat, &Heartbeat::UpdateStatusBarPlus, &m_missed, &MissedRecordings::NoteAlive);
    connect(&m_missed, &MissedRecordings::RecordingsMissed, this, &Recorder::RecordingsMissed);
    connect(&m_heartbeat, &Heartbeat::UpdateStatusBarPlus, &m_primed, &PrimedTask::Update);
    // A heartbeat that is between ticks takes an extra one; a stopped one leaves the
    // primed task to be ended.
    connect(&m_primed, &PrimedTask::DueSecond, this, [this] {
        if (m_heartbeat.Timer1.Interval() != 0)
            m_heartbeat.Timer1_Timer();
        else
            m_primed.Update();
    });
}

void Recorder::CheckMissedRecordings()
{
    m_missed.CheckAtStart();
}

void Recorder::Start()
{
    m_heartbeat.Start();
    m_conversion.Start();
}

void Recorder::Stop()
{
    m_heartbeat.Timer1.SetInterval(0);
    m_link.EndPrimedTask();
    m_conversion.Stop();
    m_missed.NoteStopping();
}

void Recorder::StartManualRecording()
{
    const double now = m_clock.Now();
    m_status.ProgramId = -1;
    m_control.StartRecording(-1, now, now + m_manual.DurationSeconds / 86400.0,
                             m_manual.Description);
}

void Recorder::UpdateStatusBarPlus()
{
    const StatusBarPlus::Update update =
        m_statusBar.Run(m_conversion.StatusBarDisplay(), m_control.ConvertRequest());
    if (update.postStop)
        m_control.RequestStop();
    emit StatusBarUpdated(update);
}

ModeDisplay Recorder::Mode(ModeDisplay::Extra extra) const
{
    extra.elapsedRemainingText = m_statusBar.ElapsedRemainingText();
    extra.convertingText = m_conversion.StatusBarDisplay();
    extra.convertingDescription = ConvertingDescription();
    return ModeDisplay::Compute(m_appStatus, m_error, extra);
}

QString Recorder::ConvertingDescription() const
{
    const auto& request = m_conversion.CurrentConvertRequest;
    return request ? request->Description : QString();
}

QStringList Recorder::FilesBeingWritten() const
{
    return {m_status.FinalFile, m_conversion.RunningDestination()};
}

QStringList Recorder::ResumeConversions(const QStringList& leftCaptures)
{
    m_conversion.LoadSavedQueue();
    return m_conversion.KeepLeftCaptures(leftCaptures);
}

void Recorder::OpenInternetLink(const QString& link)
{
    if (!m_hasDisplay) {
        m_log.LogEvent(EventInformation, tr("Web link not opened"),
                       tr("There is no display to open it on: ") + link);
        return;
    }
    Trap(m_log, "OpenInternetLink",
         [&] { ViewHtmlFile(m_messageBox, m_launcher, m_runtimeFolder, link); });
}
