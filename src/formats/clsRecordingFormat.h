#pragma once

#include "formats/CodecCatalogue.h"
#include "taskcontract/WaveFormatRecord.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QtGlobal>
#include <array>

class MessageBoxPresenter;

// The one way the system holds a recording format: the wave format record (18 bytes and
// its extra bytes) in a block that can be handed as it is to the recording task, the
// encoder and the format chooser, a decoded copy of the same record, the two MP3 flags
// that travel with it, and the format's texts. A plain value: it copies and assigns.
//
// The block and the decoded record always agree: every operation that changes one
// rewrites the other. Whoever writes the block directly through mwfx() (the chooser, a
// wave file's format chunk) calls CalcRemainingVarsFromMwfx() afterwards.
class clsRecordingFormat {
public:
    static constexpr quint16 WAVE_FORMAT_PCM = WaveFormatRecord::TagPcm;
    static constexpr quint16 WAVE_FORMAT_MPEGLAYER3 = WaveFormatRecord::TagMpegLayer3;
    // Room for extra bytes: the block holds the largest format of the codec catalogue.
    static constexpr qint16 nMaxExtraBytes =
        CodecCatalogue::MaxFormatSize() - WaveFormatRecord::Size;

    // The format's text with the MP3 note, and without it.
    QString TextCompressionMethod;
    QString TextCompressionMethodShort;
    // Set by the format dialog when the user confirmed with OK.
    qint16 FormatChanged = 0;
    // Save as a .MP3 file (true) or as a .WAV file that holds MP3 data (false).
    bool SaveMP3FileExtension = false;
    // Record PCM and convert afterwards (true) or encode in real time (false).
    bool ConvertToMP3 = false;

    quint16 cbSize() const { return m_wfx.cbSize; }
    quint16 wFormatTag() const { return m_wfx.wFormatTag; }
    quint16 nChannels() const { return m_wfx.nChannels; }
    quint32 nSamplesPerSec() const { return m_wfx.nSamplesPerSec; }
    quint32 nAvgBytesPerSec() const { return m_wfx.nAvgBytesPerSec; }
    quint16 nBlockAlign() const { return m_wfx.nBlockAlign; }
    quint16 nBitsPerSample() const { return m_wfx.nBitsPerSample; }
    // The decoded record; its extra holds the cbSize extra bytes.
    const WaveFormatRecord& WaveFormat() const { return m_wfx; }
    // The block: the whole record with its extra bytes, MwfxSize() bytes long.
    quint8* mwfx() { return m_block.data(); }
    int MwfxSize() const { return int(m_block.size()); }
    // The record as it stands in the block: 18 bytes and cbSize extra bytes.
    QByteArray Record() const;

    // Takes the record; one with more extra bytes than there is room for is refused with an
    // error, and the format stays as it was.
    void SetWaveFormatEx(const WaveFormatRecord& record);
    // 11025 Hz, 8 bits, mono PCM; cbSize and the extra bytes stay as they were.
    void SetToPcmPhoneQuality();
    // PCM with the block align and byte rate that follow; cbSize stays as it was.
    void SetToPcm(quint16 nChannels, quint32 nSamplesPerSec, quint16 nBitsPerSample);
    // Takes the other's record, texts and flags, but not FormatChanged.
    void CopyFrom(const clsRecordingFormat& other);
    void CalcRemainingVarsFromMwfx();

    // "ERROR" where the codec catalogue knows no text.
    QString GetFormatTagDetailsString() const;
    QString GetFormatDetailsString() const;
    void CalculateTextCompressionMethodString();

    // The extra bytes as the database stores them: cbSize bytes and a trailing zero.
    QByteArray StoredExtraBytes() const;

    // Mbytes (1024 times 1024 bytes) needed for so many seconds, in single precision.
    float CalcStorageMbytesSng(qint32 Seconds) const;
    // Seconds that so many Mbytes hold; 0 for a format without a byte rate. A figure past
    // the 32-bit range is an error.
    qint32 CalcSecondsFromMbytes(float Mbytes) const;

private:
    void WriteBlock();
    void DecodeBlock();

    std::array<quint8, CodecCatalogue::MaxFormatSize()> m_block{};
    // Holds no more than nMaxExtraBytes extra bytes, exactly cbSize of them.
    WaveFormatRecord m_wfx;

    Q_DECLARE_TR_FUNCTIONS(clsRecordingFormat)
};

// The rules that differ for Windows 95 and 98 take their "any other Windows" branch here.
constexpr bool RunsOnWindows9x = false;

// True when a recording of so many seconds in this format must not be made: it, or the
// temporary PCM file of a conversion, would pass 2000 Mbytes. Says why in a message box.
bool CheckFor2GbLimit(MessageBoxPresenter& messageBox, const clsRecordingFormat& format,
                      qint32 Seconds);
