#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class AppDatabase;
class Clock;
class EventLog;
class Options;

// The list of recordings and the files behind it. The list and the disk are separate
// things: "from list" never touches a file, "from disk" removes file and row.
class RecordingsList {
public:
    // The files being written (the recording's, the conversion's) are not finished
    // recordings yet: busyFiles names them when asked.
    using BusyFiles = std::function<QStringList()>;
    RecordingsList(AppDatabase& database, EventLog& log, const Options& options, const Clock& clock,
                   BusyFiles busyFiles);

    // Adds a .wav or .mp3 file through the readers, unless it is being recorded or
    // converted, or is listed already; other files are ignored.
    void AddFileToRecordingsList(const QString& path);
    // The wave files of the folder first, then its MP3 files; no descent into subfolders.
    void AddFolderToRecordingsList(const QString& folder);
    // The rows of these bookmarks leave the list; their files stay.
    void RemoveFromList(const QList<qint64>& bookmarks);
    // Deletes the files and their rows. A file that can't be deleted keeps its row and
    // leaves an entry in the log.
    void DeleteFromDisk(const QList<qint64>& bookmarks);
    // Empties the list, leaving the files.
    void ClearRecordingsList();

    // Deletes the listed wave and MP3 recordings of the recording folder that are older than
    // the age limit, with their CUE sheets, and drops their rows; files not in the list are
    // never touched. Returns how many went.
    int PurgeOldRecordings();
    // Drops the rows of files of the recording folder that are gone.
    void RemoveMissingFromRecordingFolder();
    // The purge of the heartbeat's window, with the list brought up to date afterwards.
    void Purge();

    // "1 Hour 2 Minutes 3 Seconds": all three parts, the singular exactly for 1.
    static QString DurationText(double startTime, double endTime);

private:
    bool IsExcluded(const QString& path) const;
    void RepositionAfterRemoval();

    AppDatabase& m_database;
    EventLog& m_log;
    const Options& m_options;
    const Clock& m_clock;
    BusyFiles m_busyFiles;

    Q_DECLARE_TR_FUNCTIONS(RecordingsList)
};
