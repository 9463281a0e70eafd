// The program as `cmake --install` lays it out into a folder of the test's own: a piece
// without an install rule fails here.
#include "Programs.h"
#include "PulseFixture.h"
#include "SoxTone.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "common/ProgramFiles.h"
#include "formats/CodecCatalogue.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

namespace {

const QString kPrefix = QStringLiteral("/usr");

// A PNG's width and height from its header.
QSize PngSize(const QString& path)
{
    const QByteArray bytes = ReadFile(path);
    if (bytes.size() < 24 || !bytes.startsWith("\x89PNG"))
        return {};
    return QSize(int(qFromBigEndian<quint32>(bytes.constData() + 16)),
                 int(qFromBigEndian<quint32>(bytes.constData() + 20)));
}

// The Recordings rows (title and file) in the database file, read by a connection of the
// test's own while the program may still write.
QList<QStringList> ListedRecordings(const QString& databaseFile)
{
    QList<QStringList> rows;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "installed");
        db.setDatabaseName(databaseFile);
        db.setConnectOptions("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=2000");
        QSqlQuery q(db);
        if (db.open() && q.exec("SELECT Title, File FROM Recordings"))
            while (q.next())
                rows.append({q.value(0).toString(), q.value(1).toString()});
    }
    QSqlDatabase::removeDatabase("installed");
    return rows;
}

} // namespace

class TestInstall : public QObject {
    Q_OBJECT

    QString Installed(const QString& path) const { return m_stage.path() + kPrefix + path; }

    QTemporaryDir m_stage;

private slots:
    void initTestCase()
    {
        QProcess install;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DESTDIR", m_stage.path());
        install.setProcessEnvironment(env);
        install.setProcessChannelMode(QProcess::MergedChannels);
        install.start(NIGHTREEL_CMAKE, {"--install", NIGHTREEL_BUILD_DIR, "--prefix", kPrefix});
        QVERIFY(install.waitForFinished(120000));
        QVERIFY2(install.exitCode() == 0, install.readAll().constData());
    }

