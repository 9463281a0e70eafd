#include "taskcontract/RecParms.h"

#include "common/RuntimeError.h"

#include <QFile>
#include <QStringList>

namespace {

// The extra bytes pass through a buffer of 256.
constexpr int ExtraBufferSize = 256;

// The run time's print form of a number: a blank in the sign's place for a value that has
// none, the digits, one trailing blank.
QByteArray NumberLine(qint64 value)
{
    return (value < 0 ? QByteArray() : QByteArray(" ")) + QByteArray::number(value) + " \r\n";
}

QByteArray TextLine(const QString& text)
{
    return (text + QStringLiteral("\r\n")).toUtf8();
}

} // namespace

QString RecParms::PathIn(const QString& folder)
{
    return folder + u'/' + QString::fromLatin1(FileName);
}

void RecParms::Write(const QString& path) const
{
    constexpr int SubscriptOutOfRange = 9;
    if (format.cbSize > ExtraBufferSize)
        throw RuntimeError(SubscriptOutOfRange, QStringLiteral("Subscript out of range"));

    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("Path/File access error"));
    QByteArray bytes;
    bytes += TextLine(softwareName);
    bytes += TextLine(description);
    bytes += TextLine(startText);
    bytes += TextLine(outputPath);
    // The tag is written as a signed 16-bit number, the rates as signed 32-bit ones.
    for (qint64 value :
         {qint64(lengthSeconds), qint64(qint16(format.wFormatTag)), qint64(format.nChannels),
          qint64(qint32(format.nSamplesPerSec)), qint64(qint32(format.nAvgBytesPerSec)),
          qint64(format.nBlockAlign), qint64(format.nBitsPerSample), qint64(format.cbSize)})
        bytes += NumberLine(value);
    for (int i = 0; i < format.cbSize; ++i)
        bytes += NumberLine(i < format.extra.size() ? quint8(format.extra.at(i)) : 0);
    const bool streamLines = !streamUrl.isEmpty() || !inputName.isEmpty();
    if (silenceSeconds > 0 || streamLines)
        bytes += NumberLine(silenceThresholdDb) + NumberLine(silenceSeconds);
    if (streamLines)
        bytes += TextLine(streamUrl) + NumberLine(dueStartMsecs) + TextLine(finalPath);
    if (!inputName.isEmpty())
        bytes += TextLine(inputName);
    if (file.write(bytes) != bytes.size() || !file.flush())
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("Path/File access error"));
}

std::optional<RecParms> RecParms::Read(const QString& path, bool* couldOpen)
{
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    if (couldOpen)
        *couldOpen = opened;
    if (!opened)
        return std::nullopt;
    QStringList lines;
    while (!file.atEnd()) {
        QString line = QString::fromUtf8(file.readLine());
        while (line.endsWith(u'\n') || line.endsWith(u'\r'))
            line.chop(1);
        lines << line.trimmed();
    }
    if (lines.size() < 12)
        return std::nullopt;
    bool ok = true;
    auto number = [&](int index) {
        bool good = false;
        const qint32 value = lines.at(index).toInt(&good);
        ok = ok && good;
        return value;
    };
    // A 16-bit field is taken in either print form, signed or unsigned.
    auto word = [&](int index) {
        const qint32 value = number(index);
        ok = ok && value >= -32768 && value <= 65535;
        return quint16(value);
    };
    RecParms p;
    p.softwareName = lines.at(0);
    p.description = lines.at(1);
    p.startText = lines.at(2);
    p.outputPath = lines.at(3);
    p.lengthSeconds = number(4);
    WaveFormatRecord& f = p.format;
    f.wFormatTag = word(5);
    f.nChannels = word(6);
    f.nSamplesPerSec = quint32(number(7));
    f.nAvgBytesPerSec = quint32(number(8));
    f.nBlockAlign = word(9);
    f.nBitsPerSample = word(10);
    const qint32 cbSize = number(11);
    if (!ok || cbSize < 0 || cbSize > ExtraBufferSize || lines.size() < 12 + cbSize)
        return std::nullopt;
    f.cbSize = quint16(cbSize);
    for (int i = 0; i < cbSize; ++i) {
        const qint32 byte = number(12 + i);
        if (byte < 0 || byte > 255)
            return std::nullopt;
        f.extra.append(char(byte));
    }
    const int alarmLine = 12 + cbSize;
    if (lines.size() >= alarmLine + 2) {
        p.silenceThresholdDb = number(alarmLine);
        p.silenceSeconds = number(alarmLine + 1);
    }
    const int streamLine = alarmLine + 2;
    if (lines.size() >= streamLine + 3) {
        p.streamUrl = lines.at(streamLine);
        bool good = false;
        p.dueStartMsecs = lines.at(streamLine + 1).toLongLong(&good);
        ok = ok && good;
        p.finalPath = lines.at(streamLine + 2);
    }
    if (lines.size() >= streamLine + 4)
        p.inputName = lines.at(streamLine + 3);
    if (!ok)
        return std::nullopt;
    return p;
}
