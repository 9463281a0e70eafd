#include "RecordingTask.h"

#include "MpegAudioHeader.h"
#include "StreamCapture.h"
#include "taskcontract/TaskErrors.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QTimer>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <pulse/error.h>
#include <thread>

using namespace TaskProtocol;

namespace {

constexpr int FragmentMilliseconds = 100;
constexpr int ReadyWaitMilliseconds = 2000;
// A stream is opened well ahead of its start; connecting may take a few seconds.
constexpr int StreamReadyWaitMilliseconds = 6000;
// A due start further ahead than this means the clocks disagree: the start command counts.
constexpr qint64 MaxHoldMsecs = 10 * 60 * 1000;
// A pause in a stream's sound longer than this is a gap, filled with silence in PCM.
constexpr qint64 GapNs = 250000000;
constexpr int StreamStopWaitMilliseconds = 1500;
// A killed task loses at most this much of the header's account of the data.
constexpr int HeaderUpdateMilliseconds = 2000;
bool IsDialogRate(quint32 rate)
{
    for (quint32 r : {8000, 11025, 12000, 16000, 22050, 24000, 32000, 44100, 48000}) {
        if (r == rate)
            return true;
    }
    return false;
}

// A peak as a fraction of full scale, in tenths of a dBFS.
qint32 LevelOf(double peak)
{
    return peak > 0.0 ? qint32(std::lround(200.0 * std::log10(peak))) : NoSignalLevel;
}

int CaptureErrorCode(int paError)
{
    switch (paError) {
    case PA_ERR_CONNECTIONREFUSED:
    case PA_ERR_INVALIDSERVER:
    case PA_ERR_CONNECTIONTERMINATED:
    case PA_ERR_AUTHKEY:
    case PA_ERR_ACCESS:
        return TaskError::NoAudioDriver;
    case PA_ERR_BUSY:
        return TaskError::DeviceBusy;
    case PA_ERR_NOTSUPPORTED:
    case PA_ERR_INVALID:
        return TaskError::BadFormat;
    default:
        return TaskError::OpenInputFailed;
    }
}

} // namespace

RecordingTask::RecordingTask(const QString& serverName, bool primed, QObject* parent)
    : QObject(parent)
    , m_serverName(serverName)
    , m_primed(primed)
{
    m_clock.start();
    connect(&m_socket, &QLocalSocket::readyRead, this, &RecordingTask::OnReadyRead);
    // A scheduler that goes away leaves a finished file behind.
    connect(&m_socket, &QLocalSocket::disconnected, this, [this] {
        Finish();
        Leave();
    });
}

RecordingTask::~RecordingTask()
{
    // The socket outlives the members declared after it; its last word must not reach them.
    m_socket.disconnect(this);
    Finish();
}

bool RecordingTask::Begin()
{
    m_socket.connectToServer(m_serverName);
    if (!m_socket.waitForConnected(5000))
        return false;
    Frame hello{Kind::Hello, 0, qint32(QCoreApplication::applicationPid()),
                QByteArray(TaskClass) + '\n' + TaskTitle};
    m_socket.write(Encode(hello));
    m_readyCode = Prepare();
    if (m_readyCode != 0) {
        m_readySent = true;
        Send(Kind::Post, REC_MSG_READY, m_readyCode);
        return true;
    }
    // Ready once the server delivers sound: a new stream's first fragment can take a while,
    // and a start command before it would lose the beginning. A server that stays silent
    // does not hold up the recording, though.
    QTimer::singleShot(m_streamCapture ? StreamReadyWaitMilliseconds : ReadyWaitMilliseconds, this,
                       &RecordingTask::PostReady);
    return true;
}

void RecordingTask::PostReady()
{
    if (m_readySent)
        return;
    m_readySent = true;
    Send(Kind::Post, REC_MSG_READY, 0);
}

