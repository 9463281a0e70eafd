// The scheduler's side of the link, driven by the scripted stand-in task: the hand-shake's
// attempts, removal of an old task, what the task sends during a recording, the keep-alive
// and the stop watchdog. Also the error catalogue and the parameter file.
#include "TestContext.h"
#include "TestParts.h"
#include "recording/RecorderParts.h"
#include "recording/RecordingTaskErrors.h"
#include "recording/RecordingTaskLink.h"
#include "taskcontract/RecParms.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTest>
#include <memory>

using namespace TaskProtocol;

namespace {

// A context and a link that starts the stand-in with the given plan.
struct Fixture {
    explicit Fixture(const QString& plan)
    {
        tc.OpenDatabase();
        qputenv("NIGHTREEL_FAKE_PLAN", plan.toUtf8());
        qputenv("NIGHTREEL_FAKE_LOG", (tc.Root() + "/fake.log").toUtf8());
        link = std::make_unique<RecordingTaskLink>(tc.ctx->log, tc.ctx->appStatus,
                                                   tc.ctx->folders.runtimeFolder);
        link->SetTaskProgram(NIGHTREEL_FAKETASK);
        RecParms().Write(link->ParameterFile());
        // StopRecording as the system has it: it acts only while a recording runs.
        QObject::connect(link.get(), &RecordingTaskLink::StopRecording, [this] {
            if (tc.ctx->appStatus.Recording()) {
                ++stops;
                tc.ctx->appStatus.SetRecording(false);
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
        tc.ctx->appStatus.SetRecording(true);
        return link->ActivateNightreeltask() && link->SendMessage(REC_MSG_START) == 0;
    }
    QList<LogEntry> Entries() const { return tc.LogEntries(); }
    QStringList Messages() const
    {
        QStringList messages;
        for (const LogEntry& e : tc.LogEntries())
            messages << e.message;
        return messages;
    }
    // What the stand-ins wrote: "start PID" and "recv PID NUMBER" lines.
    QStringList FakeLog() const
    {
        QFile file(tc.Root() + "/fake.log");
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
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
        int count = 0;
        for (const QString& line : FakeLog())
            count += line.startsWith("recv ") && line.section(u' ', 2, 2).toUInt() == number;
        return count;
    }

    TestContext tc;
    std::unique_ptr<RecordingTaskLink> link;
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
        TestContext tc;
        tc.OpenDatabase();
        ReportRecordingTaskError(tc.ctx->log, code);
        QSqlQuery q(tc.ctx->database.db.Connection());
        q.exec("SELECT Type, Message, Details FROM EventLog");
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toInt(), 2);
        QCOMPARE(q.value(1).toString(), message);
        QVERIFY2(q.value(2).toString().startsWith(detailsStart), qPrintable(q.value(2).toString()));
        QVERIFY(!q.next());
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
    }
    void parameterFile()
    {
        QFETCH(int, tag);
        QFETCH(QString, tagLine);
        QFETCH(int, cbSize);
        QFETCH(int, lines);
        TestContext tc;
        RecParms p;
        p.softwareName = "Nightreel 2000 1.0";
        p.description = "  Jazz at night";
        p.startText = "06/01/2026 23:00:00";
        p.outputPath = tc.Root() + "/Jazz.WAV";
        p.lengthSeconds = 3600;
        p.format.wFormatTag = quint16(tag);
        p.format.nSamplesPerSec = 44100;
        p.format.cbSize = quint16(cbSize);
        for (int i = 0; i < cbSize; ++i)
            p.format.extra.append(char(i * 7));
        const QString path = tc.ctx->folders.runtimeFolder + "/RECPARMS.TMP";
        QFile::remove(path);
        p.Write(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
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

    void anOversizedFormatCannotBeWritten()
    {
        TestContext tc;
        RecParms p;
        p.format.cbSize = 257;
        QVERIFY_THROWS_EXCEPTION(RuntimeError, p.Write(tc.Root() + "/RECPARMS.TMP"));
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
        QCOMPARE(f.Messages(), messages);
        if (!messages.isEmpty()) {
            QCOMPARE(f.Entries().first().type, 2);
            QVERIFY2(f.Entries().first().details.startsWith(details),
                     qPrintable(f.Entries().first().details));
        }
        // Each task that failed to come up was told to leave.
        QTRY_COMPARE(f.ToldToLeave(), toldToLeave);
    }

    void anOldTaskThatIgnoresCloseCostsTwoSeconds()
    {
        Fixture f("close=ignore");
        QVERIFY(f.link->ActivateNightreeltask());
        QElapsedTimer elapsed;
        elapsed.start();
        QVERIFY(f.link->ActivateNightreeltask());
        QVERIFY(elapsed.elapsed() >= 2000 && elapsed.elapsed() < 3500);
        QCOMPARE(f.link->StartedTasks().size(), 2);
        QCOMPARE(f.Received(WM_CLOSE), 1);
        QCOMPARE(f.Received(WM_QUIT), 1);
        QVERIFY(f.Messages().isEmpty());
    }

    void anOldTaskThatCannotBeRemovedIsReportedOnce()
    {
        Fixture f("close=ignore quit=ignore");
        QVERIFY(f.link->ActivateNightreeltask());
        QVERIFY(!f.link->ActivateNightreeltask());
        QCOMPARE(f.link->StartedTasks().size(), 1);
        QCOMPARE(f.Messages(), QStringList{"Error removing Recording Process."});
        QCOMPARE(f.Entries().first().details,
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
        QVERIFY(f.Messages().isEmpty());
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
        QVERIFY(f.Messages().isEmpty());
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
        f.tc.ctx->appStatus.SetRecording(recording);
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
        QCOMPARE(f.Messages(), QStringList{"Run Time Error"});
        const QString details = f.Entries().first().details;
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
        TestContext tc;
        RecordingTaskLink& link = RecorderParts::Link(tc.ctx->recorder);
        QSignalSpy tray(&link, &RecordingTaskLink::MinimizeToTray);
        qint32 result = -1;
        QCOMPARE(link.sbcls1_WndProc(WM_SYSCOMMAND, command, 0, result), toTray);
        QCOMPARE(tray.size(), toTray ? 1 : 0);
        QCOMPARE(result, toTray ? 0 : -1);
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestTaskLink, QCoreApplication)
#include "test_tasklink.moc"
