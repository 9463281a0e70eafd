#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <optional>

// The wave format record as it stands in a wave file's format chunk, in the format block of
// the scheduler and in the parameter file: 18 packed little-endian bytes, then cbSize extra
// bytes. This is the one place that knows its layout.
struct WaveFormatRecord {
    // The record without its extra bytes.
    static constexpr int Size = 18;
    static constexpr quint16 TagPcm = 1;
    static constexpr quint16 TagMpegLayer3 = 85;

    quint16 wFormatTag = 0;
    quint16 nChannels = 0;
    quint32 nSamplesPerSec = 0;
    quint32 nAvgBytesPerSec = 0;
    quint16 nBlockAlign = 0;
    quint16 nBitsPerSample = 0;
    quint16 cbSize = 0;
    // The extra bytes that follow the 18.
    QByteArray extra;

    // The 18 bytes and exactly cbSize extra bytes: extra is cut to cbSize or filled up
    // with zeros.
    QByteArray Encode() const;
    // The record at the start of bytes with the extra bytes that follow it, up to cbSize
    // (fewer where bytes ends sooner); nothing when bytes is shorter than the 18.
    static std::optional<WaveFormatRecord> Decode(const QByteArray& bytes);
    // The record of an MPEG Layer-3 stream of this kind, with its 12 extra bytes.
    static WaveFormatRecord MpegLayer3(quint16 channels, quint32 samplesPerSec, int kbitsPerSec);

    bool operator==(const WaveFormatRecord&) const = default;
};