int RecordingTask::Prepare()
{
    const QString folder = QFileInfo(m_serverName).absolutePath();
    bool opened = false;
    const std::optional<RecParms> parms = RecParms::Read(RecParms::PathIn(folder), &opened);
    if (!opened)
        return TaskError::ParameterFileLocked;
    if (!parms)
        return TaskError::ParameterFileBad;
    m_parms = *parms;

    const WaveFormatRecord& f = m_parms.format;
    if (f.nChannels < 1 || f.nChannels > 2 || !IsDialogRate(f.nSamplesPerSec))
        return TaskError::BadFormat;
    if (f.wFormatTag == WaveFormatRecord::TagPcm) {
        if ((f.nBitsPerSample != 8 && f.nBitsPerSample != 16) ||
            f.nBlockAlign != f.nChannels * f.nBitsPerSample / 8)
            return TaskError::BadFormat;
    } else if (f.wFormatTag == WaveFormatRecord::TagMpegLayer3) {
        m_mp3 = true;
        if (const int code = OpenEncoder())
            return code;
    } else {
        return TaskError::BadFormat;
    }

    SetSampleSpec();
    if (!m_parms.streamUrl.isEmpty())
        OpenStream();
    else if (const int code = OpenCapture())
        return code;
    return m_primed ? 0 : CreateFile();
}

int RecordingTask::CreateFile()
{
    const bool bareMp3 = m_mp3 && m_parms.outputPath.toUpper().endsWith(QLatin1String(".MP3"));
    if (const int code = m_file.Create(m_parms, bareMp3))
        return code;
    m_sinceHeaderUpdate.start();
    return 0;
}

int RecordingTask::TakeFinalParameters()
{
    m_primed = false;
    bool opened = false;
    const std::optional<RecParms> parms =
        RecParms::Read(RecParms::PathIn(QFileInfo(m_serverName).absolutePath()), &opened);
    if (!opened)
        return TaskError::ParameterFileLocked;
    if (!parms)
        return TaskError::ParameterFileBad;
    // The capture is open already: a start in another format or from a stream is not this
    // task's to take (the scheduler takes over only a task whose format fits).
    if (parms->format != m_parms.format || !parms->streamUrl.isEmpty())
        return TaskError::BadFormat;
    m_parms = *parms;
    return CreateFile();
}

int RecordingTask::OpenEncoder()
{
    m_lame = lame_init();
    if (!m_lame)
        return TaskError::OutOfMemory;
    const WaveFormatRecord& f = m_parms.format;
    lame_set_num_channels(m_lame, f.nChannels);
    lame_set_in_samplerate(m_lame, int(f.nSamplesPerSec));
    lame_set_out_samplerate(m_lame, int(f.nSamplesPerSec));
    lame_set_brate(m_lame, qint32(f.nAvgBytesPerSec) * 8 / 1000);
    lame_set_mode(m_lame, f.nChannels == 1 ? MONO : JOINT_STEREO);
    lame_set_VBR(m_lame, vbr_off);
    // The stream is written as it comes; there is no going back for a VBR header.
    lame_set_bWriteVbrTag(m_lame, 0);
    lame_set_quality(m_lame, 5);
    if (lame_init_params(m_lame) < 0)
        return TaskError::BadFormat;
    return 0;
}

void RecordingTask::SetSampleSpec()
{
    // An MP3 recording is captured as 16-bit PCM and encoded on the way to disk.
    const bool eightBit = !m_mp3 && m_parms.format.nBitsPerSample == 8;
    m_spec.format = eightBit ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE;
    m_spec.channels = uint8_t(m_parms.format.nChannels);
    m_spec.rate = m_parms.format.nSamplesPerSec;
    m_frameBytes = pa_frame_size(&m_spec);
}

void RecordingTask::OpenStream()
{
    // No sound server is needed: a stream records on a machine without any input.
    StreamCapture::PcmSpec pcm{m_spec.format == PA_SAMPLE_U8 ? QStringLiteral("U8")
                                                             : QStringLiteral("S16LE"),
                               int(m_spec.rate), int(m_spec.channels)};
    StreamCapture::Handlers handlers;
    handlers.pcm = [this](const char* sound, size_t bytes, qint64 end) {
        OnStreamSound(sound, bytes, end);
    };
    handlers.frame = [this](const char* frame, size_t bytes, qint64 end) {
        OnStreamFrame(frame, bytes, end);
    };
    handlers.title = [this](const QString& title) {
        OnStreamTitle(title);
    };
    m_streamCapture = std::make_unique<StreamCapture>(QUrl(m_parms.streamUrl), pcm, m_mp3, m_clock,
                                                      std::move(handlers));
    connect(m_streamCapture.get(), &StreamCapture::GapEnded, this, &RecordingTask::OnStreamGap);
    const QString recording = m_parms.finalPath.isEmpty() ? m_parms.outputPath : m_parms.finalPath;
    m_cue = std::make_unique<CueSheet>(recording, m_parms.description);
    m_streamCapture->Start();
}

