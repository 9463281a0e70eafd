#pragma once

#include "WaveFile.h"
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskProtocol.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QObject>
#include <atomic>
#include <lame/lame.h>
#include <mutex>
#include <pulse/pulseaudio.h>
#include <vector>

// One recording: connects to the scheduler, reads the parameter file, opens the capture and
// the output file, says it is ready, and records between the start and the stop command.
// Sound arrives on the sound server's thread; the channel and the file's end run on the main
// thread.
class RecordingTask : public QObject {
    Q_OBJECT
public:
    explicit RecordingTask(const QString& serverName, QObject* parent = nullptr);
    ~RecordingTask() override;

    // False when the scheduler can't be reached: then there is nobody to report to.
    bool Begin();

private:
    int Prepare();
    void PostReady();
    int OpenCapture();
    int OpenEncoder();
    static void OnContextState(pa_context* context, void* self);
    static void OnStreamState(pa_stream* stream, void* self);
    static void OnStreamRead(pa_stream* stream, size_t bytes, void* self);
    void OnSound(const char* sound, size_t bytes);
    int Store(const char* pcm, size_t bytes);
    // The silence alarm: follows the peak of what is stored, fragment by fragment.
    void MeasureSilence(const char* pcm, size_t bytes);
    void SendLevel(quint32 number, qint32 level);
    void OnReadyRead();
    void OnCall(quint32 number);
    void OnPost(quint32 number);
    void OnCaptureError(int code);
    // Ends capture and closes the file; the task leaves afterwards.
    void Finish();
    void Leave();
    void Send(TaskProtocol::Kind kind, quint32 number, qint32 argument);

    QString m_serverName;
    QLocalSocket m_socket;
    TaskProtocol::FrameReader m_reader;
    RecParms m_parms;
    int m_readyCode = 0;
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
    qint64 m_silentFrames = 0;
    double m_silentPeak = 0.0;
    bool m_silenceReported = false;
};
