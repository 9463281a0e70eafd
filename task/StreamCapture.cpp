#include "StreamCapture.h"

#include "MpegAudioHeader.h"

#include <QMutexLocker>
#include <gst/app/gstappsink.h>
#include <gst/audio/audio.h>

namespace {

constexpr int StallMilliseconds = 5000;
constexpr int RetryDelaysSeconds[] = {1, 2, 4, 8, 10};
constexpr qint64 NsPerSecond = 1000000000;

const char* const KeptCaps = "audio/mpeg, mpegversion=(int)1, layer=(int)3, parsed=(boolean)true";

void SetIfThere(GObject* object, const char* property, auto value)
{
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(object), property))
        g_object_set(object, property, value, nullptr);
}

} // namespace

StreamCapture::StreamCapture(const QUrl& url, const PcmSpec& pcm, bool keepMp3,
                             const QElapsedTimer& clock, Handlers handlers, QObject* parent)
    : QObject(parent)
    , m_url(url)
    , m_pcmSpec(pcm)
    , m_keepMp3(keepMp3)
    , m_clock(clock)
    , m_handlers(std::move(handlers))
{
    gst_init(nullptr, nullptr);
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &StreamCapture::Attempt);
    m_stallCheck.setInterval(500);
    connect(&m_stallCheck, &QTimer::timeout, this, &StreamCapture::CheckStall);
    connect(&m_resolver, &StreamResolver::Resolved, this, &StreamCapture::Connect);
    connect(&m_resolver, &StreamResolver::Failed, this, &StreamCapture::Drop);
}

StreamCapture::~StreamCapture()
{
    Stop();
}

void StreamCapture::Start()
{
    m_stopped = false;
    Attempt();
}

void StreamCapture::Stop()
{
    m_stopped = true;
    m_retry.stop();
    m_stallCheck.stop();
    m_resolver.Abort();
    Teardown();
}

StreamCapture::Info StreamCapture::StreamInfo() const
{
    QMutexLocker lock(&m_infoLock);
    return m_info;
}

void StreamCapture::Attempt()
{
    if (m_stopped)
        return;
    m_connectedAt = m_clock.nsecsElapsed();
    m_stallCheck.start();
    m_resolver.Resolve(m_url);
}