int RecordingTask::OpenCapture()
{
    pa_sample_spec& sampleSpec = m_spec;

    // Without a fragment size the server hands over audio in chunks of about two seconds.
    pa_buffer_attr attr;
    attr.maxlength = uint32_t(-1);
    attr.tlength = uint32_t(-1);
    attr.prebuf = uint32_t(-1);
    attr.minreq = uint32_t(-1);
    attr.fragsize = uint32_t(pa_usec_to_bytes(FragmentMilliseconds * 1000, &sampleSpec));

    m_mainloop = pa_threaded_mainloop_new();
    if (!m_mainloop)
        return TaskError::OutOfMemory;
    m_context =
        pa_context_new(pa_threaded_mainloop_get_api(m_mainloop), "Nightreel recording task");
    if (!m_context)
        return TaskError::OutOfMemory;
    pa_context_set_state_callback(m_context, &RecordingTask::OnContextState, this);
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0)
        return CaptureErrorCode(pa_context_errno(m_context));
    if (pa_threaded_mainloop_start(m_mainloop) < 0)
        return TaskError::OpenInputFailed;

    pa_threaded_mainloop_lock(m_mainloop);
    int code = 0;
    for (;;) {
        const pa_context_state_t state = pa_context_get_state(m_context);
        if (state == PA_CONTEXT_READY)
            break;
        if (!PA_CONTEXT_IS_GOOD(state)) {
            code = CaptureErrorCode(pa_context_errno(m_context));
            break;
        }
        pa_threaded_mainloop_wait(m_mainloop);
    }
    const QByteArray input = m_parms.inputName.toUtf8();
    const bool inputFound = code == 0 && (input.isEmpty() || SourceExists(input));
    if (code == 0) {
        m_stream = pa_stream_new(m_context, "Recording", &sampleSpec, nullptr);
        if (!m_stream) {
            code = CaptureErrorCode(pa_context_errno(m_context));
        } else {
            pa_stream_set_state_callback(m_stream, &RecordingTask::OnStreamState, this);
            pa_stream_set_read_callback(m_stream, &RecordingTask::OnStreamRead, this);
            // The chosen source; else the default, or the one that PULSE_SOURCE names.
            const char* device = inputFound && !input.isEmpty() ? input.constData() : nullptr;
            if (pa_stream_connect_record(m_stream, device, &attr, PA_STREAM_ADJUST_LATENCY) < 0)
                code = CaptureErrorCode(pa_context_errno(m_context));
        }
    }
    while (code == 0) {
        const pa_stream_state_t state = pa_stream_get_state(m_stream);
        if (state == PA_STREAM_READY)
            break;
        if (!PA_STREAM_IS_GOOD(state)) {
            code = CaptureErrorCode(pa_context_errno(m_context));
            break;
        }
        pa_threaded_mainloop_wait(m_mainloop);
    }
    m_streaming = code == 0;
    if (m_streaming) {
        if (const char* name = pa_stream_get_device_name(m_stream))
            m_sourceName = name;
    }
    pa_threaded_mainloop_unlock(m_mainloop);
    if (code == 0 && !inputFound) {
        m_socket.write(Encode(Frame{Kind::Post, REC_MSG_INPUT_MISSING, 0, input}));
        m_socket.flush();
    }
    return code;
}

bool RecordingTask::SourceExists(const QByteArray& name)
{
    struct Lookup {
        pa_threaded_mainloop* mainloop;
        bool found = false;
        bool done = false;
    } lookup{m_mainloop};
    const auto onSource = [](pa_context*, const pa_source_info* info, int eol, void* data) {
        auto* l = static_cast<Lookup*>(data);
        if (info)
            l->found = true;
        // A missing source ends the answer with a negative eol and no info.
        if (eol != 0) {
            l->done = true;
            pa_threaded_mainloop_signal(l->mainloop, 0);
        }
    };
    pa_operation* op =
        pa_context_get_source_info_by_name(m_context, name.constData(), onSource, &lookup);
    if (!op)
        return false;
    while (!lookup.done && pa_operation_get_state(op) == PA_OPERATION_RUNNING)
        pa_threaded_mainloop_wait(m_mainloop);
    pa_operation_unref(op);
    return lookup.found;
}

