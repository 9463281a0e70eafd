#pragma once

#include "common/IntervalTimer.h"

#include <QObject>

class Clock;
class EventLog;
class Options;
class ProcessLauncher;
class Scheduler;
class clsAppStatus;
struct clsRecordingStatus;

// Timer1, the heartbeat: four times a second it compares the clock with the occurrence the
// scheduler worked out and decides every scheduled event: the link and the application
// ahead of a recording, its start, its end, and the daily purge. An idle tick touches no
// database. A tick that fails is logged and ends the heartbeat until the next start.
class Heartbeat : public QObject {
    Q_OBJECT
public:
    Heartbeat(Clock& clock, EventLog& log, Options& options, ProcessLauncher& launcher,
              Scheduler& scheduler, clsAppStatus& appStatus, clsRecordingStatus& recordingStatus,
              QObject* parent = nullptr);

    static constexpr int TickInterval = 250;

    // Starts the heartbeat, at the end of the first activation.
    void Start() { Timer1.SetInterval(TickInterval); }
    void Timer1_Timer();

    IntervalTimer Timer1;

signals:
    // Each step that belongs to another part of the system is handed on here.
    void SnapshotWindowsBeforeLink();
    void OpenInternetLink(const QString& link);
    void StartRecordingDue(qint32 programId, double start, double end, const QString& description);
    // The clock has passed the recording's end: the receiver makes the stop request.
    void StopRecordingDue();
    // Purge the recording folder; the receiver refreshes the list if anything went.
    void PurgeDue();
    void UpdateStatusBarPlus();

private:
    void Tick();
    void LaunchAppPrior(double now);
    void Purge(double now);

    Clock& m_clock;
    EventLog& m_log;
    Options& m_options;
    ProcessLauncher& m_launcher;
    Scheduler& m_scheduler;
    clsAppStatus& m_appStatus;
    clsRecordingStatus& m_recordingStatus;
    double m_lastTickTime = 0.0;
    double m_lastLinkLaunch;
    double m_lastAppLaunch;
    double m_lastPurge;
};
