#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

// An internet radio station of the test's own on 127.0.0.1: serves sound files paced in real
// time (with ICY metadata and titles when the client asks for them), lists that point at
// them, and whatever else a path is given (a 404, a page). It can fall silent for a while,
// as a station whose server restarts.
class StreamServer : public QObject {
public:
    struct Stream {
        QByteArray contentType;
        QByteArray bytes;
        int bytesPerSecond = 16000;
        // Titles by second of the broadcast; empty for a station that sends none.
        QList<QPair<int, QByteArray>> titles;
        // Sent at once on connecting, as stations send their headers and a little sound;
        // the rest at the pace of bytesPerSecond.
        int burstBytes = 0;
    };

    StreamServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, &StreamServer::Accept);
        connect(&m_pace, &QTimer::timeout, this, &StreamServer::Pace);
        m_pace.start(20);
        m_clock.start();
    }

    QString Url(const QString& path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path);
    }
    void AddStream(const QString& path, const Stream& stream) { m_streams.insert(path, stream); }
    // Any fixed answer: status line, headers and body as given.
    void AddAnswer(const QString& path, const QByteArray& answer)
    {
        m_answers.insert(path, answer);
    }
    // Drops every listener and refuses new ones for this long.
    void FallSilent(int milliseconds)
    {
        m_silentUntil = m_clock.elapsed() + milliseconds;
        for (Listener& l : m_listeners)
            if (l.socket)
                l.socket->abort();
    }
    // Everything each listener was sent of the sound itself, without metadata.
    QList<QByteArray> Sent() const
    {
        QList<QByteArray> sent;
        for (const Listener& l : m_listeners)
            sent.append(l.sound);
        return sent;
    }

private:
    static constexpr int MetaInterval = 8192;

    struct Listener {
        QPointer<QTcpSocket> socket;
        const Stream* stream = nullptr;
        bool icy = false;
        qint64 startedMs = 0;
        qint64 offset = 0; // bytes of sound sent
        int sinceMeta = 0; // sound bytes since the last metadata block
        QByteArray lastTitle;
        QByteArray sound;
    };

    void Accept()
    {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            if (m_clock.elapsed() < m_silentUntil) {
                socket->abort();
                continue;
            }
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Request(socket); });
        }
    }

    void Request(QTcpSocket* socket)
    {
        QByteArray& buffer = m_requests[socket];
        buffer += socket->readAll();
        if (!buffer.contains("\r\n\r\n"))
            return;
        const QByteArray request = m_requests.take(socket);
        const QString path = QString::fromLatin1(request.split(' ').value(1));
        if (m_answers.contains(path)) {
            socket->write(m_answers.value(path));
            socket->disconnectFromHost();
            return;
        }
        if (!m_streams.contains(path)) {
            socket->write("HTTP/1.0 404 Not Found\r\nContent-Type: text/plain\r\n\r\nno such "
                          "stream\r\n");
            socket->disconnectFromHost();
            return;
        }
        Listener l;
        l.socket = socket;
        l.stream = &m_streams[path];
        l.icy = request.toLower().contains("icy-metadata: 1") && !l.stream->titles.isEmpty();
        l.startedMs = m_clock.elapsed();
        QByteArray head = "HTTP/1.0 200 OK\r\nContent-Type: " + l.stream->contentType +
                          "\r\nicy-name: Test Station\r\n";
        if (l.icy)
            head += "icy-metaint: " + QByteArray::number(MetaInterval) + "\r\n";
        socket->write(head + "\r\n");
        m_listeners.append(l);
    }

    QByteArray TitleAt(const Stream& s, qint64 offset) const
    {
        QByteArray title;
        for (const auto& [second, text] : s.titles)
            if (offset >= qint64(second) * s.bytesPerSecond)
                title = text;
        return title;
    }

    void Pace()
    {
        for (Listener& l : m_listeners) {
            if (!l.socket || l.socket->state() != QAbstractSocket::ConnectedState)
                continue;
            const qint64 due = l.stream->burstBytes +
                               (m_clock.elapsed() - l.startedMs) * l.stream->bytesPerSecond / 1000;
            while (l.offset < due) {
                qint64 n = due - l.offset;
                if (l.icy)
                    n = qMin<qint64>(n, MetaInterval - l.sinceMeta);
                // The sound loops, as a station never ends.
                const qint64 at = l.offset % l.stream->bytes.size();
                const QByteArray chunk = l.stream->bytes.mid(at, n);
                l.socket->write(chunk);
                l.sound += chunk;
                l.offset += chunk.size();
                l.sinceMeta += int(chunk.size());
                if (l.icy && l.sinceMeta == MetaInterval) {
                    l.sinceMeta = 0;
                    const QByteArray title = TitleAt(*l.stream, l.offset);
                    QByteArray meta;
                    if (title != l.lastTitle) {
                        l.lastTitle = title;
                        meta = "StreamTitle='" + title + "';";
                    }
                    const int blocks = int((meta.size() + 15) / 16);
                    meta.append(blocks * 16 - meta.size(), '\0');
                    l.socket->write(QByteArray(1, char(blocks)) + meta);
                }
            }
        }
    }

    QTcpServer m_server;
    QTimer m_pace;
    QElapsedTimer m_clock;
    qint64 m_silentUntil = 0;
    QHash<QString, Stream> m_streams;
    QHash<QString, QByteArray> m_answers;
    QHash<QTcpSocket*, QByteArray> m_requests;
    QList<Listener> m_listeners;
};
