#include "recording/Recorder.h"

#include "sideactions/ViewHtmlFile.h"

Recorder::Recorder(AppContext& formats, const RecorderServices& services, QObject* parent)
    : QObject(parent)
    , m_s(services)
    , m_link(services.log, services.appStatus, services.runtimeFolder)
    , m_control(formats, services, m_link, m_status, m_conversion)
    , m_heartbeat(services.clock, services.log, services.options, services.launcher,
                  services.scheduler, services.appStatus, m_status)
    , m_statusBar(services.clock, services.log, services.options, services.appStatus,
                  services.error, m_status, m_conversion, services.diskSpace)
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
    connect(&m_control, &RecordingControl::UpdateRecordingsButtonsAndMenus, this,
            &Recorder::UpdateRecordingsButtonsAndMenus);
    connect(&m_control, &RecordingControl::ShowRecordingStatusForm, this,
            &Recorder::ShowRecordingStatusForm);
    connect(&m_control, &RecordingControl::UnloadRecordingStatusForm, this,
            &Recorder::UnloadRecordingStatusForm);
    connect(&m_link, &RecordingTaskLink::MinimizeToTray, this, &Recorder::MinimizeToTray);
}

void Recorder::Start()
{
    m_heartbeat.Start();
}

void Recorder::Stop()
{
    m_heartbeat.Timer1.SetInterval(0);
}

void Recorder::UpdateStatusBarPlus()
{
    const StatusBarPlus::Update update = m_statusBar.Run(QString());
    if (update.postStop)
        m_control.RequestStop();
    emit StatusBarUpdated(update);
}

void Recorder::OpenInternetLink(const QString& link)
{
    ViewHtmlFile(m_s.log, m_s.messageBox, m_s.launcher, m_s.runtimeFolder, link);
}
