#pragma once

#include <QByteArray>
#include <QDebug>
#include <QFile>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QtEndian>

// Whole-file reads and writes, outside programs run to the end, and the direct chunks of
// a RIFF file: the small pieces many tests share.

inline QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool WriteFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

// Runs a program to its end and returns its standard output; ok tells whether it ended
// normally with code 0 (without ok a failure is reported as a warning).
inline QByteArray RunProgram(const QString& program, const QStringList& arguments,
                             bool* ok = nullptr, QByteArray* errors = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    const bool done = process.waitForFinished(60000) &&
                      process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    const QByteArray err = process.readAllStandardError();
    if (errors)
        *errors = err;
    if (!done && !ok)
        qWarning() << program << arguments << err;
    if (ok)
        *ok = done;
    return process.readAllStandardOutput();
}

// Asks a program to end, and ends it if it has not within the time.
inline void EndProcess(QProcess& process, int ms = 3000)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(ms))
        process.kill();
    process.waitForFinished(1000);
}

struct RiffChunk {
    QByteArray id;
    QByteArray data;
};

// The chunks after the 12-byte RIFF header, in order. riffOk, when given, tells whether the
// header is RIFF WAVE with the file's size less 8 and the chunks run exactly to the end.
inline QList<RiffChunk> DirectChunks(const QByteArray& bytes, bool* riffOk = nullptr)
{
    QList<RiffChunk> chunks;
    qint64 pos = 12;
    while (pos + 8 <= bytes.size()) {
        const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + pos + 4);
        chunks.append({bytes.mid(pos, 4), bytes.mid(pos + 8, size)});
        pos += 8 + size + (size & 1);
    }
    if (riffOk)
        *riffOk = bytes.size() >= 12 && bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WAVE" &&
                  qFromLittleEndian<quint32>(bytes.constData() + 4) == quint32(bytes.size() - 8) &&
                  pos == bytes.size();
    return chunks;
}
