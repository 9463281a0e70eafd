#include "formats/CodecCatalogue.h"

#include <QCoreApplication>
#include <QLocale>
#include <QtEndian>
#include <algorithm>

namespace CodecCatalogue {

namespace {

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
    return channels == 2 ? QCoreApplication::translate("CodecCatalogue", "Stereo")
                         : QCoreApplication::translate("CodecCatalogue", "Mono");
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
    case WaveFormatRecord::TagPcm:
        name = QStringLiteral("PCM");
        return true;
    case WaveFormatRecord::TagMpegLayer3:
        name = QCoreApplication::translate("CodecCatalogue", "MPEG Layer-3");
        return true;
    default:
        return false;
    }
}

bool FormatDescription(const QByteArray& record, QString& description)
{
    const std::optional<WaveFormatRecord> decoded = WaveFormatRecord::Decode(record);
    if (!decoded)
        return false;
    const WaveFormatRecord& r = *decoded;
    if (r.nChannels < 1 || r.nChannels > 2 || r.nSamplesPerSec == 0)
        return false;
    const QLocale c = QLocale::c();
    if (r.wFormatTag == WaveFormatRecord::TagPcm) {
        if (r.nBitsPerSample != 8 && r.nBitsPerSample != 16)
            return false;
        if (r.nBlockAlign != r.nChannels * r.nBitsPerSample / 8 ||
            r.nAvgBytesPerSec != quint32(r.nBlockAlign) * r.nSamplesPerSec)
            return false;
        description = c.toString(r.nSamplesPerSec / 1000.0, 'f', 3) + QStringLiteral(" kHz, ") +
                      QString::number(r.nBitsPerSample) +
                      QCoreApplication::translate("CodecCatalogue", " Bit, ") +
                      ChannelsText(r.nChannels);
        return true;
    }
    if (r.wFormatTag == WaveFormatRecord::TagMpegLayer3) {
        if (r.cbSize < Mp3ExtraBytes || record.size() < MaxFormatSize() ||
            !SampleRates().contains(r.nSamplesPerSec))
            return false;
        const int kbits = int(r.nAvgBytesPerSec * 8 / 1000);
        if (r.nAvgBytesPerSec * 8 % 1000 != 0 || !Mp3BitRates(r.nSamplesPerSec).contains(kbits))
            return false;
        description =
            QString::number(kbits) + QCoreApplication::translate("CodecCatalogue", " kBit/s, ") +
            QLocale(QLocale::English).toString(r.nSamplesPerSec) +
            QCoreApplication::translate("CodecCatalogue", " Hz, ") + ChannelsText(r.nChannels);
        return true;
    }
    return false;
}

QByteArray PcmRecord(quint16 channels, quint32 samplesPerSec, quint16 bitsPerSample)
{
    WaveFormatRecord r;
    r.wFormatTag = WaveFormatRecord::TagPcm;
    r.nChannels = channels;
    r.nSamplesPerSec = samplesPerSec;
    r.nBlockAlign = quint16(channels * bitsPerSample / 8);
    r.nAvgBytesPerSec = r.nBlockAlign * samplesPerSec;
    r.nBitsPerSample = bitsPerSample;
    return r.Encode();
}

QByteArray Mp3Record(quint16 channels, quint32 samplesPerSec, int kbitsPerSec)
{
    return WaveFormatRecord::MpegLayer3(channels, samplesPerSec, kbitsPerSec).Encode();
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
