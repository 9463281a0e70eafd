#pragma once

#include "common/IntervalTimer.h"
#include "recording/EncoderLibrary.h"
#include "recording/clsConvertToMP3Request.h"

#include <QList>
#include <QObject>
#include <memory>

class EventLog;
class Options;
class ProcessLauncher;
class clsAppStatus;
struct clsRecordingStatus;

// The MP3 conversion queue: recordings captured as PCM wait here, oldest first, and
// TimerConvert turns them into MP3 one at a time, one encoder step per turn of the event
// loop, so that the user interface and the heartbeat stay alive throughout. The end of a
// conversion writes the recording's row and runs its launch, as the end of a direct
// recording does.
class ConversionQueue : public QObject {
    Q_OBJECT
public:
    ConversionQueue(EventLog& log, const Options& options, clsAppStatus& appStatus,
                    ProcessLauncher& launcher, const clsRecordingStatus& recordingStatus,
                    QObject* parent = nullptr);

    static constexpr int IdleInterval = 250;
    static constexpr int ConvertingInterval = 1;

    // The timer runs from start-up to the unload, whatever else the program does.
    void Start() { TimerConvert.SetInterval(IdleInterval); }
    void Stop() { TimerConvert.SetInterval(0); }
    void TimerConvert_Timer();

    // The status panel's text while converting; empty otherwise.
    QString StatusBarDisplay() const;
    // The file being written by the running conversion, which is no recording yet; empty
    // when none runs.
    QString RunningDestination() const;

    // Where the encoder library is loaded from.
    EncoderLibrary& Encoder() { return m_encoder; }

    IntervalTimer TimerConvert;
    // Waiting requests, not the running one.
    Mp3ConvertQueueList Mp3ConvertQueue;
    // The running or last conversion; kept after its end.
    std::shared_ptr<clsConvertToMP3Request> CurrentConvertRequest;
    // Asks the running conversion to stop at its next tick and drops the waiting ones; set
    // by the user and by the disk guard, cleared when the next request is taken.
    bool StopMp3Conversion = false;

signals:
    // The row of Recordings and the recent recording, as for a direct recording.
    void DoEndOfRecordingStuff(const QString& Title, const QString& File, double StartTime,
                               double EndTime, const QString& CompressionMethod,
                               const clsRecordingFormat& Format);
    void UpdateRecordingsButtonsAndMenus();
    void UpdateModeDisplay();

private:
    void Tick();
    void IdleBranch();
    void StepBranch();
    void StopBranch(const QString& folder);
    void FailureBranch(int32_t code);
    int32_t Finish(const clsConvertToMP3Request& request);
    // Stamps the result with the end its size gives, so that a converted file's date is the
    // end of the recording rather than of the conversion; returns that end.
    double SetConvertedFileTime(const clsConvertToMP3Request& request);
    // Deletes captures, never the one a recording is writing now (here or in another
    // instance): Linux would let the live file go without a word.
    void RemoveCaptures(const QStringList& paths);

    EventLog& m_log;
    const Options& m_options;
    clsAppStatus& m_appStatus;
    ProcessLauncher& m_launcher;
    const clsRecordingStatus& m_recordingStatus;
    EncoderLibrary m_encoder;
};
