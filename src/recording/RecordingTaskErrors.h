#pragma once

#include <QString>

class EventLog;

// The recording task's error codes turned into the heading and the advice of a log entry.
struct RecordingTaskErrorText {
    QString message;
    QString details;
};

RecordingTaskErrorText RecordingTaskErrorTexts(qint32 code);

// Logs the code as an error entry; nothing else. The caller fails the recording.
// The detail, where the task gave one, leads the entry's text.
void ReportRecordingTaskError(EventLog& log, qint32 code, const QString& detail = QString());
