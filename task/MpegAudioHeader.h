#pragma once

#include <cstddef>
#include <optional>

// The four bytes that open an MPEG audio Layer-3 frame: what a kept broadcast is, and how
// long each of its frames plays.
struct MpegAudioHeader {
    int kbitsPerSec = 0;
    int samplesPerSec = 0;
    int channels = 0;
    int samplesPerFrame = 0;

    // Nothing when the bytes are not a Layer-3 frame header with a bit rate (free format
    // has none).
    static std::optional<MpegAudioHeader> Parse(const unsigned char* bytes, size_t length);
};
