#pragma once

// Sources for the encoder library's test and benchmark: raw 16-bit PCM wrapped the way the
// recording task writes a `.WAV.TMP` (task/WaveFile.cpp): RIFF WAVE with fmt (18 bytes),
// fact, LIST INFO (ISFT, INAM, ICRD) and data. Header only, plain C++.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace TaskWaveSource {

inline void PutLe16(std::string& out, uint16_t value)
{
    out += char(value & 0xff);
    out += char(value >> 8);
}

inline void PutLe32(std::string& out, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        out += char((value >> (8 * i)) & 0xff);
}

inline void PutText(std::string& out, const char* id, const std::string& text)
{
    const uint32_t size = uint32_t(text.size() + 1);
    out.append(id, 4);
    PutLe32(out, size);
    out += text;
    out += '\0';
    if (size & 1)
        out += '\0';
}

// The 18-byte PCM record.
inline std::string PcmRecord(uint16_t channels, uint32_t rate, uint16_t bits = 16)
{
    std::string r;
    const uint16_t align = uint16_t(channels * bits / 8);
    PutLe16(r, 1);
    PutLe16(r, channels);
    PutLe32(r, rate);
    PutLe32(r, align * rate);
    PutLe16(r, align);
    PutLe16(r, bits);
    PutLe16(r, 0);
    return r;
}

// The 30-byte MP3 record as src/formats/CodecCatalogue.cpp (Mp3Record) writes it.
inline std::string Mp3Record(uint16_t channels, uint32_t rate, int kbps)
{
    std::string r;
    PutLe16(r, 85);
    PutLe16(r, channels);
    PutLe32(r, rate);
    PutLe32(r, uint32_t(kbps) * 1000 / 8);
    PutLe16(r, 1);
    PutLe16(r, 0);
    PutLe16(r, 12);
    const uint32_t samplesPerFrame = rate >= 32000 ? 1152 : 576;
    PutLe16(r, 1);
    PutLe32(r, 2);
    PutLe16(r, uint16_t(samplesPerFrame / 8 * uint32_t(kbps) * 1000 / rate));
    PutLe16(r, 1);
    PutLe16(r, 1393);
    return r;
}

// Writes a wave file as the task would, with the format record given and `frames` in its
// fact chunk; `staleExtra` bytes are added to the data size and RIFF size of the header, as
// a killed task may leave them. False on a write failure.
inline bool WriteWave(const std::string& path, const std::string& record, uint32_t frames,
                      const std::string& data, uint32_t staleExtra = 0)
{
    std::string h = "RIFF";
    PutLe32(h, 0);
    h += "WAVE";
    h += "fmt ";
    PutLe32(h, uint32_t(record.size()));
    h += record;
    h += "fact";
    PutLe32(h, 4);
    PutLe32(h, frames);
    std::string info = "INFO";
    PutText(info, "ISFT", "Nightreel 2000 1.0");
    PutText(info, "INAM", "Test source");
    PutText(info, "ICRD", "06/01/2026 12:00:00");
    h += "LIST";
    PutLe32(h, uint32_t(info.size()));
    h += info;
    h += "data";
    PutLe32(h, uint32_t(data.size()) + staleExtra);
    const uint32_t riff = uint32_t(h.size() - 8 + data.size() + staleExtra);
    for (int i = 0; i < 4; ++i)
        h[4 + i] = char((riff >> (8 * i)) & 0xff);
    std::FILE* f = std::fopen(path.c_str(), "wb");
    if (!f)
        return false;
    const bool ok = std::fwrite(h.data(), 1, h.size(), f) == h.size() &&
                    std::fwrite(data.data(), 1, data.size(), f) == data.size();
    return std::fclose(f) == 0 && ok;
}

// `pcm` (raw little-endian samples of `bits` bits) as the task writes it.
inline bool Write(const std::string& path, uint16_t channels, uint32_t rate, const std::string& pcm,
                  uint32_t staleExtra = 0, uint16_t bits = 16)
{
    return WriteWave(path, PcmRecord(channels, rate, bits),
                     uint32_t(pcm.size() / (channels * bits / 8)), pcm, staleExtra);
}

// Reads a whole file; empty on failure.
inline std::string ReadAll(const std::string& path)
{
    std::string bytes;
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (!f)
        return bytes;
    char block[65536];
    size_t n;
    while ((n = std::fread(block, 1, sizeof block, f)) > 0)
        bytes.append(block, n);
    std::fclose(f);
    return bytes;
}

} // namespace TaskWaveSource
