#pragma once

#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

// The sound server's state as pactl shows it, to check what the mixer code changed.
namespace Pactl {

// The raw volume of each channel, by position.
using Volumes = QMap<QString, uint>;

inline bool Run(const QStringList& args, QByteArray* output = nullptr)
{
    QProcess pactl;
    pactl.start("pactl", args);
    if (!pactl.waitForFinished(10000) || pactl.exitStatus() != QProcess::NormalExit ||
        pactl.exitCode() != 0)
        return false;
    if (output)
        *output = pactl.readAllStandardOutput().trimmed();
    return true;
}

// kind is "sink" or "source".
inline Volumes VolumesOf(const QString& kind, const QString& name)
{
    QByteArray text;
    Run({"get-" + kind + "-volume", name}, &text);
    Volumes volumes;
    static const QRegularExpression channel("([a-z0-9-]+): (\\d+) /");
    for (const auto& match : channel.globalMatch(QString::fromUtf8(text)))
        volumes[match.captured(1)] = match.captured(2).toUInt();
    return volumes;
}

inline bool MutedOf(const QString& kind, const QString& name)
{
    QByteArray text;
    Run({"get-" + kind + "-mute", name}, &text);
    return text == "Mute: yes";
}

inline QByteArray DefaultOf(const QString& kind)
{
    QByteArray name;
    Run({"get-default-" + kind}, &name);
    return name;
}

} // namespace Pactl
