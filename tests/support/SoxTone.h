#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QString>

// The level and the rough frequency of a wave file, its channels mixed, as sox measures them,
// from skip seconds on.
inline bool ToneOf(const QString& path, double& rms, double& frequency, double skip = 0.0)
{
    QProcess sox;
    sox.start("sox", {path, "-n", "trim", QString::number(skip), "remix", "-", "stat"});
    if (!sox.waitForFinished(30000))
        return false;
    const QString out = QString::fromUtf8(sox.readAllStandardError());
    const auto value = [&](const QString& label) {
        const auto m = QRegularExpression(label + R"(:\s+([-0-9.]+))").match(out);
        return m.hasMatch() ? m.captured(1).toDouble() : -1.0;
    };
    rms = value("RMS +amplitude");
    frequency = value("Rough +frequency");
    return rms >= 0 && frequency >= 0;
}
