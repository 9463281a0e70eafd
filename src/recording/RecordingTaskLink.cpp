#include "recording/RecordingTaskLink.h"

#include "common/ProgramFiles.h"
#include "common/TextHelpers.h"
#include "common/UnattendedPath.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "recording/RecordingTaskErrors.h"
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskErrors.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QThread>
#include <utility>

using namespace TaskProtocol;

namespace {

int serverCount = 0;

// The pause between the removal steps of an old task. Nothing runs meanwhile.
void Sleep(int milliseconds)
{
    QThread::msleep(milliseconds);
}

// A process that has neither ended nor become a zombie; the task is started detached, so
// its exit is seen only here.
bool ProcessAlive(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = stat.readAll();
    const qsizetype state = line.lastIndexOf(')') + 2;
    return state > 1 && state < line.size() && line[state] != 'Z' && line[state] != 'X';
}

} // namespace

RecordingTaskLink::RecordingTaskLink(EventLog& log, const clsAppStatus& appStatus,
                                     const QString& runtimeFolder, QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_appStatus(appStatus)
    , m_runtimeFolder(runtimeFolder)
    , m_taskProgram(ProgramFiles::OfRunningProgram().TaskProgram())
{
    connect(&tmrKeepAlive, &IntervalTimer::timeout, this, &RecordingTaskLink::tmrKeepAlive_Timer);
    connect(&tmrStopRecording, &IntervalTimer::timeout, this,
            &RecordingTaskLink::tmrStopRecording_Timer);
    connect(&TimerTimeout, &IntervalTimer::timeout, this, &RecordingTaskLink::TimerTimeout_Timer);
    connect(&m_server, &QLocalServer::newConnection, this, &RecordingTaskLink::OnNewConnection);

    // Only the owner may reach the socket; its folder is private to the owner as well.
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    const QString name = m_runtimeFolder + QStringLiteral("/nightreel-%1-%2")
                                               .arg(QCoreApplication::applicationPid())
                                               .arg(++serverCount);
    QLocalServer::removeServer(name);
    m_server.listen(name);
}

RecordingTaskLink::~RecordingTaskLink()
{
    // A task whose scheduler goes away finishes its file by itself.
    for (Connection& c : m_connections) {
        c.socket->disconnect(this);
        c.socket->flush();
        c.socket->disconnectFromServer();
    }
    m_server.close();
}

QString RecordingTaskLink::ServerName() const
{
    return m_server.fullServerName();
}

QString RecordingTaskLink::ParameterFile() const
{
    return RecParms::PathIn(m_runtimeFolder);
}

void RecordingTaskLink::OnNewConnection()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        socket->setParent(this);
        m_connections.push_back(Connection{socket, {}, false, false, 0});
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { OnReadyRead(socket); });
        connect(socket, &QLocalSocket::disconnected, this,
                [this, socket] { OnDisconnected(socket); });
        if (socket->bytesAvailable() > 0)
            OnReadyRead(socket);
    }
}

RecordingTaskLink::Connection* RecordingTaskLink::Find(QLocalSocket* socket)
{
    for (Connection& c : m_connections) {
        if (c.socket == socket)
            return &c;
    }
    return nullptr;
}

void RecordingTaskLink::OnDisconnected(QLocalSocket* socket)
{
    m_connections.remove_if([socket](const Connection& c) { return c.socket == socket; });
    socket->deleteLater();
}

