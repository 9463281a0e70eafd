// GLib's headers use `signals` as a name, which Qt would otherwise define as a keyword.
#define QT_NO_KEYWORDS

#include "player/PlaybackEngine.h"

#include "formats/RiffReader.h"

#include <QElapsedTimer>
#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <gst/gst.h>
#include <initializer_list>

namespace {

// playbin's flags: audio only, so a picture or subtitles in a file are never looked at.
constexpr int kPlayFlagAudio = 0x2;

constexpr int kBusIntervalMs = 20;

void EnsureInitialised()
{
    if (!gst_is_initialized())
        gst_init(nullptr, nullptr);
}

PlaybackEngine::FailureKind KindOf(const GError* error)
{
    using Kind = PlaybackEngine::FailureKind;
    if (error->domain == GST_RESOURCE_ERROR) {
        switch (error->code) {
        case GST_RESOURCE_ERROR_NOT_FOUND:
        case GST_RESOURCE_ERROR_OPEN_READ:
        case GST_RESOURCE_ERROR_READ:
            return Kind::FileNotFound;
        case GST_RESOURCE_ERROR_OPEN_WRITE:
        case GST_RESOURCE_ERROR_OPEN_READ_WRITE:
        case GST_RESOURCE_ERROR_BUSY:
        case GST_RESOURCE_ERROR_WRITE:
            return Kind::NoOutput;
        default:
            return Kind::Other;
        }
    }
    if (error->domain == GST_CORE_ERROR && error->code == GST_CORE_ERROR_MISSING_PLUGIN)
        return Kind::MissingDecoder;
    if (error->domain == GST_STREAM_ERROR)
        return error->code == GST_STREAM_ERROR_CODEC_NOT_FOUND ? Kind::MissingDecoder
                                                               : Kind::BadContent;
    return Kind::Other;
}

// The length of a WAV file from its format and data chunks: for MP3 inside a WAV the
// framework learns the length only while playing, and the panels need it at once.
double WaveDataSeconds(const QString& file)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return 0.0;
    RiffReader riff(device);
    RiffChunk wave;
    wave.fccType = FourCC("WAVE");
    RiffChunk fmt;
    fmt.ckid = FourCC("fmt ");
    if (!riff.Descend(wave, nullptr, RiffReader::Find::Riff) ||
        !riff.Descend(fmt, &wave, RiffReader::Find::Chunk))
        return 0.0;
    const QByteArray format = riff.ReadData(fmt, 16);
    RiffChunk data;
    data.ckid = FourCC("data");
    if (format.size() < 16 || !riff.Ascend(fmt) ||
        !riff.Descend(data, &wave, RiffReader::Find::Chunk))
        return 0.0;
    const quint32 bytesPerSecond = qFromLittleEndian<quint32>(format.constData() + 8);
    const qint64 size = std::min<qint64>(data.cksize, device.size() - data.dwDataOffset);
    return bytesPerSecond == 0 ? 0.0 : double(size) / bytesPerSecond;
}

} // namespace

struct PlaybackEngine::Pipeline {
    GstElement* playbin = nullptr;
    GstElement* panorama = nullptr;
    GstElement* volume = nullptr;
    GstBus* bus = nullptr;

    ~Pipeline()
    {
        if (playbin)
            gst_element_set_state(playbin, GST_STATE_NULL);
        if (bus)
            gst_object_unref(bus);
        if (panorama)
            gst_object_unref(panorama);
        if (volume)
            gst_object_unref(volume);
        if (playbin)
            gst_object_unref(playbin);
    }
};

PlaybackEngine::PlaybackEngine(QObject* parent)
    : QObject(parent)
{
    EnsureInitialised();
    m_busTimer.setInterval(kBusIntervalMs);
    connect(&m_busTimer, &QTimer::timeout, this, &PlaybackEngine::PollBus);
}

PlaybackEngine::~PlaybackEngine() = default;

double PlaybackEngine::Gain(int hundredthsDb)
{
    return std::pow(10.0, hundredthsDb / 2000.0);
}

