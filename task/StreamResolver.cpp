#include "StreamResolver.h"

#include "Playlist.h"

#include <QNetworkReply>

namespace {

constexpr int MaxRedirects = 5;
constexpr int HeaderTimeoutMilliseconds = 8000;
// A station list is a few lines; anything larger is not one.
constexpr qint64 MaxPlaylistBytes = 64 * 1024;

bool LooksLikeAudio(const QByteArray& contentType)
{
    const QByteArray type = contentType.split(';').first().trimmed().toLower();
    // Many servers send no type or a generic one; only what is plainly a page is refused.
    return !type.startsWith("text/html") && !type.startsWith("text/xml") &&
           !type.startsWith("application/json") && !type.startsWith("image/");
}

QString ReasonOf(QNetworkReply* reply)
{
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 400) {
        const QString phrase =
            reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        return QStringLiteral("HTTP %1 %2").arg(status).arg(phrase).trimmed();
    }
    switch (reply->error()) {
    case QNetworkReply::HostNotFoundError:
        return QStringLiteral("host %1 not found").arg(reply->url().host());
    case QNetworkReply::ConnectionRefusedError:
        return QStringLiteral("connection refused");
    case QNetworkReply::SslHandshakeFailedError:
        return QStringLiteral("the server's certificate was not accepted (%1)")
            .arg(reply->errorString());
    case QNetworkReply::TooManyRedirectsError:
        return QStringLiteral("more than %1 redirects").arg(MaxRedirects);
    case QNetworkReply::InsecureRedirectError:
        return QStringLiteral("a redirect from https to http was refused");
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return QStringLiteral("no answer from the server");
    default:
        return reply->errorString();
    }
}

} // namespace

StreamResolver::StreamResolver(QObject* parent)
    : QObject(parent)
{
    m_network.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    m_network.setTransferTimeout(HeaderTimeoutMilliseconds);
}

void StreamResolver::Resolve(const QUrl& url)
{
    Abort();
    if (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https")) {
        emit Failed(QStringLiteral("not an http or https address"));
        return;
    }
    Get(url, false);
}

void StreamResolver::Abort()
{
    if (!m_reply)
        return;
    QNetworkReply* reply = m_reply;
    m_reply = nullptr;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void StreamResolver::Get(const QUrl& url, bool playlistFollowed)
{
    QNetworkRequest request(url);
    request.setMaximumRedirectsAllowed(MaxRedirects);
    request.setHeader(QNetworkRequest::UserAgentHeader, QByteArrayLiteral("Nightreel/2000"));
    QNetworkReply* reply = m_network.get(request);
    m_reply = reply;
    connect(reply, &QNetworkReply::metaDataChanged, this,
            [this, reply, playlistFollowed] { OnHeaders(reply, playlistFollowed); });
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, playlistFollowed] { OnFinished(reply, playlistFollowed); });
}

void StreamResolver::OnHeaders(QNetworkReply* reply, bool playlistFollowed)
{
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // A redirect's own headers come first; the answer at its end follows.
    if (status >= 300 && status < 400)
        return;
    if (status >= 400)
        return Fail(reply, ReasonOf(reply));
    const QByteArray type = reply->header(QNetworkRequest::ContentTypeHeader).toByteArray();
    if (!playlistFollowed && Playlist::IsPlaylist(reply->url(), type)) {
        // The body is read to its end, unless it grows beyond what a list can be.
        connect(reply, &QNetworkReply::readyRead, this, [this, reply] {
            if (reply->bytesAvailable() > MaxPlaylistBytes)
                Fail(reply, QStringLiteral("the station list is too large"));
        });
        return;
    }
    if (!LooksLikeAudio(type))
        return Fail(reply, QStringLiteral("not audio (%1)").arg(QString::fromLatin1(type)));
    // The stream itself: its address is what was wanted, the connection is not.
    const QUrl media = reply->url();
    const QString station = QString::fromUtf8(reply->rawHeader("icy-name")).trimmed();
    Abort();
    emit Resolved(media, station);
}

void StreamResolver::OnFinished(QNetworkReply* reply, bool playlistFollowed)
{
    if (reply != m_reply)
        return;
    if (reply->error() != QNetworkReply::NoError)
        return Fail(reply, ReasonOf(reply));
    const QByteArray body = reply->read(MaxPlaylistBytes);
    const QUrl base = reply->url();
    m_reply = nullptr;
    reply->deleteLater();
    if (playlistFollowed) {
        emit Failed(QStringLiteral("the station list points at another list"));
        return;
    }
    const QUrl stream = Playlist::FirstStream(body, base);
    if (stream.isEmpty()) {
        emit Failed(QStringLiteral("the station list holds no http or https address"));
        return;
    }
    Get(stream, true);
}

void StreamResolver::Fail(QNetworkReply* reply, const QString& reason)
{
    if (reply != m_reply)
        return;
    Abort();
    emit Failed(reason);
}
