#include "formats/FormatStore.h"

#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "formats/clsProgramFlags.h"
#include "formats/clsRecordingFormat.h"
#include "store/DataControl.h"
#include "store/Options.h"
#include "store/Recordset.h"
#include "store/RegKeys.h"

namespace {

const QString kSection = QStringLiteral("Settings");

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
    return NotNull(rs.Value(field));
}

// The record in the seven columns named prefix and the field's name, with the extra bytes
// of extraColumn filled up with zeros to cbSize. A NULL column fails.
WaveFormatRecord ReadRecordColumns(const Recordset& rs, const QString& prefix,
                                   const QString& extraColumn)
{
    WaveFormatRecord r;
    r.cbSize = quint16(RequireValue(rs, prefix + QStringLiteral("cbSize")).toInt());
    r.wFormatTag = quint16(RequireValue(rs, prefix + QStringLiteral("wFormatTag")).toInt());
    r.nChannels = quint16(RequireValue(rs, prefix + QStringLiteral("nChannels")).toInt());
    r.nSamplesPerSec =
        quint32(RequireValue(rs, prefix + QStringLiteral("nSamplesPerSec")).toLongLong());
    r.nAvgBytesPerSec =
        quint32(RequireValue(rs, prefix + QStringLiteral("nAvgBytesPerSec")).toLongLong());
    r.nBlockAlign = quint16(RequireValue(rs, prefix + QStringLiteral("nBlockAlign")).toInt());
    r.nBitsPerSample = quint16(RequireValue(rs, prefix + QStringLiteral("nBitsPerSample")).toInt());
    // Only as many extra bytes as a format can hold are worth reading.
    if (r.cbSize <= clsRecordingFormat::nMaxExtraBytes)
        r.extra = rs.GetChunk(extraColumn, 0, r.cbSize).leftJustified(r.cbSize, '\0');
    return r;
}

void WriteRecordColumns(const WaveFormatRecord& r, const QString& prefix, Recordset& rs)
{
    rs.SetValue(prefix + QStringLiteral("wFormatTag"), r.wFormatTag);
    rs.SetValue(prefix + QStringLiteral("nChannels"), r.nChannels);
    rs.SetValue(prefix + QStringLiteral("nSamplesPerSec"), r.nSamplesPerSec);
    rs.SetValue(prefix + QStringLiteral("nAvgBytesPerSec"), r.nAvgBytesPerSec);
    rs.SetValue(prefix + QStringLiteral("nBlockAlign"), r.nBlockAlign);
    rs.SetValue(prefix + QStringLiteral("nBitsPerSample"), r.nBitsPerSample);
    rs.SetValue(prefix + QStringLiteral("cbSize"), r.cbSize);
}

} // namespace

void ReadFormat(clsRecordingFormat& format, const Recordset& rs)
{
    InRoutine("ReadFormat", [&] {
        format.SetWaveFormatEx(
            ReadRecordColumns(rs, QStringLiteral("wfx_"), QStringLiteral("wfxExtra")));
        // The flags come after the texts were made: whoever shows the text recalculates it.
        clsProgramFlags flags;
        if (!rs.IsNull(QStringLiteral("Flags")))
            flags.Flags = rs.Value(QStringLiteral("Flags")).toInt();
        format.ConvertToMP3 = flags.ConvertToMP3();
        format.SaveMP3FileExtension = flags.SaveMP3FileExtension();
    });
}

bool FormatReadable(const Recordset& rs)
{
    for (const char* field : {"cbSize", "wFormatTag", "nChannels", "nSamplesPerSec",
                              "nAvgBytesPerSec", "nBlockAlign", "nBitsPerSample"})
        if (rs.IsNull(QStringLiteral("wfx_") + QLatin1String(field)))
            return false;
    return quint16(rs.Value(QStringLiteral("wfx_cbSize")).toInt()) <=
           clsRecordingFormat::nMaxExtraBytes;
}