void StreamCapture::Connect(const QUrl& mediaUrl, const QString& station)
{
    if (m_stopped)
        return;
    if (!station.isEmpty()) {
        QMutexLocker lock(&m_infoLock);
        m_info.station = station;
    }
    m_pipeline = gst_element_factory_make("uridecodebin", nullptr);
    if (!m_pipeline)
        return Drop(QStringLiteral("the GStreamer plugins for streams are not installed"));
    GstElement* decoder = m_pipeline;
    m_pipeline = gst_pipeline_new("stream");
    gst_bin_add(GST_BIN(m_pipeline), decoder);
    g_object_set(decoder, "uri", mediaUrl.toString(QUrl::FullyEncoded).toUtf8().constData(),
                 nullptr);
    GstCaps* stopCaps = gst_caps_from_string("audio/x-raw");
    if (m_keepMp3)
        gst_caps_append(stopCaps, gst_caps_from_string(KeptCaps));
    g_object_set(decoder, "caps", stopCaps, nullptr);
    gst_caps_unref(stopCaps);
    g_signal_connect(decoder, "source-setup",
                     G_CALLBACK(+[](GstElement*, GstElement* source, gpointer) {
                         // Certificates are checked; the resolver has followed the redirects
                         // already, within their limit; our own watch decides on a stall.
                         SetIfThere(G_OBJECT(source), "ssl-strict", TRUE);
                         SetIfThere(G_OBJECT(source), "iradio-mode", TRUE);
                         SetIfThere(G_OBJECT(source), "automatic-redirect", FALSE);
                         SetIfThere(G_OBJECT(source), "retries", 0);
                         SetIfThere(G_OBJECT(source), "timeout", guint(StallMilliseconds / 1000));
                     }),
                     nullptr);
    g_signal_connect(decoder, "pad-added", G_CALLBACK(+[](GstElement*, GstPad* pad, gpointer self) {
                         static_cast<StreamCapture*>(self)->OnPadAdded(pad);
                     }),
                     this);
    m_positionNs = 0;
    m_offsetKnown = false;
    m_dataSinceConnect = false;
    GstBus* bus = gst_pipeline_get_bus(GST_PIPELINE(m_pipeline));
    gst_bus_set_sync_handler(bus, &StreamCapture::OnBusMessage, this, nullptr);
    gst_object_unref(bus);
    if (gst_element_set_state(m_pipeline, GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE)
        Drop(QStringLiteral("the stream could not be opened"));
}

void StreamCapture::Drop(const QString& reason)
{
    if (m_stopped)
        return;
    Teardown();
    m_lastFailure = reason;
    if (m_dataSinceConnect.exchange(false)) {
        m_failuresInRow = 0;
        qint64 expected = -1;
        m_gapStartNs.compare_exchange_strong(expected, m_lastDataNs.load());
    }
    const int delay =
        RetryDelaysSeconds[qMin(m_failuresInRow, int(std::size(RetryDelaysSeconds)) - 1)];
    ++m_failuresInRow;
    m_stallCheck.stop();
    m_retry.start(delay * 1000);
    emit AttemptFailed(reason);
}

void StreamCapture::Teardown()
{
    ++m_generation;
    if (!m_pipeline)
        return;
    // Waits for the streaming threads: no callback runs after this.
    gst_element_set_state(m_pipeline, GST_STATE_NULL);
    if (m_branchInput)
        gst_object_unref(m_branchInput);
    m_branchInput = nullptr;
    gst_object_unref(m_pipeline);
    m_pipeline = nullptr;
}

void StreamCapture::CheckStall()
{
    const qint64 since = qMax(m_lastDataNs.load(), m_connectedAt);
    if (m_clock.nsecsElapsed() - since > qint64(StallMilliseconds) * 1000000)
        Drop(m_everReceived ? QStringLiteral("the stream stalled")
                            : (m_lastFailure.isEmpty() ? QStringLiteral("no answer from the server")
                                                       : m_lastFailure));
}

void StreamCapture::OnPadAdded(GstPad* pad)
{
    GstCaps* caps = gst_pad_get_current_caps(pad);
    if (!caps)
        caps = gst_pad_query_caps(pad, nullptr);
    const GstStructure* s = gst_caps_get_structure(caps, 0);
    const bool raw = gst_structure_has_name(s, "audio/x-raw");
    const bool mp3 = gst_structure_has_name(s, "audio/mpeg");
    {
        QMutexLocker lock(&m_infoLock);
        gst_structure_get_int(s, "rate", &m_info.samplesPerSec);
        gst_structure_get_int(s, "channels", &m_info.channels);
    }
    gst_caps_unref(caps);
    if (!raw && !mp3)
        return;
    // A chained Ogg stream (a new chain with each title) brings a new pad for the branch
    // that the old one fed; a broadcast that changes kind under a kept recording is cut by
    // the recording, from the frames it no longer gets.
    if (m_branchInput) {
        if (!gst_pad_is_linked(m_branchInput) && mp3 == m_kept)
            gst_pad_link(pad, m_branchInput);
        return;
    }
    m_kept = mp3;
    GstElement* sink = gst_element_factory_make("appsink", nullptr);
    g_object_set(sink, "sync", FALSE, "emit-signals", FALSE, nullptr);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = +[](GstAppSink* appsink, gpointer self) {
        return static_cast<StreamCapture*>(self)->OnSample(GST_ELEMENT(appsink));
    };
    gst_app_sink_set_callbacks(GST_APP_SINK(sink), &callbacks, this, nullptr);
    GstPad* sinkPad = gst_element_get_static_pad(sink, "sink");
    gst_pad_add_probe(
        sinkPad, GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM,
        +[](GstPad*, GstPadProbeInfo* info, gpointer self) {
            GstEvent* event = GST_PAD_PROBE_INFO_EVENT(info);
            if (GST_EVENT_TYPE(event) == GST_EVENT_TAG) {
                GstTagList* tags = nullptr;
                gst_event_parse_tag(event, &tags);
                static_cast<StreamCapture*>(self)->OnTag(tags);
            }
            return GST_PAD_PROBE_OK;
        },
        this, nullptr);
    gst_object_unref(sinkPad);

    GstElement* first = sink;
    gst_bin_add(GST_BIN(m_pipeline), sink);
    if (raw && !m_pcmSpec.format.isEmpty()) {
        GstElement* convert = gst_element_factory_make("audioconvert", nullptr);
        GstElement* resample = gst_element_factory_make("audioresample", nullptr);
        GstElement* filter = gst_element_factory_make("capsfilter", nullptr);
        GstCaps* want = gst_caps_new_simple(
            "audio/x-raw", "format", G_TYPE_STRING, m_pcmSpec.format.toLatin1().constData(), "rate",
            G_TYPE_INT, m_pcmSpec.rate, "channels", G_TYPE_INT, m_pcmSpec.channels, "layout",
            G_TYPE_STRING, "interleaved", nullptr);
        g_object_set(filter, "caps", want, nullptr);
        gst_caps_unref(want);
        gst_bin_add_many(GST_BIN(m_pipeline), convert, resample, filter, nullptr);
        gst_element_link_many(convert, resample, filter, sink, nullptr);
        for (GstElement* e : {sink, filter, resample, convert})
            gst_element_sync_state_with_parent(e);
        first = convert;
    } else {
        gst_element_sync_state_with_parent(sink);
    }
    m_branchInput = gst_element_get_static_pad(first, "sink");
    gst_pad_link(pad, m_branchInput);
}

qint64 StreamCapture::OnAir(qint64 endPosNs)
{
    const qint64 arrival = m_clock.nsecsElapsed();
    // Sound can arrive late but never before it was on air: the earliest arrival relative to
    // its place in the stream is the truest mapping.
    if (!m_offsetKnown || arrival - endPosNs < m_offsetNs) {
        m_offsetNs = arrival - endPosNs;
        m_offsetKnown = true;
    }
    m_lastDataNs = arrival;
    m_everReceived = true;
    m_dataSinceConnect = true;
    const qint64 gapStart = m_gapStartNs.exchange(-1);
    if (gapStart >= 0)
        QMetaObject::invokeMethod(
            this, [this, gapStart, arrival] { emit GapEnded(gapStart, arrival); },
            Qt::QueuedConnection);
    return endPosNs + m_offsetNs;
}

GstFlowReturn StreamCapture::OnSample(GstElement* sink)
{
    GstSample* sample = gst_app_sink_pull_sample(GST_APP_SINK(sink));
    if (!sample)
        return GST_FLOW_EOS;
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    GstMapInfo map;
    if (buffer && gst_buffer_map(buffer, &map, GST_MAP_READ)) {
        const char* data = reinterpret_cast<const char*>(map.data);
        if (m_kept) {
            const auto header = MpegAudioHeader::Parse(map.data, map.size);
            if (header) {
                m_positionNs +=
                    qint64(header->samplesPerFrame) * NsPerSecond / header->samplesPerSec;
                {
                    QMutexLocker lock(&m_infoLock);
                    m_info.codec = QStringLiteral("MPEG-1 Layer 3 (MP3)");
                    m_info.kbitsPerSec = header->kbitsPerSec;
                }
                if (m_handlers.frame)
                    m_handlers.frame(data, map.size, OnAir(m_positionNs));
            }
        } else {
            GstAudioInfo info;
            GstCaps* caps = gst_sample_get_caps(sample);
            if (caps && gst_audio_info_from_caps(&info, caps) && GST_AUDIO_INFO_BPF(&info) > 0 &&
                GST_AUDIO_INFO_RATE(&info) > 0) {
                m_positionNs += qint64(map.size) / GST_AUDIO_INFO_BPF(&info) * NsPerSecond /
                                GST_AUDIO_INFO_RATE(&info);
                if (m_handlers.pcm)
                    m_handlers.pcm(data, map.size, OnAir(m_positionNs));
            }
        }
        gst_buffer_unmap(buffer, &map);
    }
    gst_sample_unref(sample);
    return GST_FLOW_OK;
}

void StreamCapture::OnTag(const GstTagList* tags)
{
    gchar* text = nullptr;
    if (gst_tag_list_get_string(tags, GST_TAG_TITLE, &text)) {
        if (m_handlers.title)
            m_handlers.title(QString::fromUtf8(text));
        g_free(text);
    }
    QMutexLocker lock(&m_infoLock);
    if (gst_tag_list_get_string(tags, GST_TAG_ORGANIZATION, &text)) {
        m_info.station = QString::fromUtf8(text);
        g_free(text);
    }
    if (m_info.codec.isEmpty() && gst_tag_list_get_string(tags, GST_TAG_AUDIO_CODEC, &text)) {
        m_info.codec = QString::fromUtf8(text);
        g_free(text);
    }
    guint bitrate = 0;
    if (m_info.kbitsPerSec == 0 &&
        (gst_tag_list_get_uint(tags, GST_TAG_NOMINAL_BITRATE, &bitrate) ||
         gst_tag_list_get_uint(tags, GST_TAG_BITRATE, &bitrate)))
        m_info.kbitsPerSec = int(bitrate / 1000);
}

GstBusSyncReply StreamCapture::OnBusMessage(GstBus*, GstMessage* message, gpointer data)
{
    auto* self = static_cast<StreamCapture*>(data);
    QString reason;
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR: {
        GError* error = nullptr;
        gst_message_parse_error(message, &error, nullptr);
        reason = QString::fromUtf8(error ? error->message : "stream error");
        if (error && error->domain == GST_STREAM_ERROR &&
            (error->code == GST_STREAM_ERROR_TYPE_NOT_FOUND ||
             error->code == GST_STREAM_ERROR_WRONG_TYPE ||
             error->code == GST_STREAM_ERROR_CODEC_NOT_FOUND))
            reason = QStringLiteral("not audio (%1)").arg(reason);
        g_clear_error(&error);
        break;
    }
    case GST_MESSAGE_EOS:
        reason = QStringLiteral("the server ended the stream");
        break;
    default:
        return GST_BUS_DROP;
    }
    const int generation = self->m_generation;
    QMetaObject::invokeMethod(
        self,
        [self, generation, reason] {
            if (generation == self->m_generation)
                self->Drop(reason);
        },
        Qt::QueuedConnection);
    return GST_BUS_DROP;
}
