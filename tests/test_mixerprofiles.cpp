// The mixer profiles, the master volume and the mixer application as the program uses them,
// with the real mixer library against a PulseAudio server of the test's own.
#include "MemoryLog.h"
#include "Pactl.h"
#include "PulseFixture.h"
#include "ScriptedMessageBox.h"
#include "TestFiles.h"
#include "diagnostics/Trap.h"
#include "platform/DetachedProcessLauncher.h"
#include "platform/MixsetMixer.h"
#include "sideactions/LaunchMixer.h"
#include "sideactions/MixerProfiles.h"
#include "sideactions/Volume.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using namespace Pactl;

namespace {

// Points the process at a server that is not there while it lives.
class NoServer {
public:
    NoServer()
        : m_saved(qgetenv("PULSE_SERVER"))
    {
        qputenv("PULSE_SERVER", "unix:/nonexistent/pulse/native");
    }
    ~NoServer() { qputenv("PULSE_SERVER", m_saved); }

private:
    QByteArray m_saved;
};

// The profiles in a folder of their own, over the real mixer library of this build, logging
// into memory.
struct Parts {
    QTemporaryDir dir;
    MemoryLog log;
    ScriptedMessageBox messageBox;
    MixsetMixer mixer{QStringLiteral(NIGHTREEL_MIXSET_DIR)};
    MixerProfiles profiles{log.log, mixer, dir.path() + "/mixer"};
};

} // namespace

class TestMixerProfiles : public QObject {
    Q_OBJECT

    std::unique_ptr<PulseFixture> m_pulse;
    std::unique_ptr<Parts> m_parts;

    MixerProfiles& Profiles() { return m_parts->profiles; }

private slots:
    void initTestCase()
    {
        m_pulse = std::make_unique<PulseFixture>();
        QVERIFY2(m_pulse->Running(), "the test's own PulseAudio server did not start");
    }

    // Fresh parts and the server as the fixture starts it.
    void init()
    {
        m_parts = std::make_unique<Parts>();
        QVERIFY(Run({"set-sink-volume", "recsink", "100%"}));
        QVERIFY(Run({"set-source-volume", "recmic", "100%"}));
        QVERIFY(Run({"set-source-mute", "recmic", "0"}));
        QVERIFY(Run({"set-default-sink", "recsink"}));
        QVERIFY(Run({"set-default-source", "recmic"}));
    }

    void cleanup() { m_parts.reset(); }
    void cleanupTestCase() { m_pulse.reset(); }

