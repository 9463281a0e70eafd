#pragma once

#include <QObject>
#include <QTimer>

class AppDatabase;
class Clock;
class EventLog;
class RecordingTaskLink;
class Scheduler;
class clsAppStatus;

// Starts a scheduled recording's task a few seconds ahead of its due second, with its
// capture open, so that the task's own start is over before the sound is due; the start at
// the due second takes the task over (RecordingTaskLink::ActivateNightreeltask) and goes on
// exactly as any start: names, rows and refusals are those of the due second. A task that is
// not taken over by then is ended without a file, and one that died leaves the start to a new
// task. Internet streams are opened ahead by their own rule and are not primed.
class PrimedTask : public QObject {
    Q_OBJECT
public:
    PrimedTask(Clock& clock, EventLog& log, AppDatabase& database, Scheduler& scheduler,
               const clsAppStatus& appStatus, RecordingTaskLink& link, QObject* parent = nullptr);

    static constexpr int LeadSeconds = 5;

    // On each heartbeat tick: primes for the next program when it is that close, and ends a
    // primed task that is no longer wanted.
    void Update();

signals:
    // The due second of the primed program has come, to the millisecond: the receiver ticks
    // the heartbeat, which starts the recording as its own tick would a little later.
    void DueSecond();

private:
    void Prime();

    Clock& m_clock;
    EventLog& m_log;
    AppDatabase& m_database;
    Scheduler& m_scheduler;
    const clsAppStatus& m_appStatus;
    RecordingTaskLink& m_link;
    QTimer m_dueTimer;
    // The occurrence primed for last, so that each is primed once.
    qint32 m_programId = 0;
    double m_start = 0.0;
};