void RecordingTask::OnContextState(pa_context*, void* self)
{
    pa_threaded_mainloop_signal(static_cast<RecordingTask*>(self)->m_mainloop, 0);
}

void RecordingTask::OnStreamState(pa_stream* stream, void* self)
{
    auto* task = static_cast<RecordingTask*>(self);
    pa_threaded_mainloop_signal(task->m_mainloop, 0);
    // The device or the server went away during the recording.
    if (task->m_streaming && !PA_STREAM_IS_GOOD(pa_stream_get_state(stream)) &&
        !task->m_stopping.exchange(true))
        QMetaObject::invokeMethod(
            task, [task] { task->OnCaptureError(TaskError::AddBufferFailed); },
            Qt::QueuedConnection);
}

void RecordingTask::OnStreamRead(pa_stream* stream, size_t, void* self)
{
    auto* task = static_cast<RecordingTask*>(self);
    const void* data = nullptr;
    size_t bytes = 0;
    while (pa_stream_readable_size(stream) > 0) {
        if (pa_stream_peek(stream, &data, &bytes) < 0 || bytes == 0)
            return;
        // A hole in the stream (no data) is skipped.
        if (data)
            task->OnSound(static_cast<const char*>(data), bytes);
        pa_stream_drop(stream);
    }
}

void RecordingTask::NoteFlowing()
{
    if (!m_flowing.exchange(true))
        QMetaObject::invokeMethod(this, &RecordingTask::PostReady, Qt::QueuedConnection);
}

// Runs on the sound server's thread, once per fragment.
void RecordingTask::OnSound(const char* sound, size_t bytes)
{
    NoteFlowing();
    Keep(sound, bytes, m_clock.nsecsElapsed());
}

void RecordingTask::OnStreamSound(const char* sound, size_t bytes, qint64 end)
{
    NoteFlowing();
    const qint64 span = qint64(bytes / m_frameBytes) * 1000000000 / m_spec.rate;
    // A gap in the stream becomes silence of its length, so the file keeps to the clock;
    // a pause drops sound on purpose and is not filled.
    if (m_lastSoundEndNs >= 0 && end - span - m_lastSoundEndNs > GapNs && !m_paused)
        FillSilence(m_lastSoundEndNs, end - span);
    m_lastSoundEndNs = end;
    Keep(sound, bytes, end);
}

void RecordingTask::FillSilence(qint64 fromNs, qint64 toNs)
{
    const char silent = m_spec.format == PA_SAMPLE_U8 ? char(128) : char(0);
    const std::vector<char> second(m_frameBytes * m_spec.rate, silent);
    for (qint64 at = fromNs; at < toNs; at += 1000000000) {
        const qint64 until = qMin(at + 1000000000, toNs);
        const size_t frames = size_t((until - at) * qint64(m_spec.rate) / 1000000000);
        Keep(second.data(), frames * m_frameBytes, until);
    }
}

void RecordingTask::OnStreamFrame(const char* frame, size_t bytes, qint64 end)
{
    NoteFlowing();
    const auto header =
        MpegAudioHeader::Parse(reinterpret_cast<const unsigned char*>(frame), bytes);
    if (!header || !m_capturing || m_paused || m_reachedStop)
        return;
    // Whole frames only: a frame belongs to the recording when most of it lies inside.
    const qint64 span = qint64(header->samplesPerFrame) * 1000000000 / header->samplesPerSec;
    const qint64 middle = end - span / 2;
    if (middle < m_startedAt)
        return;
    if (m_stopping && middle >= m_stoppedAt) {
        m_reachedStop = true;
        return;
    }
    const WaveFormatRecord format = WaveFormatRecord::MpegLayer3(
        quint16(header->channels), quint32(header->samplesPerSec), header->kbitsPerSec);
    std::lock_guard lock(m_fileLock);
    int code = 0;
    if (!m_keptFormat) {
        m_keptFormat = format;
        code = m_file.RewriteFormat(format);
        QMetaObject::invokeMethod(
            this,
            [this, format] {
                if (m_socket.state() == QLocalSocket::ConnectedState)
                    m_socket.write(
                        Encode(Frame{Kind::Post, REC_MSG_STREAM_FORMAT, 0, format.Encode()}));
            },
            Qt::QueuedConnection);
    } else if (format.nChannels != m_keptFormat->nChannels ||
               format.nSamplesPerSec != m_keptFormat->nSamplesPerSec) {
        if (!m_stopping.exchange(true)) {
            m_stoppedAt = end;
            m_reachedStop = true;
            QMetaObject::invokeMethod(this, &RecordingTask::OnStreamCut, Qt::QueuedConnection);
        }
        return;
    }
    m_kept = true;
    m_file.AddFrames(quint32(header->samplesPerFrame));
    if (code == 0)
        code = m_file.Append(frame, bytes);
    m_writtenNs += span;
    AfterWrite(code);
}

