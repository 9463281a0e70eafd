#include "OpenedContext.h"
#include "Programs.h"
#include "scheduling/ProgramValidator.h"

#include <QTest>
#include <functional>

using Programs::At;
using Edit = std::function<void(ProgramCheckValues&)>;
Q_DECLARE_METATYPE(Edit)

namespace {

// A new program as the editor opens it at noon on Monday 1 June 2026: one time, an hour
// from now, described, with the default file name.
ProgramCheckValues NewProgram()
{
    ProgramCheckValues v;
    v.schedule.oneTime = true;
    v.schedule.oneTimeDay = At(2026, 6, 1, "00:00:00");
    v.schedule.startTime = Programs::TimeOfDay("13:00:00");
    v.schedule.endTime = Programs::TimeOfDay("14:00:00");
    v.description = "Show";
    return v;
}

void Weekly(ProgramCheckValues& v, const QString& days)
{
    v.schedule.oneTime = false;
    for (int d = 0; d < 7; ++d)
        v.schedule.days[d] = days.at(d) == u'1';
}

} // namespace

class TestProgramValidator : public QObject {
    Q_OBJECT

private slots:
    // Each control's check and its text are the editor form's test, through the form; here
    // the rules' order and the cases that let an entry through.
    void theFirstBrokenRuleIsReported_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("rival");
        QTest::addColumn<QString>("title");
        QTest::newRow("a forbidden character in the user's name, before the description")
            << Edit([](ProgramCheckValues& v) {
                   v.userFilename = true;
                   v.filenameUser = "a:b";
                   v.description.clear();
               })
            << false << "Invalid Filename";
        QTest::newRow("a user's name of nothing but an extension")
            << Edit([](ProgramCheckValues& v) {
                   v.userFilename = true;
                   v.filenameUser = " .WaV ";
               })
            << false << "Invalid Filename";
        QTest::newRow("the user's name leaves the prefix out") << Edit([](ProgramCheckValues& v) {
            v.userFilename = true;
            v.filenameUser = "show.mp3";
            v.prefixChecked = true;
            v.prefix = "a*";
        }) << false << "";
        QTest::newRow("an unchecked prefix counts for nothing")
            << Edit([](ProgramCheckValues& v) { v.prefix = "a*"; }) << false << "";
        QTest::newRow("a one-time start in the past, before the conflict")
            << Edit([](ProgramCheckValues& v) {
                   v.schedule.startTime = Programs::TimeOfDay("11:59:59");
               })
            << true << "Invalid date and time";
        QTest::newRow("a weekly start before now is next week's")
            << Edit([](ProgramCheckValues& v) {
                   Weekly(v, "0100000");
                   v.schedule.startTime = Programs::TimeOfDay("11:00:00");
               })
            << false << "";
        QTest::newRow("a conflict with an enabled program")
            << Edit([](ProgramCheckValues&) {}) << true << "Schedule Conflict";
        QTest::newRow("a disabled program is saved in conflict")
            << Edit([](ProgramCheckValues& v) { v.enabled = false; }) << true << "";
    }
    void theFirstBrokenRuleIsReported()
    {
        QFETCH(Edit, edit);
        QFETCH(bool, rival);
        QFETCH(QString, title);
        OpenedContext tc;
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
        if (rival) {
            tc.AddProgram(
                Programs::OneTime("Rival", At(2026, 6, 1, "00:00:00"), "13:30:00", "14:30:00"));
            tc.ctx->database.DataPrograms.Requery();
        }
        ProgramCheckValues values = NewProgram();
        edit(values);
        const ProgramValidator validator(tc.ctx->database, tc.clock, tc.ctx->options);

        const auto failed = validator.FirstFailedCheck(values);
        QCOMPARE(failed.has_value(), !title.isEmpty());
        if (!failed)
            return;
        QCOMPARE(failed->title, title);
        // The texts are the editor form's test; a conflict names the program in the way.
        if (title == "Schedule Conflict")
            QVERIFY(failed->text.endsWith("\n\nConflicting Program Description: Rival"));
    }

    // The options' padding reaches the conflict test: a show starting as the rival ends is
    // refused once recordings run a second late and early.
    void paddingFromTheOptionsCountsInTheConflictTest_data()
    {
        QTest::addColumn<int>("padding");
        QTest::addColumn<bool>("refused");
        QTest::newRow("no padding, back to back") << 0 << false;
        QTest::newRow("a second of padding") << 1 << true;
    }
    void paddingFromTheOptionsCountsInTheConflictTest()
    {
        QFETCH(int, padding);
        QFETCH(bool, refused);
        OpenedContext tc;
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
        tc.ctx->options.PaddingSeconds = qint16(padding);
        tc.AddProgram(
            Programs::OneTime("Rival", At(2026, 6, 1, "00:00:00"), "12:30:00", "13:00:00"));
        tc.ctx->database.DataPrograms.Requery();
        const ProgramValidator validator(tc.ctx->database, tc.clock, tc.ctx->options);

        const auto failed = validator.FirstFailedCheck(NewProgram());
        QCOMPARE(failed.has_value(), refused);
        if (failed)
            QCOMPARE(failed->title, QString("Schedule Conflict"));
    }

    void longRecordingsAreConfirmed_data()
    {
        QTest::addColumn<bool>("confirm");
        QTest::addColumn<int>("seconds");
        QTest::addColumn<bool>("asked");
        QTest::newRow("exactly the limit") << true << 3 * 3600 << false;
        QTest::newRow("a second more") << true << 3 * 3600 + 1 << true;
        QTest::newRow("not wanted") << false << 10 * 3600 << false;
    }
    void longRecordingsAreConfirmed()
    {
        QFETCH(bool, confirm);
        QFETCH(int, seconds);
        QFETCH(bool, asked);
        TestContext tc;
        tc.ctx->options.ConfirmLongRecordings = confirm;
        tc.ctx->options.LongRecordingHours = 3;
        const ProgramValidator validator(tc.ctx->database, tc.clock, tc.ctx->options);

        const auto question = validator.LongRecordingQuestion(seconds);
        QCOMPARE(question.has_value(), asked);
        if (question)
            QCOMPARE(question->title, QStringLiteral("Long Recording Confirmation"));
    }
};

QTEST_GUILESS_MAIN(TestProgramValidator)
#include "test_programvalidator.moc"
