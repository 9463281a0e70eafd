#pragma once

#include "SystemBusStandIn.h"

// NetworkManager's stand-in on a system bus of the test's own. Connections are added and the
// deactivations it was asked for read back.
class NetworkManagerStandIn : public SystemBusStandIn {
public:
    NetworkManagerStandIn()
        : SystemBusStandIn("networkmanager",
                           "import dbus; dbus.SystemBus().get_object("
                           "'org.freedesktop.NetworkManager', '/org/freedesktop/"
                           "NetworkManager').Get('org.freedesktop.NetworkManager', "
                           "'Version', dbus_interface='org.freedesktop.DBus.Properties')")
    {
    }

    // Adds an active connection of the given kind (with a bluetooth profile when given);
    // returns its path, or "" on failure.
    QString AddActiveConnection(const QString& name, const QString& type,
                                const QString& bluetoothType = {})
    {
        const QString extra =
            bluetoothType.isEmpty() ? "" : ", 'bluetooth': {'type': '" + bluetoothType + "'}";
        return QString::fromUtf8(
            Script("import dbus\n"
                   "bus = dbus.SystemBus()\n"
                   "nm = 'org.freedesktop.NetworkManager'\n"
                   "s = dbus.Interface(bus.get_object(nm, '/org/freedesktop/NetworkManager/"
                   "Settings'), nm + '.Settings')\n"
                   "m = dbus.Interface(bus.get_object(nm, '/org/freedesktop/NetworkManager'), "
                   "'org.freedesktop.DBus.Mock')\n"
                   "path = s.AddConnection(dbus.Dictionary({'connection': {'id': '" +
                   name + "', 'uuid': '" + name + "', 'type': '" + type + "'}" + extra +
                   "}, signature='sa{sv}'))\n"
                   "print(m.AddActiveConnection(dbus.Array([], signature='s'), path, '/', '" +
                   name + "', dbus.UInt32(2)))\n")
                .trimmed());
    }

    // The connections the manager was asked to deactivate, in order.
    QStringList Deactivated()
    {
        const QByteArray out =
            Script("import dbus\n"
                   "m = dbus.Interface(dbus.SystemBus().get_object('org.freedesktop."
                   "NetworkManager', '/org/freedesktop/NetworkManager'), "
                   "'org.freedesktop.DBus.Mock')\n"
                   "for call in m.GetCalls():\n"
                   "    if call[1] == 'DeactivateConnection':\n"
                   "        print(call[2][0])\n");
        return QString::fromUtf8(out).split('\n', Qt::SkipEmptyParts);
    }
};
