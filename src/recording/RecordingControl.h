#pragma once

#include "formats/clsRecordingFormat.h"
#include "recording/RecordingControlServices.h"
#include "recording/RecordingEndPlan.h"
#include "recording/RecordingPlan.h"
#include "recording/clsConvertToMP3Request.h"
#include "recording/clsManualRecord.h"
#include "sideactions/StreamingPlayer.h"

#include <QList>
#include <QObject>
#include <QString>
#include <exception>
#include <memory>

class ConversionQueue;
class RecordingTaskLink;
struct clsRecordingStatus;

// The life of one recording, from a row of Programs (or a manual request) to a file and a
// row of Recordings: the start, the stop request, the user's pause, the end with its
// after-actions. It is the one writer of the recording's status; the task link tells it
// what the task says.
class RecordingControl : public QObject {
    Q_OBJECT
public:
    RecordingControl(const RecordingControlServices& services, RecordingTaskLink& link,
                     clsRecordingStatus& status, ConversionQueue& conversion,
                     const clsManualRecord& manual, QObject* parent = nullptr);
    ~RecordingControl() override;

    // ProgramId is a row of Programs, or -1 for a manual recording; StartTime is the moment
    // of the call, EndTime the scheduled end. Description is read for a manual recording only.
    // Its steps go on after a failure as their rules say; what failed is thrown at the end,
    // marked with the start's name.
    void BeginRecording(qint32 ProgramId, double StartTime, double EndTime,
                        const QString& Description);
    // The heartbeat's timed start: traps what BeginRecording throws.
    void StartRecording(qint32 ProgramId, double StartTime, double EndTime,
                        const QString& Description);
    // The stop request of the clock, the user and the disk guard: posts the stop to the task
    // once per recording and arms the watchdog; the task's answer or the watchdog ends it.
    void RequestStop();
    // The user's stop: of the recording, or else of the running MP3 conversion. Throws,
    // marked with its name, for the trap of the tool bar, the key, the joystick or the bus.
    void HandleStopRecordingRequest(bool Confirm);
    // "P" pauses, "R" resumes, anything else toggles; in any case of letters. Throws as the
    // stop does.
    void ToolbarPauseResume(const QString& Command);
    // Finishes every recording however it ended; harmless when none is running. Reports
    // what failed on the way.
    void StopRecording();
    // The row of Recordings for a converted file; its times come from the file itself.
    void DoEndOfRecordingStuff(const QString& Title, const QString& File, double StartTime,
                               double EndTime, const QString& CompressionMethod,
                               const clsRecordingFormat& Format);

    // The request the recording in progress will queue when it is to be converted; null
    // otherwise.
    const clsConvertToMP3Request* ConvertRequest() const { return m_convertRequest.get(); }
    // The player that a program's web link opened, closed at the end of its recording.
    StreamingPlayer& Player() { return m_player; }

signals:
    // The task captures: the recording has started for good. The tray animates from the
    // first of these on.
    void RecordingStarted();
    void UpdateModeDisplay();
    void UpdateRecordingsButtonsAndMenus();
    // Puts the elapsed time of the recording on the task bar in a small window of its own.
    void ShowRecordingStatusForm();
    void UnloadRecordingStatusForm();
    // The recording is over, however it ended (a conversion may follow).
    void RecordingEnded();

private:
    PlannedRecording PlanStart(qint32 ProgramId, double StartTime, double EndTime,
                               const QString& Description);
    // A start that failed before it had a plan: nothing runs for it. This and the steps
    // below add what failed to the start's failures.
    void PassOverFailedStart(QList<std::exception_ptr>& failed, qint32 ProgramId, double EndTime);
    RecordingRequest Request(qint32 ProgramId, double StartTime, double EndTime,
                             const QString& Description) const;
    RecordingSettings Settings(bool manual) const;
    void Refuse(QList<std::exception_ptr>& failed, const RecordingRefusal& refusal);
    // Makes the plan the recording in progress and carries it out, step by step.
    void CarryOut(QList<std::exception_ptr>& failed, const RecordingPlan& plan, double StartTime);
    // Writes the parameters and starts the task; false when the task did not come up.
    bool StartTask(const RecordingPlan& plan, double StartTime);
    // Tells the task to capture: the task's error number (1 and up) when it refused.
    qint32 StartCapture();
    // Ends the task's part and decides what becomes of the file.
    RecordingEndPlan EndCapture();
    // The row of Recordings; throws, marked with the routine's name.
    void ListRecording(const QString& Title, const QString& File, double StartTime,
                       const QString& CompressionMethod, const clsRecordingFormat& Format);
    // StopRecording's steps, their failures kept for the caller: the start that fails
    // after its task came up reports them with its own.
    void EndRecording(QList<std::exception_ptr>& failed);
    void EndFile(RecordingEndPlan::File file);
    void EndPlayerAndConnection(const RecordingEndPlan& plan);
    // The recording is over: the next one is sought and the forms follow.
    void Finish();
    void ExitAndClear();
    void OnTaskError(qint32 code, const QString& detail);
    // A stream's broadcast is kept as it came: the row shows its real format.
    void OnStreamFormatKept(const QByteArray& record);
    void OnTaskNotResponding();

    RecordingControlServices m_s;
    RecordingTaskLink& m_link;
    clsRecordingStatus& m_status;
    ConversionQueue& m_conversion;
    // A manual recording takes its format and the user's file name from here.
    const clsManualRecord& m_manual;
    // The recording in progress: the format the user chose and, for one to be converted,
    // the request that the conversion queue takes when the capture is over.
    clsRecordingFormat m_format;
    std::shared_ptr<clsConvertToMP3Request> m_convertRequest;
    StreamingPlayer m_player;
};