void RecordingTask::OnStreamTitle(const QString& title)
{
    std::lock_guard lock(m_fileLock);
    // A title that came before the start is the one playing when the recording begins.
    if (!m_capturing)
        m_pendingTitle = title;
    else if (m_cue)
        m_cue->Add(title, double(m_writtenNs) / 1e9);
}

void RecordingTask::OnStreamGap(qint64 startNs, qint64 endNs)
{
    // Only what falls inside the recording counts.
    const qint64 from = qMax(startNs, qint64(m_startedAt));
    const qint64 to = m_stopping ? qMin(endNs, qint64(m_stoppedAt)) : endNs;
    if (!m_capturing || to <= from)
        return;
    const qint64 fromMsecs =
        QDateTime::currentMSecsSinceEpoch() - (m_clock.nsecsElapsed() - from) / 1000000;
    const QByteArray start =
        QDateTime::fromMSecsSinceEpoch(fromMsecs).toString(Qt::ISODate).toUtf8();
    if (m_socket.state() == QLocalSocket::ConnectedState)
        m_socket.write(
            Encode(Frame{Kind::Post, REC_MSG_STREAM_GAP, qint32((to - from) / 1000000), start}));
}

void RecordingTask::OnStreamCut()
{
    if (m_leaving)
        return;
    Finish();
    ReportFinished();
    Leave();
}

void RecordingTask::Keep(const char* sound, size_t bytes, qint64 end)
{
    // Before the start and while paused the sound is dropped.
    if (!m_capturing || m_paused || m_reachedStop)
        return;
    // A fragment holds the sound of the time just before it arrived. Of the fragments that
    // span the start or the stop, only the part after the start and before the stop is
    // kept, so that the file's length matches the clock.
    const qint64 frames = qint64(bytes / m_frameBytes);
    const qint64 span = frames * 1000000000 / m_spec.rate;
    const auto framesAt = [&](qint64 ns) {
        return qBound<qint64>(0, (ns - (end - span)) * qint64(m_spec.rate) / 1000000000, frames);
    };
    const qint64 first = framesAt(m_startedAt);
    qint64 last = frames;
    if (m_stopping) {
        last = framesAt(m_stoppedAt);
        m_reachedStop = end >= m_stoppedAt;
    }
    if (last <= first)
        return;
    const char* kept = sound + first * qint64(m_frameBytes);
    const size_t keptBytes = size_t(last - first) * m_frameBytes;
    if (m_parms.silenceSeconds > 0)
        MeasureSilence(kept, keptBytes);
    std::lock_guard lock(m_fileLock);
    m_writtenNs += (last - first) * 1000000000 / m_spec.rate;
    int code = Store(kept, keptBytes);
    AfterWrite(code);
}

void RecordingTask::AfterWrite(int code)
{
    if (code == 0 && m_sinceHeaderUpdate.elapsed() >= HeaderUpdateMilliseconds) {
        code = m_file.UpdateHeader();
        m_sinceHeaderUpdate.restart();
    }
    if (code != 0 && !m_stopping.exchange(true)) {
        m_reachedStop = true;
        QMetaObject::invokeMethod(
            this, [this, code] { OnCaptureError(code); }, Qt::QueuedConnection);
    }
}

