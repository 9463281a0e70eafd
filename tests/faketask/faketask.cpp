// A scripted stand-in for the recording task. It speaks the task's channel and behaves as
// its plan says, so that tests can play the faults of a task that the real one never shows.
//
// The plan comes from NIGHTREEL_FAKE_PLAN, blank-separated key=value words:
//   ready=C0/C1/...   the argument of 1044 for the first, second... start (the last repeats);
//                     "none" sends no 1044
//   title=T           the title said in the greeting (default: the task's own)
//   close=ignore      WM_CLOSE is ignored;  quit=ignore  WM_QUIT is ignored
//   start=C           the answer to 1025 (default 0)
//   afterstart=A+B    posts after answering 1025: N:ARG posts N with ARG, "raw" sends bytes
//                     that are no frame
//   keepalive=N       answers every Nth keep-alive question (0: never; default 1)
//   stop=MS           posts 1045 MS milliseconds after 1026 (default 0)
//   write=BYTES       at 1025, writes BYTES zero bytes to the parameter file's output path
//                     and logs "record PID DESCRIPTION", so that a recording has a file
// Every start and every message received is appended to the file NIGHTREEL_FAKE_LOG as
// "start PID" and "recv PID NUMBER"; the number of earlier starts picks the ready code.
#include "taskcontract/RecParms.h"
#include "taskcontract/TaskProtocol.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocalSocket>
#include <QTimer>

using namespace TaskProtocol;

namespace {

QHash<QString, QString> plan;
QLocalSocket* channel = nullptr;
int keepAlives = 0;

void Log(const QString& line)
{
    QFile file(qEnvironmentVariable("NIGHTREEL_FAKE_LOG"));
    if (file.open(QIODevice::Append))
        file.write((line + u'\n').toUtf8());
}

int EarlierStarts()
{
    QFile file(qEnvironmentVariable("NIGHTREEL_FAKE_LOG"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return int(file.readAll().count("start "));
}

void Send(Kind kind, quint32 number, qint32 argument)
{
    channel->write(Encode(kind, number, argument));
    channel->flush();
}

void Leave()
{
    channel->waitForBytesWritten(1000);
    QCoreApplication::exit(0);
}

// The parameter file lies in the folder of the channel's socket, as the real task finds it.
void WriteRecording(const QString& pid)
{
    const QString folder = QFileInfo(QCoreApplication::arguments().at(1)).path();
    const std::optional<RecParms> parms = RecParms::Read(RecParms::PathIn(folder));
    if (!parms)
        return;
    QFile out(parms->outputPath);
    if (out.open(QIODevice::WriteOnly))
        out.write(QByteArray(plan.value("write").toInt(), char(0)));
    Log(QStringLiteral("record %1 %2").arg(pid, parms->description));
}

void OnFrame(const Frame& frame)
{
    const QString pid = QString::number(QCoreApplication::applicationPid());
    Log(QStringLiteral("recv %1 %2").arg(pid).arg(frame.number));
    if (frame.kind == Kind::Call) {
        qint32 result = 0;
        if (frame.number == REC_MSG_START)
            result = plan.value("start", "0").toInt();
        if (frame.number == REC_MSG_START && plan.contains("write"))
            WriteRecording(pid);
        Send(Kind::Reply, frame.number, result);
        if (frame.number == REC_MSG_START) {
            for (const QString& post : plan.value("afterstart").split(u'+', Qt::SkipEmptyParts)) {
                if (post == "raw") {
                    channel->write(QByteArray(HeaderSize, char(0xff)));
                    channel->flush();
                    continue;
                }
                const QStringList parts = post.split(u':');
                Send(Kind::Post, parts.at(0).toUInt(), parts.value(1).toInt());
            }
        }
        return;
    }
    switch (frame.number) {
    case REC_MSG_KEEPALIVE: {
        const int every = plan.value("keepalive", "1").toInt();
        if (every > 0 && ++keepAlives % every == 0)
            Send(Kind::Post, REC_MSG_KEEPALIVE, 0);
        break;
    }
    case REC_MSG_STOP: {
        QTimer::singleShot(plan.value("stop", "0").toInt(), [] {
            Send(Kind::Post, REC_MSG_STOPPED, 0);
            Leave();
        });
        break;
    }
    case WM_CLOSE:
        if (plan.value("close") != "ignore")
            Leave();
        break;
    case WM_QUIT:
        if (plan.value("quit") != "ignore")
            Leave();
        break;
    default:
        break;
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (app.arguments().size() != 2)
        return 2;
    for (const QString& word :
         qEnvironmentVariable("NIGHTREEL_FAKE_PLAN").split(u' ', Qt::SkipEmptyParts))
        plan.insert(word.section(u'=', 0, 0), word.section(u'=', 1));

    const int startIndex = EarlierStarts();
    Log(QStringLiteral("start %1").arg(QCoreApplication::applicationPid()));

    QLocalSocket socket;
    channel = &socket;
    socket.connectToServer(app.arguments().at(1));
    if (!socket.waitForConnected(5000))
        return 1;
    const QByteArray title = plan.value("title", TaskTitle).toUtf8();
    socket.write(Encode(Frame{Kind::Hello, 0, qint32(QCoreApplication::applicationPid()),
                              QByteArray(TaskClass) + '\n' + title}));
    const QStringList ready = plan.value("ready", "0").split(u'/');
    const QString code = ready.value(qMin(startIndex, int(ready.size()) - 1));
    if (code != "none")
        Send(Kind::Post, REC_MSG_READY, code.toInt());

    FrameReader reader;
    QObject::connect(&socket, &QLocalSocket::readyRead, [&] {
        reader.Append(socket.readAll());
        Frame frame;
        while (reader.Next(frame) == FrameReader::Result::Frame)
            OnFrame(frame);
    });
    // Like the real task, it leaves when its scheduler goes away, whatever its plan.
    QObject::connect(&socket, &QLocalSocket::disconnected, [] { QCoreApplication::exit(0); });
    return app.exec();
}
