#pragma once

#include "recording/clsConvertToMP3Request.h"

#include <QList>
#include <memory>

// Recordings waiting for their MP3 conversion, oldest first, the one being converted (kept
// after its end), and the flag that asks the running conversion to stop at its next step.
struct ConversionQueue {
    Mp3ConvertQueueList Mp3ConvertQueue;
    std::shared_ptr<clsConvertToMP3Request> CurrentConvertRequest;
    bool StopMp3Conversion = false;
};
