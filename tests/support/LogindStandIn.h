#pragma once

#include "SystemBusStandIn.h"

// systemd-logind's stand-in on a system bus of the test's own: the inhibitor locks it holds,
// and the signal it sends before and after a sleep.
class LogindStandIn : public SystemBusStandIn {
public:
    LogindStandIn()
        : SystemBusStandIn("logind", Manager() + "m.ListInhibitors()")
    {
    }

    // "what|why|mode" of each lock held; the who is checked to be ours.
    QStringList Inhibitors()
    {
        const QByteArray out = Script(Manager() + "for i in m.ListInhibitors():\n"
                                                  "    assert i[1] == 'Nightreel 2000'\n"
                                                  "    print(i[0] + '|' + i[2] + '|' + i[3])\n");
        return QString::fromUtf8(out).split('\n', Qt::SkipEmptyParts);
    }

    int BlockInhibitors() { return int(Inhibitors().filter("|block").size()); }

    bool EmitPrepareForSleep(bool start)
    {
        return !Script("import dbus\n"
                       "o = dbus.SystemBus().get_object('org.freedesktop.login1', "
                       "'/org/freedesktop/login1')\n"
                       "o.EmitSignal('org.freedesktop.login1.Manager', 'PrepareForSleep', 'b', "
                       "[" +
                       QString(start ? "True" : "False") +
                       "], dbus_interface='org.freedesktop.DBus.Mock')\n")
                    .isNull();
    }

private:
    static QString Manager()
    {
        return "import dbus\n"
               "m = dbus.Interface(dbus.SystemBus().get_object('org.freedesktop.login1', "
               "'/org/freedesktop/login1'), 'org.freedesktop.login1.Manager')\n";
    }
};
