#pragma once

#include "formats/clsRecordingFormat.h"
#include "recording/RecordingTaskLink.h"
#include "recording/clsConvertToMP3Request.h"

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

class AppContext;

// The life of one recording, from a row of Programs (or a manual request) to a file and a
// row of Recordings: the start, the user's stop and pause, the end with its after-actions.
// It owns the link to the recording task; the main window shows what it signals.
class RecordingControl : public QObject {
    Q_OBJECT
public:
    explicit RecordingControl(AppContext& ctx, QObject* parent = nullptr);
    ~RecordingControl() override;

    // ProgramId is a row of Programs, or -1 for a manual recording; StartTime is the moment
    // of the call, EndTime the scheduled end. Description is read for a manual recording only.
    void StartRecording(qint32& ProgramId, double StartTime, double EndTime, QString& Description);
    // The user's stop: of the recording, or else of the running MP3 conversion.
    void HandleStopRecordingRequest(bool Confirm);
    // "P" pauses, "R" resumes, anything else toggles; in any case of letters.
    void ToolbarPauseResume(const QString& Command);
    // Finishes every recording however it ended; harmless when none is running.
    void StopRecording();
    // The row of Recordings for a finished file; its times come from the file itself.
    void DoEndOfRecordingStuff(const QString& Title, const QString& File, double StartTime,
                               double EndTime, const QString& CompressionMethod,
                               const clsRecordingFormat& Format);

    RecordingTaskLink link;

    // What the manual recording dialog leaves for StartRecording: the format and the
    // user's own file name.
    clsRecordingFormat ManualFormat;
    QString ManualFilenameUser;

    // The recording in progress: the format the user chose and, for one to be converted,
    // the request that the conversion queue takes when the capture is over.
    clsRecordingFormat Format;
    std::shared_ptr<clsConvertToMP3Request> ConvertRequest;
    // Recordings waiting for their MP3 conversion, oldest first, and the one being converted.
    Mp3ConvertQueueList Mp3ConvertQueue;
    std::shared_ptr<clsConvertToMP3Request> CurrentConvertRequest;

    // Free Mbytes of the file system that holds the folder; tests may put in their own.
    std::function<double(const QString& folder)> FreeMegabytes;

signals:
    void UpdateModeDisplay();
    void UpdateRecordingsButtonsAndMenus();
    // Puts the elapsed time of the recording on the task bar in a small window of its own.
    void ShowRecordingStatusForm();
    void UnloadRecordingStatusForm();

private:
    void StartRecordingSteps(qint32& ProgramId, double StartTime, double EndTime,
                             QString& Description);
    void StopRecordingSteps();
    void ExitAndClear();

    AppContext& m_ctx;
};
