#pragma once

#include "TestFiles.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <string>

// The level and the rough frequency of a wave file, its channels mixed, as sox measures them,
// from skip seconds on.
inline bool ToneOf(const QString& path, double& rms, double& frequency, double skip = 0.0)
{
    QByteArray errors;
    RunProgram("sox", {path, "-n", "trim", QString::number(skip), "remix", "-", "stat"}, nullptr,
               &errors);
    const QString out = QString::fromUtf8(errors);
    const auto value = [&](const QString& label) {
        const auto m = QRegularExpression(label + R"(:\s+([-0-9.]+))").match(out);
        return m.hasMatch() ? m.captured(1).toDouble() : -1.0;
    };
    rms = value("RMS +amplitude");
    frequency = value("Rough +frequency");
    return rms >= 0 && frequency >= 0;
}

// One figure that soxi gives of a sound file ("-r" rate, "-c" channels, "-D" seconds...);
// empty when soxi can't read the file.
inline QString Soxi(const QString& option, const QString& file)
{
    bool ok = false;
    const QByteArray out = RunProgram("soxi", {option, file}, &ok);
    return ok ? QString::fromUtf8(out).trimmed() : QString();
}

// Raw little-endian samples of a 1 kHz tone at half scale, as the recording task captures
// them (8-bit samples unsigned, wider ones signed); empty when sox fails.
inline std::string RawTone(int rate, int channels, double seconds, int bits = 16)
{
    bool ok = false;
    const QByteArray pcm =
        RunProgram("sox",
                   {"-n", "-r", QString::number(rate), "-c", QString::number(channels), "-b",
                    QString::number(bits), "-e", bits == 8 ? "unsigned" : "signed", "-t", "raw",
                    "-", "synth", QString::number(seconds), "sine", "1000", "vol", "0.5"},
                   &ok);
    return ok ? pcm.toStdString() : std::string();
}

// What lame decodes from an MP3 stream (written to scratch.mp3, decoded to scratch.wav), as
// sox measures it; the frequency is negative for silence.
struct Mp3Tone {
    bool ok = false;
    double rms = -1, frequency = -1, seconds = -1;
};

inline Mp3Tone DecodeMp3(const QByteArray& mp3, const QString& scratch)
{
    Mp3Tone t;
    if (!WriteFile(scratch + ".mp3", mp3) ||
        QProcess::execute("lame", {"--quiet", "--decode", scratch + ".mp3", scratch + ".wav"}) != 0)
        return t;
    const QString seconds = Soxi("-D", scratch + ".wav");
    if (seconds.isEmpty())
        return t;
    t.seconds = seconds.toDouble();
    ToneOf(scratch + ".wav", t.rms, t.frequency);
    t.ok = t.rms >= 0;
    return t;
}
