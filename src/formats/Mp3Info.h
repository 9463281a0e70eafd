#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

class QIODevice;

// What is read from an MP3 file: its first frame header, a Xing header behind it, and an
// ID3 tag near its end. Fields that could not be read keep their empty values.
struct Mp3Info {
    qint16 Bitrate = 0;   // kbits per second
    qint32 Frequency = 0; // Hz
    QString Mode;         // "Stereo", "Joint Stereo", "Dual Channel", "Single Channel"
    QString Emphasis;     // "None", "50/15", "Reserved", "CCITT J 17"
    qint32 Duration = 0;  // seconds
    qint16 Version = 0;   // 1, 2, 25 for MPEG 2.5, 0 for the reserved value
    qint16 Layer = 0;
    QString Protection, Padding, Private, Copyright, Original; // "Yes" or "No"
    bool HasTag = false;
    qint16 Genre = 0; // 255 when the file has no tag
    QString Title, Artist, Album, Year, Comment, Track;
    bool IsVbr = false;
    qint16 VbrFrames = 0;
};

namespace Mp3File {

// The bits of the bytes as "1" and "0", most significant first, leading zeros dropped.
QString BytesToBinaryString(const QByteArray& bytes);
// The number that a text of "1" and "0" spells; 0 for the empty text.
qint64 BinaryStringToNumber(const QString& bits);

// Reads the tag and the Xing header into info and returns the first frame header as 32
// bits of text, or the empty text where there is no header to read. Nothing fails: what
// can't be read is skipped, so a damaged file still gives a record.
QString ReadMp3HeaderAndTag(QIODevice& file, bool wantTag, bool wantHeader, Mp3Info& info);
// ReadMp3HeaderAndTag, then the header's fields, the bit rate and the duration.
void GetMp3Info(QIODevice& file, bool wantTag, bool wantHeader, Mp3Info& info);
void GetMp3Info(const QString& path, bool wantTag, bool wantHeader, Mp3Info& info);

// Writes an ID3v1 tag over the last 128 bytes of the file; errors are ignored.
void WriteId3Tag(const QString& path, const QString& title, const QString& artist,
                 const QString& album, const QString& year, const QString& comment, quint8 genre);

} // namespace Mp3File
