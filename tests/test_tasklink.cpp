// The scheduler's side of the link, driven by the scripted stand-in task; the error catalogue
// and the parameter file.
#include "MemoryLog.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "common/RuntimeError.h"
#include "common/clsAppStatus.h"
#include "recording/RecordingTaskErrors.h"
#include "recording/RecordingTaskLink.h"
#include "taskcontract/RecParms.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using namespace TaskProtocol;

namespace {

// A link that starts the stand-in with the given plan, with the parts of the program it needs.
struct Fixture {
    explicit Fixture(const QString& plan)
    {
        qputenv("NIGHTREEL_FAKE_PLAN", plan.toUtf8());
        qputenv("NIGHTREEL_FAKE_LOG", (dir.path() + "/fake.log").toUtf8());
        link->SetTaskProgram(NIGHTREEL_FAKETASK);
        RecParms().Write(link->ParameterFile());
        // StopRecording as the system has it: it acts only while a recording runs.
        QObject::connect(link.get(), &RecordingTaskLink::StopRecording, [this] {
            if (appStatus.Recording()) {
                ++stops;
                appStatus.SetRecording(false);
                link->tmrKeepAlive.SetInterval(0);
            }
        });
    }
    ~Fixture()
    {
        // The stand-in leaves when its scheduler goes away.
        link.reset();
        QTest::qWait(100);
    }

    bool StartRecording()
    {
        appStatus.SetRecording(true);
        return link->ActivateNightreeltask() && link->SendMessage(REC_MSG_START) == 0;
    }
    // What the stand-ins wrote: "start PID" and "recv PID NUMBER" lines.
    QStringList FakeLog() const
    {
        return QString::fromUtf8(ReadFile(dir.path() + "/fake.log"))
            .split(u'\n', Qt::SkipEmptyParts);
    }
    // Stand-ins that received WM_CLOSE or WM_QUIT.
    int ToldToLeave() const
    {
        QSet<QString> pids;
        for (const QString& line : FakeLog()) {
            const QStringList words = line.split(u' ');
            if (words.at(0) == "recv" && (words.at(2) == "16" || words.at(2) == "18"))
                pids << words.at(1);
        }
        return int(pids.size());
    }
    int Received(quint32 number) const
    {
        return int(
            FakeLog().filter(QRegularExpression(QString("^recv \\d+ %1$").arg(number))).size());
    }

    QTemporaryDir dir;
    MemoryLog log;
    clsAppStatus appStatus;
    std::unique_ptr<RecordingTaskLink> link =
        std::make_unique<RecordingTaskLink>(log.log, appStatus, dir.path());
    int stops = 0;
};

} // namespace

