#include "platform/LogindSleepInhibitor.h"

#include <QDBusMessage>
#include <QFile>
#include <QFileInfo>

namespace {

const QString kService = QStringLiteral("org.freedesktop.login1");
const QString kPath = QStringLiteral("/org/freedesktop/login1");
const QString kManager = QStringLiteral("org.freedesktop.login1.Manager");
// logind answers at once or not at all; the heartbeat waits on this call.
constexpr int kCallTimeoutMs = 2000;
constexpr int kWakeHelperTimeoutMs = 5000;

bool WriteLine(const QString& path, const QByteArray& line)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(line + '\n') == line.size() + 1 && file.flush();
}

} // namespace

LogindSleepInhibitor::LogindSleepInhibitor(const QDBusConnection& bus, const QString& wakeAlarmFile,
                                           QObject* parent)
    : SleepInhibitor(parent)
    , m_bus(bus)
    , m_wakeAlarmFile(wakeAlarmFile)
{
    if (m_bus.isConnected())
        m_bus.connect(kService, kPath, kManager, QStringLiteral("PrepareForSleep"), this,
                      SLOT(OnPrepareForSleep(bool)));
}

LogindSleepInhibitor::~LogindSleepInhibitor()
{
    if (m_bus.isConnected())
        m_bus.disconnect(kService, kPath, kManager, QStringLiteral("PrepareForSleep"), this,
                         SLOT(OnPrepareForSleep(bool)));
}

QDBusUnixFileDescriptor LogindSleepInhibitor::Inhibit(const QString& what, const QString& why,
                                                      const QString& mode)
{
    if (!m_bus.isConnected())
        return {};
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kPath, kManager, QStringLiteral("Inhibit"));
    call.setArguments({what, QStringLiteral("Nightreel 2000"), why, mode});
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, kCallTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return reply.arguments().constFirst().value<QDBusUnixFileDescriptor>();
}

bool LogindSleepInhibitor::AskWakeHelper(qint64 epochSeconds)
{
    if (!m_bus.isConnected())
        return false;
    const QString name = QStringLiteral("org.larkmoor.NightreelWake1");
    QDBusMessage call = QDBusMessage::createMethodCall(
        name, QStringLiteral("/org/larkmoor/NightreelWake1"), name,
        epochSeconds > 0 ? QStringLiteral("SetWakeAlarm") : QStringLiteral("ClearWakeAlarm"));
    if (epochSeconds > 0)
        call.setArguments({qlonglong(epochSeconds)});
    // The bus starts the helper on the first call, which takes a moment more.
    return m_bus.call(call, QDBus::Block, kWakeHelperTimeoutMs).type() ==
           QDBusMessage::ReplyMessage;
}

void LogindSleepInhibitor::Block(const QString& why)
{
    if (!m_block.isValid())
        m_block = Inhibit(QStringLiteral("sleep:idle"), why, QStringLiteral("block"));
}

void LogindSleepInhibitor::Release()
{
    m_block = QDBusUnixFileDescriptor();
}

void LogindSleepInhibitor::SetWatching(bool watching)
{
    if (watching == m_watching)
        return;
    m_watching = watching;
    m_delay = watching ? TakeDelay() : QDBusUnixFileDescriptor();
}

QDBusUnixFileDescriptor LogindSleepInhibitor::TakeDelay()
{
    return Inhibit(QStringLiteral("sleep"),
                   QStringLiteral("Notes a recording that the sleep will miss"),
                   QStringLiteral("delay"));
}

void LogindSleepInhibitor::OnPrepareForSleep(bool start)
{
    emit PrepareForSleep(start);
    // The sleep waits for the delay lock: it goes once the receivers have had their say, and
    // the lock is taken anew for the next one after waking.
    if (start)
        m_delay = QDBusUnixFileDescriptor();
    else if (m_watching && !m_delay.isValid())
        m_delay = TakeDelay();
}

bool LogindSleepInhibitor::SetWakeAlarm(qint64 epochSeconds)
{
    if (m_wakeAlarmFile.isEmpty())
        return AskWakeHelper(epochSeconds);
    const QFileInfo file(m_wakeAlarmFile);
    if (!file.exists() || !file.isWritable())
        return false;
    // The clock takes a new alarm only after the old one was cleared.
    if (!WriteLine(m_wakeAlarmFile, "0"))
        return false;
    return epochSeconds <= 0 || WriteLine(m_wakeAlarmFile, QByteArray::number(epochSeconds));
}
