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

WaveFormatRecord WaveFormatRecord::MpegLayer3(quint16 channels, quint32 samplesPerSec,
                                              int kbitsPerSec)
{
    constexpr quint16 ExtraBytes = 12;
    WaveFormatRecord r;
    r.wFormatTag = TagMpegLayer3;
    r.nChannels = channels;
    r.nSamplesPerSec = samplesPerSec;
    r.nAvgBytesPerSec = quint32(kbitsPerSec) * 1000 / 8;
    r.nBlockAlign = 1;
    r.nBitsPerSample = 0;
    r.cbSize = ExtraBytes;
    // A frame holds 1152 samples in MPEG 1 and 576 below it.
    const quint32 samplesPerFrame = samplesPerSec >= 32000 ? 1152 : 576;
    const quint16 blockSize =
        quint16(samplesPerFrame / 8 * quint32(kbitsPerSec) * 1000 / samplesPerSec);
    r.extra = QByteArray(ExtraBytes, '\0');
    uchar* extra = reinterpret_cast<uchar*>(r.extra.data());
    qToLittleEndian<quint16>(1, extra);     // id: MPEG
    qToLittleEndian<quint32>(2, extra + 2); // flags: padding off
    qToLittleEndian<quint16>(blockSize, extra + 6);
    qToLittleEndian<quint16>(1, extra + 8);     // frames per block
    qToLittleEndian<quint16>(1393, extra + 10); // codec delay in samples
    return r;
}
