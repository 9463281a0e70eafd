#pragma once

#include "platform/AudioDevices.h"

#include <QList>

// The PulseAudio server of the session (PipeWire's pulse server serves as well).
class PulseAudioDevices : public AudioDevices {
public:
    int CountCaptureSources() override;
    // Every source, the monitors of the outputs included, in the server's order.
    QList<CaptureSource> CaptureSources();
};
