// The mixer library as the program uses it: loaded by name from the build folder, driving a
// PulseAudio server of the test's own; what it changes is read back with pactl.
#include "Pactl.h"
#include "PulseFixture.h"
#include "mixset.h"

#include <QElapsedTimer>
#include <QLibrary>
#include <QScopeGuard>
#include <QTest>
#include <csignal>
#include <memory>
#include <utility>

using namespace Pactl;

namespace {

const QByteArray Header = "nightreel-mixer-profile 1\n";

} // namespace

class TestMixset : public QObject {
    Q_OBJECT

    // Resolved by name, as the program does.
    QLibrary m_library{QStringLiteral(MIXSET_DIR "/mixset")};
    int (*Load)(const char*) = nullptr;
    int (*Save)(const char*) = nullptr;
    int (*GetMaster)() = nullptr;
    int (*SetMaster)(int) = nullptr;

    // One server for all cases, as starting and stopping one takes seconds; init() puts its
    // mixer back to where the fixture starts it.
    std::unique_ptr<PulseFixture> m_pulse;
    QString m_secondSink; // the module of the second null sink, while loaded
    QTemporaryDir m_files;

    QByteArray PathOf(const QString& name) const
    {
        return QFile::encodeName(m_files.filePath(name));
    }

    void LoadSecondSink()
    {
        QByteArray module;
        QVERIFY(Run({"load-module", "module-null-sink", "sink_name=second"}, &module));
        m_secondSink = QString::fromUtf8(module);
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
        Load = reinterpret_cast<int (*)(const char*)>(m_library.resolve("LoadMixerFile"));
        Save = reinterpret_cast<int (*)(const char*)>(m_library.resolve("SaveMixerFile"));
        GetMaster = reinterpret_cast<int (*)()>(m_library.resolve("GetMasterVolume"));
        SetMaster = reinterpret_cast<int (*)(int)>(m_library.resolve("SetMasterVolume"));
        QVERIFY(Load && Save && GetMaster && SetMaster);
    }

    void init()
    {
        if (!m_pulse)
            m_pulse = std::make_unique<PulseFixture>();
        QVERIFY2(m_pulse->Running(), "the test's own PulseAudio server did not start");
        if (!m_secondSink.isEmpty())
            QVERIFY(Run({"unload-module", std::exchange(m_secondSink, QString())}));
        QVERIFY(Run({"set-sink-volume", "recsink", "100%"}));
        QVERIFY(Run({"set-source-volume", "recmic", "100%"}));
        QVERIFY(Run({"set-source-mute", "recmic", "0"}));
        QVERIFY(Run({"set-default-sink", "recsink"}));
        QVERIFY(Run({"set-default-source", "recmic"}));
    }

    void cleanupTestCase() { m_pulse.reset(); }

    void savedMixerComesBackExactly()
    {
        LoadSecondSink();
        QVERIFY(Run({"set-source-volume", "recmic", "30%", "70%"}));
        QVERIFY(Run({"set-source-mute", "recmic", "1"}));
        QVERIFY(Run({"set-sink-volume", "recsink", "45%", "55%"}));
        QVERIFY(Run({"set-default-sink", "second"}));
        const Volumes mic = VolumesOf("source", "recmic");
        const Volumes speakers = VolumesOf("sink", "recsink");
        QCOMPARE(mic.size(), 2);
        QVERIFY(mic.first() != mic.last());

        const QByteArray profile = PathOf("evening.mxr");
        QCOMPARE(Save(profile), MIXSET_OK);

        QVERIFY(Run({"set-source-volume", "recmic", "100%"}));
        QVERIFY(Run({"set-source-mute", "recmic", "0"}));
        QVERIFY(Run({"set-sink-volume", "recsink", "100%"}));
        QVERIFY(Run({"set-default-sink", "recsink"}));
        QVERIFY(Run({"set-default-source", "recsink.monitor"}));

        QCOMPARE(Load(profile), MIXSET_OK);
        QCOMPARE(VolumesOf("source", "recmic"), mic);
        QVERIFY(MutedOf("source", "recmic"));
        QCOMPARE(VolumesOf("sink", "recsink"), speakers);
        QCOMPARE(DefaultOf("sink"), "second");
        QCOMPARE(DefaultOf("source"), "recmic");
    }

