#pragma once

#include "StreamResolver.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <atomic>
#include <functional>
#include <gst/gst.h>

// An internet stream as a source of sound: GStreamer reads it (ICY metadata, playlists
// through the resolver, HLS where the plugins are there) and hands over either the
// broadcast's own MP3 frames, untouched, or sound decoded to the recording's PCM format.
// A lost connection, a stall of more than 5 s or a server error is retried with backoff
// (1, 2, 4, 8, then every 10 s) until Stop.
//
// Every piece of sound comes with the moment its end was on air, on the given monotonic
// clock: a buffer's place in the stream, mapped by the earliest arrival seen on this
// connection, so that bursts of the network do not smear the start and the end.
class StreamCapture : public QObject {
    Q_OBJECT
public:
    struct PcmSpec {
        // "S16LE" or "U8"; empty for the stream's own raw format (the probe).
        QString format;
        int rate = 0;
        int channels = 0;
    };
    // What a few seconds of the stream tell about it.
    struct Info {
        QString codec;
        int kbitsPerSec = 0;
        int samplesPerSec = 0;
        int channels = 0;
        QString station;
    };
    // Called on GStreamer's streaming thread.
    struct Handlers {
        std::function<void(const char* pcm, size_t bytes, qint64 endNs)> pcm;
        // One whole MP3 frame as broadcast.
        std::function<void(const char* frame, size_t bytes, qint64 endNs)> frame;
        std::function<void(const QString& title)> title;
    };

    // keepMp3: hand over MP3 frames when the stream is MP3; otherwise decode.
    StreamCapture(const QUrl& url, const PcmSpec& pcm, bool keepMp3, const QElapsedTimer& clock,
                  Handlers handlers, QObject* parent = nullptr);
    ~StreamCapture() override;

    void Start();
    void Stop();
    bool EverReceived() const { return m_everReceived; }
    // Why the last attempt failed, for the report of a stream never reached.
    QString LastFailure() const { return m_lastFailure; }
    Info StreamInfo() const;
    // The start of a gap under way, which is then no longer under way; -1 when there is none.
    qint64 TakeGapStart() { return m_gapStartNs.exchange(-1); }

signals:
    // An attempt failed; a retry follows unless stopped.
    void AttemptFailed(const QString& reason);
    // Sound came again after a drop: the gap ran from startNs to endNs.
    void GapEnded(qint64 startNs, qint64 endNs);

private:
    void Attempt();
    void Connect(const QUrl& mediaUrl, const QString& station);
    void Drop(const QString& reason);
    void Teardown();
    void CheckStall();
    void OnPadAdded(GstPad* pad);
    GstFlowReturn OnSample(GstElement* sink);
    void OnTag(const GstTagList* tags);
    // The moment the stream's position endPosNs was on air.
    qint64 OnAir(qint64 endPosNs);
    static GstBusSyncReply OnBusMessage(GstBus* bus, GstMessage* message, gpointer self);

    const QUrl m_url;
    const PcmSpec m_pcmSpec;
    const bool m_keepMp3;
    const QElapsedTimer& m_clock;
    Handlers m_handlers;
    StreamResolver m_resolver;
    QTimer m_retry;
    QTimer m_stallCheck;
    int m_failuresInRow = 0;
    bool m_stopped = true;
    QString m_lastFailure;

    GstElement* m_pipeline = nullptr;
    // Messages of a pipeline already torn down are told apart by this.
    std::atomic<int> m_generation{0};
    qint64 m_connectedAt = 0;
    std::atomic<qint64> m_lastDataNs{0};
    std::atomic<bool> m_everReceived{false};
    std::atomic<bool> m_dataSinceConnect{false};
    // Set when a connection with sound is lost, cleared with the first sound after it.
    std::atomic<qint64> m_gapStartNs{-1};
    // The sink pad of the branch that takes the sound, once there is one.
    GstPad* m_branchInput = nullptr;
    // Of the streaming thread: the stream's position and its mapping onto the clock.
    qint64 m_positionNs = 0;
    qint64 m_offsetNs = 0;
    bool m_offsetKnown = false;
    bool m_kept = false;
    mutable QMutex m_infoLock;
    Info m_info;
};
