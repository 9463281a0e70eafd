#include "Playlist.h"

#include <QList>

namespace Playlist {

bool IsPlaylist(const QUrl& url, const QByteArray& contentType)
{
    const QByteArray type = contentType.split(';').first().trimmed().toLower();
    if (type == "audio/x-scpls" || type == "audio/x-mpegurl" || type == "audio/mpegurl")
        return !url.path().endsWith(QLatin1String(".m3u8"), Qt::CaseInsensitive);
    // A server that says it sends sound is believed over the address's ending.
    if (type.startsWith("audio/") || type.startsWith("application/ogg"))
        return false;
    const QString path = url.path().toLower();
    return path.endsWith(QLatin1String(".pls")) || path.endsWith(QLatin1String(".m3u"));
}

QUrl FirstStream(const QByteArray& body, const QUrl& base)
{
    // An HLS list is a stream of its own: its entries are segments, not stations.
    if (body.contains("#EXT-X-"))
        return {};
    for (QByteArray line : body.split('\n')) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith('#') || line.startsWith('['))
            continue;
        // .pls: FileN=address; the other keys (TitleN, LengthN, NumberOfEntries) are skipped.
        const int equals = line.indexOf('=');
        if (equals > 0 && !line.contains("://"))
            continue;
        if (equals > 0 && line.left(4).toLower() == "file")
            line = line.mid(equals + 1).trimmed();
        const QUrl url = base.resolved(QUrl(QString::fromUtf8(line)));
        if (url.isValid() &&
            (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")))
            return url;
    }
    return {};
}

} // namespace Playlist
