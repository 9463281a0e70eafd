#pragma once

#include <QObject>
#include <QString>

class Clock;
class ConversionQueue;
class EventLog;
class Options;
class Scheduler;
class SleepInhibitor;
class clsAppStatus;
struct clsRecordingStatus;
struct NextProgram;

// Keeps the machine awake for the recordings: from the pre-launch time of the program due
// (a minute before its start at the latest) until its recording and any conversion have
// ended, sleep and idling are blocked; the wake alarm is set for the next program; and a
// sleep that comes all the same with a program due is logged. Worked out anew on every
// heartbeat and at the end of each recording.
class KeepAwake : public QObject {
    Q_OBJECT
public:
    KeepAwake(const Clock& clock, EventLog& log, const Options& options,
              const clsAppStatus& appStatus, const Scheduler& scheduler,
              const clsRecordingStatus& status, const ConversionQueue& conversion,
              SleepInhibitor& inhibitor, QObject* parent = nullptr);

    static constexpr int LeadSeconds = 60;

    void Update();
    // The earliest of the program's start less a minute and its pre-launch times.
    static double WindowStart(const NextProgram& next);

private:
    void OnPrepareForSleep(bool start);
    void UpdateWakeAlarm(double now);

    const Clock& m_clock;
    EventLog& m_log;
    const Options& m_options;
    const clsAppStatus& m_appStatus;
    const Scheduler& m_scheduler;
    const clsRecordingStatus& m_status;
    const ConversionQueue& m_conversion;
    SleepInhibitor& m_inhibitor;
    // The alarm last asked for, in seconds since the epoch; 0 for none, -1 before the first.
    qint64 m_wakeAlarm = -1;
    // The last wake time in seconds since the epoch: reading the local time zone costs more
    // than the rest of a heartbeat tick, and the wake time changes once per recording.
    double m_wakeTime = -1.0;
    qint64 m_wakeEpochSeconds = 0;
    // Whether the machine's alarm holds it.
    bool m_wakeAlarmSet = false;
    bool m_wakeAlarmMissingSaid = false;
};
