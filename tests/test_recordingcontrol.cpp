// The rules of the recording control that act before any recording task is asked: the
// starts that end at once, and the user's stop of a recording or of a conversion.
#include "Programs.h"
#include "TestContext.h"
#include "recording/RecordingTaskLink.h"

#include <QSqlQuery>
#include <QTest>
#include <memory>

namespace {

// The program's own recorder over a fresh context.
struct Fixture {
    Fixture()
        : recorder(tc.ctx->recorder)
        , control(&recorder.Control())
    {
        tc.OpenDatabase();
        // No task may be started by these tests.
        recorder.Link().SetTaskProgram(tc.Root() + "/no-such-task");
        tc.ctx->options.DefaultRecordingDirectory = tc.Root();
        tc.clock.Set(Programs::At(2026, 6, 1, "10:00:00"));
    }

    AppContext& ctx() { return *tc.ctx; }

    QStringList LogMessages() const
    {
        QStringList messages;
        QSqlQuery q(tc.ctx->database.db.Connection());
        q.exec("SELECT Message || ' | ' || Details FROM EventLog ORDER BY ID");
        while (q.next())
            messages << q.value(0).toString();
        return messages;
    }

    TestContext tc;
    Recorder& recorder;
    RecordingControl* control;
};

} // namespace

class TestRecordingControl : public QObject {
    Q_OBJECT

private slots:
    void startThatEndsAtOnce_data();
    void startThatEndsAtOnce();
    void nullPlayerTitleUnderAfterProfileFailsTheStart();
    void stopRequest_data();
    void stopRequest();
    void whatTheTaskReportsFailsTheRecordingOnce_data();
    void whatTheTaskReportsFailsTheRecordingOnce();
};

void TestRecordingControl::startThatEndsAtOnce_data()
{
    QTest::addColumn<QString>("situation");
    QTest::addColumn<QString>("boxTitle");

    QTest::newRow("suspended") << "suspended"
                               << "";
    QTest::newRow("program row gone") << "row gone"
                                      << "";
    QTest::newRow("manual without folder") << "no folder"
                                           << "Error";
    QTest::newRow("manual with too little disk")
        << "no space"
        << "Recording not started due to insufficient disk space.";
}

// Nothing is logged, no task is started, and Recording is clear again.
void TestRecordingControl::startThatEndsAtOnce()
{
    QFETCH(QString, situation);
    QFETCH(QString, boxTitle);

    Fixture f;
    qint32 id = 4711;
    if (situation == "suspended") {
        f.tc.messageBox.answers << MsgResult::Yes;
        f.ctx().appStatus.HandleSuspendMenuClickEvent(f.tc.messageBox);
        QVERIFY(f.ctx().appStatus.Suspended());
        f.tc.messageBox.asked.clear();
        id = qint32(
            f.tc.AddProgram(Programs::Weekly("Suspended", "10:00:00", "11:00:00", "1111111")));
        f.ctx().database.DataPrograms.Requery();
    } else if (situation == "no folder") {
        id = -1;
        f.ctx().options.DefaultRecordingDirectory.clear();
    } else if (situation == "no space") {
        id = -1;
        f.tc.diskSpace.freeMb = 1.0;
    }
    const double now = f.ctx().Now();
    QString description = "Test";
    f.control->StartRecording(id, now, now + 0.01, description);

    QVERIFY(!f.ctx().appStatus.Recording());
    QVERIFY(f.recorder.Link().StartedTasks().isEmpty());
    QVERIFY(f.LogMessages().isEmpty());
    if (boxTitle.isEmpty()) {
        QVERIFY(f.tc.messageBox.asked.isEmpty());
    } else {
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QCOMPARE(f.tc.messageBox.asked[0].title, boxTitle);
    }
}

// Intended: a NULL StreamingPlayerClose is only tolerated when MixerProfileAfter is NULL too;
// otherwise the start fails before its plan: nothing runs, and the occurrence is passed over.
void TestRecordingControl::nullPlayerTitleUnderAfterProfileFailsTheStart()
{
    Fixture f;
    QVariantHash row = Programs::Weekly("Quirk", "10:00:00", "11:00:00", "1111111");
    row["StreamingPlayerClose"] = QVariant();
    row["MixerProfileAfter"] = "evening";
    const qint32 id = qint32(f.tc.AddProgram(row));
    f.ctx().database.DataPrograms.Requery();
    qint32 programId = id;
    QString description;
    const double now = f.ctx().Now();
    f.control->StartRecording(programId, now, now + 0.01, description);

    QVERIFY(!f.ctx().appStatus.Recording());
    QVERIFY(f.recorder.Link().StartedTasks().isEmpty());
    const QStringList messages = f.LogMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages[0].contains("StartRecording"), qPrintable(messages[0]));
}