int RecordingTask::Store(const char* pcm, size_t bytes)
{
    const int frames = int(bytes / m_frameBytes);
    if (!m_mp3) {
        const int code = m_file.Append(pcm, bytes);
        if (code == 0)
            m_file.AddFrames(quint32(frames));
        return code;
    }
    m_file.AddFrames(quint32(frames));
    // LAME's own bound for the worst case of one call.
    m_mp3Buffer.resize(size_t(1.25 * frames + 7200));
    const auto* samples = reinterpret_cast<const short*>(pcm);
    const int encoded =
        m_parms.format.nChannels == 2
            ? lame_encode_buffer_interleaved(m_lame, const_cast<short*>(samples), frames,
                                             m_mp3Buffer.data(), int(m_mp3Buffer.size()))
            : lame_encode_buffer(m_lame, samples, samples, frames, m_mp3Buffer.data(),
                                 int(m_mp3Buffer.size()));
    if (encoded < 0)
        return TaskError::WriteFailed;
    return encoded > 0 ? m_file.Append(m_mp3Buffer.data(), size_t(encoded)) : 0;
}

void RecordingTask::MeasureSilence(const char* pcm, size_t bytes)
{
    int peak = 0;
    double fullScale = 32768.0;
    if (m_spec.format == PA_SAMPLE_U8) {
        fullScale = 128.0;
        for (size_t i = 0; i < bytes; ++i)
            peak = std::max(peak, std::abs(int(quint8(pcm[i])) - 128));
    } else {
        for (size_t i = 0; i + 1 < bytes; i += 2)
            peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(pcm + i))));
    }
    const double level = peak / fullScale;
    const double threshold = std::pow(10.0, m_parms.silenceThresholdDb / 20.0);
    if (level < threshold) {
        m_silentFrames += qint64(bytes / m_frameBytes);
        m_silentPeak = std::max(m_silentPeak, level);
        if (!m_silenceReported && m_silentFrames >= qint64(m_parms.silenceSeconds) * m_spec.rate) {
            m_silenceReported = true;
            SendLevel(REC_MSG_SILENT, LevelOf(m_silentPeak));
        }
        return;
    }
    if (m_silenceReported)
        SendLevel(REC_MSG_SOUND_RETURNED, LevelOf(level));
    m_silenceReported = false;
    m_silentFrames = 0;
    m_silentPeak = 0.0;
}

// From the capture thread: the channel is the main thread's.
void RecordingTask::SendLevel(quint32 number, qint32 level)
{
    QMetaObject::invokeMethod(
        this,
        [this, number, level] {
            if (m_socket.state() != QLocalSocket::ConnectedState)
                return;
            m_socket.write(Encode(Frame{Kind::Post, number, level, m_sourceName}));
            m_socket.flush();
        },
        Qt::QueuedConnection);
}

void RecordingTask::Send(Kind kind, quint32 number, qint32 argument)
{
    if (m_socket.state() != QLocalSocket::ConnectedState)
        return;
    m_socket.write(Encode(kind, number, argument));
    m_socket.flush();
}

void RecordingTask::OnReadyRead()
{
    m_reader.Append(m_socket.readAll());
    Frame frame;
    for (;;) {
        const FrameReader::Result next = m_reader.Next(frame);
        if (next != FrameReader::Result::Frame)
            return;
        if (frame.kind == Kind::Call)
            OnCall(frame.number);
        else if (frame.kind == Kind::Post)
            OnPost(frame.number);
        if (m_leaving)
            return;
    }
}

void RecordingTask::OnCall(quint32 number)
{
    qint32 result = 0;
    if (number == REC_MSG_START) {
        result = m_readyCode;
        if (result == 0 && m_primed) {
            result = TakeFinalParameters();
            // Nobody else would end a task that never got its file.
            if (result != 0) {
                Send(Kind::Reply, number, result);
                Finish();
                Leave();
                return;
            }
        }
        if (result == 0) {
            // A stream opened ahead of time begins at its due moment, not at the command.
            qint64 hold = m_parms.dueStartMsecs - QDateTime::currentMSecsSinceEpoch();
            if (m_parms.streamUrl.isEmpty() || hold < 0 || hold > MaxHoldMsecs)
                hold = 0;
            m_startedAt = m_clock.nsecsElapsed() + hold * 1000000;
            std::lock_guard lock(m_fileLock);
            m_capturing = true;
            if (m_cue && !m_pendingTitle.isEmpty())
                m_cue->Add(m_pendingTitle, 0.0);
        }
    } else if (number == REC_MSG_PAUSE_TOGGLE) {
        m_paused = !m_paused;
    }
    Send(Kind::Reply, number, result);
}