void PlaybackEngine::Open(const QString& file)
{
    Close();
    m_file = file;
    m_error.clear();
    m_failure = FailureKind::None;
    auto pipeline = std::make_unique<Pipeline>();
    pipeline->playbin = gst_element_factory_make("playbin", nullptr);
    // scaletempo keeps the pitch when the rate changes. Balance and volume sit in the
    // output, after the player's own queue, so that a move of their sliders is heard at
    // once rather than a second later; audiopanorama's simple method only turns one side
    // down, which is what a balance does.
    GstElement* filter = gst_parse_bin_from_description("scaletempo ! audioconvert", TRUE, nullptr);
    GstElement* output = gst_parse_bin_from_description(
        "audioconvert ! audiopanorama method=simple name=pan ! volume name=vol ! autoaudiosink",
        TRUE, nullptr);
    if (pipeline->playbin)
        gst_object_ref_sink(pipeline->playbin);
    if (!pipeline->playbin || !filter || !output) {
        for (GstElement* bin : {filter, output})
            if (bin)
                gst_object_unref(gst_object_ref_sink(bin));
        m_failure = FailureKind::MissingDecoder;
        m_error = tr("The playback elements are not installed.");
        Q_EMIT Failed(m_error);
        return;
    }
    pipeline->panorama = gst_bin_get_by_name(GST_BIN(output), "pan");
    pipeline->volume = gst_bin_get_by_name(GST_BIN(output), "vol");
    gchar* uri = gst_filename_to_uri(file.toLocal8Bit().constData(), nullptr);
    g_object_set(pipeline->playbin, "uri", uri, "audio-filter", filter, "audio-sink", output,
                 "flags", kPlayFlagAudio, nullptr);
    g_free(uri);
    pipeline->bus = gst_element_get_bus(pipeline->playbin);
    m_pipeline = std::move(pipeline);
    ApplyVolume();
    ApplyBalance();
    gst_element_set_state(m_pipeline->playbin, GST_STATE_PAUSED);
    m_busTimer.start();
}

bool PlaybackEngine::WaitForOpen(int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (m_pipeline && !m_open && m_failure == FailureKind::None) {
        const qint64 left = timeoutMs - clock.elapsed();
        if (left <= 0)
            break;
        if (GstMessage* message = gst_bus_timed_pop(m_pipeline->bus, left * GST_MSECOND))
            Handle(message);
    }
    return m_open;
}

void PlaybackEngine::Close()
{
    m_busTimer.stop();
    m_pipeline.reset();
    m_open = m_atEnd = m_seekPending = false;
    m_duration = 0.0;
    SetState(PlayState::Stopped);
}

void PlaybackEngine::Play()
{
    if (!m_open)
        return;
    if (m_atEnd)
        Seek(0.0);
    gst_element_set_state(m_pipeline->playbin, GST_STATE_PLAYING);
    SetState(PlayState::Playing);
}

void PlaybackEngine::Pause()
{
    if (!m_open)
        return;
    gst_element_set_state(m_pipeline->playbin, GST_STATE_PAUSED);
    SetState(PlayState::Paused);
}

void PlaybackEngine::Stop()
{
    if (!m_open)
        return;
    gst_element_set_state(m_pipeline->playbin, GST_STATE_PAUSED);
    Seek(0.0);
    SetState(PlayState::Stopped);
}

double PlaybackEngine::CurrentPosition() const
{
    if (!m_open)
        return -1.0;
    if (m_atEnd)
        return m_duration;
    if (m_seekPending)
        return m_seekTarget;
    gint64 position = 0;
    if (!gst_element_query_position(m_pipeline->playbin, GST_FORMAT_TIME, &position))
        return 0.0;
    return std::clamp(double(position) / GST_SECOND, 0.0, m_duration);
}

void PlaybackEngine::SetCurrentPosition(double seconds)
{
    if (!m_open)
        return;
    if (seconds >= m_duration) {
        // The end: stopped there, as a file that played to its end is.
        gst_element_set_state(m_pipeline->playbin, GST_STATE_PAUSED);
        m_atEnd = true;
        m_seekPending = false;
        SetState(PlayState::Stopped);
        return;
    }
    Seek(std::max(seconds, 0.0));
}

