#pragma once

#include "formats/clsRecordingFormat.h"

#include <QString>
#include <optional>

// The recording formats that a caller names in a word: "wav" is CD quality PCM (44100 Hz,
// 16 bits, stereo) and "mp3-N" MP3 at N kbit/s of the same rate and channels, encoded while
// recording into an .mp3 file. Nothing for a word that names no format of the catalogue.
std::optional<clsRecordingFormat> RecordingFormatFromName(const QString& name);
