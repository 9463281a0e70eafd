// Any bytes through the chunk walker, in the three ways the wave readers walk a file.
#include "formats/CodecCatalogue.h"
#include "formats/RiffReader.h"
#include "formats/WaveFileChunks.h"

#include <QBuffer>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    using Reader = bool (*)(QIODevice&, int, WaveFileChunks&);
    for (Reader read : {WaveFileChunk::ReadNightreelWave,
                        WaveFileChunk::ReadNightreelCompressedWave, WaveFileChunk::ReadOtherWave}) {
        buffer.seek(0);
        WaveFileChunks chunks;
        if (read(buffer, CodecCatalogue::MaxFormatSize(), chunks) &&
            chunks.fmt.size() > CodecCatalogue::MaxFormatSize())
            __builtin_trap();
    }
    return 0;
}
