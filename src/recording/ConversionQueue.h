#pragma once

#include "common/IntervalTimer.h"
#include "recording/EncoderLibrary.h"
#include "recording/clsConvertToMP3Request.h"

#include <QList>
#include <QObject>
#include <memory>

class DiskSpace;
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
//
// No recording is lost on the way: the queue is saved in the data folder at every change and
// taken up again at the next start; the MP3 is written under a temporary name and gets its
// own only when complete; and a capture that is not converted after all (stopped, dropped,
// failed, or no room to convert) stays as the PCM recording it is, listed and logged.
class ConversionQueue : public QObject {
    Q_OBJECT
public:
    // `queueFile` is where the queue is saved between runs.
    ConversionQueue(EventLog& log, const Options& options, clsAppStatus& appStatus,
                    ProcessLauncher& launcher, const clsRecordingStatus& recordingStatus,
                    DiskSpace& diskSpace, const QString& queueFile, QObject* parent = nullptr);

    static constexpr int IdleInterval = 250;
    static constexpr int ConvertingInterval = 1;

    // The timer runs from start-up to the unload, whatever else the program does. The
    // recordings that an earlier run left in the queue go first; a queue that can't be read
    // throws once the timer runs.
    void Start();
    void Stop() { TimerConvert.SetInterval(0); }
    void TimerConvert_Timer();

    // The status panel's text while converting; empty otherwise.
    QString StatusBarDisplay() const;
    // The file being written by the running conversion, which is no recording yet; empty
    // when none runs.
    QString RunningDestination() const;

    // A finished capture to convert, queued last and saved at once.
    void Add(const std::shared_ptr<clsConvertToMP3Request>& request);
    // Puts the queue that an earlier run saved in front of this one's; once per run.
    void LoadSavedQueue();
    // The captures still to convert.
    QStringList QueuedCaptures() const;
    // Of `captures`, those that no queue holds and no process writes are recordings that an
    // earlier run was making when it ended (the task finished their files): each that holds
    // sound is kept as a PCM wave file and logged, the others go. Returns the kept files, for
    // the recordings list.
    QStringList KeepLeftCaptures(const QStringList& captures);
    // A conversion runs or waits, and can go on in this run.
    bool HasWork() const;

    // The file the encoder writes, under its own name once complete: no partial result ever
    // carries a recording's name.
    static QString ResultFile(const clsConvertToMP3Request& request);

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
    void StopBranch();
    void FailureBranch(int32_t code);
    // Without the encoder library nothing converts in this run: the queue stays as it is.
    void HoldForLibrary(int32_t code);
    int32_t Finish(const clsConvertToMP3Request& request);
    // Gives the complete result its name and lists it; the file's date, the end its size
    // gives, is set last, after the row's tag. A stopped result's row ends there too.
    void ListResult(clsConvertToMP3Request& request, bool stoppedEarly);
    // Leaves a capture that will not be converted as the PCM recording it is: renamed to a
    // wave file beside it, listed with its PCM format, logged once with `why`.
    void KeepCapture(const clsConvertToMP3Request& request, const QString& why);
    // The running (while converting) and the waiting requests, saved.
    void SaveQueue();

    EventLog& m_log;
    const Options& m_options;
    clsAppStatus& m_appStatus;
    ProcessLauncher& m_launcher;
    const clsRecordingStatus& m_recordingStatus;
    DiskSpace& m_diskSpace;
    const QString m_queueFile;
    EncoderLibrary m_encoder;
    bool m_savedQueueLoaded = false;
    // Set when the encoder library could not be loaded: held until the next start.
    bool m_heldForLibrary = false;
};