void RecordingTask::OnPost(quint32 number)
{
    switch (number) {
    case REC_MSG_KEEPALIVE:
        Send(Kind::Post, REC_MSG_KEEPALIVE, 0);
        break;
    case REC_MSG_STOP:
        Finish();
        ReportFinished();
        Leave();
        break;
    case WM_CLOSE:
    case WM_QUIT:
        Finish();
        Leave();
        break;
    default:
        break;
    }
}

void RecordingTask::OnCaptureError(int code)
{
    if (m_leaving)
        return;
    // The file is closed before the report: the scheduler may keep what was written.
    Finish();
    Send(Kind::Post, REC_MSG_ERROR, code);
    Leave();
}

void RecordingTask::Finish()
{
    if (!m_stopping.exchange(true))
        m_stoppedAt = m_clock.nsecsElapsed();
    // The fragment under way holds the sound up to the stop; it is waited for, briefly.
    if (m_streaming && m_capturing && !m_paused) {
        for (int waited = 0; waited < 3 * FragmentMilliseconds && !m_reachedStop; waited += 5)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    if (m_streamCapture) {
        // Sound reaches a stream's listener some time after it was on air: what was on air
        // up to the stop is waited for, briefly.
        for (int waited = 0; waited < StreamStopWaitMilliseconds && !m_reachedStop; waited += 10)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        m_streamCapture->Stop();
        // A stream still lost at the stop is silent up to it, as the clock says.
        if (!m_kept && !m_paused && !m_reachedStop && m_lastSoundEndNs >= 0)
            FillSilence(qMax(m_lastSoundEndNs, qint64(m_startedAt)), m_stoppedAt);
    }
    m_reachedStop = true;
    if (m_streamCapture) {
        // A gap under way at the stop is reported up to the stop.
        const qint64 gapStart = m_streamCapture->TakeGapStart();
        if (gapStart >= 0)
            OnStreamGap(gapStart, m_stoppedAt);
    }
    if (m_mainloop)
        pa_threaded_mainloop_stop(m_mainloop);
    if (m_stream) {
        pa_stream_disconnect(m_stream);
        pa_stream_unref(m_stream);
        m_stream = nullptr;
    }
    if (m_context) {
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
        m_context = nullptr;
    }
    if (m_mainloop) {
        pa_threaded_mainloop_free(m_mainloop);
        m_mainloop = nullptr;
    }
    m_streaming = false;

    std::lock_guard lock(m_fileLock);
    if (m_lame) {
        // A kept broadcast never went through the encoder: its tail would be stray frames.
        if (m_file.IsOpen() && !m_kept) {
            m_mp3Buffer.resize(7200);
            const int tail = lame_encode_flush(m_lame, m_mp3Buffer.data(), int(m_mp3Buffer.size()));
            if (tail > 0)
                m_file.Append(m_mp3Buffer.data(), size_t(tail));
        }
        lame_close(m_lame);
        m_lame = nullptr;
    }
    m_file.Close();
}

void RecordingTask::ReportFinished()
{
    if (!m_streamCapture || m_streamCapture->EverReceived()) {
        Send(Kind::Post, REC_MSG_STOPPED, 0);
        return;
    }
    // Not one byte of sound in all that time: the recording failed, and why is said.
    const QString why = m_parms.streamUrl + QStringLiteral(": ") + m_streamCapture->LastFailure();
    if (m_socket.state() == QLocalSocket::ConnectedState) {
        m_socket.write(
            Encode(Frame{Kind::Post, REC_MSG_ERROR, TaskError::StreamUnreachable, why.toUtf8()}));
        m_socket.flush();
    }
}

void RecordingTask::Leave()
{
    if (m_leaving)
        return;
    m_leaving = true;
    if (m_socket.state() == QLocalSocket::ConnectedState)
        m_socket.waitForBytesWritten(1000);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}
