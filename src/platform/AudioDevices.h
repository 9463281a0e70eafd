#pragma once

#include <QList>
#include <QString>
#include <memory>

// One source of the sound server: its name, which stays the same across restarts, and the
// description a user knows it by ("Monitor of Built-in Audio").
struct CaptureSource {
    QString name;
    QString description;
};

// The live level of one input, measured for as long as the object lives.
class InputLevel {
public:
    virtual ~InputLevel() = default;
    // The highest sample since the last call, as a fraction of full scale; 0 while nothing
    // arrives.
    virtual float TakePeak() = 0;
};

// The sound system's capture devices: what the start-up checks, the input lists offer and
// the level meter shows.
class AudioDevices {
public:
    virtual ~AudioDevices() = default;
    // Every source that can be recorded from, the monitors of the outputs included, in the
    // server's order; none without a sound server.
    virtual QList<CaptureSource> CaptureSources() = 0;
    // Starts measuring the named input (empty: the server's default input); without a
    // server the level stays 0.
    virtual std::unique_ptr<InputLevel> ListenToInput(const QString& name) = 0;
};
