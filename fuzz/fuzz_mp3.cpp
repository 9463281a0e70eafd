// Any bytes through the MP3 reader: frame search, Xing header, tag search, header fields.
#include "formats/Mp3Info.h"

#include <QBuffer>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Mp3Info info;
    Mp3File::GetMp3Info(buffer, true, true, info);
    if (info.Duration < 0 || info.Bitrate < 0)
        __builtin_trap();
    return 0;
}
