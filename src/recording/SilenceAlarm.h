#pragma once

#include <QObject>
#include <QString>

class EventLog;
class clsError;
struct clsRecordingStatus;

// The scheduler's side of the task's silence alarm: a warning in the log and in the current
// conditions once per silent stretch of the recording in progress, and a note when sound
// returns. The recording itself goes on untouched.
class SilenceAlarm : public QObject {
    Q_OBJECT
public:
    SilenceAlarm(EventLog& log, clsError& error, const clsRecordingStatus& status,
                 QObject* parent = nullptr);

    void InputSilent(qint32 level, const QString& source);
    void SoundReturned(qint32 level, const QString& source);
    // A new recording, or the end of one: whatever was silent is no longer.
    void Reset();

private:
    QString Details(qint32 level, const QString& source) const;

    EventLog& m_log;
    clsError& m_error;
    const clsRecordingStatus& m_status;
    bool m_silent = false;
};
