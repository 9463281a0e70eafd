#include "scheduling/StreamTest.h"

#include <QLocale>
#include <QProcess>
#include <QTimer>

namespace {

// The task gives up after 20 seconds itself; this is the margin for a task that hangs.
constexpr int TestTimeoutMilliseconds = 30000;

QString Value(const QStringList& lines, const QString& key)
{
    for (const QString& line : lines)
        if (line.startsWith(key + u'='))
            return line.mid(key.size() + 1).trimmed();
    return QString();
}

} // namespace

StreamTest::StreamTest(const QString& taskProgram, QObject* parent)
    : QObject(parent)
    , m_taskProgram(taskProgram)
{
}

StreamTest::~StreamTest()
{
    Cancel();
}

void StreamTest::Cancel()
{
    if (!m_process)
        return;
    QProcess* process = m_process;
    m_process = nullptr;
    process->disconnect(this);
    process->kill();
    process->waitForFinished(1000);
    process->deleteLater();
}

void StreamTest::Start(const QString& address)
{
    Cancel();
    auto* process = new QProcess(this);
    m_process = process;
    connect(
        process, &QProcess::finished, this, [this, process](int code, QProcess::ExitStatus status) {
            const bool ok = status == QProcess::NormalExit && code == 0;
            const QString text = Describe(QString::fromUtf8(process->readAllStandardOutput()), ok);
            m_process = nullptr;
            process->deleteLater();
            emit Finished(ok, text);
        });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        m_process = nullptr;
        process->deleteLater();
        emit Finished(false, tr("The recording task could not be started to test the stream."));
    });
    process->start(m_taskProgram, {QStringLiteral("--probe"), address.trimmed()});
    QTimer::singleShot(TestTimeoutMilliseconds, process, [this, process] {
        if (m_process != process)
            return;
        Cancel();
        emit Finished(false, tr("The stream could not be played: no answer within %1 seconds.")
                                 .arg(TestTimeoutMilliseconds / 1000));
    });
}

QString StreamTest::Describe(const QString& taskOutput, bool ok)
{
    const QStringList lines = taskOutput.split(u'\n');
    if (!ok) {
        const QString why = Value(lines, QStringLiteral("error"));
        return why.isEmpty() ? tr("The stream could not be tested.")
                             : tr("The stream could not be played: %1.").arg(why);
    }
    QStringList parts;
    const QString codec = Value(lines, QStringLiteral("codec"));
    parts << (codec.isEmpty() ? tr("unknown codec") : codec);
    if (const int kbits = Value(lines, QStringLiteral("kbits")).toInt(); kbits > 0)
        parts << tr("%1 kbit/s").arg(kbits);
    if (const int rate = Value(lines, QStringLiteral("rate")).toInt(); rate > 0)
        parts << tr("%1 Hz").arg(QLocale().toString(rate));
    const int channels = Value(lines, QStringLiteral("channels")).toInt();
    if (channels == 1)
        parts << tr("mono");
    else if (channels == 2)
        parts << tr("stereo");
    else if (channels > 2)
        parts << tr("%1 channels").arg(channels);
    QString text = parts.join(QStringLiteral(", "));
    const QString station = Value(lines, QStringLiteral("station"));
    if (!station.isEmpty())
        text += tr("; station: %1").arg(station);
    return text;
}
