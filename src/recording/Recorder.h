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

    // Reports the recordings missed since the last run; the start-up runs it as its own step
    // right before Start, which goes on after its failure.
    void CheckMissedRecordings();
    // The heartbeat and the conversion timer start at the end of the first activation and
    // stop at the unload. A saved conversion queue that can't be read throws once both run.
    void Start();
    void Stop();

    // The user's commands. A manual recording takes its length, description, format and
    // file name from the manual request (the one the context holds) and starts now.
    void StartManualRecording();
    void StopCommand(bool confirm) { m_control.HandleStopRecordingRequest(confirm); }
    void PauseCommand(const QString& command) { m_control.ToolbarPauseResume(command); }

    // One round of the status bar and the disk guard: on every tick and after list changes.
    void UpdateStatusBarPlus();
    // The mode as it stands, with the recording's and the conversion's texts filled in.
    ModeDisplay Mode(ModeDisplay::Extra extra) const;

    // The clock's stop, the disk guard's and the service manager's: the task is asked to
    // end the recording and save it.
    void RequestStop() { m_control.RequestStop(); }

    // The recording in progress, or the last one.
    const clsRecordingStatus& Status() const { return m_status; }
    // How long the recording runs, as the task bar shows it.
    QString ElapsedText() const { return m_statusBar.ElapsedText(); }
    // The description of the request being converted; empty when none is.
    QString ConvertingDescription() const;
    // The recording's file and the running conversion's: not to be listed as finished yet.
    QStringList FilesBeingWritten() const;

    // The recording task's program (tests and the soak run name one of their own) and the
    // parameter file it reads at its start; a crashed run may have left the file behind.
    QString TaskProgram() const { return m_link.TaskProgram(); }
    void SetTaskProgram(const QString& program) { m_link.SetTaskProgram(program); }
    QString ParameterFile() const { return m_link.ParameterFile(); }

    // At the first activation: the conversions saved by the last run are queued again, and
    // of the captures left behind those the queue does not take are returned for the list.
    QStringList ResumeConversions(const QStringList& leftCaptures);

signals:
    void StatusBarUpdated(const StatusBarPlus::Update& update);
    void RecordingStarted();
    void UpdateModeDisplay();
    // The recording is over, however it ended (a conversion may follow).
    void RecordingEnded();
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
    // Tests and benchmarks drive the parts by hand through it.
    friend struct RecorderParts;

    void OpenInternetLink(const QString& link);
    // The keep-awake and the silence alarm.
    void ConnectUnattended();

    const Clock& m_clock;
    EventLog& m_log;
    const clsAppStatus& m_appStatus;
    const clsError& m_error;
    MessageBoxPresenter& m_messageBox;
    ProcessLauncher& m_launcher;
    const QString m_runtimeFolder;
    const bool m_hasDisplay;
    clsRecordingStatus m_status;
    // A manual recording starts from this request.
    const clsManualRecord& m_manual;
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
