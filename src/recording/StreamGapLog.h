#pragma once

#include <QObject>
#include <QString>

class EventLog;
struct clsRecordingStatus;

// Each interruption of an internet stream during a recording, logged once with its start
// and length when the stream is back (or the recording ended inside it). The recording
// itself goes on: a PCM file holds silence for the gap, a kept broadcast continues.
class StreamGapLog : public QObject {
    Q_OBJECT
public:
    StreamGapLog(EventLog& log, const clsRecordingStatus& status, QObject* parent = nullptr);

    // start is ISO 8601 local time, as the task sends it.
    void StreamGap(qint32 milliseconds, const QString& start);

private:
    EventLog& m_log;
    const clsRecordingStatus& m_status;
};