void PlaybackEngine::Seek(double seconds)
{
    m_atEnd = false;
    // Every seek carries the rate: a seek without one would put it back to normal speed.
    const bool sent = gst_element_seek(m_pipeline->playbin, m_rate, GST_FORMAT_TIME,
                                       GstSeekFlags(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE),
                                       GST_SEEK_TYPE_SET, gint64(seconds * GST_SECOND),
                                       GST_SEEK_TYPE_NONE, GST_CLOCK_TIME_NONE);
    m_seekPending = sent;
    m_seekTarget = seconds;
}

void PlaybackEngine::SetRate(double rate)
{
    if (rate <= 0.0)
        return;
    m_rate = rate;
    if (m_open && !m_atEnd)
        Seek(CurrentPosition());
}

void PlaybackEngine::SetVolume(int hundredthsDb)
{
    m_volume = std::clamp(hundredthsDb, -10000, 0);
    ApplyVolume();
}

void PlaybackEngine::SetBalance(int hundredthsDb)
{
    m_balance = std::clamp(hundredthsDb, -10000, 10000);
    ApplyBalance();
}

void PlaybackEngine::ApplyVolume()
{
    if (m_pipeline && m_pipeline->volume)
        g_object_set(m_pipeline->volume, "volume", Gain(m_volume), nullptr);
}

void PlaybackEngine::ApplyBalance()
{
    if (!m_pipeline || !m_pipeline->panorama)
        return;
    // The simple method multiplies the quiet side by 1 - |panorama|.
    const double quiet = 1.0 - Gain(-std::abs(m_balance));
    const double panorama = m_balance < 0 ? -quiet : quiet;
    g_object_set(m_pipeline->panorama, "panorama", float(panorama), nullptr);
}

void PlaybackEngine::SetState(PlayState state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT PlayStateChanged(state);
}

void PlaybackEngine::PollBus()
{
    while (m_pipeline) {
        GstMessage* message = gst_bus_pop(m_pipeline->bus);
        if (!message)
            break;
        Handle(message);
    }
}

void PlaybackEngine::Handle(void* raw)
{
    GstMessage* message = static_cast<GstMessage*>(raw);
    const bool fromPipeline = GST_MESSAGE_SRC(message) == GST_OBJECT(m_pipeline->playbin);
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ASYNC_DONE:
        m_seekPending = false;
        if (!m_open) {
            gint64 duration = 0;
            m_duration = gst_element_query_duration(m_pipeline->playbin, GST_FORMAT_TIME, &duration)
                             ? double(duration) / GST_SECOND
                             : WaveDataSeconds(m_file);
            m_open = true;
            // The player takes the output's volume element for its own volume: ours wins.
            ApplyVolume();
            ApplyBalance();
            // A rate chosen while the file was opening takes effect from the start.
            if (m_rate != 1.0)
                Seek(0.0);
            Q_EMIT Opened();
        }
        break;
    case GST_MESSAGE_DURATION_CHANGED: {
        gint64 duration = 0;
        if (m_open && gst_element_query_duration(m_pipeline->playbin, GST_FORMAT_TIME, &duration))
            m_duration = double(duration) / GST_SECOND;
        break;
    }
    case GST_MESSAGE_EOS:
        if (fromPipeline) {
            gst_element_set_state(m_pipeline->playbin, GST_STATE_PAUSED);
            m_atEnd = true;
            m_seekPending = false;
            SetState(PlayState::Stopped);
        }
        break;
    case GST_MESSAGE_ERROR:
    case GST_MESSAGE_WARNING: {
        GError* error = nullptr;
        const bool isError = GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR;
        if (isError)
            gst_message_parse_error(message, &error, nullptr);
        else
            gst_message_parse_warning(message, &error, nullptr);
        const QString text = QString::fromUtf8(error->message);
        const FailureKind kind = KindOf(error);
        g_error_free(error);
        if (!isError) {
            Q_EMIT Warning(text);
            break;
        }
        // The first error is the cause; the ones that follow from it say less.
        if (m_failure == FailureKind::None) {
            m_failure = kind;
            m_error = text;
            gst_element_set_state(m_pipeline->playbin, GST_STATE_NULL);
            m_open = m_atEnd = m_seekPending = false;
            SetState(PlayState::Stopped);
            Q_EMIT Failed(text);
        }
        break;
    }
    default:
        break;
    }
    gst_message_unref(message);
}
