#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

// A system bus of the test's own (its address in DBUS_SYSTEM_BUS_ADDRESS while the object
// lives) with NetworkManager's stand-in from python-dbusmock on it. Connections are added
// and the calls it received read back through small Python scripts on the same bus.
class NetworkManagerStandIn {
public:
    NetworkManagerStandIn()
    {
        if (qEnvironmentVariableIsSet("DBUS_SYSTEM_BUS_ADDRESS"))
            m_saved = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
        const QString config = m_dir.path() + "/system.conf";
        QFile f(config);
        if (!f.open(QIODevice::WriteOnly))
            return;
        f.write(("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration "
                 "1.0//EN\" \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                 "<busconfig><type>session</type><listen>unix:path=" +
                 m_dir.path() +
                 "/system_bus_socket</listen><auth>EXTERNAL</auth>"
                 "<policy context=\"default\"><allow user=\"*\"/><allow own=\"*\"/>"
                 "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/>"
                 "<allow send_type=\"method_call\"/></policy></busconfig>\n")
                    .toUtf8());
        f.close();
        m_bus.start("dbus-daemon", {"--config-file=" + config, "--nofork", "--print-address"});
        if (!m_bus.waitForStarted(5000) || !m_bus.waitForReadyRead(5000))
            return;
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        m_mock.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_mock.start(Python(), {"-m", "dbusmock", "--system", "--template", "networkmanager"});
        if (!m_mock.waitForStarted(5000))
            return;
        // Ready once the manager answers.
        for (int i = 0; i < 100 && !m_running; ++i) {
            m_running = !Script("import dbus; dbus.SystemBus().get_object("
                                "'org.freedesktop.NetworkManager', '/org/freedesktop/"
                                "NetworkManager').Get('org.freedesktop.NetworkManager', "
                                "'Version', dbus_interface='org.freedesktop.DBus.Properties')")
                             .isNull();
            if (!m_running)
                QTest::qWait(100);
        }
    }

    ~NetworkManagerStandIn()
    {
        for (QProcess* p : {&m_mock, &m_bus}) {
            p->terminate();
            if (!p->waitForFinished(3000))
                p->kill();
        }
        if (m_saved)
            qputenv("DBUS_SYSTEM_BUS_ADDRESS", *m_saved);
        else
            qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    }

    bool Running() const { return m_running; }

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

private:
    // The Python that has dbusmock: the system's, whatever else comes first in PATH.
    static QString Python()
    {
        return QFile::exists("/usr/bin/python3") ? QString("/usr/bin/python3")
                                                 : QStandardPaths::findExecutable("python3");
    }

    // A null result when the script fails.
    QByteArray Script(const QString& code)
    {
        QProcess p;
        p.start(Python(), {"-c", code});
        if (!p.waitForFinished(10000) || p.exitCode() != 0)
            return {};
        const QByteArray out = p.readAllStandardOutput();
        return out.isNull() ? QByteArray("") : out;
    }

    QTemporaryDir m_dir;
    QProcess m_bus;
    QProcess m_mock;
    std::optional<QByteArray> m_saved;
    bool m_running = false;
};
