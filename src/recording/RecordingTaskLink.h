#pragma once

#include "common/IntervalTimer.h"
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskProtocol.h"
#include "taskcontract/WaveFormatRecord.h"

#include <QList>
#include <QLocalServer>
#include <QObject>
#include <QPointer>
#include <list>

class EventLog;
class QLocalSocket;
class clsAppStatus;

// The scheduler's side of the recording task: the channel the task talks on, the task's
// process and identity, the start-up hand-shake, the dispatch of what the task sends, the
// keep-alive and the stop watchdog.
//
// The channel stands in for window messages: the task's live connection that has named its
// class and title is "the task's window". Everything runs on the caller's thread; the waits
// let events run, so handlers and timers can be entered while a wait is in progress.
class RecordingTaskLink : public QObject {
    Q_OBJECT
public:
    // The socket and the parameter file lie in the runtime folder.
    RecordingTaskLink(EventLog& log, const clsAppStatus& appStatus, const QString& runtimeFolder,
                      QObject* parent = nullptr);
    ~RecordingTaskLink() override;

    static constexpr int KeepAliveInterval = 30000;
    static constexpr int StopWatchdogInterval = 10000;
    static constexpr qint16 KeepAliveMaxMisses = 3;

    // The task program: nightreel-rec of the running program (ProgramFiles) unless set otherwise.
    void SetTaskProgram(const QString& path) { m_taskProgram = path; }
    QString TaskProgram() const { return m_taskProgram; }
    // How long an attempt waits for the task's ready message; ten seconds but in tests.
    void SetActivationTimeout(int milliseconds) { m_activationTimeout = milliseconds; }
    // The socket that the task is told to connect to; its folder holds the parameter file.
    QString ServerName() const;
    QString ParameterFile() const;

    // Removes any old task, starts a new one and waits for it to say it is ready. A primed
    // task whose capture format fits the parameter file is taken over instead. False when
    // no task would come up, which the log has been told; a failure is thrown to the start.
    bool ActivateNightreeltask();
    // Starts a task ahead of a scheduled start, with its capture open in the format of the
    // parameter file just written, and does not wait. It stays apart from "the task's
    // window" until an activation takes it over; until then it counts as no started task.
    void StartPrimedTask(const RecParms& parms);
    // Ends the primed task, which leaves no file; harmless when there is none.
    void EndPrimedTask();
    bool HasPrimedTask() const { return m_primedPid != 0; }
    // The dispatch of what reaches the main window's hook. False hands the message on to the
    // default handler (a system command other than minimise); result is then not set.
    bool sbcls1_WndProc(quint32 msg, qint32 wParam, qint32 lParam, qint32& result);

    // A synchronous call (REC_MSG_START, REC_MSG_PAUSE_TOGGLE): waits, letting events run,
    // until the task answers. A task that is gone answers 0, as a vanished window does.
    qint32 SendMessage(quint32 msg);
    // A one-way message to the task found last; dropped when there is none.
    void PostMessage(quint32 msg);
    // Posts REC_MSG_STOP and arms the watchdog; the recording control decides when. A task
    // that is not capturing yet can't take the stop: it is held until the start command
    // has been answered, and the watchdog waits with it.
    void PostStop();
    // The recording is over, however it ended: the keep-alive, the watchdog and a held stop
    // go with it, so that none of them reaches the next recording.
    void RecordingOver();
    // The keep-alive runs while a recording does, from a count of no misses.
    void StartKeepAlive();

    void tmrKeepAlive_Timer();
    void tmrStopRecording_Timer();
    void TimerTimeout_Timer();

    // Process ids of the tasks started so far, oldest first.
    const QList<qint64>& StartedTasks() const { return m_startedTasks; }

    IntervalTimer tmrKeepAlive;
    IntervalTimer tmrStopRecording;
    IntervalTimer TimerTimeout;
    // Keep-alive questions without an answer, 0 to 3.
    qint16 KeepAliveMissCount = 0;

signals:
    // StopRecording is due now (task stopped, an unexpected code, the watchdog). The
    // receiver runs it before this returns.
    void StopRecording();
    // The task reported a failure with its code (1046); it may report more than once. The
    // detail is what the task could say beyond the code (a stream's address and reason).
    void TaskError(qint32 code, const QString& detail = QString());
    // An internet stream's broadcast is kept as it came, in this format (an encoded record).
    void StreamFormatKept(const QByteArray& record);
    // An internet stream was interrupted from start (ISO 8601 local time) for so long.
    void StreamGap(qint32 milliseconds, const QString& start);
    // Three keep-alive questions went unanswered.
    void TaskNotResponding();
    // The main window was asked to minimise: it goes to the tray instead.
    void MinimizeToTray();
    // The task's silence alarm: the input has been silent for the set time, or sound is back.
    // The level is in tenths of a dBFS; the source is the capture source's name.
    void InputSilent(qint32 level, const QString& source);
    void SoundReturned(qint32 level, const QString& source);

private:
    struct Connection {
        QLocalSocket* socket = nullptr;
        TaskProtocol::FrameReader reader;
        bool helloSeen = false;
        bool identified = false;
        qint64 pid = 0;
        bool primed = false;
        // What a primed task said when it came up: -1 before its ready message, else its code.
        qint32 primedCode = -1;
    };
    struct PendingCall {
        QLocalSocket* socket;
        quint32 number;
        bool answered = false;
        qint32 result = 0;
    };

    void OnNewConnection();
    void OnReadyRead(QLocalSocket* socket);
    void OnDisconnected(QLocalSocket* socket);
    Connection* Find(QLocalSocket* socket);
    // The live, identified connection of a task; also refreshes the window handle.
    QLocalSocket* FindWindowA();
    void Post(QLocalSocket* socket, quint32 msg);
    qint32 Call(quint32 msg);
    void StartTask(const QStringList& options = {});
    Connection* PrimedConnection();
    void OnPrimedPost(Connection& c, quint32 msg, qint32 argument);
    bool TakeOverPrimedTask();
    void UnexpectedCode(qint64 number);
    void Dispatch(quint32 msg, qint32 wParam, qint32 lParam, qint32& result);

    EventLog& m_log;
    const clsAppStatus& m_appStatus;
    const QString m_runtimeFolder;
    QLocalServer m_server;
    QString m_taskProgram;
    std::list<Connection> m_connections;
    QPointer<QLocalSocket> m_window;
    QList<PendingCall*> m_pendingCalls;
    QList<qint64> m_startedTasks;
    qint64 m_primedPid = 0;
    WaveFormatRecord m_primedFormat;
    QString m_primedInput;
    // Primed tasks ended before they were heard from: they are sent away when they are.
    QList<qint64> m_endedPrimed;
    bool m_taskResponded = false;
    qint32 m_taskStatusCode = 0;
    bool m_timedOut = false;
    // The current task has answered the start command; a stop asked before waits for that.
    bool m_capturing = false;
    bool m_stopHeld = false;
    int m_activationTimeout = 10000;
    // The payload of the message being dispatched, where it carries one.
    QByteArray m_postPayload;
};
