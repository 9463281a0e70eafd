// The recorder without a window and its command line, as the user runs them: separate
// processes on a session bus of the test's own (ctest runs this under dbus-run-session),
// recording a tone from a sound server of the test's own.
#include "PulseFixture.h"
#include "ScriptedMessageBox.h"
#include "SoxTone.h"
#include "TestParts.h"
#include "shell/InstanceLock.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run {
    int exitCode = -1;
    QString out;
    QString err;
};

// The signals of the recorder, as a client on the bus sees them.
class SignalRecord : public QObject {
    Q_OBJECT
public:
    QStringList started;
    QList<QVariantList> ended;
    QStringList modes;

public slots:
    void RecordingStarted(const QString& description, const QString& file)
    {
        started << description + u'|' + file;
    }
    void RecordingEnded(const QString& file, bool ok, const QString& reason)
    {
        ended << QVariantList{file, ok, reason};
    }
    void ModeChanged(const QString& mode) { modes << mode; }
};

} // namespace

class TestHeadless : public QObject {
    Q_OBJECT

    QTemporaryDir m_home;
    std::unique_ptr<PulseFixture> m_pulse;
    QProcess m_recorder;
    SignalRecord m_signals;

    // No display of any kind: what a service started at boot has.
    QProcessEnvironment Environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            env.remove(QString::fromLatin1(name));
        return env;
    }

    Run Ctl(const QStringList& arguments, const QProcessEnvironment* env = nullptr)
    {
        QProcess ctl;
        ctl.setProcessEnvironment(env ? *env : Environment());
        ctl.start(NIGHTREEL_CTL_PATH, arguments);
        ctl.waitForFinished(90000);
        return {ctl.exitStatus() == QProcess::NormalExit ? ctl.exitCode() : -1,
                QString::fromUtf8(ctl.readAllStandardOutput()),
                QString::fromUtf8(ctl.readAllStandardError())};
    }

    // A one-time program of so many seconds from `start`; an end past midnight lies on the
    // next day.
    Run AddOnce(const QDateTime& start, int seconds, const QStringList& more)
    {
        return Ctl(QStringList{"add", "--once", start.date().toString(Qt::ISODate), "--start",
                               start.time().toString("HH:mm:ss"), "--end",
                               start.addSecs(seconds).time().toString("HH:mm:ss")} +
                   more);
    }

    // The row of the recordings list with this description, once the recorder has written it.
    QJsonObject WaitForRecording(const QString& description, int seconds)
    {
        for (int i = 0; i < seconds * 4; ++i) {
            for (const QJsonValue row :
                 QJsonDocument::fromJson(Ctl({"--json", "recordings"}).out.toUtf8()).array())
                if (row["description"].toString() == description)
                    return row.toObject();
            QTest::qWait(250);
        }
        return {};
    }

    // About so many seconds of the tone: a busy machine may start the task a little late.
    static void VerifyTone(const QString& file, double seconds)
    {
        double rms = 0;
        double frequency = 0;
        QVERIFY2(ToneOf(file, rms, frequency), qPrintable(file));
        QVERIFY2(rms > 0.1, qPrintable(QString::number(rms)));
        QVERIFY2(qAbs(frequency - 1000) < 100, qPrintable(QString::number(frequency)));
        const double length = Soxi("-D", file).toDouble();
        QVERIFY2(length > seconds - 1.5 && length < seconds + 1.5,
                 qPrintable(QString::number(length)));
    }

