#include "platform/DesktopNotifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
// The action that a click on the notification itself invokes.
const QString kDefaultAction = QStringLiteral("default");

} // namespace

FreedesktopNotifications::FreedesktopNotifications(const QDBusConnection& bus, QObject* parent)
    : DesktopNotifications(parent)
    , m_bus(bus)
{
    m_bus.connect(kService, kPath, kService, QStringLiteral("ActionInvoked"), this,
                  SLOT(OnActionInvoked(uint, QString)));
    m_bus.connect(kService, kPath, kService, QStringLiteral("NotificationClosed"), this,
                  SLOT(OnNotificationClosed(uint, uint)));
}

void FreedesktopNotifications::Notify(const DesktopNotification& notification)
{
    if (!m_bus.isConnected()) {
        ReportUnavailable(tr("there is no session bus."));
        return;
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Notify"));
    QStringList actions;
    if (notification.opensEventLog)
        actions << kDefaultAction << tr("Open Event Log");
    // The desktop entry lets the desktop group the notifications under the program.
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("nightreel")},
        {QStringLiteral("urgency"), QVariant::fromValue(uchar(notification.critical ? 2 : 1))}};
    call << QStringLiteral("Nightreel 2000") << uint(0) << QStringLiteral("nightreel")
         << notification.summary << notification.body << actions << hints << qint32(-1);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, opens = notification.opensEventLog](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<uint> reply = *finished;
                if (reply.isError()) {
                    ReportUnavailable(reply.error().message());
                    return;
                }
                if (opens)
                    m_opensEventLog.insert(reply.value());
            });
}

void FreedesktopNotifications::OnActionInvoked(uint id, const QString& action)
{
    // Every program's notifications come by this signal: only ours count.
    if (action == kDefaultAction && m_opensEventLog.contains(id))
        emit EventLogRequested();
}

void FreedesktopNotifications::OnNotificationClosed(uint id, uint reason)
{
    Q_UNUSED(reason);
    m_opensEventLog.remove(id);
}

void FreedesktopNotifications::ReportUnavailable(const QString& why)
{
    if (m_unavailableReported)
        return;
    m_unavailableReported = true;
    emit Unavailable(why);
}
