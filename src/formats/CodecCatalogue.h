#pragma once

#include "taskcontract/WaveFormatRecord.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

// What the platform's codec manager answered on the system's first home: names of format
// tags, descriptions of single formats, the largest format record, and the list offered by
// "Select from all recording formats". It knows exactly the formats that the recording task
// can record: PCM of 8 or 16 bits, mono or stereo, at the nine rates of the format dialog,
// and MPEG Layer-3 at the bit rates its MPEG version allows.
namespace CodecCatalogue {

// An MP3 wave format carries 12 extra bytes: id, flags, block size, frames per block and
// codec delay.
constexpr int Mp3ExtraBytes = 12;

// The largest record of any format listed: the MP3 one.
constexpr int MaxFormatSize()
{
    return WaveFormatRecord::Size + Mp3ExtraBytes;
}

// The tag's name ("PCM", "MPEG Layer-3"); false for a tag this catalogue does not know.
bool FormatTagName(quint16 formatTag, QString& name);
// The description of one format record (18 bytes and its extra bytes), as the format text
// shows it; false for a record that no codec here could record or play.
bool FormatDescription(const QByteArray& record, QString& description);

// Every recordable format, each as a full record with its extra bytes, PCM first.
QList<QByteArray> RecordingFormats();

// The records themselves.
QByteArray PcmRecord(quint16 channels, quint32 samplesPerSec, quint16 bitsPerSample);
QByteArray Mp3Record(quint16 channels, quint32 samplesPerSec, int kbitsPerSec);

// The sample rates that the format dialog offers, in its order.
const QList<quint32>& SampleRates();

} // namespace CodecCatalogue
