#include "StreamProbe.h"

#include "StreamCapture.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QUrl>

namespace {

constexpr qint64 ListenMilliseconds = 3000;
constexpr qint64 GiveUpMilliseconds = 20000;

} // namespace

StreamProbe::StreamProbe(const QString& url, QObject* parent)
    : QObject(parent)
{
    m_clock.start();
    StreamCapture::Handlers handlers;
    // The sound itself is not wanted; that it comes is seen by the capture.
    handlers.pcm = [](const char*, size_t, qint64) {
    };
    m_capture = std::make_unique<StreamCapture>(QUrl(url), StreamCapture::PcmSpec{}, false, m_clock,
                                                std::move(handlers));
    connect(m_capture.get(), &StreamCapture::AttemptFailed, this, &StreamProbe::Finish);
    connect(&m_check, &QTimer::timeout, this, &StreamProbe::Check);
    m_check.start(100);
    m_capture->Start();
}

StreamProbe::~StreamProbe() = default;

void StreamProbe::Check()
{
    const qint64 now = m_clock.elapsed();
    if (m_firstSoundMs < 0 && m_capture->EverReceived())
        m_firstSoundMs = now;
    if (m_firstSoundMs >= 0 && now - m_firstSoundMs >= ListenMilliseconds)
        Finish(QString());
    else if (now >= GiveUpMilliseconds)
        Finish(QStringLiteral("no sound within %1 seconds").arg(GiveUpMilliseconds / 1000));
}

void StreamProbe::Finish(const QString& error)
{
    m_check.stop();
    m_capture->Stop();
    QTextStream out(stdout);
    if (!error.isEmpty()) {
        out << "error=" << QString(error).replace(u'\n', u' ') << '\n';
    } else {
        const StreamCapture::Info info = m_capture->StreamInfo();
        out << "codec=" << info.codec << '\n'
            << "kbits=" << info.kbitsPerSec << '\n'
            << "rate=" << info.samplesPerSec << '\n'
            << "channels=" << info.channels << '\n'
            << "station=" << QString(info.station).replace(u'\n', u' ') << '\n';
    }
    out.flush();
    QCoreApplication::exit(error.isEmpty() ? 0 : 1);
}
