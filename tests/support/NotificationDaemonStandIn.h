#pragma once

#include "SystemBusStandIn.h"

// The desktop's notification service (python-dbusmock's stand-in) on a session bus of the
// test's own: the notifications it was asked to show, and the user's click on one.
class NotificationDaemonStandIn : public SystemBusStandIn {
public:
    NotificationDaemonStandIn()
        : SystemBusStandIn(
              "notification_daemon",
              Daemon() + "d.GetServerInformation(dbus_interface='org.freedesktop.Notifications')",
              Bus::Session)
    {
    }

    // "app|icon|summary|body|actions|urgency" of each notification, the body's line ends
    // shown as " / ".
    QStringList Notified()
    {
        const QByteArray out =
            Script(Daemon() + "for c in d.GetMethodCalls('Notify', dbus_interface=MOCK):\n"
                              "    a = c[1]\n"
                              "    print('|'.join([a[0], a[2], a[3], a[4].replace('\\n', ' / '),\n"
                              "                    ','.join(a[5]), str(int(a[6]['urgency']))]))\n");
        return QString::fromUtf8(out).split('\n', Qt::SkipEmptyParts);
    }

    void Forget() { Script(Daemon() + "d.ClearCalls(dbus_interface=MOCK)"); }

    // A click on the notification of that number (the stand-in counts from 1).
    bool Click(int id)
    {
        return !Script(Daemon() +
                       "d.EmitSignal('org.freedesktop.Notifications', "
                       "'ActionInvoked', 'us', [" +
                       QString::number(id) + ", 'default'], dbus_interface=MOCK)")
                    .isNull();
    }

private:
    static QString Daemon()
    {
        return "import dbus\n"
               "MOCK = 'org.freedesktop.DBus.Mock'\n"
               "d = dbus.SessionBus().get_object('org.freedesktop.Notifications', "
               "'/org/freedesktop/Notifications')\n";
    }
};
