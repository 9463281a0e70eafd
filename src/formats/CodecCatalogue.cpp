#include "formats/CodecCatalogue.h"

#include <QLocale>
#include <QtEndian>
#include <algorithm>

namespace CodecCatalogue {

namespace {

struct Record {
    quint16 formatTag = 0;
    quint16 channels = 0;
    quint32 samplesPerSec = 0;
    quint32 avgBytesPerSec = 0;
    quint16 blockAlign = 0;
    quint16 bitsPerSample = 0;
    quint16 cbSize = 0;
};

bool Decode(const QByteArray& bytes, Record& r)
{
    if (bytes.size() < WaveFormatExSize)
        return false;
    const uchar* p = reinterpret_cast<const uchar*>(bytes.constData());
    r.formatTag = qFromLittleEndian<quint16>(p);
    r.channels = qFromLittleEndian<quint16>(p + 2);
    r.samplesPerSec = qFromLittleEndian<quint32>(p + 4);
    r.avgBytesPerSec = qFromLittleEndian<quint32>(p + 8);
    r.blockAlign = qFromLittleEndian<quint16>(p + 12);
    r.bitsPerSample = qFromLittleEndian<quint16>(p + 14);
    r.cbSize = qFromLittleEndian<quint16>(p + 16);
    return true;
}

QByteArray Encode(const Record& r)
{
    QByteArray bytes(WaveFormatExSize, '\0');
    uchar* p = reinterpret_cast<uchar*>(bytes.data());
    qToLittleEndian<quint16>(r.formatTag, p);
    qToLittleEndian<quint16>(r.channels, p + 2);
    qToLittleEndian<quint32>(r.samplesPerSec, p + 4);
    qToLittleEndian<quint32>(r.avgBytesPerSec, p + 8);
    qToLittleEndian<quint16>(r.blockAlign, p + 12);
    qToLittleEndian<quint16>(r.bitsPerSample, p + 14);
    qToLittleEndian<quint16>(r.cbSize, p + 16);
    return bytes;
}

// MPEG 1 takes the three upper rates, MPEG 2 the middle ones, MPEG 2.5 the lowest.
QList<int> Mp3BitRates(quint32 samplesPerSec)
{
    if (samplesPerSec >= 32000)
        return {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    if (samplesPerSec >= 16000)
        return {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
    return {8, 16, 24, 32, 40, 48, 56, 64};
}

QString ChannelsText(quint16 channels)
{
    return channels == 2 ? QStringLiteral("Stereo") : QStringLiteral("Mono");
}

} // namespace

const QList<quint32>& SampleRates()
{
    static const QList<quint32> rates{8000, 11025, 12000, 16000, 22050, 24000, 32000, 44100, 48000};
    return rates;
}

bool FormatTagName(quint16 formatTag, QString& name)
{
    switch (formatTag) {
    case WaveFormatPcm:
        name = QStringLiteral("PCM");
        return true;
    case WaveFormatMpegLayer3:
        name = QStringLiteral("MPEG Layer-3");
        return true;
    default:
        return false;
    }
}

bool FormatDescription(const QByteArray& record, QString& description)
{
    Record r;
    if (!Decode(record, r) || r.channels < 1 || r.channels > 2 || r.samplesPerSec == 0)
        return false;
    const QLocale c = QLocale::c();
    if (r.formatTag == WaveFormatPcm) {
        if (r.bitsPerSample != 8 && r.bitsPerSample != 16)
            return false;
        if (r.blockAlign != r.channels * r.bitsPerSample / 8 ||
            r.avgBytesPerSec != quint32(r.blockAlign) * r.samplesPerSec)
            return false;
        description = c.toString(r.samplesPerSec / 1000.0, 'f', 3) + QStringLiteral(" kHz, ") +
                      QString::number(r.bitsPerSample) + QStringLiteral(" Bit, ") +
                      ChannelsText(r.channels);
        return true;
    }
    if (r.formatTag == WaveFormatMpegLayer3) {
        if (r.cbSize < Mp3ExtraBytes || record.size() < MaxFormatSize() ||
            !SampleRates().contains(r.samplesPerSec))
            return false;
        const int kbits = int(r.avgBytesPerSec * 8 / 1000);
        if (r.avgBytesPerSec * 8 % 1000 != 0 || !Mp3BitRates(r.samplesPerSec).contains(kbits))
            return false;
        description = QString::number(kbits) + QStringLiteral(" kBit/s, ") +
                      QLocale(QLocale::English).toString(r.samplesPerSec) +
                      QStringLiteral(" Hz, ") + ChannelsText(r.channels);
        return true;
    }
    return false;
}

QByteArray PcmRecord(quint16 channels, quint32 samplesPerSec, quint16 bitsPerSample)
{
    Record r;
    r.formatTag = WaveFormatPcm;
    r.channels = channels;
    r.samplesPerSec = samplesPerSec;
    r.blockAlign = quint16(channels * bitsPerSample / 8);
    r.avgBytesPerSec = r.blockAlign * samplesPerSec;
    r.bitsPerSample = bitsPerSample;
    return Encode(r);
}

QByteArray Mp3Record(quint16 channels, quint32 samplesPerSec, int kbitsPerSec)
{
    Record r;
    r.formatTag = WaveFormatMpegLayer3;
    r.channels = channels;
    r.samplesPerSec = samplesPerSec;
    r.avgBytesPerSec = quint32(kbitsPerSec) * 1000 / 8;
    r.blockAlign = 1;
    r.bitsPerSample = 0;
    r.cbSize = Mp3ExtraBytes;
    QByteArray bytes = Encode(r);
    // A frame holds 1152 samples in MPEG 1 and 576 below it.
    const quint32 samplesPerFrame = samplesPerSec >= 32000 ? 1152 : 576;
    const quint16 blockSize =
        quint16(samplesPerFrame / 8 * quint32(kbitsPerSec) * 1000 / samplesPerSec);
    uchar extra[Mp3ExtraBytes];
    qToLittleEndian<quint16>(1, extra);     // id: MPEG
    qToLittleEndian<quint32>(2, extra + 2); // flags: padding off
    qToLittleEndian<quint16>(blockSize, extra + 6);
    qToLittleEndian<quint16>(1, extra + 8);     // frames per block
    qToLittleEndian<quint16>(1393, extra + 10); // codec delay in samples
    bytes.append(reinterpret_cast<const char*>(extra), Mp3ExtraBytes);
    return bytes;
}

QList<QByteArray> RecordingFormats()
{
    QList<QByteArray> formats;
    for (quint32 rate : SampleRates())
        for (quint16 bits : {8, 16})
            for (quint16 channels : {1, 2})
                formats.append(PcmRecord(channels, rate, bits));
    for (quint32 rate : SampleRates())
        for (quint16 channels : {1, 2})
            for (int kbits : Mp3BitRates(rate))
                formats.append(Mp3Record(channels, rate, kbits));
    return formats;
}

} // namespace CodecCatalogue
