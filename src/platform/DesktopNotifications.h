#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QSet>
#include <QString>

// One message for the desktop's notifications; the program's name and icon go with it.
struct DesktopNotification {
    // One line: what happened.
    QString summary;
    // Plain text: which recording, and why.
    QString body;
    // A failure rather than a warning: desktops keep such a notification until it is seen.
    bool critical = false;
    // Clicking the notification opens the main window at the event log.
    bool opensEventLog = true;
};

// The desktop's notifications. Where the desktop has none, a notification goes nowhere and
// Unavailable says so, once.
class DesktopNotifications : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void Notify(const DesktopNotification& notification) = 0;

signals:
    // The user clicked a notification that opens the event log.
    void EventLogRequested();
    // The first notification that found no service to take it; why.
    void Unavailable(const QString& why);
};

// Shows nothing and reports nothing: for runs without a desktop.
class NoDesktopNotifications : public DesktopNotifications {
public:
    using DesktopNotifications::DesktopNotifications;
    void Notify(const DesktopNotification&) override {}
};

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
