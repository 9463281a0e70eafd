#include "control/RecordingFormatName.h"

#include "formats/CodecCatalogue.h"

std::optional<clsRecordingFormat> RecordingFormatFromName(const QString& name)
{
    const QString word = name.trimmed().toLower();
    clsRecordingFormat format;
    if (word == QStringLiteral("wav")) {
        format.SetToPcm(2, 44100, 16);
    } else if (word.startsWith(QStringLiteral("mp3-"))) {
        bool number = false;
        const int kbits = word.mid(4).toInt(&number);
        const QByteArray record =
            number ? CodecCatalogue::Mp3Record(2, 44100, kbits) : QByteArray();
        if (!CodecCatalogue::RecordingFormats().contains(record))
            return std::nullopt;
        format.SetWaveFormatEx(WaveFormatRecord::Decode(record).value());
        format.SaveMP3FileExtension = true;
    } else {
        return std::nullopt;
    }
    format.CalculateTextCompressionMethodString();
    return format;
}
