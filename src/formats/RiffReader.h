#pragma once

#include <QtGlobal>

class QIODevice;

// One chunk of a RIFF file. For a RIFF or LIST chunk, fccType is its form or list type and
// the data proper starts 4 bytes after dwDataOffset.
struct RiffChunk {
    quint32 ckid = 0;
    quint32 cksize = 0;
    quint32 fccType = 0;
    qint64 dwDataOffset = 0;

    qint64 End() const { return dwDataOffset + qint64(cksize); }
};

// Four characters as a chunk id, in file order: FourCC("fmt ").
constexpr quint32 FourCC(const char (&text)[5])
{
    return quint32(quint8(text[0])) | quint32(quint8(text[1])) << 8 |
           quint32(quint8(text[2])) << 16 | quint32(quint8(text[3])) << 24;
}

// A walker over the chunks of a RIFF file with the operations the wave readers need:
// descend into a chunk found by id (or a RIFF form or LIST by type) from the current
// position to the end of the parent, ascend to the end of a chunk, read at the position.
// Sizes in the file are not trusted: a search never passes the end of the file or of its
// parent, and every step moves forward, so a damaged file ends a search instead of
// looping or reading where it shouldn't.
class RiffReader {
public:
    enum class Find { Riff, List, Chunk };

    explicit RiffReader(QIODevice& device);

    // Looks for ck.ckid (Chunk) or ck.fccType (Riff, List) among the chunks from the
    // current position on; without a parent the search runs to the end of the file. On
    // success ck is filled and the position is at the chunk's data (after the type for a
    // RIFF or LIST chunk).
    bool Descend(RiffChunk& ck, const RiffChunk* parent, Find find);
    // To the end of the chunk, padded to an even offset.
    bool Ascend(const RiffChunk& ck);
    // Reads from the current position; the count of bytes read, -1 on failure.
    qint64 Read(char* data, qint64 maxSize);
    // Reads at most maxSize bytes of the chunk's data, from the current position.
    QByteArray ReadData(const RiffChunk& ck, qint64 maxSize);

private:
    QIODevice& m_device;
};
