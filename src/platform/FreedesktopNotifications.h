#pragma once

#include "platform/DesktopNotifications.h"

#include <QDBusConnection>
#include <QSet>

// org.freedesktop.Notifications on the given bus (the session bus, or a test's own). The
// calls never wait: the answer, or the lack of one, comes back through the event loop.
class FreedesktopNotifications : public DesktopNotifications {
    Q_OBJECT
public:
    explicit FreedesktopNotifications(const QDBusConnection& bus, QObject* parent = nullptr);

    void Notify(const DesktopNotification& notification) override;

private slots:
    void OnActionInvoked(uint id, const QString& action);
    void OnNotificationClosed(uint id, uint reason);

private:
    void ReportUnavailable(const QString& why);

    QDBusConnection m_bus;
    // Ours on show whose click opens the event log.
    QSet<uint> m_opensEventLog;
    bool m_unavailableReported = false;
};
