#include "recording/RecParms.h"

#include "common/RuntimeError.h"
#include "common/TextHelpers.h"

namespace {

// The run time's print form of a number: sign place, digits, one trailing blank.
QByteArray NumberLine(qint64 value)
{
    return (Text::Str(value) + QStringLiteral(" \r\n")).toUtf8();
}

QByteArray TextLine(const QString& text)
{
    return (text + QStringLiteral("\r\n")).toUtf8();
}

} // namespace

void RecParms::Write(const QString& path) const
{
    // The extra bytes pass through a buffer of 256.
    constexpr int ExtraBufferSize = 256;
    constexpr int SubscriptOutOfRange = 9;
    if (cbSize < 0 || cbSize > ExtraBufferSize)
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
    for (qint64 value :
         {qint64(lengthSeconds), qint64(wFormatTag), qint64(nChannels), qint64(nSamplesPerSec),
          qint64(nAvgBytesPerSec), qint64(nBlockAlign), qint64(nBitsPerSample), qint64(cbSize)})
        bytes += NumberLine(value);
    for (int i = 0; i < cbSize; ++i)
        bytes += NumberLine(i < extra.size() ? quint8(extra.at(i)) : 0);
    if (file.write(bytes) != bytes.size() || !file.flush())
        throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("Path/File access error"));
}
