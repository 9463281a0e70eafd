#pragma once

#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

// A system bus of the test's own (its address in DBUS_SYSTEM_BUS_ADDRESS while the object
// lives) with one of python-dbusmock's stand-ins on it, given by its template name. It is
// ready once the probe script succeeds; the calls it received are read back, and its
// signals sent, through small Python scripts on the same bus. A desktop service's stand-in
// gets a session bus of its own in the same way (DBUS_SESSION_BUS_ADDRESS).
class SystemBusStandIn {
public:
    enum class Bus { System, Session };

    SystemBusStandIn(const QString& mockTemplate, const QString& probe, Bus bus = Bus::System)
        : m_variable(bus == Bus::System ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS")
    {
        if (qEnvironmentVariableIsSet(m_variable))
            m_saved = qgetenv(m_variable);
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
        qputenv(m_variable, address);
        m_mock.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_mock.start(Python(), {"-m", "dbusmock", bus == Bus::System ? "--system" : "--session",
                                "--template", mockTemplate});
        if (!m_mock.waitForStarted(5000))
            return;
        for (int i = 0; i < 100 && !m_running; ++i) {
            m_running = !Script(probe).isNull();
            if (!m_running)
                QTest::qWait(100);
        }
    }

    ~SystemBusStandIn()
    {
        EndProcess(m_mock);
        EndProcess(m_bus);
        if (m_saved)
            qputenv(m_variable, *m_saved);
        else
            qunsetenv(m_variable);
    }

    bool Running() const { return m_running; }

protected:
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

private:
    const char* m_variable;
    QTemporaryDir m_dir;
    QProcess m_bus;
    QProcess m_mock;
    std::optional<QByteArray> m_saved;
    bool m_running = false;
};
