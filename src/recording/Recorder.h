#pragma once

#include "recording/ConversionQueue.h"
#include "recording/Heartbeat.h"
#include "recording/KeepAwake.h"
#include "recording/MissedRecordings.h"
#include "recording/ModeDisplay.h"
#include "recording/PrimedTask.h"
#include "recording/RecorderServices.h"
#include "recording/RecordingControl.h"
#include "recording/RecordingTaskLink.h"
#include "recording/SilenceAlarm.h"
#include "recording/StatusBarPlus.h"
#include "recording/StreamGapLog.h"
#include "recording/clsManualRecord.h"
#include "recording/clsRecordingStatus.h"

#include <QObject>

// The running recorder: the heartbeat, the recording control, the link to the recording
// task, the disk guard and the conversion queue, wired together. The main window observes
// its signals and forwards the user's commands; a test builds the very same object.
class Recorder : public QObject {
    Q_OBJECT
public:
    explicit Recorder(const RecorderServices& services, QObject* parent = nullptr);

    // The heartbeat and the conversion timer start at the end of the first activation and
    // stop at the unload; the start first reports the recordings missed since the last run.
    void Start();
    void Stop();

    // The user's commands. A manual recording takes its length, description, format and
    // file name from the manual request and starts now.
    void StartManualRecording();
    void StopCommand(bool confirm) { m_control.HandleStopRecordingRequest(confirm); }
    void PauseCommand(const QString& command) { m_control.ToolbarPauseResume(command); }

    // One round of the status bar and the disk guard: on every tick and after list changes.
    void UpdateStatusBarPlus();
    // The mode as it stands, with the recording's and the conversion's texts filled in.
    ModeDisplay Mode(ModeDisplay::Extra extra) const;

    clsRecordingStatus& Status() { return m_status; }
    ConversionQueue& Conversion() { return m_conversion; }
    RecordingTaskLink& Link() { return m_link; }
    RecordingControl& Control() { return m_control; }
    Heartbeat& HeartbeatTimer() { return m_heartbeat; }
    const StatusBarPlus& StatusBar() const { return m_statusBar; }
    KeepAwake& KeepAwakeControl() { return m_keepAwake; }
    MissedRecordings& Missed() { return m_missed; }
    // The manual request that a recording of program -1 starts from.
    clsManualRecord& Manual() { return m_manual; }

signals:
    void StatusBarUpdated(const StatusBarPlus::Update& update);
    void RecordingStarted();
    void UpdateModeDisplay();
    void UpdateRecordingsButtonsAndMenus();
    void ShowRecordingStatusForm();
    void UnloadRecordingStatusForm();
    // The task was asked to minimise the main window: it goes to the tray instead.
    void MinimizeToTray();
    // The daily purge is due; the list's owner runs it.
    void PurgeDue();
    // Recordings missed while the recorder was not running or the computer slept, one line
    // each, once.
    void RecordingsMissed(const QStringList& lines);

private:
    void OpenInternetLink(const QString& link);
    // The keep-awake and the silence alarm.
    void ConnectUnattended();

    RecorderServices m_s;
    clsRecordingStatus m_status;
    clsManualRecord m_manual;
    ConversionQueue m_conversion;
    RecordingTaskLink m_link;
    RecordingControl m_control;
    Heartbeat m_heartbeat;
    StatusBarPlus m_statusBar;
    SilenceAlarm m_silenceAlarm;
    StreamGapLog m_streamGaps;
    KeepAwake m_keepAwake;
    MissedRecordings m_missed;
    PrimedTask m_primed;
};
