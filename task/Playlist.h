#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

// The station lists that sites hand out instead of the stream itself: a .pls (File1=...) or
// an .m3u (one address per line, # for comments). HLS lists (.m3u8 with #EXT-X- lines) are
// streams in their own right and are not resolved here.
namespace Playlist {

// True when the address or the server's content type says that the body is such a list.
bool IsPlaylist(const QUrl& url, const QByteArray& contentType);

// The first http or https address the list holds, relative ones resolved against base;
// empty when there is none. Any bytes are safe here: they come from the network.
QUrl FirstStream(const QByteArray& body, const QUrl& base);

} // namespace Playlist
