#pragma once

#include "store/RecordingRow.h"

#include <QString>

class AppDatabase;

// The readers of the files that the user adds to the recordings list. Nothing here
// reports: a file that a reader does not take gives no row, and the caller tries the next
// reader. Each Add... writes its row through the recordings list's recordset, unless the
// file is listed already, and makes the new row the current one; a row that can't be
// written is an error for the caller to report.
namespace MediaReaders {

// A wave file of this system's recording task; the times are worked out from the file's
// date and length, with a correction when the date lies an hour off after a change of
// daylight saving time.
bool ReadNightreelWave(const QString& path, RecordingRow& row);
// A wave file of MP3 data from this system's encoder; its length comes from the fact chunk.
bool ReadNightreelCompressedWave(const QString& path, RecordingRow& row);
// Any other wave file, titled by its name.
bool ReadOtherWave(const QString& path, RecordingRow& row);
// Any existing file taken for MP3: a row, with zeros for what can't be read.
bool ReadMp3(const QString& path, RecordingRow& row);

// The row that adding the file to the list would make, by its extension (.wav, .mp3, in
// any case) and the readers in their order; false for a file that no reader takes.
bool ReadRecordingRow(const QString& path, RecordingRow& row);

} // namespace MediaReaders

// found is set when the file is of the reader's kind, also when its row exists already.
void AddNightreelWaveToList(AppDatabase& database, const QString& path, bool& found);
void AddNightreelCompressedWaveToList(AppDatabase& database, const QString& path, bool& found);
void AddOtherWaveToList(AppDatabase& database, const QString& path);
void AddMp3ToList(AppDatabase& database, const QString& path);

// True when a row's File, trimmed and upper-cased, equals the path trimmed and upper-cased.
bool IsFileInRecordingsList(AppDatabase& database, const QString& path);
// The text after the last folder separator.
QString GetFileNameFromPath(const QString& path);
