#include "formats/clsRecordingFormat.h"

#include "common/MessageBox.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "diagnostics/Trap.h"
#include "formats/CodecCatalogue.h"
#include "scheduling/clsProgramFlags.h"
#include "shell/AppContext.h"
#include "store/Recordset.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int RecordSize = WaveFormatRecord::Size;

QString BoolText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

// A stored flag as the run time converts text to a Boolean: "True", "False" or a number.
bool ParseBoolSetting(const QString& text)
{
    const QString trimmed = Text::Trim(text);
    if (trimmed.compare(QStringLiteral("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(QStringLiteral("False"), Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const double number = trimmed.toDouble(&ok);
    if (!ok)
        throw RuntimeError(13, QStringLiteral("Type mismatch"));
    return number != 0.0;
}

QVariant RequireValue(const Recordset& rs, const QString& field)
{
    const QVariant value = rs.Value(field);
    if (value.isNull())
        throw RuntimeError(94, QStringLiteral("Invalid use of Null"));
    return value;
}

} // namespace

clsRecordingFormat::clsRecordingFormat(AppContext& ctx)
    : m_ctx(ctx)
{
    Trap(m_ctx.log, "Wave Format Class Initialize",
         [&] { Initialize(CodecCatalogue::MaxFormatSize()); });
}

clsRecordingFormat::~clsRecordingFormat() = default;

void clsRecordingFormat::Initialize(qint32 maxSize)
{
    if (maxSize < RecordSize)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Format block too small"));
    m_block.assign(size_t(maxSize), 0);
    nMaxExtraBytes = qint16(std::min<qint32>(maxSize - RecordSize, 256));
}

QByteArray clsRecordingFormat::Record() const
{
    return QByteArray(reinterpret_cast<const char*>(m_block.data()), RecordSize + m_wfx.cbSize);
}

void clsRecordingFormat::FitExtraBytes()
{
    m_wfx.extra = m_wfx.extra.left(m_wfx.cbSize).leftJustified(m_wfx.cbSize, '\0');
}

// Fields to block: the 18 bytes and cbSize extra bytes.
void clsRecordingFormat::WriteBlock()
{
    const QByteArray record = m_wfx.Encode();
    if (m_block.size() < size_t(record.size()))
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Format block too small"));
    std::memcpy(m_block.data(), record.constData(), size_t(record.size()));
}

// Block to fields. A cbSize beyond the block's room (a foreign wave file's format chunk)
// is cut to that room and written back, so that the two copies still agree.
void clsRecordingFormat::DecodeBlock()
{
    const std::optional<WaveFormatRecord> decoded = WaveFormatRecord::Decode(
        QByteArray(reinterpret_cast<const char*>(m_block.data()), qsizetype(m_block.size())));
    if (!decoded)
        throw RuntimeError(ErrorNumber::ObjectRequired, QStringLiteral("Object required"));
    m_wfx = *decoded;
    m_wfx.cbSize = std::min<quint16>(m_wfx.cbSize, quint16(nMaxExtraBytes));
    FitExtraBytes();
    WriteBlock();
}

void clsRecordingFormat::SetWaveFormatEx(quint16 wFormatTag, quint16 nChannels,
                                         quint32 nSamplesPerSec, quint32 nAvgBytesPerSec,
                                         quint16 nBlockAlign, quint16 nBitsPerSample,
                                         quint16 cbSize, const quint8* extra)
{
    Trap(m_ctx.log, "SetWaveFormatEx", [&] {
        if (cbSize > quint16(nMaxExtraBytes))
            throw RuntimeError(9, QStringLiteral("Subscript out of range"));
        m_wfx.wFormatTag = wFormatTag;
        m_wfx.nChannels = nChannels;
        m_wfx.nSamplesPerSec = nSamplesPerSec;
        m_wfx.nAvgBytesPerSec = nAvgBytesPerSec;
        m_wfx.nBlockAlign = nBlockAlign;
        m_wfx.nBitsPerSample = nBitsPerSample;
        m_wfx.cbSize = cbSize;
        if (cbSize > 0 && extra)
            m_wfx.extra = QByteArray(reinterpret_cast<const char*>(extra), cbSize);
        FitExtraBytes();
        WriteBlock();
        CalculateTextCompressionMethodString();
    });
}

void clsRecordingFormat::SetToPcmPhoneQuality()
{
    Trap(m_ctx.log, "SetToPcmPhoneQuality", [&] {
        m_wfx.wFormatTag = WAVE_FORMAT_PCM;
        m_wfx.nChannels = 1;
        m_wfx.nSamplesPerSec = 11025;
        m_wfx.nAvgBytesPerSec = 11025;
        m_wfx.nBlockAlign = 1;
        m_wfx.nBitsPerSample = 8;
        WriteBlock();
        CalculateTextCompressionMethodString();
    });
}

void clsRecordingFormat::SetToPcm(quint16 nChannels, quint32 nSamplesPerSec, quint16 nBitsPerSample)
{
    Trap(m_ctx.log, "SetToPcm", [&] {
        m_wfx.wFormatTag = WAVE_FORMAT_PCM;
        m_wfx.nChannels = nChannels;
        m_wfx.nSamplesPerSec = nSamplesPerSec;
        m_wfx.nBitsPerSample = nBitsPerSample;
        m_wfx.nBlockAlign = quint16(Text::RoundHalfEven(double(nChannels) * nBitsPerSample / 8.0));
        m_wfx.nAvgBytesPerSec = quint32(m_wfx.nBlockAlign) * nSamplesPerSec;
        WriteBlock();
        CalculateTextCompressionMethodString();
    });
}

void clsRecordingFormat::CopyFrom(const clsRecordingFormat& other)
{
    Trap(m_ctx.log, "CopyFrom", [&] {
        const size_t count = std::min(m_block.size(), size_t(RecordSize + other.m_wfx.cbSize));
        std::memcpy(m_block.data(), other.m_block.data(), count);
        DecodeBlock();
        TextCompressionMethod = other.TextCompressionMethod;
        TextCompressionMethodShort = other.TextCompressionMethodShort;
        ConvertToMP3 = other.ConvertToMP3;
        SaveMP3FileExtension = other.SaveMP3FileExtension;
    });
}

void clsRecordingFormat::CalcRemainingVarsFromMwfx()
{
    Trap(m_ctx.log, "CalcRemainingVarsFromMwfx", [&] {
        DecodeBlock();
        CalculateTextCompressionMethodString();
    });
}

QString clsRecordingFormat::GetFormatTagDetailsString()
{
    QString text;
    Trap(m_ctx.log, "GetFormatTagDetailsString", [&] {
        if (!CodecCatalogue::FormatTagName(m_wfx.wFormatTag, text))
            text = QStringLiteral("ERROR");
    });
    return text;
}

QString clsRecordingFormat::GetFormatDetailsString()
{
    QString text;
    Trap(m_ctx.log, "GetFormatDetailsString", [&] {
        if (!CodecCatalogue::FormatDescription(Record(), text))
            text = QStringLiteral("ERROR");
    });
    return text;
}

void clsRecordingFormat::CalculateTextCompressionMethodString()
{
    Trap(m_ctx.log, "CalculateTextCompressionMethodString", [&] {
        TextCompressionMethod = GetFormatTagDetailsString() + u' ' + GetFormatDetailsString();
        TextCompressionMethodShort = TextCompressionMethod;
        if (m_wfx.wFormatTag == WAVE_FORMAT_MPEGLAYER3) {
            TextCompressionMethod += QStringLiteral("   (");
            TextCompressionMethod +=
                ConvertToMP3 ? QStringLiteral("Record in PCM format and convert to MP3; ")
                             : QStringLiteral("Record MP3 in real-time; ");
            TextCompressionMethod += SaveMP3FileExtension ? QStringLiteral("Save as .MP3 file")
                                                          : QStringLiteral("Save as .WAV file");
            TextCompressionMethod += QStringLiteral(" )");
        }
    });
}

QByteArray clsRecordingFormat::StoredExtraBytes() const
{
    return m_wfx.extra + '\0';
}

void clsRecordingFormat::SaveDefaultFormatInfo()
{
    Trap(m_ctx.log, "SaveDefaultFormatInfo", [&] {
        if (m_wfx.wFormatTag != WAVE_FORMAT_MPEGLAYER3) {
            SaveMP3FileExtension = true;
            ConvertToMP3 = RunsOnWindows9x;
        }
        m_ctx.registry.SaveSetting(QStringLiteral("Settings"),
                                   QStringLiteral("SaveMP3FileExtension"),
                                   BoolText(SaveMP3FileExtension));
        m_ctx.registry.SaveSetting(QStringLiteral("Settings"), QStringLiteral("ConvertToMP3"),
                                   BoolText(ConvertToMP3));
        m_ctx.options.SaveMP3FileExtension = SaveMP3FileExtension;
        m_ctx.options.ConvertToMP3 = ConvertToMP3;

        Recordset& rs = m_ctx.database.DataInfo.recordset();
        while (!rs.IsEOF() && rs.RecordCount() >= 1) {
            rs.MoveFirst();
            rs.Delete();
        }
        rs.AddNew();
        rs.SetValue(QStringLiteral("VersionMajor"), NIGHTREEL_VERSION_MAJOR);
        rs.SetValue(QStringLiteral("VersionMinor"), NIGHTREEL_VERSION_MINOR);
        rs.SetValue(QStringLiteral("VersionRev"), NIGHTREEL_VERSION_REV);
        rs.SetValue(QStringLiteral("wfxdflt_wFormatTag"), m_wfx.wFormatTag);
        rs.SetValue(QStringLiteral("wfxdflt_nChannels"), m_wfx.nChannels);
        rs.SetValue(QStringLiteral("wfxdflt_nSamplesPerSec"), m_wfx.nSamplesPerSec);
        rs.SetValue(QStringLiteral("wfxdflt_nAvgBytesPerSec"), m_wfx.nAvgBytesPerSec);
        rs.SetValue(QStringLiteral("wfxdflt_nBlockAlign"), m_wfx.nBlockAlign);
        rs.SetValue(QStringLiteral("wfxdflt_nBitsPerSample"), m_wfx.nBitsPerSample);
        rs.SetValue(QStringLiteral("wfxdflt_cbSize"), m_wfx.cbSize);
        rs.AppendChunk(QStringLiteral("wfxdfltExtra"), StoredExtraBytes());
        rs.Update();
    });
}

qint16 clsRecordingFormat::ReadDefaultFormatInfo()
{
    try {
        SaveMP3FileExtension = ParseBoolSetting(m_ctx.registry.GetSetting(
            QStringLiteral("Settings"), QStringLiteral("SaveMP3FileExtension"),
            QStringLiteral("True")));
        ConvertToMP3 = ParseBoolSetting(m_ctx.registry.GetSetting(
            QStringLiteral("Settings"), QStringLiteral("ConvertToMP3"), BoolText(RunsOnWindows9x)));

        Recordset& rs = m_ctx.database.DataInfo.recordset();
        rs.MoveFirst();
        const quint16 tag = quint16(RequireValue(rs, QStringLiteral("wfxdflt_wFormatTag")).toInt());
        const quint16 channels =
            quint16(RequireValue(rs, QStringLiteral("wfxdflt_nChannels")).toInt());
        const quint32 rate =
            quint32(RequireValue(rs, QStringLiteral("wfxdflt_nSamplesPerSec")).toLongLong());
        const quint32 avg =
            quint32(RequireValue(rs, QStringLiteral("wfxdflt_nAvgBytesPerSec")).toLongLong());
        const quint16 align =
            quint16(RequireValue(rs, QStringLiteral("wfxdflt_nBlockAlign")).toInt());
        const quint16 bits =
            quint16(RequireValue(rs, QStringLiteral("wfxdflt_nBitsPerSample")).toInt());
        const int cb = RequireValue(rs, QStringLiteral("wfxdflt_cbSize")).toInt();

        if (cb >= 0 && cb <= nMaxExtraBytes) {
            m_wfx = {
                tag,   channels, rate,        avg,
                align, bits,     quint16(cb), rs.GetChunk(QStringLiteral("wfxdfltExtra"), 0, cb)};
            FitExtraBytes();
        } else {
            // A row made for compression drivers with larger formats than this machine
            // has. This object can't hold its extra bytes, so it keeps the cbSize it had
            // and phone quality replaces the row.
            SetToPcmPhoneQuality();
            SaveDefaultFormatInfo();
        }
        WriteBlock();
        CalculateTextCompressionMethodString();
        return 0;
    } catch (const std::exception&) {
        return 1;
    }
}

void clsRecordingFormat::ReadFormat(Recordset& rs)
{
    Trap(m_ctx.log, "ReadFormat", [&] {
        const int cb = RequireValue(rs, QStringLiteral("wfx_cbSize")).toInt();
        QByteArray extra;
        if (cb > 0) {
            extra = rs.GetChunk(QStringLiteral("wfxExtra"), 0, cb);
            extra.append(QByteArray(cb - extra.size(), '\0'));
        }
        SetWaveFormatEx(
            quint16(RequireValue(rs, QStringLiteral("wfx_wFormatTag")).toInt()),
            quint16(RequireValue(rs, QStringLiteral("wfx_nChannels")).toInt()),
            quint32(RequireValue(rs, QStringLiteral("wfx_nSamplesPerSec")).toLongLong()),
            quint32(RequireValue(rs, QStringLiteral("wfx_nAvgBytesPerSec")).toLongLong()),
            quint16(RequireValue(rs, QStringLiteral("wfx_nBlockAlign")).toInt()),
            quint16(RequireValue(rs, QStringLiteral("wfx_nBitsPerSample")).toInt()), quint16(cb),
            cb > 0 ? reinterpret_cast<const quint8*>(extra.constData()) : nullptr);
        // The flags come after the texts were made: whoever shows the text recalculates it.
        clsProgramFlags flags;
        if (!rs.IsNull(QStringLiteral("Flags")))
            flags.Flags = rs.Value(QStringLiteral("Flags")).toInt();
        ConvertToMP3 = flags.ConvertToMP3();
        SaveMP3FileExtension = flags.SaveMP3FileExtension();
    });
}

void clsRecordingFormat::WriteFormat(Recordset& rs) const
{
    rs.SetValue(QStringLiteral("wfx_wFormatTag"), m_wfx.wFormatTag);
    rs.SetValue(QStringLiteral("wfx_nChannels"), m_wfx.nChannels);
    rs.SetValue(QStringLiteral("wfx_nSamplesPerSec"), m_wfx.nSamplesPerSec);
    rs.SetValue(QStringLiteral("wfx_nAvgBytesPerSec"), m_wfx.nAvgBytesPerSec);
    rs.SetValue(QStringLiteral("wfx_nBlockAlign"), m_wfx.nBlockAlign);
    rs.SetValue(QStringLiteral("wfx_nBitsPerSample"), m_wfx.nBitsPerSample);
    rs.SetValue(QStringLiteral("wfx_cbSize"), m_wfx.cbSize);
    clsProgramFlags flags;
    flags.SetConvertToMP3(ConvertToMP3);
    flags.SetSaveMP3FileExtension(SaveMP3FileExtension);
    rs.SetValue(QStringLiteral("Flags"), flags.Flags);
    // The whole column is replaced, so an edited row does not keep its old bytes.
    rs.SetValue(QStringLiteral("wfxExtra"), StoredExtraBytes());
}

float clsRecordingFormat::CalcStorageMbytesSng(qint32 Seconds) const
{
    float mbytes = 0.0f;
    Trap(m_ctx.log, "CalcStorageMbytesSng", [&] {
        const float perSecond = float(m_wfx.nAvgBytesPerSec) / 1024.0f / 1024.0f;
        mbytes = float(double(perSecond) * double(Seconds));
    });
    return mbytes;
}

qint32 clsRecordingFormat::CalcSecondsFromMbytes(float Mbytes) const
{
    qint32 seconds = 0;
    Trap(m_ctx.log, "CalcSecondsFromMbytes", [&] {
        if (m_wfx.nAvgBytesPerSec == 0)
            return;
        const float exact = Mbytes * 1024.0f * 1024.0f / float(m_wfx.nAvgBytesPerSec);
        const float rounded = std::nearbyint(exact);
        if (!(rounded >= -2147483648.0f && rounded < 2147483648.0f))
            throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
        seconds = qint32(rounded);
    });
    return seconds;
}

void GetWfxDefault(AppContext& ctx)
{
    if (ctx.WfxDefault.ReadDefaultFormatInfo() != 0) {
        ctx.WfxDefault.SetToPcmPhoneQuality();
        ctx.WfxDefault.SaveDefaultFormatInfo();
    }
}

bool CheckFor2GbLimit(AppContext& ctx, const clsRecordingFormat& format, qint32 Seconds)
{
    const QString title = QStringLiteral("Recording Size Exceeded");
    if (format.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 && format.ConvertToMP3) {
        clsRecordingFormat pcm(ctx);
        pcm.SetToPcm(format.nChannels(), format.nSamplesPerSec(), 16);
        if (pcm.CalcStorageMbytesSng(Seconds) > 2000.0f) {
            ctx.messageBox.Show(title,
                                QStringLiteral("The temporary PCM file required for conversion "
                                               "exceeds 2 Gigabytes, which is the maximum size "
                                               "supported.  Please shorten the recording time or "
                                               "the recording format frequency."),
                                MsgIcon::Exclamation, MsgButtons::Ok);
            return true;
        }
    }
    if (format.CalcStorageMbytesSng(Seconds) > 2000.0f) {
        ctx.messageBox.Show(title,
                            QStringLiteral("The recording exceeds 2 Gigabytes, which is the "
                                           "maximum size supported.  Please shorten the recording "
                                           "time or the recording format frequency."),
                            MsgIcon::Exclamation, MsgButtons::Ok);
        return true;
    }
    return false;
}
