#include "taskcontract/WaveFormatRecord.h"

#include <QtEndian>

QByteArray WaveFormatRecord::Encode() const
{
    QByteArray bytes(Size, '\0');
    uchar* p = reinterpret_cast<uchar*>(bytes.data());
    qToLittleEndian<quint16>(wFormatTag, p);
    qToLittleEndian<quint16>(nChannels, p + 2);
    qToLittleEndian<quint32>(nSamplesPerSec, p + 4);
    qToLittleEndian<quint32>(nAvgBytesPerSec, p + 8);
    qToLittleEndian<quint16>(nBlockAlign, p + 12);
    qToLittleEndian<quint16>(nBitsPerSample, p + 14);
    qToLittleEndian<quint16>(cbSize, p + 16);
    bytes += extra.left(cbSize);
    bytes.append(Size + cbSize - bytes.size(), '\0');
    return bytes;
}

std::optional<WaveFormatRecord> WaveFormatRecord::Decode(const QByteArray& bytes)
{
    if (bytes.size() < Size)
        return std::nullopt;
    const uchar* p = reinterpret_cast<const uchar*>(bytes.constData());
    WaveFormatRecord r;
    r.wFormatTag = qFromLittleEndian<quint16>(p);
    r.nChannels = qFromLittleEndian<quint16>(p + 2);
    r.nSamplesPerSec = qFromLittleEndian<quint32>(p + 4);
    r.nAvgBytesPerSec = qFromLittleEndian<quint32>(p + 8);
    r.nBlockAlign = qFromLittleEndian<quint16>(p + 12);
    r.nBitsPerSample = qFromLittleEndian<quint16>(p + 14);
    r.cbSize = qFromLittleEndian<quint16>(p + 16);
    r.extra = bytes.mid(Size, r.cbSize);
    return r;
}
