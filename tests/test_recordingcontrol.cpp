// The rules of the recording control that act before any recording task is asked: the
// starts that end at once, and the user's stop of a recording or of a conversion.
#include "RecordingRig.h"
#include "recording/RecorderParts.h"

#include <QTest>

namespace {

// The program's own recorder over a fresh context; no task may be started.
struct Fixture : RecordingRig {
    Fixture()
    {
        recorder().SetTaskProgram(tc.Root() + "/no-such-task");
        tc.clock.Set(At("10:00:00"));
    }
    void Start(qint64 id)
    {
        control.StartRecording(qint32(id), tc.clock.Now(), tc.clock.Now() + 0.01, "Test");
    }

    RecordingControl& control = RecorderParts::Control(recorder());
    clsRecordingStatus& status = RecorderParts::Status(recorder());
    RecordingTaskLink& link = RecorderParts::Link(recorder());
};

} // namespace

class TestRecordingControl : public QObject {
    Q_OBJECT

private slots:
    void startsThatGoNoFurther_data()
    {
        QTest::addColumn<QString>("situation");
        QTest::addColumn<bool>("failed");
        QTest::addColumn<QString>("boxTitle");
        QTest::newRow("suspended") << "suspended" << false << "";
        QTest::newRow("program row gone") << "row gone" << false << "";
        QTest::newRow("manual without folder") << "no folder" << false << "Error";
        QTest::newRow("manual, too little disk")
            << "no space" << false << "Recording not started due to insufficient disk space.";
        // Intended: a NULL StreamingPlayerClose is only tolerated when MixerProfileAfter is NULL
        // too; otherwise the start fails before its plan and the occurrence is passed over.
        QTest::newRow("no player title, a profile after") << "quirk" << true << "";
    }

    // No task is started and Recording is clear again. A refused start logs nothing, a failed
    // one its error.
    void startsThatGoNoFurther()
    {
        QFETCH(QString, situation);
        QFETCH(bool, failed);
        QFETCH(QString, boxTitle);
        Fixture f;
        qint64 id = situation == "row gone" ? 4711 : -1;
        QVariantHash row = Programs::Weekly("Program", "10:00:00", "11:00:00", "1111111");
        if (situation == "suspended") {
            f.tc.messageBox.answers << MsgResult::Yes;
            f.tc.ctx->appStatus.HandleSuspendMenuClickEvent(f.tc.messageBox);
            f.tc.messageBox.asked.clear();
            id = f.AddProgram(row);
        } else if (situation == "no folder") {
            f.tc.ctx->options.DefaultRecordingDirectory.clear();
        } else if (situation == "no space") {
            f.tc.diskSpace.freeMb = 1.0;
        } else if (situation == "quirk") {
            row["StreamingPlayerClose"] = QVariant();
            row["MixerProfileAfter"] = "evening";
            id = f.AddProgram(row);
        }
        f.Start(id);
        QVERIFY(!f.tc.ctx->appStatus.Recording());
        QVERIFY(f.link.StartedTasks().isEmpty());
        QCOMPARE(f.Log().size(), failed ? 1 : 0);
        if (failed)
            QVERIFY2(f.Log()[0].details.contains("StartRecording"), qPrintable(f.Log()[0].details));
        QCOMPARE(f.tc.messageBox.asked.size(), boxTitle.isEmpty() ? 0 : 1);
        if (!boxTitle.isEmpty())
            QCOMPARE(f.tc.messageBox.asked[0].title, boxTitle);
    }

    void stopRequest_data()
    {
        QTest::addColumn<bool>("recording");
        QTest::addColumn<qint32>("programId");
        QTest::addColumn<bool>("convert");
        QTest::addColumn<bool>("confirm");
        QTest::addColumn<bool>("answerYes");
        QTest::addColumn<int>("queued");
        QTest::addColumn<QString>("question");
        // What tells the questions apart.
        const QString save = "stop and save the recording in progress.";
        const QString convert = "stop and convert the recording in progress to MP3.";
        const QString conversion = "stop and save the MP3 conversion in progress.  Are";
        const QString conversionAndQueue = "and abort the remaining MP3 conversions in the queue.";
        QTest::newRow("manual, no confirmation")
            << true << -1 << false << false << false << 0 << "";
        QTest::newRow("manual, confirmed no") << true << -1 << false << true << false << 0 << save;
        QTest::newRow("program always asks") << true << 7 << false << false << true << 0 << save;
        QTest::newRow("program to convert, no")
            << true << 7 << true << false << false << 0 << convert;
        QTest::newRow("conversion, no") << false << -1 << false << true << false << 0 << conversion;
        QTest::newRow("conversion, queue waiting")
            << false << -1 << false << true << true << 2 << conversionAndQueue;
    }

