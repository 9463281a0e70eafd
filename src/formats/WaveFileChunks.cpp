#include "formats/WaveFileChunks.h"

#include "formats/RiffReader.h"

#include <QIODevice>
#include <QtEndian>

namespace WaveFileChunk {

namespace {

// A text chunk is read into a buffer of 255 characters. Its size counts a closing byte,
// which is dropped; a chunk of less than 2 bytes is the empty text.
constexpr qint64 TextBufferSize = 255;

QString ReadText(RiffReader& riff, const RiffChunk& ck)
{
    if (ck.cksize < 2)
        return QString();
    const QByteArray buffer = riff.ReadData(ck, TextBufferSize);
    return QString::fromUtf8(buffer.left(qint64(ck.cksize) - 1));
}

bool FindRiffWave(RiffReader& riff, RiffChunk& wave)
{
    wave.fccType = FourCC("WAVE");
    return riff.Descend(wave, nullptr, RiffReader::Find::Riff);
}

bool ReadFmt(RiffReader& riff, const RiffChunk& parent, int maxFormatSize, WaveFileChunks& chunks)
{
    RiffChunk fmt;
    fmt.ckid = FourCC("fmt ");
    if (!riff.Descend(fmt, &parent, RiffReader::Find::Chunk))
        return false;
    chunks.fmt = riff.ReadData(fmt, maxFormatSize);
    return riff.Ascend(fmt);
}

bool ReadTextChunk(RiffReader& riff, const RiffChunk& parent, const char (&id)[5], QString& text)
{
    RiffChunk ck;
    ck.ckid = FourCC(id);
    if (!riff.Descend(ck, &parent, RiffReader::Find::Chunk))
        return false;
    text = ReadText(riff, ck);
    return riff.Ascend(ck);
}

} // namespace

bool IsNightreelSoftware(const QString& software)
{
    static const QString name = QStringLiteral("Nightreel");
    return software.left(name.size()).toUpper() == name.toUpper();
}

bool ReadNightreelWave(QIODevice& device, int maxFormatSize, WaveFileChunks& chunks)
{
    RiffReader riff(device);
    RiffChunk wave;
    if (!FindRiffWave(riff, wave) || !ReadFmt(riff, wave, maxFormatSize, chunks))
        return false;
    RiffChunk info;
    info.fccType = FourCC("INFO");
    if (!riff.Descend(info, &wave, RiffReader::Find::List))
        return false;
    if (!ReadTextChunk(riff, info, "ISFT", chunks.software) ||
        !IsNightreelSoftware(chunks.software))
        return false;
    return ReadTextChunk(riff, info, "INAM", chunks.title) &&
           ReadTextChunk(riff, info, "ICRD", chunks.created);
}

bool ReadNightreelCompressedWave(QIODevice& device, int maxFormatSize, WaveFileChunks& chunks)
{
    RiffReader riff(device);
    RiffChunk wave;
    if (!FindRiffWave(riff, wave))
        return false;
    if (!ReadTextChunk(riff, wave, "ISFT", chunks.software) ||
        !IsNightreelSoftware(chunks.software))
        return false;
    if (!ReadTextChunk(riff, wave, "INAM", chunks.title) ||
        !ReadFmt(riff, wave, maxFormatSize, chunks))
        return false;
    RiffChunk fact;
    fact.ckid = FourCC("fact");
    if (!riff.Descend(fact, &wave, RiffReader::Find::Chunk))
        return false;
    const QByteArray frames = riff.ReadData(fact, sizeof(quint32));
    chunks.factBytesRead = frames.size();
    uchar bytes[4] = {0, 0, 0, 0};
    std::copy(frames.cbegin(), frames.cend(), bytes);
    chunks.sampleFrames = qFromLittleEndian<quint32>(bytes);
    return true;
}

bool ReadOtherWave(QIODevice& device, int maxFormatSize, WaveFileChunks& chunks)
{
    RiffReader riff(device);
    RiffChunk wave;
    return FindRiffWave(riff, wave) && ReadFmt(riff, wave, maxFormatSize, chunks);
}

} // namespace WaveFileChunk
