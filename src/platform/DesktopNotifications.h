#pragma once

#include <QObject>
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
