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
void ReportRecordingTaskError(EventLog& log, qint32 code);

// The codes the task itself reports; the scheduler knows them only by number.
namespace TaskError {
constexpr qint32 ParameterFileLocked = 1000;
constexpr qint32 ParameterFileBad = 1001;
constexpr qint32 WriteFailed = 1002;
constexpr qint32 OpenInputFailed = 1010;
constexpr qint32 CreateFileFailed = 1013;
constexpr qint32 StartFailed = 1021;
constexpr qint32 AddBufferFailed = 1024;
constexpr qint32 CloseFileFailed = 1029;
constexpr qint32 DeviceBusy = 1050;
constexpr qint32 NoAudioDriver = 1051;
constexpr qint32 OutOfMemory = 1052;
constexpr qint32 BadFormat = 1053;
} // namespace TaskError
