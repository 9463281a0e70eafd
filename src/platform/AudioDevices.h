#pragma once

#include <QList>
#include <QString>

// One source of the sound server: its name, which stays the same across restarts, and the
// description a user knows it by ("Monitor of Built-in Audio").
struct CaptureSource {
    QString name;
    QString description;
};

// The sound system's capture devices, as far as the scheduler needs to know them.
class AudioDevices {
public:
    virtual ~AudioDevices() = default;
    // How many sources can be recorded from (monitors of outputs count too); 0 without a
    // sound server.
    virtual int CountCaptureSources() = 0;
};

// The PulseAudio server of the session (PipeWire's pulse server serves as well).
class PulseAudioDevices : public AudioDevices {
public:
    int CountCaptureSources() override;
    // Every source, the monitors of the outputs included, in the server's order.
    QList<CaptureSource> CaptureSources();
};