void RecordingTaskLink::OnReadyRead(QLocalSocket* socket)
{
    const UnattendedPath unattended;
    Connection* c = Find(socket);
    if (!c)
        return;
    c->reader.Append(socket->readAll());
    Frame frame;
    for (;;) {
        // Handlers below may run events and so drop this connection.
        c = Find(socket);
        if (!c)
            return;
        const FrameReader::Result next = c->reader.Next(frame);
        if (next == FrameReader::Result::NeedMore)
            return;
        if (next == FrameReader::Result::Garbage) {
            socket->abort();
            UnexpectedCode(qint32(frame.number));
            return;
        }
        switch (frame.kind) {
        case Kind::Hello:
            c->helloSeen = true;
            c->identified = frame.payload == QByteArray(TaskClass) + '\n' + TaskTitle;
            c->pid = frame.argument;
            c->primed = m_primedPid != 0 && c->pid == m_primedPid;
            if (m_endedPrimed.removeOne(c->pid)) {
                c->identified = false;
                Post(socket, WM_CLOSE);
                socket->disconnectFromServer();
                return;
            }
            break;
        case Kind::Reply:
            for (PendingCall* call : m_pendingCalls) {
                if (call->socket == socket && call->number == frame.number && !call->answered) {
                    call->answered = true;
                    call->result = frame.argument;
                    break;
                }
            }
            break;
        case Kind::Post:
            if (c->primed) {
                OnPrimedPost(*c, frame.number, frame.argument);
                break;
            }
            if (c->helloSeen) {
                qint32 result = 0;
                m_postPayload = frame.payload;
                sbcls1_WndProc(frame.number, 0, frame.argument, result);
                break;
            }
            [[fallthrough]];
        case Kind::Call:
            // The task never calls, and says who it is before anything else.
            UnexpectedCode(qint32(frame.number));
            break;
        }
    }
}

QLocalSocket* RecordingTaskLink::FindWindowA()
{
    // A task that has just gone is seen only when its end of the socket is read.
    std::vector<QLocalSocket*> sockets;
    for (const Connection& c : m_connections)
        sockets.push_back(c.socket);
    for (QLocalSocket* socket : sockets) {
        if (Find(socket) && socket->state() == QLocalSocket::ConnectedState)
            socket->waitForReadyRead(0);
    }
    m_window = nullptr;
    for (const Connection& c : m_connections) {
        if (c.identified && !c.primed && c.socket->state() == QLocalSocket::ConnectedState) {
            m_window = c.socket;
            break;
        }
    }
    return m_window;
}

void RecordingTaskLink::Post(QLocalSocket* socket, quint32 msg)
{
    if (!socket || socket->state() != QLocalSocket::ConnectedState)
        return;
    socket->write(Encode(Kind::Post, msg, 0));
    socket->flush();
}

void RecordingTaskLink::PostMessage(quint32 msg)
{
    Post(m_window, msg);
}

qint32 RecordingTaskLink::SendMessage(quint32 msg)
{
    const qint32 result = Call(msg);
    // Once the start command is answered (a task that is gone answers 0 too), a stop goes
    // to the task and the watchdog watches it.
    if (msg == REC_MSG_START && result < 1) {
        m_capturing = true;
        if (std::exchange(m_stopHeld, false))
            PostStop();
    }
    return result;
}

