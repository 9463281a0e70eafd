#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QNetworkReply;

// Finds the address that really serves the sound: follows redirects (at most five, from
// http to https too, never back), reads a .pls or .m3u list for its first stream, and looks
// at the answer's status and content type, so that a failure can be named (HTTP status,
// resolver error, certificate error, not audio). Certificates are checked against the
// system's; there is no fallback to an unchecked connection.
class StreamResolver : public QObject {
    Q_OBJECT
public:
    explicit StreamResolver(QObject* parent = nullptr);

    // Starts a look-up; the answer comes by Resolved or Failed. A look-up under way is
    // abandoned.
    void Resolve(const QUrl& url);
    void Abort();

signals:
    // station: the name the server gives in its icy-name header, if any.
    void Resolved(const QUrl& mediaUrl, const QString& station);
    void Failed(const QString& reason);

private:
    void Get(const QUrl& url, bool playlistFollowed);
    void OnHeaders(QNetworkReply* reply, bool playlistFollowed);
    void OnFinished(QNetworkReply* reply, bool playlistFollowed);
    void Fail(QNetworkReply* reply, const QString& reason);

    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply;
};