void TestRecordingControl::stopRequest_data()
{
    QTest::addColumn<bool>("recording");
    QTest::addColumn<qint32>("programId");
    QTest::addColumn<bool>("convert");
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<bool>("answerYes");
    QTest::addColumn<int>("queued");
    QTest::addColumn<QString>("question");
    QTest::addColumn<bool>("stopped");

    const QString save = "This will stop and save the recording in progress.  Are you sure you "
                         "want to stop recording?";
    const QString convert = "This will stop and convert the recording in progress to MP3.  Are "
                            "you sure you want to stop recording?";
    const QString conversion = "This will stop and save the MP3 conversion in progress.  Are you "
                               "sure you want to stop the MP3 conversion?";
    const QString conversionAndQueue =
        "This will stop and save the MP3 conversion in progress and abort the remaining MP3 "
        "conversions in the queue.   Are you sure you want to stop the MP3 conversion?";

    QTest::newRow("manual, no confirmation")
        << true << -1 << false << false << false << 0 << "" << true;
    QTest::newRow("manual, confirmed no")
        << true << -1 << false << true << false << 0 << save << false;
    QTest::newRow("program always asks")
        << true << 7 << false << false << true << 0 << save << true;
    QTest::newRow("program to convert, no")
        << true << 7 << true << false << false << 0 << convert << false;
    QTest::newRow("conversion, queue empty")
        << false << -1 << false << true << true << 0 << conversion << true;
    QTest::newRow("conversion, queue waiting")
        << false << -1 << false << true << true << 2 << conversionAndQueue << true;
    QTest::newRow("conversion, no")
        << false << -1 << false << true << false << 0 << conversion << false;
}

// The stop of a recording posts one request; the stop of a conversion raises its flag.
void TestRecordingControl::stopRequest()
{
    QFETCH(bool, recording);
    QFETCH(qint32, programId);
    QFETCH(bool, convert);
    QFETCH(bool, confirm);
    QFETCH(bool, answerYes);
    QFETCH(int, queued);
    QFETCH(QString, question);
    QFETCH(bool, stopped);

    Fixture f;
    AppContext& ctx = f.ctx();
    if (recording)
        ctx.appStatus.SetRecording(true);
    else
        ctx.appStatus.SetConverting(true);
    f.recorder.Status().ProgramId = programId;
    f.recorder.Status().ConvertToMP3 = convert;
    for (int i = 0; i < queued; ++i)
        f.recorder.Conversion().Mp3ConvertQueue.append(std::make_shared<clsConvertToMP3Request>());
    f.tc.messageBox.answers << (answerYes ? MsgResult::Yes : MsgResult::No);

    f.control->HandleStopRecordingRequest(confirm);

    if (question.isEmpty()) {
        QVERIFY(f.tc.messageBox.asked.isEmpty());
    } else {
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QCOMPARE(f.tc.messageBox.asked[0].text, question);
        QCOMPARE(f.tc.messageBox.asked[0].buttons, MsgButtons::YesNo);
    }
    if (recording) {
        QCOMPARE(f.recorder.Status().StopRequested, stopped);
        QVERIFY(!f.recorder.Conversion().StopMp3Conversion);
    } else {
        QCOMPARE(f.recorder.Conversion().StopMp3Conversion, stopped);
        QVERIFY(!f.recorder.Status().StopRequested);
    }
}

void TestRecordingControl::whatTheTaskReportsFailsTheRecordingOnce_data()
{
    QTest::addColumn<bool>("error");
    QTest::addColumn<QString>("stopAsked");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detailsEnd");
    const QString noAnswer =
        "system restart. \rThe error occurred during the following recording: Evening news";
    QTest::newRow("capture error") << true << ""
                                   << "Error occurred during recording process."
                                   << "";
    QTest::newRow("no keep-alive answer") << false << ""
                                          << "No response from recording task." << noAnswer;
    QTest::newRow("capture error after a stop request")
        << true << "capturing"
        << "Error occurred during recording process."
        << "";
    QTest::newRow("no keep-alive answer, stop asked while starting")
        << false << "starting"
        << "No response from recording task." << noAnswer;
}

// The first report fails and ends the recording and is logged after the end; a second
// report of the same recording is not. A stop asked for this recording ends with it: the
// next recording's start finds neither the watchdog armed nor a stop waiting.
void TestRecordingControl::whatTheTaskReportsFailsTheRecordingOnce()
{
    QFETCH(bool, error);
    QFETCH(QString, stopAsked);
    QFETCH(QString, message);
    QFETCH(QString, detailsEnd);
    Fixture f;
    f.ctx().appStatus.SetRecording(true);
    f.recorder.Status().Description = "Evening news";
    RecordingTaskLink& link = f.recorder.Link();
    // Without a task the start command is answered at once, as by a task that is gone.
    if (stopAsked == "capturing")
        link.SendMessage(TaskProtocol::REC_MSG_START);
    if (!stopAsked.isEmpty())
        f.control->RequestStop();
    int entriesAtEnd = -1;
    QObject::connect(f.control, &RecordingControl::UpdateRecordingsButtonsAndMenus,
                     [&] { entriesAtEnd = f.LogMessages().size(); });
    for (int i = 0; i < 2; ++i) {
        if (error)
            emit f.recorder.Link().TaskError(1024);
        else
            emit f.recorder.Link().TaskNotResponding();
    }
    QVERIFY(f.recorder.Status().Failed);
    QVERIFY(!f.ctx().appStatus.Recording());
    const QStringList messages = f.LogMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages[0].startsWith(message + " | "));
    QVERIFY(messages[0].endsWith(detailsEnd));
    QCOMPARE(entriesAtEnd, error ? 0 : 1);
    link.SendMessage(TaskProtocol::REC_MSG_START);
    QCOMPARE(link.tmrStopRecording.Interval(), 0);
}

QTEST_GUILESS_MAIN(TestRecordingControl)
#include "test_recordingcontrol.moc"
