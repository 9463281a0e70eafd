#include "recordingslist/RecordingsList.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "formats/MediaReaders.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "taskcontract/CueSheetPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace {

const QString kWaveFiles = QStringLiteral("*.WAV");
const QString kMp3Files = QStringLiteral("*.MP3");

QString Comparable(const QString& path)
{
    return Text::Trim(path).toUpper();
}

// Names of the folder matching the pattern, in the order of the listing, any case.
QStringList FilesMatching(const QDir& dir, const QString& pattern)
{
    return dir.entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Name);
}

// German, like English, has one form for 1 and one for the other counts.
QString Plural(qint64 n, const QString& one, const QString& many)
{
    return n == 1 ? one : many.arg(n);
}

} // namespace

RecordingsList::RecordingsList(AppDatabase& database, EventLog& log, const Options& options,
                               const Clock& clock, BusyFiles busyFiles)
    : m_database(database)
    , m_log(log)
    , m_options(options)
    , m_clock(clock)
    , m_busyFiles(std::move(busyFiles))
{
}

bool RecordingsList::IsExcluded(const QString& path) const
{
    const QStringList busy = m_busyFiles();
    return std::any_of(busy.cbegin(), busy.cend(), [&path](const QString& file) {
        return !file.isEmpty() && Comparable(file) == Comparable(path);
    });
}

void RecordingsList::AddFileToRecordingsList(const QString& path)
{
    const QString file = Text::Trim(path);
    if (IsExcluded(file))
        return;
    const QString suffix = QFileInfo(file).suffix().toUpper();
    if (suffix == QLatin1String("WAV")) {
        bool found = false;
        AddNightreelWaveToList(m_database, file, found);
        if (!found)
            AddNightreelCompressedWaveToList(m_database, file, found);
        if (!found)
            AddOtherWaveToList(m_database, file);
    } else if (suffix == QLatin1String("MP3")) {
        AddMp3ToList(m_database, file);
    }
}

void RecordingsList::AddFolderToRecordingsList(const QString& folder)
{
    const QDir dir(folder);
    for (const QString& pattern : {kWaveFiles, kMp3Files}) {
        for (const QString& name : FilesMatching(dir, pattern))
            AddFileToRecordingsList(dir.filePath(name));
    }
}

void RecordingsList::RepositionAfterRemoval()
{
    Recordset& rs = m_database.DataRecordings.recordset();
    if (rs.IsEOF())
        return;
    rs.MoveNext();
    if (rs.IsEOF() && rs.RecordCount() > 0)
        rs.MoveLast();
}

void RecordingsList::RemoveFromList(const QList<qint64>& bookmarks)
{
    Recordset& rs = m_database.DataRecordings.recordset();
    for (const qint64 bookmark : bookmarks) {
        rs.SetBookmark(bookmark);
        rs.Delete();
    }
    RepositionAfterRemoval();
}

void RecordingsList::DeleteFromDisk(const QList<qint64>& bookmarks)
{
    Recordset& rs = m_database.DataRecordings.recordset();
    for (const qint64 bookmark : bookmarks) {
        rs.SetBookmark(bookmark);
        const QString file = rs.Value(QStringLiteral("File")).toString();
        QFile::remove(file);
        if (QFileInfo::exists(file)) {
            m_log.LogEvent(EventError, tr("Recording was not deleted from disk."),
                           tr("File may be read only, or locked by another "
                              "process.\r\nFilename: ") +
                               file);
            continue;
        }
        rs.Delete();
    }
    RepositionAfterRemoval();
}

void RecordingsList::ClearRecordingsList()
{
    m_database.db.Execute(QStringLiteral("DELETE FROM [Recordings]"));
    m_database.DataRecordings.Refresh();
}

int RecordingsList::PurgeOldRecordings()
{
    const QString folder = m_options.DefaultRecordingDirectory;
    if (folder.isEmpty() || !QDir(folder).exists())
        return 0;
    const QString comparableFolder = Comparable(QDir(folder).path());
    const QDateTime limit = AutomationDate::ToDateTime(m_clock.Now() - double(m_options.PurgeDays));
    int deleted = 0;
    // Only what the recorder listed goes: the folder may hold the user's own files too.
    Recordset rs = m_database.DataRecordings.recordset().Clone();
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
        const QFileInfo file(rs.Value(QStringLiteral("File")).toString());
        const QString suffix = file.suffix().toUpper();
        if (Comparable(file.path()) != comparableFolder ||
            (suffix != QLatin1String("WAV") && suffix != QLatin1String("MP3")) || !file.exists() ||
            file.lastModified() >= limit || !QFile::remove(file.filePath()))
            continue;
        QFile::remove(CueSheetPath(file.filePath()));
        rs.Delete();
        ++deleted;
    }
    return deleted;
}

void RecordingsList::RemoveMissingFromRecordingFolder()
{
    const QString folder = Comparable(QDir(m_options.DefaultRecordingDirectory).path());
    Recordset rs = m_database.DataRecordings.recordset().Clone();
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
        const QString file = rs.Value(QStringLiteral("File")).toString();
        if (Comparable(QFileInfo(file).path()) == folder && !QFileInfo::exists(file))
            rs.Delete();
    }
}

void RecordingsList::Purge()
{
    if (PurgeOldRecordings() == 0)
        return;
    m_database.DataRecordings.Refresh();
    RemoveMissingFromRecordingFolder();
    m_database.DataRecordings.Refresh();
}

QString RecordingsList::DurationText(double startTime, double endTime)
{
    const qint64 seconds = AutomationDate::SecondsBetween(startTime, endTime);
    return Plural(seconds / 3600, tr("1 Hour"), tr("%1 Hours")) + u' ' +
           Plural(seconds / 60 % 60, tr("1 Minute"), tr("%1 Minutes")) + u' ' +
           Plural(seconds % 60, tr("1 Second"), tr("%1 Seconds"));
}
