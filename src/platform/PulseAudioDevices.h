#pragma once

#include "platform/AudioDevices.h"

// The PulseAudio server of the session (PipeWire's pulse server serves as well).
class PulseAudioDevices : public AudioDevices {
public:
    QList<CaptureSource> CaptureSources() override;
    std::unique_ptr<InputLevel> ListenToInput(const QString& name) override;
};
