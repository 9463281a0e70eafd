#include "formats/RiffReader.h"

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>

namespace {
constexpr quint32 RiffId = FourCC("RIFF");
constexpr quint32 ListId = FourCC("LIST");
constexpr qint64 HeaderSize = 8;
} // namespace

RiffReader::RiffReader(QIODevice& device)
    : m_device(device)
{
}

bool RiffReader::Descend(RiffChunk& ck, const RiffChunk* parent, Find find)
{
    const qint64 fileEnd = m_device.size();
    const qint64 searchEnd = parent ? std::min(parent->End(), fileEnd) : fileEnd;
    qint64 pos = m_device.pos();
    while (pos >= 0 && pos + HeaderSize <= searchEnd) {
        if (!m_device.seek(pos))
            return false;
        uchar header[HeaderSize];
        if (m_device.read(reinterpret_cast<char*>(header), HeaderSize) != HeaderSize)
            return false;
        RiffChunk found;
        found.ckid = qFromLittleEndian<quint32>(header);
        found.cksize = qFromLittleEndian<quint32>(header + 4);
        found.dwDataOffset = pos + HeaderSize;

        bool match = false;
        if (find == Find::Chunk) {
            match = found.ckid == ck.ckid;
        } else if (found.ckid == (find == Find::Riff ? RiffId : ListId)) {
            uchar type[4];
            if (found.dwDataOffset + 4 <= searchEnd &&
                m_device.read(reinterpret_cast<char*>(type), 4) == 4) {
                found.fccType = qFromLittleEndian<quint32>(type);
                match = found.fccType == ck.fccType;
            }
        }
        if (match) {
            const qint64 dataStart =
                found.dwDataOffset + (find == Find::Chunk ? 0 : qint64(sizeof(quint32)));
            if (!m_device.seek(dataStart))
                return false;
            ck = found;
            return true;
        }
        // On to the next chunk: the size is padded to an even count, and the step is
        // always forward since the header itself counts.
        pos = found.End() + (found.cksize & 1);
    }
    return false;
}

bool RiffReader::Ascend(const RiffChunk& ck)
{
    const qint64 end = ck.End() + (ck.cksize & 1);
    return m_device.seek(std::min(end, m_device.size()));
}

qint64 RiffReader::Read(char* data, qint64 maxSize)
{
    return m_device.read(data, maxSize);
}

QByteArray RiffReader::ReadData(const RiffChunk& ck, qint64 maxSize)
{
    const qint64 left = std::max<qint64>(0, ck.End() - m_device.pos());
    const qint64 count = std::min({maxSize, left, std::max<qint64>(0, m_device.bytesAvailable())});
    QByteArray data(count, '\0');
    const qint64 got = m_device.read(data.data(), count);
    data.resize(std::max<qint64>(0, got));
    return data;
}