    // A profile that is missing or empty is no error; one the library refuses, or a save
    // without a server, is logged with the library's number and asks nothing.
    void failuresAreLogged_data()
    {
        QTest::addColumn<bool>("save");
        QTest::addColumn<QByteArray>("content"); // empty: a file of no length
        QTest::addColumn<bool>("serverGone");
        QTest::addColumn<QString>("logged"); // a warning's message and details
        const QByteArray profile = "nightreel-mixer-profile 1\n";
        QTest::newRow("empty file") << false << QByteArray() << false << QString();
        QTest::newRow("server gone")
            << false << profile << true << "Error activating mixer profile: Error number = 1";
        QTest::newRow("not a profile") << false << QByteArray("garbage\n") << false
                                       << "Error activating mixer profile: Error number = 3";
        QTest::newRow("saved without a server")
            << true << profile << true << "Error saving mixer profile: Error number = 1";
    }
    void failuresAreLogged()
    {
        QFETCH(bool, save);
        QFETCH(QByteArray, content);
        QFETCH(bool, serverGone);
        QFETCH(QString, logged);
        QDir().mkpath(Profiles().Folder());
        QVERIFY(WriteFile(Profiles().PathOf("Broken"), content));
        QCOMPARE(Profiles().Names(), QStringList{"Broken"});
        {
            std::optional<NoServer> noServer;
            if (serverGone)
                noServer.emplace();
            if (save)
                QCOMPARE(Profiles().SaveMixerProfile("Night", m_parts->messageBox),
                         MixerProfiles::SaveOutcome::Failed);
            else
                Profiles().ActivateMixerProfile("Broken");
        }
        QVERIFY(m_parts->messageBox.asked.isEmpty());
        const QList<LogEntry>& entries = m_parts->log.entries;
        if (logged.isEmpty()) {
            QVERIFY(entries.isEmpty());
            QVERIFY(!QFile::exists(Profiles().PathOf("Broken")));
            return;
        }
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries[0].type, 1);
        QCOMPARE(entries[0].message + ": " + entries[0].details, logged);
        QVERIFY(QFile::exists(Profiles().PathOf("Broken")));
    }

    void missingLibraryIsTrapped()
    {
        MixsetMixer absent(m_parts->dir.path() + "/no library here");
        MixerProfiles profiles(m_parts->log.log, absent, Profiles().Folder());
        QDir().mkpath(profiles.Folder());
        QVERIFY(WriteFile(profiles.PathOf("Any"), "nightreel-mixer-profile 1\n"));
        Trap(m_parts->log.log, "test", [&] { profiles.ActivateMixerProfile("Any"); });
        Trap(m_parts->log.log, "test", [&] { Volume::GetVolume(absent); });
        Trap(m_parts->log.log, "test", [&] { Volume::SetVolume(absent, 50); });
        const QList<LogEntry>& entries = m_parts->log.entries;
        QCOMPARE(entries.size(), 3);
        const QStringList routines{"Activate Mixer Profile", "GetVolume", "SetVolume"};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(entries[i].message, QString("Nightreel 2000 Runtime Error"));
            QVERIFY2(entries[i].details.contains("Module: " + routines[i]),
                     qPrintable(entries[i].details));
        }
    }

    // The name typed is checked before anything is written; an existing profile is replaced
    // only when the user agrees.
    void saveRules_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QList<MsgResult>>("answers");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<int>("outcome");
        const int kept = int(MixerProfiles::SaveOutcome::Kept);
        QTest::newRow("bad character") << "a/b" << QList<MsgResult>{}
                                       << "cannot contain any of the following characters:\r\n"
                                          "\\ / : * ? \" < > | "
                                       << kept;
        QTest::newRow("blank") << "   " << QList<MsgResult>{} << "cannot be blank" << kept;
        QTest::newRow("existing, No")
            << " Old" << QList<MsgResult>{MsgResult::No} << "overwrite existing profile" << kept;
        QTest::newRow("existing, Yes")
            << "Old " << QList<MsgResult>{MsgResult::Yes} << "overwrite existing profile"
            << int(MixerProfiles::SaveOutcome::Overwritten);
    }

    void saveRules()
    {
        QFETCH(QString, typed);
        QFETCH(QList<MsgResult>, answers);
        QFETCH(QString, asked);
        QFETCH(int, outcome);
        QDir().mkpath(Profiles().Folder());
        const QByteArray old = "nightreel-mixer-profile 1\n";
        QVERIFY(WriteFile(Profiles().PathOf("Old"), old));
        m_parts->messageBox.answers = answers;

        QCOMPARE(int(Profiles().SaveMixerProfile(typed, m_parts->messageBox)), outcome);
        QCOMPARE(m_parts->messageBox.asked.size(), 1);
        QVERIFY2(m_parts->messageBox.asked[0].text.contains(asked),
                 qPrintable(m_parts->messageBox.asked[0].text));
        const bool replaced = ReadFile(Profiles().PathOf("Old")) != old;
        QCOMPARE(replaced, outcome == int(MixerProfiles::SaveOutcome::Overwritten));
        QCOMPARE(Profiles().Names(), QStringList{"Old"});
    }

    // The wrapper clamps what it sets and reads to 0..100; without a server it changes nothing
    // and logs nothing.
    void masterVolume_data()
    {
        QTest::addColumn<bool>("server");
        QTest::addColumn<QStringList>("before"); // pactl's volumes of the default sink
        QTest::addColumn<int>("read");
        QTest::addColumn<int>("set");
        QTest::addColumn<int>("after"); // per cent of every channel after SetVolume
        QTest::newRow("amplified reads the top")
            << true << QStringList{"150%"} << 100 << 150 << 100;
        QTest::newRow("150 sets the normal volume")
            << true << QStringList{"20%", "80%"} << 20 << 150 << 100;
        QTest::newRow("-5 sets silence") << true << QStringList{"50%"} << 50 << -5 << 0;
        QTest::newRow("no server") << false << QStringList{"42%"} << -1 << 80 << 42;
    }

    void masterVolume()
    {
        QFETCH(bool, server);
        QFETCH(QStringList, before);
        QFETCH(int, set);
        QFETCH(int, after);
        QVERIFY(Run(QStringList{"set-sink-volume", "recsink"} + before));
        {
            std::optional<NoServer> noServer;
            if (!server)
                noServer.emplace();
            QTEST(Volume::GetVolume(m_parts->mixer), "read");
            QCOMPARE(Volume::SetVolume(m_parts->mixer, set), server);
        }
        const Volumes volumes = VolumesOf("sink", "recsink");
        QCOMPARE(volumes.size(), 2);
        for (uint channel : volumes)
            QVERIFY2(std::abs(double(channel) - after * 65536 / 100.0) <= 1.0,
                     qPrintable(QString::number(channel)));
        QVERIFY(m_parts->log.entries.isEmpty());
    }

    // The mixer path is one program, blanks and quotes included; one that can't be started
    // is logged and nothing is shown.
    void launchMixer_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("executable");
        QTest::newRow("blanks in the path") << "sound mixer --tab 3" << true;
        QTest::newRow("a quote in the path") << "my \"mixer\"" << true;
        QTest::newRow("not executable") << "mixer" << false;
        QTest::newRow("gone") << "" << false;
    }

    void launchMixer()
    {
        QFETCH(QString, name);
        QFETCH(bool, executable);
        const QString folder = m_parts->dir.path() + "/mixer app";
        QDir().mkpath(folder);
        const QString program = folder + "/" + (name.isEmpty() ? "vanished" : name);
        const QString ran = m_parts->dir.path() + "/ran";
        if (!name.isEmpty()) {
            QVERIFY(WriteFile(program, ("#!/bin/sh\necho \"$#\" > '" + ran + "'\n").toUtf8()));
            if (executable)
                QFile::setPermissions(program, QFile::permissions(program) | QFile::ExeOwner);
        }
        DetachedProcessLauncher launcher;
        LaunchMixer(m_parts->log.log, launcher, program);

        const QList<LogEntry>& entries = m_parts->log.entries;
        QVERIFY(m_parts->messageBox.asked.isEmpty());
        if (executable) {
            QVERIFY(entries.isEmpty());
            // The script writes how many arguments it was given: none.
            const auto written = [&] {
                QFile file(ran);
                return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
            };
            QTRY_COMPARE_WITH_TIMEOUT(written(), QByteArray("0"), 5000);
            return;
        }
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries[0].type, 2);
        QCOMPARE(entries[0].message, QString("Mixer Control Not Found"));
        // Where to get a mixer: the sound server's own, or one set in the options.
        QVERIFY(entries[0].details.contains("(package pavucontrol)"));
        QVERIFY(entries[0].details.contains("Modify mixer control"));
    }
};

QTEST_GUILESS_MAIN(TestMixerProfiles)
#include "test_mixerprofiles.moc"