class TestTaskLink : public QObject {
    Q_OBJECT

private slots:
    void errorCatalogue_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("detailsStart");
        QTest::newRow("parameter file locked")
            << 1000 << "Error communicating with recording task"
            << "The scheduler communicates with the recording task via a disk file which may be "
               "locked.";
        QTest::newRow("1027 reads as 1026")
            << 1027 << "Error occurred during recording process."
            << "The recording task encountered an error during the unpreparing of header 1 during";
        QTest::newRow("1012 has no row")
            << 1012 << "Error occurred During Recording Process"
            << "Error #1012 Try changing recording format, restarting system, or checking "
               "hardware or system software configuration.";
        QTest::newRow("negative") << -7 << "Error occurred During Recording Process"
                                  << "Error #-7 Try";
        QTest::newRow("past the end") << 1054 << "Error occurred During Recording Process"
                                      << "Error #1054 Try";
    }
    void errorCatalogue()
    {
        QFETCH(int, code);
        QFETCH(QString, message);
        QFETCH(QString, detailsStart);
        MemoryLog log;
        ReportRecordingTaskError(log.log, code);
        QCOMPARE(log.entries.size(), 1);
        QCOMPARE(log.entries[0].type, 2);
        QCOMPARE(log.entries[0].message, message);
        QVERIFY2(log.entries[0].details.startsWith(detailsStart),
                 qPrintable(log.entries[0].details));
    }

    void parameterFile_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("tagLine");
        QTest::addColumn<int>("cbSize");
        QTest::addColumn<int>("lines");
        QTest::newRow("PCM, no extra bytes") << 1 << " 1 " << 0 << 12;
        QTest::newRow("MP3, 12 extra bytes") << 85 << " 85 " << 12 << 24;
        // The tag is a signed 16-bit number in the file.
        QTest::newRow("the most the buffer holds, a high tag") << 65534 << "-2 " << 256 << 268;
        QTest::newRow("a byte more: refused") << 1 << "" << 257 << 0;
    }
    void parameterFile()
    {
        QFETCH(int, tag);
        QFETCH(QString, tagLine);
        QFETCH(int, cbSize);
        QFETCH(int, lines);
        QTemporaryDir dir;
        RecParms p;
        p.softwareName = "Nightreel 2000 1.0";
        p.description = "  Jazz at night";
        p.startText = "06/01/2026 23:00:00";
        p.outputPath = dir.path() + "/Jazz.WAV";
        p.lengthSeconds = 3600;
        p.format.wFormatTag = quint16(tag);
        p.format.nSamplesPerSec = 44100;
        p.format.cbSize = quint16(cbSize);
        for (int i = 0; i < cbSize; ++i)
            p.format.extra.append(char(i * 7));
        const QString path = dir.path() + "/RECPARMS.TMP";
        if (lines == 0) {
            QVERIFY_THROWS_EXCEPTION(RuntimeError, p.Write(path));
            return;
        }
        p.Write(path);
        const QByteArray text = ReadFile(path);
        QVERIFY(text.endsWith("\r\n"));
        const QStringList written = QString::fromUtf8(text.chopped(2)).split("\r\n");
        QCOMPARE(written.size(), lines);
        // Numbers in the run time's print form: a sign place and a trailing blank.
        QCOMPARE(written.at(4), QString(" 3600 "));
        QCOMPARE(written.at(5), tagLine);
        QCOMPARE(written.at(7), QString(" 44100 "));
        QCOMPARE(written.at(11), " " + QString::number(cbSize) + " ");

        // The task's reading of it: every line trimmed.
        const std::optional<RecParms> read = RecParms::Read(path);
        QVERIFY(read);
        QCOMPARE(read->description, QString("Jazz at night"));
        QCOMPARE(read->outputPath, p.outputPath);
        QCOMPARE(read->startText, p.startText);
        QCOMPARE(read->format, p.format);
    }

    void activation_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<bool>("activated");
        QTest::addColumn<int>("starts");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QString>("details");
        QTest::addColumn<int>("toldToLeave");
        QTest::newRow("ready at once") << "ready=0" << true << 1 << QStringList() << "" << 0;
        QTest::newRow("errors in attempts 0 and 1, ready in 2")
            << "ready=1053/1053/0" << true << 3 << QStringList() << "" << 2;
        QTest::newRow("an error in every attempt")
            << "ready=1050" << false << 3 << QStringList{"Another application is recording audio."}
            << "Another application" << 3;
        // A task that does not say who it is can't be found, so nor can it be told to leave.
        QTest::newRow("ready but not the task's window")
            << "title=Other" << false << 3 << QStringList{"Error activating recording task."}
            << "Timeout occurred.  - Try restarting software" << 0;
        QTest::newRow("never ready")
            << "ready=none" << false << 3 << QStringList{"Error activating recording task."}
            << "Timeout occurred.  Try restarting software" << 3;
    }
    void activation()
    {
        QFETCH(QString, plan);
        QFETCH(bool, activated);
        QFETCH(int, starts);
        QFETCH(QStringList, messages);
        QFETCH(QString, details);
        QFETCH(int, toldToLeave);
        Fixture f(plan);
        // The ten seconds of the activation time-out pass quicker here.
        f.link->SetActivationTimeout(500);
        QCOMPARE(f.link->ActivateNightreeltask(), activated);
        QCOMPARE(f.link->StartedTasks().size(), starts);
        QCOMPARE(f.log.Messages(), messages);
        if (!messages.isEmpty()) {
            QCOMPARE(f.log.entries.first().type, 2);
            QVERIFY2(f.log.entries.first().details.startsWith(details),
                     qPrintable(f.log.entries.first().details));
        }
        // Each task that failed to come up was told to leave.
        QTRY_COMPARE(f.ToldToLeave(), toldToLeave);
    }

    void anOldTaskIsRemoved_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<bool>("removed");
        QTest::newRow("ignoring close: two seconds to the quit") << "close=ignore" << true;
        QTest::newRow("ignoring both: reported") << "close=ignore quit=ignore" << false;
    }
    void anOldTaskIsRemoved()
    {
        QFETCH(QString, plan);
        QFETCH(bool, removed);
        Fixture f(plan);
        QVERIFY(f.link->ActivateNightreeltask());
        QElapsedTimer elapsed;
        elapsed.start();
        QCOMPARE(f.link->ActivateNightreeltask(), removed);
        QCOMPARE(f.link->StartedTasks().size(), removed ? 2 : 1);
        if (removed) {
            QCOMPARE(f.Received(WM_CLOSE), 1);
            QCOMPARE(f.Received(WM_QUIT), 1);
            QVERIFY(elapsed.elapsed() >= 2000 && elapsed.elapsed() < 3500);
            QVERIFY(f.log.Messages().isEmpty());
            return;
        }
        QCOMPARE(f.log.Messages(), QStringList{"Error removing Recording Process."});
        QCOMPARE(f.log.entries.first().details,
                 QString("This may require the system to be restarted."));
    }

    // Every report is handed on with its code; the recording control fails the recording
    // on the first.
    void aTaskReportingAnErrorTwiceIsHandedOnTwice()
    {
        Fixture f("afterstart=1046:1024+1046:1024");
        QSignalSpy taskError(f.link.get(), &RecordingTaskLink::TaskError);
        QVERIFY(f.StartRecording());
        QTRY_COMPARE(taskError.size(), 2);
        QCOMPARE(taskError[0][0].toInt(), 1024);
        QVERIFY(f.log.Messages().isEmpty());
    }

    void aStartRefusedIsTheTaskAnswer()
    {
        Fixture f("start=1021");
        QVERIFY(f.link->ActivateNightreeltask());
        QCOMPARE(f.link->SendMessage(REC_MSG_START), 1021);
        QCOMPARE(f.link->SendMessage(REC_MSG_PAUSE_TOGGLE), 0);
    }

    void theStopWatchdog()
    {
        Fixture f("stop=1500");
        QSignalSpy stopRecording(f.link.get(), &RecordingTaskLink::StopRecording);
        QVERIFY(f.StartRecording());
        f.link->PostStop();
        QCOMPARE(f.link->tmrStopRecording.Interval(), 10000);
        // The task is slow: the watchdog's tick comes first and stops the recording.
        f.link->tmrStopRecording_Timer();
        QCOMPARE(f.link->tmrStopRecording.Interval(), 0);
        QCOMPARE(f.stops, 1);
        // The late 1045 is handed on all the same and finds nothing to stop.
        QTRY_COMPARE_WITH_TIMEOUT(stopRecording.size(), 2, 3000);
        QCOMPARE(f.stops, 1);
        QCOMPARE(f.Received(REC_MSG_STOP), 1);
        QVERIFY(f.log.Messages().isEmpty());
    }

    void keepAlive_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<bool>("recording");
        QTest::addColumn<int>("ticks");
        QTest::addColumn<int>("misses");
        QTest::addColumn<bool>("givenUp");
        QTest::addColumn<int>("questions");
        QTest::newRow("answered") << "keepalive=1" << true << 5 << 0 << false << 5;
        // Two misses, then an answer: the count starts again from nothing.
        QTest::newRow("answered after the second question")
            << "keepalive=2" << true << 6 << 0 << false << 6;
        QTest::newRow("three unanswered") << "keepalive=0" << true << 3 << 3 << false << 3;
        QTest::newRow("the fourth tick gives up") << "keepalive=0" << true << 4 << 3 << true << 3;
        QTest::newRow("not recording") << "keepalive=0" << false << 5 << 0 << false << 0;
    }
    void keepAlive()
    {
        QFETCH(QString, plan);
        QFETCH(bool, recording);
        QFETCH(int, ticks);
        QFETCH(int, misses);
        QFETCH(bool, givenUp);
        QFETCH(int, questions);
        Fixture f(plan);
        QSignalSpy notResponding(f.link.get(), &RecordingTaskLink::TaskNotResponding);
        QVERIFY(f.StartRecording());
        f.appStatus.SetRecording(recording);
        for (int i = 0; i < ticks; ++i) {
            f.link->tmrKeepAlive_Timer();
            QTest::qWait(100);
        }
        QCOMPARE(f.link->KeepAliveMissCount, qint16(misses));
        QCOMPARE(notResponding.size(), givenUp ? 1 : 0);
        QCOMPARE(f.Received(REC_MSG_KEEPALIVE), questions);
    }

    void unexpectedTraffic_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<QString>("code");
        QTest::newRow("an unknown number") << "afterstart=1050:0"
                                           << "Code= 1050 If problem";
        QTest::newRow("bytes that are no message") << "afterstart=raw"
                                                   << "Code=-1 If problem";
    }
    void unexpectedTraffic()
    {
        QFETCH(QString, plan);
        QFETCH(QString, code);
        Fixture f(plan);
        QVERIFY(f.StartRecording());
        QTRY_COMPARE(f.stops, 1);
        QCOMPARE(f.log.Messages(), QStringList{"Run Time Error"});
        const QString details = f.log.entries.first().details;
        QVERIFY2(details.startsWith("Unexpected code from recording process.  " + code),
                 qPrintable(details));
        QVERIFY(details.endsWith("try a different recording format or restarting the system"));
    }

    void systemCommands_data()
    {
        QTest::addColumn<int>("command");
        QTest::addColumn<bool>("toTray");
        QTest::newRow("minimise") << 61472 << true;
        QTest::newRow("minimise with the low bits set") << 61475 << true;
        QTest::newRow("maximise") << 61488 << false;
        QTest::newRow("close") << 61536 << false;
    }
    void systemCommands()
    {
        QFETCH(int, command);
        QFETCH(bool, toTray);
        QTemporaryDir dir;
        MemoryLog log;
        clsAppStatus appStatus;
        RecordingTaskLink link(log.log, appStatus, dir.path());
        QSignalSpy tray(&link, &RecordingTaskLink::MinimizeToTray);
        qint32 result = -1;
        QCOMPARE(link.sbcls1_WndProc(WM_SYSCOMMAND, command, 0, result), toTray);
        QCOMPARE(tray.size(), toTray ? 1 : 0);
        QCOMPARE(result, toTray ? 0 : -1);
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestTaskLink, QCoreApplication)
#include "test_tasklink.moc"
