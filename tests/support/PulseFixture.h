#pragma once

#include "Pactl.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <list>
#include <optional>
#include <sys/types.h>

// A PulseAudio server of the test's own, in a temporary runtime folder and home: a null sink
// "recsink" whose monitor is remapped to the default source "recmic". What is played into the
// sink is what a recording hears. The environment of the test process (and so of the tasks
// it starts) points at this server while the fixture lives. With NIGHTREEL_TEST_SOUND_SERVER
// set to "pipewire" the server is PipeWire's PulseAudio layer instead, as on most desktops
// today.
class PulseFixture {
public:
    PulseFixture()
    {
        for (const char* name :
             {"XDG_RUNTIME_DIR", "HOME", "PULSE_SERVER", "DBUS_SESSION_BUS_ADDRESS"})
            m_saved.emplace_back(name, qEnvironmentVariableIsSet(name)
                                           ? std::optional<QByteArray>(qgetenv(name))
                                           : std::nullopt);
        qputenv("XDG_RUNTIME_DIR", m_dir.path().toUtf8());
        qputenv("HOME", m_dir.path().toUtf8());
        qunsetenv("PULSE_SERVER");
        // Explicit, so that no client ever tries to start a server of its own.
        const QByteArray server = ("unix:" + m_dir.path() + "/pulse/native").toUtf8();
        if (qgetenv("NIGHTREEL_TEST_SOUND_SERVER") == "pipewire") {
            qputenv("PULSE_SERVER", server);
            m_running = StartPipeWire();
            return;
        }
        const int rc = QProcess::execute(
            "pulseaudio",
            {"--daemonize=yes", "-n", "--exit-idle-time=-1", "--disallow-exit",
             "--load=module-native-protocol-unix", "--load=module-null-sink sink_name=recsink",
             "--load=module-remap-source source_name=recmic master=recsink.monitor"});
        m_running = rc == 0;
        qputenv("PULSE_SERVER", server);
    }

    ~PulseFixture()
    {
        Stop();
        for (const auto& [name, value] : m_saved) {
            if (value)
                qputenv(name, *value);
            else
                qunsetenv(name);
        }
    }

    // Ends the server, as if the sound system went away.
    void Stop()
    {
        StopTone();
        for (QProcess& daemon : m_pipeWire)
            EndProcess(daemon);
        QFile pidFile(m_dir.path() + "/pulse/pid");
        if (!pidFile.open(QIODevice::ReadOnly))
            return;
        const pid_t pid = pid_t(pidFile.readAll().trimmed().toInt());
        if (pid <= 0)
            return;
        ::kill(pid, SIGTERM);
        for (int i = 0; i < 50 && ::kill(pid, 0) == 0; ++i)
            QTest::qSleep(50);
    }

    bool Running() const { return m_running; }
    QString Folder() const { return m_dir.path(); }

    // Plays a 1 kHz sine of amplitude 0.5 into the sink for the fixture's life. A capture
    // stream opened soon after a player joins the sink gets its first sound late (the null
    // sink settles its timing first), so one short capture runs here to get that over with.
    bool PlayTone()
    {
        m_synth.setStandardOutputProcess(&m_player);
        m_synth.start("sox", {"-n", "-t", "raw", "-r", "44100", "-c", "2", "-b", "16", "-e",
                              "signed", "-", "synth", "600", "sine", "1000", "vol", "0.5"});
        // With its default buffer of about two seconds the player makes the null sink, and so
        // its monitor, move sound in blocks that long: a capture would get its first sound
        // late, as no sound card would give it.
        m_player.start("pacat", {"--device=recsink", "--latency-msec=50", "--rate=44100",
                                 "--channels=2", "--format=s16le"});
        if (!m_synth.waitForStarted(3000) || !m_player.waitForStarted(3000))
            return false;
        QProcess warmUp;
        warmUp.start("parecord", {"--latency-msec=100", "--raw", "/dev/null"});
        warmUp.waitForStarted(3000);
        QTest::qWait(2500);
        warmUp.kill();
        warmUp.waitForFinished(3000);
        return m_player.state() == QProcess::Running;
    }

    void StopTone()
    {
        for (QProcess* p : {&m_player, &m_synth}) {
            if (p->state() != QProcess::NotRunning) {
                p->kill();
                p->waitForFinished(3000);
            }
        }
    }

private:
    // Its session manager wants a session bus: one of its own comes first, and the last
    // daemon is the PulseAudio layer. The sink and source are made as PulseAudio makes them,
    // once the session manager has taken the default source.
    bool StartPipeWire()
    {
        QProcess& bus = m_pipeWire.emplace_back();
        bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        if (!bus.waitForStarted(3000) || !bus.waitForReadyRead(5000))
            return false;
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
        for (const char* daemon : {"pipewire", "wireplumber", "pipewire-pulse"}) {
            m_pipeWire.emplace_back().start(daemon, {});
            if (!m_pipeWire.back().waitForStarted(3000))
                return false;
        }
        // The server takes requests a moment after it starts, the default a moment later.
        const auto retried = [](const QStringList& args) {
            for (int i = 0; i < 100; ++i, QTest::qWait(100))
                if (Pactl::Run(args))
                    return true;
            return false;
        };
        return retried({"info"}) &&
               Pactl::Run({"load-module", "module-null-sink", "sink_name=recsink"}) &&
               Pactl::Run({"load-module", "module-remap-source", "source_name=recmic",
                           "master=recsink.monitor"}) &&
               retried({"set-default-source", "recmic"});
    }

    QTemporaryDir m_dir;
    // The bus and the daemons of PipeWire, in their order of start.
    std::list<QProcess> m_pipeWire;
    bool m_running = false;
    QProcess m_synth;
    QProcess m_player;
    std::vector<std::pair<const char*, std::optional<QByteArray>>> m_saved;
};
