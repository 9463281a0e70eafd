#include "Programs.h"
#include "StoreParts.h"
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
    // the rules' order and the cases that let an entry through. The rival runs 13:30-14:30.
    void theFirstBrokenRuleIsReported_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("rival");
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("padding");
        const auto row = [](const char* tag, const Edit& edit, bool rival, const char* title,
                            int padding = 0) {
            QTest::newRow(tag) << edit << rival << QString(title) << padding;
        };
        row(
            "a forbidden character in the user's name, before the description",
            [](ProgramCheckValues& v) {
                v.userFilename = true;
                v.filenameUser = "a:b";
                v.description.clear();
            },
            false, "Invalid Filename");
        row(
            "a user's name of nothing but an extension",
            [](ProgramCheckValues& v) {
                v.userFilename = true;
                v.filenameUser = " .WaV ";
            },
            false, "Invalid Filename");
        row(
            "the user's name leaves the prefix out",
            [](ProgramCheckValues& v) {
                v.userFilename = true;
                v.filenameUser = "show.mp3";
                v.prefixChecked = true;
                v.prefix = "a*";
            },
            false, "");
        row(
            "an unchecked prefix counts for nothing",
            [](ProgramCheckValues& v) { v.prefix = "a*"; }, false, "");
        row(
            "a one-time start in the past, before the conflict",
            [](ProgramCheckValues& v) { v.schedule.startTime = Programs::TimeOfDay("11:59:59"); },
            true, "Invalid date and time");
        row(
            "a weekly start before now is next week's",
            [](ProgramCheckValues& v) {
                Weekly(v, "0100000");
                v.schedule.startTime = Programs::TimeOfDay("11:00:00");
            },
            false, "");
        row(
            "a conflict with an enabled program", [](ProgramCheckValues&) {}, true,
            "Schedule Conflict");
        row(
            "a disabled program is saved in conflict",
            [](ProgramCheckValues& v) { v.enabled = false; }, true, "");
        // The options' padding reaches the conflict test.
        const Edit backToBack = [](ProgramCheckValues& v) {
            v.schedule.endTime = Programs::TimeOfDay("13:30:00");
        };
        row("back to back without padding", backToBack, true, "");
        row("back to back with a second of padding", backToBack, true, "Schedule Conflict", 1);
    }
    void theFirstBrokenRuleIsReported()
    {
        QFETCH(Edit, edit);
        QFETCH(bool, rival);
        QFETCH(QString, title);
        QFETCH(int, padding);
        StoreParts s;
        s.clock.Set(At(2026, 6, 1, "12:00:00"));
        s.options.PaddingSeconds = qint16(padding);
        if (rival)
            s.AddProgram(
                Programs::OneTime("Rival", At(2026, 6, 1, "00:00:00"), "13:30:00", "14:30:00"));
        ProgramCheckValues values = NewProgram();
        edit(values);
        const ProgramValidator validator(s.database, s.clock, s.options);

        const auto failed = validator.FirstFailedCheck(values);
        QCOMPARE(failed.has_value(), !title.isEmpty());
        if (!failed)
            return;
        QCOMPARE(failed->title, title);
        // The texts are the editor form's test; a conflict names the program in the way.
        if (title == "Schedule Conflict")
            QVERIFY(failed->text.endsWith("\n\nConflicting Program Description: Rival"));
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
        StoreParts s(false);
        s.options.ConfirmLongRecordings = confirm;
        s.options.LongRecordingHours = 3;
        const ProgramValidator validator(s.database, s.clock, s.options);

        const auto question = validator.LongRecordingQuestion(seconds);
        QTEST(question.has_value(), "asked");
        if (question)
            QCOMPARE(question->title, QStringLiteral("Long Recording Confirmation"));
    }
};

QTEST_GUILESS_MAIN(TestProgramValidator)
#include "test_programvalidator.moc"
