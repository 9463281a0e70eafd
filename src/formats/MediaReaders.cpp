#include "formats/MediaReaders.h"

#include "common/AutomationDate.h"
#include "common/TextHelpers.h"
#include "formats/CodecCatalogue.h"
#include "formats/ModuleFileTime.h"
#include "formats/Mp3Info.h"
#include "formats/WaveFileChunks.h"
#include "formats/clsRecordingFormat.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <cmath>
#include <cstring>

namespace {

using ReadChunks = bool (*)(QIODevice&, int, WaveFileChunks&);

bool ReadWave(const QString& path, ReadChunks read, WaveFileChunks& chunks)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && read(file, CodecCatalogue::MaxFormatSize(), chunks);
}

// The format chunk as the block of a new format object, and the object's short text.
QString FormatText(const WaveFileChunks& chunks, clsRecordingFormat& format)
{
    std::memcpy(format.mwfx(), chunks.fmt.constData(),
                size_t(std::min<qsizetype>(chunks.fmt.size(), format.MwfxSize())));
    format.CalcRemainingVarsFromMwfx();
    return format.TextCompressionMethodShort;
}

void StartRow(const QString& path, RecordingRow& row)
{
    row.File = path;
    row.EndTime = ModuleFileTime::FileDateTime(path);
    row.Size = ModuleFileTime::GetFileSizeMbytes(path);
}

// What every wave reader starts with: the chunks read its way, and a fresh row with the
// format's text and the file's name, time and size. False when the reader doesn't take it.
bool StartWaveRow(const QString& path, ReadChunks read, WaveFileChunks& chunks,
                  clsRecordingFormat& format, RecordingRow& row)
{
    if (!ReadWave(path, read, chunks))
        return false;
    row = RecordingRow();
    row.CompressionMethod = FormatText(chunks, format);
    StartRow(path, row);
    return true;
}

// Writes the row unless the file is listed. A write that fails is undone, and the failure
// goes on to the trap of the command that added the file.
void AddRow(AppDatabase& database, const RecordingRow& row)
{
    if (IsFileInRecordingsList(database, row.File))
        return;
    Recordset& rs = database.DataRecordings.recordset();
    auto undo = qScopeGuard([&rs] { rs.CancelUpdate(); });
    rs.SetBookmark(WriteRecordingRow(database, row));
    undo.dismiss();
}

} // namespace

namespace MediaReaders {

bool ReadNightreelWave(const QString& path, RecordingRow& row)
{
    WaveFileChunks chunks;
    clsRecordingFormat format;
    if (!StartWaveRow(path, WaveFileChunk::ReadNightreelWave, chunks, format, row))
        return false;
    double created = 0.0;
    if (!Options::ParseDateText(chunks.created, created))
        return false;
    row.Title = chunks.title;
    const qint32 seconds = format.CalcSecondsFromMbytes(row.Size);
    row.StartTime = AutomationDate::AddSeconds(row.EndTime, -seconds);

    // A file stamped before a change of daylight saving time lies an hour off the start
    // that the file itself records; both times move by that hour. The recorded start is
    // not used otherwise.
    const qint64 difference = AutomationDate::MinutesBetween(row.StartTime, created);
    double shift = 0.0;
    if (difference >= 58 && difference <= 62)
        shift = 3600;
    else if (difference >= -62 && difference <= -58)
        shift = -3600;
    row.StartTime = AutomationDate::AddSeconds(row.StartTime, shift);
    row.EndTime = AutomationDate::AddSeconds(row.EndTime, shift);
    return true;
}

bool ReadNightreelCompressedWave(const QString& path, RecordingRow& row)
{
    WaveFileChunks chunks;
    clsRecordingFormat format;
    if (!StartWaveRow(path, WaveFileChunk::ReadNightreelCompressedWave, chunks, format, row))
        return false;
    row.Title = chunks.title;
    qint64 seconds = chunks.sampleFrames;
    if (chunks.factBytesRead > 0) {
        if (format.nSamplesPerSec() == 0)
            return false;
        seconds = Text::RoundHalfEven(double(chunks.sampleFrames) / format.nSamplesPerSec());
    }
    row.StartTime = AutomationDate::AddSeconds(row.EndTime, -double(seconds));
    return true;
}

bool ReadOtherWave(const QString& path, RecordingRow& row)
{
    WaveFileChunks chunks;
    clsRecordingFormat format;
    if (!StartWaveRow(path, WaveFileChunk::ReadOtherWave, chunks, format, row))
        return false;
    const float perSecond = format.CalcStorageMbytesSng(1);
    if (!(perSecond > 0.0f))
        return false;
    const double seconds = std::nearbyint(double(row.Size) / double(perSecond));
    row.StartTime = AutomationDate::AddSeconds(row.EndTime, -seconds);
    row.Title = GetFileNameFromPath(path);
    return true;
}

bool ReadMp3(const QString& path, RecordingRow& row)
{
    // Without the file there is no date to work from.
    if (!QFileInfo(path).isFile())
        return false;
    Mp3Info info;
    Mp3File::GetMp3Info(path, true, true, info);
    row = RecordingRow();
    row.Title = info.Title.isEmpty() ? GetFileNameFromPath(path) : info.Title;
    StartRow(path, row);
    row.StartTime = AutomationDate::AddSeconds(row.EndTime, -double(info.Duration));
    row.CompressionMethod = QCoreApplication::translate("MediaReaders", "MPEG Layer 3  ") +
                            QString::number(info.Bitrate) +
                            QCoreApplication::translate("MediaReaders", " kBits/s, ") +
                            QString::number(info.Frequency) +
                            QCoreApplication::translate("MediaReaders", " Hz, ") + info.Mode;
    return true;
}

bool ReadRecordingRow(const QString& path, RecordingRow& row)
{
    const QString suffix = QFileInfo(Text::Trim(path)).suffix().toUpper();
    if (suffix == QLatin1String("WAV"))
        return ReadNightreelWave(path, row) || ReadNightreelCompressedWave(path, row) ||
               ReadOtherWave(path, row);
    if (suffix == QLatin1String("MP3"))
        return ReadMp3(path, row);
    return false;
}

} // namespace MediaReaders

void AddNightreelWaveToList(AppDatabase& database, const QString& path, bool& found)
{
    RecordingRow row;
    found = MediaReaders::ReadNightreelWave(path, row);
    if (found)
        AddRow(database, row);
}

void AddNightreelCompressedWaveToList(AppDatabase& database, const QString& path, bool& found)
{
    RecordingRow row;
    found = MediaReaders::ReadNightreelCompressedWave(path, row);
    if (found)
        AddRow(database, row);
}

void AddOtherWaveToList(AppDatabase& database, const QString& path)
{
    RecordingRow row;
    if (MediaReaders::ReadOtherWave(path, row))
        AddRow(database, row);
}

void AddMp3ToList(AppDatabase& database, const QString& path)
{
    RecordingRow row;
    if (MediaReaders::ReadMp3(path, row))
        AddRow(database, row);
}

bool IsFileInRecordingsList(AppDatabase& database, const QString& path)
{
    const QString criteria = Text::SqlQuoted(Text::Trim(path).toUpper());
    Recordset rs = Recordset::Open(
        database.db,
        QStringLiteral("SELECT * FROM [Recordings] WHERE TRIM(UCASE([File])) = ") + criteria);
    return rs.RecordCount() >= 1;
}

QString GetFileNameFromPath(const QString& path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}
