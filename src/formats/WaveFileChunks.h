#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

// What the wave readers take from a file, chunk by chunk. Reading stops at the first chunk
// that is missing; the row is made from these by the readers of the recordings list.
struct WaveFileChunks {
    // The data of the format chunk, at most the size of a format block.
    QByteArray fmt;
    // ISFT, INAM and ICRD: each chunk's text less its last byte.
    QString software;
    QString title;
    QString created;
    // The fact chunk's count of sample frames, and how many of its bytes could be read.
    quint32 sampleFrames = 0;
    qint64 factBytesRead = 0;
};

namespace WaveFileChunk {

// A wave file of the recording task: fmt, then LIST INFO with ISFT, INAM and ICRD, the
// software being this system. False as soon as something is missing or foreign.
bool ReadNightreelWave(QIODevice& device, int maxFormatSize, WaveFileChunks& chunks);
// A wave file of MP3 data from the encoder: ISFT, INAM, fmt and fact directly in the form.
bool ReadNightreelCompressedWave(QIODevice& device, int maxFormatSize, WaveFileChunks& chunks);
// Any wave file: its fmt chunk.
bool ReadOtherWave(QIODevice& device, int maxFormatSize, WaveFileChunks& chunks);

// True when the software text starts with the name of this system, in any case.
bool IsNightreelSoftware(const QString& software);

} // namespace WaveFileChunk
