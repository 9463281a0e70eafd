#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>
#include <optional>

// The parameter file of one recording: what the task is to record, where to, and in which
// format. The scheduler writes it before each start; the task reads it once.
struct RecParms {
    QString softwareName;
    QString description;
    // The start as the locale's date-and-time text; the task copies it into the file as is.
    QString startText;
    QString outputPath;
    qint32 lengthSeconds = 0;
    qint16 wFormatTag = 1;
    qint32 nChannels = 1;
    qint32 nSamplesPerSec = 11025;
    qint32 nAvgBytesPerSec = 11025;
    qint32 nBlockAlign = 1;
    qint32 nBitsPerSample = 8;
    qint32 cbSize = 0;
    QByteArray extra;

    // Deletes any old file and writes this one; throws RuntimeError on failure.
    void Write(const QString& path) const;

    // Each line trimmed of blanks, numbers in their print form; nothing when the file can't
    // be read or does not hold a whole parameter set.
    static std::optional<RecParms> Read(const QString& path, bool* couldOpen = nullptr)
    {
        QFile file(path);
        if (couldOpen)
            *couldOpen = file.open(QIODevice::ReadOnly);
        else
            file.open(QIODevice::ReadOnly);
        if (!file.isOpen())
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
        RecParms p;
        p.softwareName = lines.at(0);
        p.description = lines.at(1);
        p.startText = lines.at(2);
        p.outputPath = lines.at(3);
        p.lengthSeconds = number(4);
        p.wFormatTag = qint16(number(5));
        p.nChannels = number(6);
        p.nSamplesPerSec = number(7);
        p.nAvgBytesPerSec = number(8);
        p.nBlockAlign = number(9);
        p.nBitsPerSample = number(10);
        p.cbSize = number(11);
        if (!ok || p.cbSize < 0 || p.cbSize > 256 || lines.size() < 12 + p.cbSize)
            return std::nullopt;
        for (int i = 0; i < p.cbSize; ++i) {
            const qint32 byte = number(12 + i);
            if (byte < 0 || byte > 255)
                return std::nullopt;
            p.extra.append(char(byte));
        }
        if (!ok)
            return std::nullopt;
        return p;
    }
};