void WriteFormat(const clsRecordingFormat& format, Recordset& rs)
{
    WriteRecordColumns(format.WaveFormat(), QStringLiteral("wfx_"), rs);
    clsProgramFlags flags;
    flags.SetConvertToMP3(format.ConvertToMP3);
    flags.SetSaveMP3FileExtension(format.SaveMP3FileExtension);
    rs.SetValue(QStringLiteral("Flags"), flags.Flags);
    // The whole column is replaced, so an edited row does not keep its old bytes.
    rs.SetValue(QStringLiteral("wfxExtra"), format.StoredExtraBytes());
}

DefaultFormatStore::DefaultFormatStore(RegKeys& registry, Options& options, DataControl& dataInfo)
    : m_registry(registry)
    , m_options(options)
    , m_dataInfo(dataInfo)
{
}

void DefaultFormatStore::SaveDefaultFormatInfo(clsRecordingFormat& format)
{
    InRoutine("SaveDefaultFormatInfo", [&] {
        if (format.wFormatTag() != clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3) {
            format.SaveMP3FileExtension = true;
            format.ConvertToMP3 = RunsOnWindows9x;
        }
        m_registry.SaveSetting(kSection, QStringLiteral("SaveMP3FileExtension"),
                               BoolText(format.SaveMP3FileExtension));
        m_registry.SaveSetting(kSection, QStringLiteral("ConvertToMP3"),
                               BoolText(format.ConvertToMP3));
        m_options.SaveMP3FileExtension = format.SaveMP3FileExtension;
        m_options.ConvertToMP3 = format.ConvertToMP3;

        Recordset& rs = m_dataInfo.recordset();
        while (!rs.IsEOF() && rs.RecordCount() >= 1) {
            rs.MoveFirst();
            rs.Delete();
        }
        rs.AddNew();
        rs.SetValue(QStringLiteral("VersionMajor"), NIGHTREEL_VERSION_MAJOR);
        rs.SetValue(QStringLiteral("VersionMinor"), NIGHTREEL_VERSION_MINOR);
        rs.SetValue(QStringLiteral("VersionRev"), NIGHTREEL_VERSION_REV);
        WriteRecordColumns(format.WaveFormat(), QStringLiteral("wfxdflt_"), rs);
        rs.AppendChunk(QStringLiteral("wfxdfltExtra"), format.StoredExtraBytes());
        rs.Update();
    });
}

void DefaultFormatStore::ReadDefaultFormatInfo(clsRecordingFormat& format)
{
    format.SaveMP3FileExtension = ParseBoolSetting(m_registry.GetSetting(
        kSection, QStringLiteral("SaveMP3FileExtension"), QStringLiteral("True")));
    format.ConvertToMP3 = ParseBoolSetting(
        m_registry.GetSetting(kSection, QStringLiteral("ConvertToMP3"), BoolText(RunsOnWindows9x)));

    Recordset& rs = m_dataInfo.recordset();
    rs.MoveFirst();
    const WaveFormatRecord stored =
        ReadRecordColumns(rs, QStringLiteral("wfxdflt_"), QStringLiteral("wfxdfltExtra"));
    const int cb = rs.Value(QStringLiteral("wfxdflt_cbSize")).toInt();
    // A row made for compression drivers with larger formats than this machine has: the
    // format can't hold its extra bytes, so it keeps the cbSize it had.
    if (cb < 0 || cb > clsRecordingFormat::nMaxExtraBytes)
        throw RuntimeError(ErrorNumber::OperationNotSupported,
                           QStringLiteral("The default format has more extra bytes than a "
                                          "format can hold: %1")
                               .arg(cb));
    format.SetWaveFormatEx(stored);
    format.CalculateTextCompressionMethodString();
}

void DefaultFormatStore::GetWfxDefault(clsRecordingFormat& WfxDefault)
{
    try {
        ReadDefaultFormatInfo(WfxDefault);
        return;
    } catch (const std::exception&) {
        // Not an error to report: a missing or unreadable row has phone quality as its rule.
    }
    WfxDefault.SetToPcmPhoneQuality();
    SaveDefaultFormatInfo(WfxDefault);
}
