#include "WakeAlarmService.h"

#include "PolkitCheck.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDateTime>
#include <QFile>

WakeAlarmService::WakeAlarmService(const QString& clockFolder, const PolkitCheck& polkit,
                                   int idleExitMs, QObject* parent)
    : QObject(parent)
    , m_alarmFile(clockFolder + QStringLiteral("/wakealarm"))
    , m_polkit(polkit)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleExitMs);
    connect(&m_idle, &QTimer::timeout, qApp, &QCoreApplication::quit);
    m_idle.start();
}

bool WakeAlarmService::CallerAllowed()
{
    m_idle.start();
    if (m_polkit.Allowed(message().service(), ActionId))
        return true;
    sendErrorReply(QDBusError::AccessDenied,
                   QStringLiteral("Not allowed to set the wake alarm (%1)").arg(ActionId));
    return false;
}

void WakeAlarmService::SetWakeAlarm(qlonglong epochSeconds)
{
    if (!CallerAllowed())
        return;
    const qint64 ahead = epochSeconds - QDateTime::currentSecsSinceEpoch();
    if (ahead < SoonestSeconds || ahead > LatestSeconds) {
        sendErrorReply(QDBusError::InvalidArgs,
                       QStringLiteral("The wake alarm must lie between one minute and 31 days "
                                      "ahead"));
        return;
    }
    // The clock takes a new alarm only after the old one was cleared.
    if (!Write("0") || !Write(QByteArray::number(epochSeconds)))
        sendErrorReply(QDBusError::Failed, QStringLiteral("The clock refused the wake alarm"));
}

void WakeAlarmService::ClearWakeAlarm()
{
    if (CallerAllowed() && !Write("0"))
        sendErrorReply(QDBusError::Failed, QStringLiteral("The clock refused the clear"));
}

bool WakeAlarmService::Write(const QByteArray& value)
{
    QFile file(m_alarmFile);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(value + '\n') == value.size() + 1 && file.flush();
}