private slots:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
            QSKIP("No session bus of the test's own (run through ctest)");
        m_pulse = std::make_unique<PulseFixture>();
        if (!m_pulse->Running() || !m_pulse->PlayTone())
            QSKIP("No PulseAudio server with the tone");
        qputenv("XDG_DATA_HOME", (m_home.path() + "/data").toUtf8());
        qputenv("XDG_CONFIG_HOME", (m_home.path() + "/config").toUtf8());
        QDir().mkpath(m_home.path() + "/recordings");
        {
            QSettings settings(m_home.path() + "/config/Larkmoor Systems/Nightreel.conf",
                               QSettings::IniFormat);
            settings.setValue("Settings/DefaultRecordingDirectory", m_home.path() + "/recordings");
        }
        QDBusConnection bus = QDBusConnection::sessionBus();
        const QString service = "org.larkmoor.Nightreel1";
        const QString path = "/org/larkmoor/Nightreel1";
        bus.connect(service, path, service, "RecordingStarted", &m_signals,
                    SLOT(RecordingStarted(QString, QString)));
        bus.connect(service, path, service, "RecordingEnded", &m_signals,
                    SLOT(RecordingEnded(QString, bool, QString)));
        bus.connect(service, path, service, "ModeChanged", &m_signals, SLOT(ModeChanged(QString)));
        m_recorder.setProcessEnvironment(Environment());
        m_recorder.setProcessChannelMode(QProcess::ForwardedChannels);
        m_recorder.start(NIGHTREEL_PATH, {"--headless"});
        for (int i = 0; i < 80 && Ctl({"status"}).exitCode != 0; ++i)
            QTest::qWait(250);
        QCOMPARE(Ctl({"status"}).exitCode, 0);
    }

    // Each function sees the bus signals of its own requests.
    void init()
    {
        m_signals.started.clear();
        m_signals.ended.clear();
        m_signals.modes.clear();
    }

    void cleanupTestCase()
    {
        m_recorder.terminate();
        QVERIFY(m_recorder.waitForFinished(30000));
    }

    void aSecondRecorderOrWindowIsRefused()
    {
        QProcess second;
        second.setProcessEnvironment(Environment());
        second.start(NIGHTREEL_PATH, {"--headless"});
        QVERIFY(second.waitForFinished(30000));
        QCOMPARE(second.exitCode(), 1);
        QVERIFY(second.readAllStandardError().contains("Nightreel 2000 is already running."));

        // The window's start, beside the running recorder, even with "2".
        InstanceLock lock(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/nightreel");
        ScriptedMessageBox box;
        QCOMPARE(lock.RefuseWindowStart(true, box), std::optional<int>(1));
        QCOMPARE(box.asked.size(), 1);
        QCOMPARE(box.asked[0].text, QString("Nightreel 2000 is already running."));
    }

    // The editor's rules are the validator's tests; here one of them reaches the caller.
    void aRefusedOrBadRequestSaysWhy_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        const QString tomorrow = QDate::currentDate().addDays(1).toString(Qt::ISODate);
        const QStringList once = {"add", "--once", tomorrow, "--desc", "x", "--start"};
        QTest::newRow("end before start") << once + QStringList{"10:00", "--end", "09:00"} << 1
                                          << "A recording longer than 3 hours is programmed.";
        QTest::newRow("no such time")
            << once + QStringList{"25:00", "--end", "09:00"} << 2 << "HH:MM";
        QTest::newRow("unknown format")
            << once + QStringList{"10:00", "--end", "11:00", "--format", "ogg"} << 2
            << "Invalid value for format";
        QTest::newRow("no such program") << QStringList{"remove", "999"} << 1 << "no program 999";
        QTest::newRow("nothing to stop") << QStringList{"stop"} << 1 << "Nothing is being";
        QTest::newRow("unknown command") << QStringList{"rewind"} << 2 << "unknown command";
    }

    void aRefusedOrBadRequestSaysWhy()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const Run run = Ctl(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
    }

    // A recording that fails ends on the bus with the error that the log holds.
    void aFailedRecordingSaysWhyOnTheBus()
    {
        const QString url = "http://127.0.0.1:9/gone.mp3";
        const QDateTime start = QDateTime::currentDateTime().addSecs(2);
        QCOMPARE(AddOnce(start, 3, {"--desc", "gone", "--stream", url}).exitCode, 0);
        QTRY_COMPARE_WITH_TIMEOUT(m_signals.ended.size(), 1, 30000);
        QCOMPARE(m_signals.ended[0][1].toBool(), false);
        const QString reason = m_signals.ended[0][2].toString();
        QVERIFY2(reason.startsWith("Internet stream could not be reached.: " + url),
                 qPrintable(reason));
    }

    void withoutARecorderTheExitStatusIs3()
    {
        QProcessEnvironment env = Environment();
        env.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + m_home.path() + "/no-bus");
        const Run run = Ctl({"status"}, &env);
        QCOMPARE(run.exitCode, 3);
        QVERIFY(run.err.contains("No recorder is running."));
    }

    void aManualRecordingHoldsTheTone()
    {
        const Run record = Ctl({"record", "3", "--desc", "x"});
        QCOMPARE(record.exitCode, 0);
        const QString file = record.out.section("Recording to ", 1).trimmed();
        QVERIFY2(!file.isEmpty(), qPrintable(record.out + record.err));
        const Run status = Ctl({"status"});
        QVERIFY2(status.out.contains("File: " + file), qPrintable(status.out));

        const QJsonObject row = WaitForRecording("x", 20);
        QCOMPARE(row["file"].toString(), file);
        VerifyTone(file, 3);
        QTRY_COMPARE(m_signals.ended.size(), 1);
        QCOMPARE(m_signals.started, QStringList{"x|" + file});
        QCOMPARE(m_signals.ended[0], (QVariantList{file, true, QString()}));
        QCOMPARE(m_signals.modes.mid(0, 1), QStringList{"RECORDING"});
        QCOMPARE(m_signals.modes.last(), QString("STOPPED"));
    }

    void aProgramAddedTenSecondsAheadIsRecorded()
    {
        const QDateTime start = QDateTime::currentDateTime().addSecs(10);
        const Run add = AddOnce(start, 4, {"--desc", "ahead"});
        QCOMPARE(add.exitCode, 0);
        QVERIFY2(Ctl({"programs"}).out.contains("ahead"), qPrintable(add.err));
        QVERIFY(Ctl({"next", "1"}).out.contains("ahead"));
        QVERIFY(Ctl({"status"}).out.contains("Next: ahead at "));
        const QJsonObject row = WaitForRecording("ahead", 40);
        QVERIFY2(!row.isEmpty(), qPrintable(Ctl({"log", "5"}).out));
        VerifyTone(row["file"].toString(), 4);
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestHeadless, QCoreApplication)
#include "test_headless.moc"