    // The stop of a recording posts one request; the stop of a conversion raises its flag. It
    // stops without a question or on Yes.
    void stopRequest()
    {
        QFETCH(bool, recording);
        QFETCH(qint32, programId);
        QFETCH(bool, convert);
        QFETCH(bool, confirm);
        QFETCH(bool, answerYes);
        QFETCH(int, queued);
        QFETCH(QString, question);
        Fixture f;
        if (recording)
            f.tc.ctx->appStatus.SetRecording(true);
        else
            f.tc.ctx->appStatus.SetConverting(true);
        f.status.ProgramId = programId;
        f.status.ConvertToMP3 = convert;
        ConversionQueue& queue = RecorderParts::Conversion(f.recorder());
        for (int i = 0; i < queued; ++i)
            queue.Mp3ConvertQueue.append(std::make_shared<clsConvertToMP3Request>());
        f.tc.messageBox.answers << (answerYes ? MsgResult::Yes : MsgResult::No);

        f.recorder().StopCommand(confirm);

        QCOMPARE(f.tc.messageBox.asked.size(), question.isEmpty() ? 0 : 1);
        if (!question.isEmpty()) {
            QVERIFY2(f.tc.messageBox.asked[0].text.contains(question),
                     qPrintable(f.tc.messageBox.asked[0].text));
            QCOMPARE(f.tc.messageBox.asked[0].buttons, MsgButtons::YesNo);
        }
        const bool stopped = question.isEmpty() || answerYes;
        QCOMPARE(f.status.StopRequested, recording && stopped);
        QCOMPARE(queue.StopMp3Conversion, !recording && stopped);
    }

    void whatTheTaskReportsFailsTheRecordingOnce_data()
    {
        QTest::addColumn<bool>("error");
        QTest::addColumn<QString>("stopAsked");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("detailsEnd");
        const QString capture = "Error occurred during recording process.";
        const QString silent = "No response from recording task.";
        const QString noAnswer =
            "system restart. \rThe error occurred during the following recording: Evening news";
        QTest::newRow("capture error") << true << "" << capture << "";
        QTest::newRow("capture error after a stop request") << true << "capturing" << capture << "";
        QTest::newRow("no answer, stop asked while starting")
            << false << "starting" << silent << noAnswer;
    }

    // The first report fails and ends the recording and is logged after the end; a second
    // report of the same recording is not. A stop asked for this recording ends with it: the
    // next recording's start finds neither the watchdog armed nor a stop waiting.
    void whatTheTaskReportsFailsTheRecordingOnce()
    {
        QFETCH(bool, error);
        QFETCH(QString, stopAsked);
        QFETCH(QString, message);
        QFETCH(QString, detailsEnd);
        Fixture f;
        f.tc.ctx->appStatus.SetRecording(true);
        f.status.Description = "Evening news";
        // Without a task the start command is answered at once, as by a task that is gone.
        if (stopAsked == "capturing")
            f.link.SendMessage(TaskProtocol::REC_MSG_START);
        if (!stopAsked.isEmpty())
            f.recorder().RequestStop();
        int entriesAtEnd = -1;
        QObject::connect(&f.recorder(), &Recorder::UpdateRecordingsButtonsAndMenus,
                         [&] { entriesAtEnd = int(f.Log().size()); });
        for (int i = 0; i < 2; ++i) {
            if (error)
                emit f.link.TaskError(1024);
            else
                emit f.link.TaskNotResponding();
        }
        QVERIFY(f.status.Failed);
        QVERIFY(!f.tc.ctx->appStatus.Recording());
        QCOMPARE(f.LoggedMessages(), QStringList{message});
        QVERIFY(f.Log()[0].details.endsWith(detailsEnd));
        QCOMPARE(entriesAtEnd, error ? 0 : 1);
        f.link.SendMessage(TaskProtocol::REC_MSG_START);
        QCOMPARE(f.link.tmrStopRecording.Interval(), 0);
    }
};

QTEST_GUILESS_MAIN(TestRecordingControl)
#include "test_recordingcontrol.moc"
