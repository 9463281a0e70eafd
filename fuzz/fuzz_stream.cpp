// Any bytes as a station's answer, through what the recording task parses itself: the
// station lists (.pls, .m3u) and the header of an MP3 frame. (The ICY metadata is taken
// apart by GStreamer.) A list may only ever yield an http or https address.
#include "MpegAudioHeader.h"
#include "Playlist.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const QUrl base(QStringLiteral("http://radio.example.org/lists/station.pls"));
    Playlist::IsPlaylist(base, bytes.left(64));
    const QUrl stream = Playlist::FirstStream(bytes, base);
    if (!stream.isEmpty() && stream.scheme() != QLatin1String("http") &&
        stream.scheme() != QLatin1String("https"))
        __builtin_trap();
    if (const auto header = MpegAudioHeader::Parse(data, size)) {
        if (header->kbitsPerSec <= 0 || header->samplesPerSec < 8000 || header->channels < 1 ||
            header->channels > 2)
            __builtin_trap();
    }
    return 0;
}