    // The installed layout is recognised and every piece is where the program looks.
    void programFindsItsPieces()
    {
        const ProgramFiles files(Installed("/bin"));
        QVERIFY(files.Installed());
        QVERIFY(QFileInfo(files.TaskProgram()).isExecutable());
        for (const char* library : {"/libnightreelenc.so", "/libmixset.so"})
            QVERIFY2(QFileInfo::exists(files.LibraryFolder() + library), library);
        QVERIFY(QFileInfo::exists(files.Manual()));
        QVERIFY(QFileInfo::exists(files.DesktopEntry()));
        QVERIFY(QFileInfo::exists(files.TranslationFolder() + "/nightreel_de.qm"));
        QVERIFY(QFileInfo(Installed("/bin/nightreel-ctl")).isExecutable());
        QVERIFY(ReadFile(Installed("/share/man/man1/nightreel.1.gz")).startsWith("\x1f\x8b"));
        QVERIFY(QFileInfo::exists(Installed("/share/icons/hicolor/scalable/apps/nightreel.svg")));
        for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
            const QString folder = QString("/share/icons/hicolor/%1x%1/apps/").arg(size);
            QCOMPARE(PngSize(Installed(folder + "nightreel.png")), QSize(size, size));
        }
    }

    // The files that start the program hold where the installation put it; the validators, where
    // there is one, pass them.
    void desktopFilesAreValid_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("validator");
        QTest::addColumn<QByteArray>("holds");
        const QByteArray program = kPrefix.toUtf8() + "/bin/nightreel";
        QTest::newRow("desktop entry")
            << "/share/applications/nightreel.desktop" << QStringList{"desktop-file-validate"}
            << "\nExec=" + program + "\n";
        QTest::newRow("metainfo") << "/share/metainfo/org.larkmoor.Nightreel.metainfo.xml"
                                  << QStringList{"appstreamcli", "validate", "--no-net", "--strict"}
                                  << QByteArray();
        QTest::newRow("user service") << "/lib/systemd/user/nightreel.service" << QStringList()
                                      << "\nExecStart=" + program + " --headless\n";
        QTest::newRow("bus activation") << "/share/dbus-1/services/org.larkmoor.Nightreel1.service"
                                        << QStringList() << "\nExec=" + program + " --headless\n";
    }

    void desktopFilesAreValid()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, validator);
        QFETCH(QByteArray, holds);
        QVERIFY(ReadFile(Installed(file)).contains(holds));
        if (validator.isEmpty())
            return;
        if (QStandardPaths::findExecutable(validator[0]).isEmpty())
            QSKIP(qPrintable(validator[0] + " is not installed"));
        QByteArray errors;
        bool ok = false;
        const QByteArray out =
            RunProgram(validator.takeFirst(), validator << Installed(file), &ok, &errors);
        QVERIFY2(ok, (out + errors).constData());
    }

    // The installed program, started as a user would start it (offscreen here), with a
    // one-time MP3 program due in a few seconds on a sound server that plays a tone.
    void installedProgramRecordsConvertsAndLists()
    {
        PulseFixture pulse;
        if (!pulse.Running() || !pulse.PlayTone())
            QSKIP("no PulseAudio server of the test's own can run here");
        // A program that would cross midnight is not what is tested here.
        if (QTime::currentTime() > QTime(23, 59, 0))
            QTest::qWait(QTime::currentTime().msecsTo(QTime(23, 59, 59, 999)) + 2000);

        // The user's data and settings, as the program finds them through XDG_DATA_HOME and
        // XDG_CONFIG_HOME.
        TestContext tc;
        tc.OpenDatabase();
        const QString recordings = tc.Root() + "/recordings";
        QDir().mkpath(recordings);
        tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", recordings);
        tc.ctx->registry.SaveSetting("Settings", "ShowSplashScreen", "False");
        const QDateTime now = QDateTime::currentDateTime();
        const QDate today = now.date();
        QVariantHash row = Programs::OneTime(
            "Night news", Programs::At(today.year(), today.month(), today.day(), "00:00:00"),
            now.addSecs(6).toString("HH:mm:ss"), now.addSecs(10).toString("HH:mm:ss"));
        const WaveFormatRecord mp3 =
            *WaveFormatRecord::Decode(CodecCatalogue::Mp3Record(1, 22050, 32));
        row.insert({{"wfx_wFormatTag", mp3.wFormatTag},
                    {"wfx_nChannels", mp3.nChannels},
                    {"wfx_nSamplesPerSec", mp3.nSamplesPerSec},
                    {"wfx_nAvgBytesPerSec", mp3.nAvgBytesPerSec},
                    {"wfx_nBlockAlign", mp3.nBlockAlign},
                    {"wfx_nBitsPerSample", mp3.nBitsPerSample},
                    {"wfx_cbSize", mp3.cbSize},
                    {"wfxExtra", mp3.extra},
                    // Converted to MP3 after the recording, into a file named .MP3.
                    {"Flags", 3}});
        tc.AddProgram(row);
        tc.ctx.reset();
        const QString dataHome = tc.Root() + "/data-home";
        QDir().mkpath(dataHome + "/Larkmoor Systems");
        QVERIFY(QFile::link(tc.Root() + "/data", dataHome + "/Larkmoor Systems/Nightreel"));

        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_DATA_HOME", dataHome);
        env.insert("XDG_CONFIG_HOME", tc.Root() + "/config");
        env.insert("QT_QPA_PLATFORM", "offscreen");
        program.setProcessEnvironment(env);
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(Installed("/bin/nightreel"), {});
        QVERIFY(program.waitForStarted(5000));
        const QString database = tc.Root() + "/data/nightreel.db";
        QTRY_VERIFY_WITH_TIMEOUT(!ListedRecordings(database).isEmpty() ||
                                     program.state() == QProcess::NotRunning,
                                 60000);
        const QList<QStringList> listed = ListedRecordings(database);
        QCOMPARE(listed.size(), 1);
        QCOMPARE(listed.first().first(), QString("Night news"));
        const QString file = listed.first().last();
        QVERIFY2(file.startsWith(recordings) && file.endsWith(".MP3"), qPrintable(file));
        // The capture goes once it is converted.
        QTRY_COMPARE(QDir(recordings).entryList(QDir::Files),
                     QStringList{QFileInfo(file).fileName()});
        program.terminate();
        program.waitForFinished(5000);
        const Mp3Tone tone = DecodeMp3(ReadFile(file), tc.Root() + "/decoded");
        QVERIFY(tone.ok);
        QVERIFY2(tone.rms > 0.1 && std::abs(tone.frequency - 1000) < 100,
                 qPrintable(QString("rms %1, %2 Hz").arg(tone.rms).arg(tone.frequency)));
    }
};

QTEST_GUILESS_MAIN(TestInstall)
#include "test_install.moc"