    // Profiles written by hand to the documented format; recmic starts at 100 %, unmuted.
    void handWrittenProfile_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("result");
        QTest::addColumn<Volumes>("mic");
        QTest::addColumn<bool>("muted");
        QTest::newRow("escaped name")
            << QByteArray("source rec%6Dic front-left,front-right - 1 1000 2000\n") << 0
            << Volumes{{"front-left", 1000}, {"front-right", 2000}} << true;
        QTest::newRow("devices not there are skipped")
            << QByteArray("card no%20such%20card output:stereo\n"
                          "sink gone front-left - 0 5\n"
                          "source recmic front-left,front-right - 0 3000 4000\n"
                          "default-sink gone\ndefault-source gone.monitor\n")
            << 0 << Volumes{{"front-left", 3000}, {"front-right", 4000}} << false;
        QTest::newRow("channels matched by position")
            << QByteArray("source recmic front-right,front-left - 0 1000 2000\n") << 0
            << Volumes{{"front-left", 2000}, {"front-right", 1000}} << false;
        QTest::newRow("a port the device lacks is refused, the rest applied")
            << QByteArray("source recmic front-left,front-right line-in 1 5000 6000\n")
            << int(MIXSET_ERR_OPERATION_FAILED)
            << Volumes{{"front-left", 5000}, {"front-right", 6000}} << true;
    }

    void handWrittenProfile()
    {
        QFETCH(QByteArray, body);
        QFETCH(int, result);
        QFETCH(Volumes, mic);
        QFETCH(bool, muted);
        QFile file(m_files.filePath("by hand.mxr"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(Header + body);
        file.close();

        QCOMPARE(Load(QFile::encodeName(file.fileName())), result);
        QCOMPARE(VolumesOf("source", "recmic"), mic);
        QCOMPARE(MutedOf("source", "recmic"), muted);
        QCOMPARE(DefaultOf("sink"), "recsink");
    }

    void badFileChangesNothing_data()
    {
        const QByteArray good = Header + "source recmic front-left,front-right - 1 1000 1000\n";
        QTest::addColumn<QByteArray>("content"); // null: no file at all
        QTest::addColumn<bool>("folder");
        QTest::addColumn<int>("result");
        QTest::newRow("missing") << QByteArray() << false << int(MIXSET_ERR_FILE_UNREADABLE);
        QTest::newRow("a folder") << QByteArray() << true << int(MIXSET_ERR_FILE_UNREADABLE);
        QTest::newRow("empty") << QByteArray("") << false << int(MIXSET_ERR_FILE_MALFORMED);
        QTest::newRow("a later version") << QByteArray(good).replace("profile 1", "profile 2")
                                         << false << int(MIXSET_ERR_FILE_MALFORMED);
        QTest::newRow("a volume short, after a good line")
            << good + "source recsink.monitor front-left,front-right - 0 7\n"
            << false << int(MIXSET_ERR_FILE_MALFORMED);
        QTest::newRow("volume out of range") << good + "sink recsink mono - 0 4294967295\n"
                                             << false << int(MIXSET_ERR_FILE_MALFORMED);
        QTest::newRow("broken escape") << good + "default-sink rec%7\n"
                                       << false << int(MIXSET_ERR_FILE_MALFORMED);
        QTest::newRow("unescaped tab") << good + "default-sink rec\tsink\n"
                                       << false << int(MIXSET_ERR_FILE_MALFORMED);
        QTest::newRow("an unknown keyword") << good + "default-mic recmic\n"
                                            << false << int(MIXSET_ERR_FILE_MALFORMED);
    }

    void badFileChangesNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, folder);
        QFETCH(int, result);
        const QString path = m_files.filePath("bad.mxr");
        QDir(path).removeRecursively();
        QFile::remove(path);
        if (folder) {
            QVERIFY(QDir().mkpath(path));
        } else if (!content.isNull()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        const Volumes mic = VolumesOf("source", "recmic");

        QCOMPARE(Load(QFile::encodeName(path)), result);
        QCOMPARE(VolumesOf("source", "recmic"), mic);
        QVERIFY(!MutedOf("source", "recmic"));
    }

    // The master volume is the default sink's: its first channel read; every channel of it set
    // (0.42 * 65536, rounded) and no other sink.
    void masterVolumeIsTheDefaultSinks()
    {
        LoadSecondSink();
        QVERIFY(Run({"set-default-sink", "second"}));
        QVERIFY(Run({"set-sink-volume", "recsink", "90%"}));
        QVERIFY(Run({"set-sink-volume", "second", "37%", "80%"}));
        QCOMPARE(GetMaster(), 37);
        const Volumes other = VolumesOf("sink", "recsink");

        QCOMPARE(SetMaster(42), 1);
        QCOMPARE(VolumesOf("sink", "second"),
                 (Volumes{{"front-left", 27525u}, {"front-right", 27525u}}));
        QCOMPARE(VolumesOf("sink", "recsink"), other);
    }

    void saveIntoMissingFolderFails()
    {
        QCOMPARE(Save(PathOf("gone/evening.mxr")), MIXSET_ERR_WRITE_FAILED);
    }

    // A frozen server (the process stopped) never answers: every call must give up on its own
    // rather than hang the recording that called it. (A server that is gone: the wrapper's test.)
    void aFrozenServerFailsWithoutHanging()
    {
        const QByteArray profile = PathOf("saved.mxr");
        const QByteArray unsaved = PathOf("unsaved.mxr");
        QCOMPARE(Save(profile), MIXSET_OK);
        QFile pidFile(m_pulse->Folder() + "/pulse/pid");
        QVERIFY(pidFile.open(QIODevice::ReadOnly));
        const pid_t server = pid_t(pidFile.readAll().trimmed().toInt());
        QVERIFY(server > 0);
        QCOMPARE(::kill(server, SIGSTOP), 0);
        // The next case gets a server of its own.
        const auto thaw = qScopeGuard([&] {
            ::kill(server, SIGCONT);
            m_secondSink.clear();
            m_pulse.reset();
        });

        QElapsedTimer timer;
        timer.start();
        QCOMPARE(GetMaster(), -1);
        QCOMPARE(SetMaster(50), 0);
        QCOMPARE(Load(profile), MIXSET_ERR_NO_SERVER);
        QCOMPARE(Save(unsaved), MIXSET_ERR_NO_SERVER);
        QVERIFY2(timer.elapsed() < 4 * (MIXSET_TIMEOUT_MS + 1000),
                 qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!QFile::exists(QFile::decodeName(unsaved)));
    }
};

QTEST_GUILESS_MAIN(TestMixset)
#include "test_mixset.moc"