qint32 RecordingTaskLink::Call(quint32 msg)
{
    QPointer<QLocalSocket> socket = m_window;
    if (!socket || socket->state() != QLocalSocket::ConnectedState)
        return 0;
    PendingCall call{socket, msg};
    m_pendingCalls.append(&call);
    socket->write(Encode(Kind::Call, msg, 0));
    socket->flush();
    while (!call.answered && socket && socket->state() == QLocalSocket::ConnectedState)
        UnattendedPath::LetEventsRun(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    m_pendingCalls.removeOne(&call);
    return call.answered ? call.result : 0;
}

void RecordingTaskLink::StartTask(const QStringList& options)
{
    qint64 pid = 0;
    // Whether the start worked is not asked: a task that never comes is met by the time-out.
    QProcess::startDetached(m_taskProgram, options + QStringList{ServerName()}, QString(), &pid);
    if (pid <= 0)
        return;
    if (options.isEmpty())
        m_startedTasks << pid;
    else
        m_primedPid = pid;
}

void RecordingTaskLink::StartPrimedTask(const RecParms& parms)
{
    EndPrimedTask();
    m_primedFormat = parms.format;
    m_primedInput = parms.inputName;
    StartTask({QStringLiteral("--primed")});
}

RecordingTaskLink::Connection* RecordingTaskLink::PrimedConnection()
{
    for (Connection& c : m_connections) {
        if (c.primed && c.socket->state() == QLocalSocket::ConnectedState)
            return &c;
    }
    return nullptr;
}

void RecordingTaskLink::OnPrimedPost(Connection& c, quint32 msg, qint32 argument)
{
    // Nothing a primed task says reaches the recording: only whether it came up. A failure
    // after that makes it unfit as well, and so does an input that is gone: the task started
    // at the due second then says so for the log.
    if (msg == REC_MSG_READY && c.primedCode < 0)
        c.primedCode = argument;
    else if (msg == REC_MSG_ERROR)
        c.primedCode = argument;
    else if (msg == REC_MSG_INPUT_MISSING)
        c.primedCode = TaskError::OpenInputFailed;
}

void RecordingTaskLink::EndPrimedTask()
{
    if (!m_primedPid)
        return;
    if (Connection* c = PrimedConnection()) {
        Post(c->socket, WM_CLOSE);
        c->socket->disconnectFromServer();
    } else {
        m_endedPrimed << m_primedPid;
    }
    m_primedPid = 0;
}

bool RecordingTaskLink::TakeOverPrimedTask()
{
    if (!m_primedPid)
        return false;
    const std::optional<RecParms> parms = RecParms::Read(ParameterFile());
    if (!parms || parms->format != m_primedFormat || parms->inputName != m_primedInput ||
        !parms->streamUrl.isEmpty()) {
        EndPrimedTask();
        return false;
    }
    // A task on its way is waited for as a new one would be, from where it is.
    m_timedOut = false;
    TimerTimeout.SetInterval(m_activationTimeout);
    for (;;) {
        const Connection* c = PrimedConnection();
        if (m_timedOut || (c ? c->primedCode >= 0 : !ProcessAlive(m_primedPid)))
            break;
        UnattendedPath::LetEventsRun();
        Sleep(5);
    }
    Connection* c = PrimedConnection();
    if (!c || c->primedCode != 0) {
        EndPrimedTask();
        return false;
    }
    c->primed = false;
    m_startedTasks << c->pid;
    m_primedPid = 0;
    m_window = c->socket;
    return true;
}

bool RecordingTaskLink::ActivateNightreeltask()
{
    bool activated = false;
    m_capturing = false;
    if (TakeOverPrimedTask())
        return true;
    InRoutine("ActivateNightreeltask", [&] {
        for (int attempt = 0; attempt <= 2; ++attempt) {
            // Only the last attempt reports; the first two failures are silent.
            const bool reporting = attempt == 2;
            bool failed = false;
            if (QLocalSocket* old = FindWindowA()) {
                Post(old, WM_CLOSE);
                Sleep(1000);
                if ((old = FindWindowA())) {
                    Post(old, WM_QUIT);
                    Sleep(1000);
                    if (FindWindowA()) {
                        if (reporting)
                            m_log.LogEvent(EventError, tr("Error removing Recording Process."),
                                           tr("This may require the system to be restarted."));
                        failed = true;
                    }
                }
            }
            if (!failed) {
                m_timedOut = false;
                // Nothing stops this timer again; its later ticks are harmless. Intended.
                TimerTimeout.SetInterval(m_activationTimeout);
                m_taskResponded = false;
                StartTask();
                for (;;) {
                    UnattendedPath::LetEventsRun(QEventLoop::AllEvents |
                                                 QEventLoop::WaitForMoreEvents);
                    if (m_timedOut) {
                        if (reporting)
                            m_log.LogEvent(EventError, tr("Error activating recording task."),
                                           tr("Timeout occurred.  Try restarting software or "
                                              "rebooting system. If problem persists try a "
                                              "different recording format."));
                        failed = true;
                        break;
                    }
                    if (m_taskResponded && m_taskStatusCode != 0) {
                        if (reporting)
                            ReportRecordingTaskError(m_log, m_taskStatusCode);
                        Post(FindWindowA(), WM_CLOSE);
                        failed = true;
                        break;
                    }
                    if (m_taskResponded) {
                        if (!FindWindowA()) {
                            // This text differs from the one above by " -"; intended.
                            if (reporting)
                                m_log.LogEvent(EventError, tr("Error activating recording task."),
                                               tr("Timeout occurred.  - Try restarting software "
                                                  "or rebooting system. If problem persists try "
                                                  "a different recording format."));
                            failed = true;
                        }
                        break;
                    }
                }
            }
            if (failed) {
                // No wait here: the next attempt's removal steps deal with a task that lingers.
                Post(FindWindowA(), WM_QUIT);
                continue;
            }
            activated = true;
            break;
        }
    });
    return activated;
}

bool RecordingTaskLink::sbcls1_WndProc(quint32 msg, qint32 wParam, qint32 lParam, qint32& result)
{
    bool handled = true;
    Trap(m_log, "sbcls1_WndProc", [&] {
        if (msg == WM_SYSCOMMAND && (wParam & ~15) != SC_MINIMIZE) {
            handled = false;
            return;
        }
        Dispatch(msg, wParam, lParam, result);
    });
    return handled;
}

void RecordingTaskLink::Dispatch(quint32 msg, qint32 wParam, qint32 lParam, qint32& result)
{
    Q_UNUSED(wParam);
    result = 0;
    switch (msg) {
    case REC_MSG_READY:
        m_taskResponded = true;
        m_taskStatusCode = lParam;
        break;
    case REC_MSG_STOPPED:
        tmrStopRecording.SetInterval(0);
        emit StopRecording();
        break;
    case REC_MSG_ERROR:
        emit TaskError(lParam, QString::fromUtf8(m_postPayload));
        break;
    case REC_MSG_STREAM_FORMAT:
        emit StreamFormatKept(m_postPayload);
        break;
    case REC_MSG_STREAM_GAP:
        emit StreamGap(lParam, QString::fromUtf8(m_postPayload));
        break;
    case REC_MSG_INPUT_MISSING:
        // The recording goes on from the default input; the log tells what it holds.
        m_log.LogEvent(EventWarning,
                       QStringLiteral("Recording input not found: %1; the default input was used.")
                           .arg(QString::fromUtf8(m_postPayload)),
                       QStringLiteral("Choose another input in the program or in the options."));
        break;
    case REC_MSG_KEEPALIVE:
        KeepAliveMissCount = 0;
        break;
    case WM_SYSCOMMAND:
        emit MinimizeToTray();
        break;
    case REC_MSG_SILENT:
        emit InputSilent(lParam, QString::fromUtf8(m_postPayload));
        break;
    case REC_MSG_SOUND_RETURNED:
        emit SoundReturned(lParam, QString::fromUtf8(m_postPayload));
        break;
    default:
        UnexpectedCode(msg);
        break;
    }
}

void RecordingTaskLink::UnexpectedCode(qint64 number)
{
    m_log.LogEvent(EventError, tr("Run Time Error"),
                   tr("Unexpected code from recording process.  Code=") + Text::Str(number) +
                       tr(" If problem persists, try a different recording "
                          "format or restarting the system"));
    emit StopRecording();
}

void RecordingTaskLink::PostStop()
{
    // Before the start command the task would drop the stop, or the old task would get it.
    if (!m_capturing) {
        m_stopHeld = true;
        return;
    }
    PostMessage(REC_MSG_STOP);
    tmrStopRecording.SetInterval(StopWatchdogInterval);
}

void RecordingTaskLink::RecordingOver()
{
    tmrKeepAlive.SetInterval(0);
    tmrStopRecording.SetInterval(0);
    m_capturing = false;
    m_stopHeld = false;
}

void RecordingTaskLink::StartKeepAlive()
{
    KeepAliveMissCount = 0;
    tmrKeepAlive.SetInterval(KeepAliveInterval);
}

void RecordingTaskLink::tmrKeepAlive_Timer()
{
    const UnattendedPath unattended;
    Trap(m_log, "tmrKeepAlive_Timer", [&] {
        if (!m_appStatus.Recording())
            return;
        if (KeepAliveMissCount < KeepAliveMaxMisses) {
            PostMessage(REC_MSG_KEEPALIVE);
            ++KeepAliveMissCount;
            return;
        }
        emit TaskNotResponding();
    });
}

void RecordingTaskLink::tmrStopRecording_Timer()
{
    const UnattendedPath unattended;
    Trap(m_log, "tmrStopRecording_Timer", [&] {
        tmrStopRecording.SetInterval(0);
        emit StopRecording();
    });
}

void RecordingTaskLink::TimerTimeout_Timer()
{
    m_timedOut = true;
}
