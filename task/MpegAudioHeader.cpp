#include "MpegAudioHeader.h"

std::optional<MpegAudioHeader> MpegAudioHeader::Parse(const unsigned char* b, size_t length)
{
    if (length < 4 || b[0] != 0xFF || (b[1] & 0xE0) != 0xE0)
        return std::nullopt;
    const int version = (b[1] >> 3) & 3; // 3 MPEG 1, 2 MPEG 2, 0 MPEG 2.5
    const int layer = (b[1] >> 1) & 3;   // 1 is Layer 3
    const int bitrateIndex = b[2] >> 4;
    const int rateIndex = (b[2] >> 2) & 3;
    if (version == 1 || layer != 1 || bitrateIndex == 0 || bitrateIndex == 15 || rateIndex == 3)
        return std::nullopt;
    static constexpr int Mpeg1Kbits[] = {0,   32,  40,  48,  56,  64,  80, 96,
                                         112, 128, 160, 192, 224, 256, 320};
    static constexpr int Mpeg2Kbits[] = {0,  8,  16, 24,  32,  40,  48, 56,
                                         64, 80, 96, 112, 128, 144, 160};
    static constexpr int Mpeg1Rates[] = {44100, 48000, 32000};
    const bool mpeg1 = version == 3;
    MpegAudioHeader h;
    h.kbitsPerSec = mpeg1 ? Mpeg1Kbits[bitrateIndex] : Mpeg2Kbits[bitrateIndex];
    h.samplesPerSec = Mpeg1Rates[rateIndex] / (mpeg1 ? 1 : version == 2 ? 2 : 4);
    h.channels = (b[3] >> 6) == 3 ? 1 : 2;
    h.samplesPerFrame = mpeg1 ? 1152 : 576;
    return h;
}
