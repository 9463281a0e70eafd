#pragma once

#include "CueSheet.h"
#include "WaveFile.h"
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskProtocol.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QObject>
#include <atomic>
#include <lame/lame.h>
#include <memory>
#include <mutex>
#include <optional>
#include <pulse/pulseaudio.h>
#include <vector>

class StreamCapture;

// One recording: connects to the scheduler, reads the parameter file, opens the capture (the
// sound server's input or an internet stream) and the output file, says it is ready, and
// records between the start and the stop command. Sound arrives on the sound server's or
// GStreamer's thread; the channel and the file's end run on the main thread.
//
// A primed task is started ahead of a scheduled start: it opens the capture in the format
// of its parameter file and says it is ready, but reads the parameter file again at the
// start command, which names the file it is to write. Ended before that, it leaves no file.
class RecordingTask : public QObject {
    Q_OBJECT
public:
    RecordingTask(const QString& serverName, bool primed, QObject* parent = nullptr);
    ~RecordingTask() override;

    // False when the scheduler can't be reached: then there is nobody to report to.
    bool Begin();

private:
    int Prepare();
    // The output file of the parameter file as it stands; for a primed task at the start.
    int CreateFile();
    int TakeFinalParameters();
    void PostReady();
    void SetSampleSpec();
    int OpenCapture();
    // Asks the server with the main loop locked; false for a source it does not know.
    bool SourceExists(const QByteArray& name);
    void OpenStream();
    int OpenEncoder();
    static void OnContextState(pa_context* context, void* self);
    static void OnStreamState(pa_stream* stream, void* self);
    static void OnStreamRead(pa_stream* stream, size_t bytes, void* self);
    void OnSound(const char* sound, size_t bytes);
    // Of the stream's thread: decoded sound whose end was on air at endNs, and one MP3 frame
    // of a broadcast that is kept as it came.
    void OnStreamSound(const char* sound, size_t bytes, qint64 endNs);
    void OnStreamFrame(const char* frame, size_t bytes, qint64 endNs);
    void OnStreamTitle(const QString& title);
    void OnStreamGap(qint64 startNs, qint64 endNs);
    // The broadcast changed its format under a kept recording: the file ends cleanly there.
    void OnStreamCut();
    // Stores the part of the sound that lies between the start and the stop command.
    void Keep(const char* sound, size_t bytes, qint64 endNs);
    void NoteFlowing();
    // Silence in the recording's PCM format for the time between the two moments.
    void FillSilence(qint64 fromNs, qint64 toNs);
    int Store(const char* pcm, size_t bytes);
    // Under the file's lock, after a write with its result: brings the header up to date
    // now and then, and ends the recording on a failure.
    void AfterWrite(int code);
    // The silence alarm: follows the peak of what is stored, fragment by fragment.
    void MeasureSilence(const char* pcm, size_t bytes);
    void SendLevel(quint32 number, qint32 level);
    void OnReadyRead();
    void OnCall(quint32 number);
    void OnPost(quint32 number);
    void OnCaptureError(int code);
    // Ends capture and closes the file; the task leaves afterwards.
    void Finish();
    // What the task says when its file is finished: stopped, or a stream never reached.
    void ReportFinished();
    void Leave();
    void Send(TaskProtocol::Kind kind, quint32 number, qint32 argument);

    QString m_serverName;
    QLocalSocket m_socket;
    TaskProtocol::FrameReader m_reader;
    RecParms m_parms;
    int m_readyCode = 0;
    bool m_primed = false;
    bool m_mp3 = false;
    bool m_leaving = false;
    bool m_readySent = false;
    std::atomic<bool> m_flowing{false};

    pa_threaded_mainloop* m_mainloop = nullptr;
    pa_context* m_context = nullptr;
    pa_stream* m_stream = nullptr;
    std::atomic<bool> m_streaming{false};
    pa_sample_spec m_spec{};
    size_t m_frameBytes = 1;
    lame_global_flags* m_lame = nullptr;
    std::vector<unsigned char> m_mp3Buffer;
    WaveFile m_file;
    std::mutex m_fileLock;
    std::atomic<bool> m_stopping{false};
    std::atomic<bool> m_reachedStop{false};
    std::atomic<bool> m_capturing{false};
    std::atomic<bool> m_paused{false};
    QElapsedTimer m_sinceHeaderUpdate;
    // Monotonic; the start and the stop command are placed on it for the capture thread.
    QElapsedTimer m_clock;
    std::atomic<qint64> m_startedAt{0};
    std::atomic<qint64> m_stoppedAt{0};
    // Of the capture thread, but for the source's name, set before capture begins.
    QByteArray m_sourceName;
    std::unique_ptr<StreamCapture> m_streamCapture;
    // Of the stream's thread: where the last sound ended, and how much has been written.
    qint64 m_lastSoundEndNs = -1;
    qint64 m_writtenNs = 0;
    std::optional<WaveFormatRecord> m_keptFormat;
    bool m_kept = false;
    std::unique_ptr<CueSheet> m_cue;
    QString m_pendingTitle;
    qint64 m_silentFrames = 0;
    double m_silentPeak = 0.0;
    bool m_silenceReported = false;
};
