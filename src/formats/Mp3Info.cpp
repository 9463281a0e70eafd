#include "formats/Mp3Info.h"

#include <QFile>
#include <QIODevice>
#include <cmath>
#include <limits>

namespace Mp3File {

namespace {

// Files shorter than this are not read at all: there is no room for a frame and a tag.
constexpr qint64 MinimumFileSize = 256;
// The frame sync is looked for among the first 5000 bytes.
constexpr qint64 SyncSearchLength = 5000;
constexpr qint64 TagSearchLength = 256;

// kbits per second by bit rate index, for MPEG 1 layers 1 to 3 and for MPEG 2 (and 2.5)
// layer 1 and layers 2 and 3. Index 0 is the free format and 15 is invalid: both give 0.
constexpr int BitRates[5][16] = {
    {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},
    {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0},
};

int TableBitRate(int version, int layer, int index)
{
    if (layer < 1 || layer > 3 || index < 0 || index > 15)
        return 0;
    if (version == 1)
        return BitRates[layer - 1][index];
    if (version == 2 || version == 25)
        return BitRates[layer == 1 ? 3 : 4][index];
    return 0;
}

// Field of the bit text at a place counted from 1.
int Bits(const QString& bits, int place, int length)
{
    return int(BinaryStringToNumber(bits.mid(place - 1, length)));
}

QString YesNo(int bit)
{
    return bit == 1 ? QStringLiteral("Yes") : QStringLiteral("No");
}

// An ID3 text: the field's characters up to the first NUL, blanks on the right removed.
QString TagText(const QByteArray& tail, qint64 offset, qint64 length)
{
    if (offset < 0 || offset >= tail.size())
        return QString();
    QByteArray field = tail.mid(offset, length);
    const qsizetype nul = field.indexOf('\0');
    if (nul >= 0)
        field.truncate(nul);
    while (field.endsWith(' '))
        field.chop(1);
    return QString::fromLatin1(field);
}

qint64 FindTag(const QByteArray& tail)
{
    for (qsizetype i = 0; i + 3 <= tail.size(); ++i)
        if (qstrnicmp(tail.constData() + i, "tag", 3) == 0)
            return i;
    return -1;
}

} // namespace

QString BytesToBinaryString(const QByteArray& bytes)
{
    QString bits;
    for (char byte : bytes)
        for (int bit = 7; bit >= 0; --bit)
            bits += (quint8(byte) >> bit) & 1 ? u'1' : u'0';
    const qsizetype first = bits.indexOf(u'1');
    return first < 0 ? QString() : bits.mid(first);
}

qint64 BinaryStringToNumber(const QString& bits)
{
    qint64 number = 0;
    for (QChar c : bits) {
        if (number > (std::numeric_limits<qint64>::max() >> 1))
            return number;
        number = number * 2 + (c == u'1' ? 1 : 0);
    }
    return number;
}

QString ReadMp3HeaderAndTag(QIODevice& file, bool wantTag, bool wantHeader, Mp3Info& info)
{
    const qint64 length = file.size();
    if (length < MinimumFileSize)
        return QString();

    QString headerBits;
    if (wantHeader && file.seek(0)) {
        const QByteArray head = file.read(SyncSearchLength + 1);
        qint64 frameStart = -1;
        for (qint64 i = 0; i + 1 < head.size() && i < SyncSearchLength; ++i) {
            const quint8 first = quint8(head[i]);
            const quint8 second = quint8(head[i + 1]);
            if (first > 254 && second >= 226 && second <= 251) {
                frameStart = i;
                break;
            }
        }
        if (frameStart >= 0) {
            info.IsVbr = false;
            if (frameStart + 40 <= length && file.seek(frameStart + 36) && file.read(4) == "Xing") {
                info.IsVbr = true;
                if (frameStart + 48 <= length && file.seek(frameStart + 44)) {
                    const qint64 frames = BinaryStringToNumber(BytesToBinaryString(file.read(4)));
                    // A count beyond 16 bits does not fit and is left out.
                    if (frames <= std::numeric_limits<qint16>::max())
                        info.VbrFrames = qint16(frames);
                }
            }
            if (file.seek(frameStart)) {
                const QByteArray header = file.read(4);
                if (header.size() == 4)
                    headerBits = BytesToBinaryString(header);
            }
        }
    }

    if (wantTag && file.seek(length - TagSearchLength)) {
        const QByteArray tail = file.read(TagSearchLength);
        // On purpose no fixed place: the tag is taken wherever "tag" first shows up in the
        // last 256 bytes, in any case.
        const qint64 p = FindTag(tail);
        if (p < 0) {
            info.HasTag = false;
            info.Title = info.Artist = info.Album = info.Year = info.Comment = info.Track =
                QString();
            info.Genre = 255;
        } else {
            info.HasTag = true;
            info.Title = TagText(tail, p + 3, 30);
            info.Artist = TagText(tail, p + 33, 30);
            info.Album = TagText(tail, p + 63, 30);
            info.Year = TagText(tail, p + 93, 4);
            info.Comment = TagText(tail, p + 97, 29);
            info.Track = TagText(tail, p + 126, 1);
            if (p + 127 < tail.size())
                info.Genre = qint16(quint8(tail[p + 127]));
        }
    }
    return headerBits;
}

void GetMp3Info(QIODevice& file, bool wantTag, bool wantHeader, Mp3Info& info)
{
    const QString bits = ReadMp3HeaderAndTag(file, wantTag, wantHeader, info);
    if (bits.size() != 32)
        return;

    static const int Versions[4] = {25, 0, 2, 1};
    static const int Layers[4] = {0, 3, 2, 1};
    info.Version = qint16(Versions[Bits(bits, 12, 2)]);
    info.Layer = qint16(Layers[Bits(bits, 14, 2)]);
    info.Protection = Bits(bits, 16, 1) == 1 ? QStringLiteral("No") : QStringLiteral("Yes");

    const int rateIndex = Bits(bits, 21, 2);
    static const int Rates1[3] = {44100, 48000, 32000};
    static const int Rates2[3] = {22050, 24000, 16000};
    static const int Rates25[3] = {11025, 12000, 8000};
    if (rateIndex < 3) {
        if (info.Version == 1)
            info.Frequency = Rates1[rateIndex];
        else if (info.Version == 2)
            info.Frequency = Rates2[rateIndex];
        else if (info.Version == 25)
            info.Frequency = Rates25[rateIndex];
    }
    info.Padding = YesNo(Bits(bits, 23, 1));
    info.Private = YesNo(Bits(bits, 24, 1));
    static const char* const Modes[4] = {"Stereo", "Joint Stereo", "Dual Channel",
                                         "Single Channel"};
    info.Mode = QString::fromLatin1(Modes[Bits(bits, 25, 2)]);
    info.Copyright = YesNo(Bits(bits, 29, 1));
    info.Original = YesNo(Bits(bits, 30, 1));
    static const char* const Emphases[4] = {"None", "50/15", "Reserved", "CCITT J 17"};
    info.Emphasis = QString::fromLatin1(Emphases[Bits(bits, 31, 2)]);

    const qint64 length = file.size();
    if (!info.IsVbr) {
        info.Bitrate = qint16(TableBitRate(info.Version, info.Layer, Bits(bits, 17, 4)));
    } else {
        // The mean rate from the frame count. The factor of 144 stands for layers 2 and 3
        // of every MPEG version, though MPEG 2 frames hold half as many samples: intended.
        const int factor = info.Layer == 1 ? 12 : (info.Layer == 2 || info.Layer == 3 ? 144 : 0);
        if (info.VbrFrames > 0 && factor > 0) {
            const double rate = double(length) * info.Frequency / info.VbrFrames / 1000.0 / factor;
            const double rounded = std::nearbyint(rate);
            if (rounded <= std::numeric_limits<qint16>::max())
                info.Bitrate = qint16(rounded);
        }
    }

    // The product is a 32-bit number: a file of 256 Mbytes and more gets no length.
    if (info.Bitrate > 0 && length * 8 <= std::numeric_limits<qint32>::max())
        info.Duration = qint32(double(length * 8) / info.Bitrate / 1000.0);
}

void GetMp3Info(const QString& path, bool wantTag, bool wantHeader, Mp3Info& info)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        GetMp3Info(file, wantTag, wantHeader, info);
}

void WriteId3Tag(const QString& path, const QString& title, const QString& artist,
                 const QString& album, const QString& year, const QString& comment, quint8 genre)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || file.size() < 128 || !file.seek(file.size() - 128))
        return;
    auto field = [](const QString& text, int width) {
        return text.leftJustified(width, u' ', true).toLatin1();
    };
    QByteArray tag = "TAG";
    tag += field(title, 30);
    tag += field(artist, 30);
    tag += field(album, 30);
    tag += field(year, 4);
    tag += field(comment, 30);
    tag += char(genre);
    file.write(tag);
}

} // namespace Mp3File
