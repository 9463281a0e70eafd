#pragma once

#include <QObject>
#include <QStringList>

class AppDatabase;
class Clock;
class EventLog;
class RegKeys;
class Scheduler;
class SleepInhibitor;
class clsAppStatus;
struct clsRecordingStatus;

// Says which recordings were missed while the recorder was not running or the computer
// slept. The recorder notes that it is alive (in the settings, at most once a minute, and at
// once before a sleep and at its stop); at its start and after each resume it logs each
// occurrence that fell due since then, once. An occurrence still running is not missed:
// the late start records what is left, and the log says how much is gone.
class MissedRecordings : public QObject {
    Q_OBJECT
public:
    MissedRecordings(const Clock& clock, EventLog& log, RegKeys& registry, Scheduler& scheduler,
                     AppDatabase& database, const clsAppStatus& appStatus,
                     const clsRecordingStatus& status, SleepInhibitor& inhibitor,
                     QObject* parent = nullptr);

    static constexpr int LookBackDays = 30;
    // More than this many are summed up in one entry, so that the log does not fill up.
    static constexpr int MostListed = 50;
    static constexpr int AliveEverySeconds = 60;

    void CheckAtStart();
    // On every heartbeat.
    void NoteAlive();
    // At the recorder's stop.
    void NoteStopping();

signals:
    // One line per recording missed or started late, for the desktop's notification.
    void RecordingsMissed(const QStringList& lines);

private:
    void OnPrepareForSleep(bool start);
    void Report(double from, double to, const QString& why);
    void WriteAlive(double now);

    const Clock& m_clock;
    EventLog& m_log;
    RegKeys& m_registry;
    Scheduler& m_scheduler;
    AppDatabase& m_database;
    const clsAppStatus& m_appStatus;
    const clsRecordingStatus& m_status;
    double m_lastAlive = 0.0;
    // Between the word before a sleep and the one after it: a heartbeat that comes first
    // after waking must not move the stamp past the sleep.
    bool m_asleep = false;
};
