#include "formats/clsRecordingFormat.h"

#include "common/MessageBox.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"

#include <QCoreApplication>
#include <cmath>
#include <cstring>

QByteArray clsRecordingFormat::Record() const
{
    return QByteArray(reinterpret_cast<const char*>(m_block.data()),
                      WaveFormatRecord::Size + m_wfx.cbSize);
}

// Record to block. The record never holds more extra bytes than the block has room for.
void clsRecordingFormat::WriteBlock()
{
    const QByteArray record = m_wfx.Encode();
    Q_ASSERT(size_t(record.size()) <= m_block.size());
    std::memcpy(m_block.data(), record.constData(), size_t(record.size()));
}

// Block to record. A cbSize beyond the block's room (a foreign wave file's format chunk)
// is cut to that room and written back, so that the two copies still agree.
void clsRecordingFormat::DecodeBlock()
{
    m_wfx = WaveFormatRecord::Decode(QByteArray(reinterpret_cast<const char*>(m_block.data()),
                                                qsizetype(m_block.size())))
                .value();
    m_wfx.cbSize = std::min<quint16>(m_wfx.cbSize, nMaxExtraBytes);
    m_wfx.extra.truncate(m_wfx.cbSize);
    WriteBlock();
}

void clsRecordingFormat::SetWaveFormatEx(const WaveFormatRecord& record)
{
    InRoutine("SetWaveFormatEx", [&] {
        if (record.cbSize > quint16(nMaxExtraBytes))
            throw RuntimeError(9, QStringLiteral("Subscript out of range"));
        m_wfx = record;
        m_wfx.extra = record.extra.left(record.cbSize).leftJustified(record.cbSize, '\0');
        WriteBlock();
        CalculateTextCompressionMethodString();
    });
}

void clsRecordingFormat::SetToPcmPhoneQuality()
{
    m_wfx.wFormatTag = WAVE_FORMAT_PCM;
    m_wfx.nChannels = 1;
    m_wfx.nSamplesPerSec = 11025;
    m_wfx.nAvgBytesPerSec = 11025;
    m_wfx.nBlockAlign = 1;
    m_wfx.nBitsPerSample = 8;
    WriteBlock();
    CalculateTextCompressionMethodString();
}

void clsRecordingFormat::SetToPcm(quint16 nChannels, quint32 nSamplesPerSec, quint16 nBitsPerSample)
{
    m_wfx.wFormatTag = WAVE_FORMAT_PCM;
    m_wfx.nChannels = nChannels;
    m_wfx.nSamplesPerSec = nSamplesPerSec;
    m_wfx.nBitsPerSample = nBitsPerSample;
    m_wfx.nBlockAlign = quint16(Text::RoundHalfEven(double(nChannels) * nBitsPerSample / 8.0));
    m_wfx.nAvgBytesPerSec = quint32(m_wfx.nBlockAlign) * nSamplesPerSec;
    WriteBlock();
    CalculateTextCompressionMethodString();
}

void clsRecordingFormat::CopyFrom(const clsRecordingFormat& other)
{
    const qint16 confirmed = FormatChanged;
    *this = other;
    FormatChanged = confirmed;
}

void clsRecordingFormat::CalcRemainingVarsFromMwfx()
{
    DecodeBlock();
    CalculateTextCompressionMethodString();
}

QString clsRecordingFormat::GetFormatTagDetailsString() const
{
    QString text;
    if (!CodecCatalogue::FormatTagName(m_wfx.wFormatTag, text))
        text = QStringLiteral("ERROR");
    return text;
}

QString clsRecordingFormat::GetFormatDetailsString() const
{
    QString text;
    if (!CodecCatalogue::FormatDescription(Record(), text))
        text = QStringLiteral("ERROR");
    return text;
}

void clsRecordingFormat::CalculateTextCompressionMethodString()
{
    TextCompressionMethod = GetFormatTagDetailsString() + u' ' + GetFormatDetailsString();
    TextCompressionMethodShort = TextCompressionMethod;
    if (m_wfx.wFormatTag == WAVE_FORMAT_MPEGLAYER3) {
        TextCompressionMethod += QStringLiteral("   (");
        TextCompressionMethod += ConvertToMP3 ? tr("Record in PCM format and convert to MP3; ")
                                              : tr("Record MP3 in real-time; ");
        TextCompressionMethod +=
            SaveMP3FileExtension ? tr("Save as .MP3 file") : tr("Save as .WAV file");
        TextCompressionMethod += QStringLiteral(" )");
    }
}

QByteArray clsRecordingFormat::StoredExtraBytes() const
{
    return m_wfx.extra + '\0';
}

float clsRecordingFormat::CalcStorageMbytesSng(qint32 Seconds) const
{
    const float perSecond = float(m_wfx.nAvgBytesPerSec) / 1024.0f / 1024.0f;
    return float(double(perSecond) * double(Seconds));
}

qint32 clsRecordingFormat::CalcSecondsFromMbytes(float Mbytes) const
{
    return InRoutine("CalcSecondsFromMbytes", [&]() -> qint32 {
        if (m_wfx.nAvgBytesPerSec == 0)
            return 0;
        const float exact = Mbytes * 1024.0f * 1024.0f / float(m_wfx.nAvgBytesPerSec);
        const float rounded = std::nearbyint(exact);
        if (!(rounded >= -2147483648.0f && rounded < 2147483648.0f))
            throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
        return qint32(rounded);
    });
}

bool CheckFor2GbLimit(MessageBoxPresenter& messageBox, const clsRecordingFormat& format,
                      qint32 Seconds)
{
    const QString title = QStringLiteral("Recording Size Exceeded");
    if (format.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 && format.ConvertToMP3) {
        clsRecordingFormat pcm;
        pcm.SetToPcm(format.nChannels(), format.nSamplesPerSec(), 16);
        if (pcm.CalcStorageMbytesSng(Seconds) > 2000.0f) {
            messageBox.Show(
                title,
                QCoreApplication::translate("clsRecordingFormat",
                                            "The temporary PCM file required for conversion "
                                            "exceeds 2 Gigabytes, which is the maximum size "
                                            "supported.  Please shorten the recording time or "
                                            "the recording format frequency."),
                MsgIcon::Exclamation, MsgButtons::Ok);
            return true;
        }
    }
    if (format.CalcStorageMbytesSng(Seconds) > 2000.0f) {
        messageBox.Show(
            title,
            QCoreApplication::translate("clsRecordingFormat",
                                        "The recording exceeds 2 Gigabytes, which is the "
                                        "maximum size supported.  Please shorten the recording "
                                        "time or the recording format frequency."),
            MsgIcon::Exclamation, MsgButtons::Ok);
        return true;
    }
    return false;
}
