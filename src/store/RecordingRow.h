#pragma once

#include <QString>

class AppDatabase;

// One row of Recordings: a file and what it holds.
struct RecordingRow {
    QString Title;
    double StartTime = 0.0;
    double EndTime = 0.0;
    QString CompressionMethod;
    float Size = 0.0f; // Mbytes
    QString File;
};

// The one writer of Recordings. A file has one row: the row of the same path is replaced,
// since it describes a file that is gone or was written anew. Returns the new row's ID;
// throws when the database fails.
qint64 WriteRecordingRow(AppDatabase& database, const RecordingRow& row);
