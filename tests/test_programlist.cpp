#include "ProgramListFixture.h"
#include "Programs.h"
#include "scheduling/ProgramEditor.h"

#include <QtTest>

namespace {

QVariantHash Disabled(QVariantHash row)
{
    row["Enabled"] = 0;
    row["DescriptionText"] =
        ProgramEditor::DescriptionText(row.value("Description").toString(), false);
    return row;
}

} // namespace

class TestProgramList : public QObject {
    Q_OBJECT

private slots:
    void removeCountsTheRowUnderTheCursorWithTheSelection_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("rowsLeft");
        QTest::addColumn<int>("selectedLeft");
        QTest::newRow("yes: three selected and the cursor's row go")
            << int(MsgResult::Yes) << 2 << 0;
        // No leaves the selection as it stands, grown by the cursor's row.
        QTest::newRow("no: nothing goes") << int(MsgResult::No) << 6 << 4;
    }
    void removeCountsTheRowUnderTheCursorWithTheSelection()
    {
        QFETCH(int, answer);
        QFETCH(int, rowsLeft);
        QFETCH(int, selectedLeft);
        ProgramListFixture f;
        QList<qint64> ids;
        for (int i = 0; i < 6; ++i)
            ids << f.Add(
                Programs::Weekly("P" + QString::number(i), "10:00:00", "11:00:00", "0100000"));
        f.view.selected = {ids[0], ids[2], ids[4]};
        f.view.current = ids[5];
        f.messageBox.answers = {MsgResult(answer)};

        f.commands.RemovePrograms();

        QCOMPARE(f.messageBox.asked.size(), 1);
        QCOMPARE(f.messageBox.asked[0].title, QString("Remove Programs"));
        QCOMPARE(f.messageBox.asked[0].text,
                 QString("Are you sure you want to remove the selected programs."));
        QCOMPARE(f.messageBox.asked[0].buttons, MsgButtons::YesNo);
        QCOMPARE(f.CountRows("Programs"), rowsLeft);
        QVERIFY(f.ProgramColumn(ids[1], "ID").isValid());
        QVERIFY(f.ProgramColumn(ids[3], "ID").isValid());
        QCOMPARE(f.view.selected.size(), selectedLeft);
    }

    void removingTheLastRowLeavesNothingScheduled()
    {
        ProgramListFixture f;
        const qint64 only = f.Add(Programs::Weekly("Only", "10:00:00", "11:00:00", "1111111"));
        f.scheduler.ScheduleNextRecording();
        QVERIFY(f.scheduler.next.NextProgramFound);
        // Launch times left from before must go too.
        f.scheduler.next.NextLinkLaunchTime = 0;
        f.scheduler.next.NextAppLaunchTime = 0;
        f.view.current = only;
        f.messageBox.answers = {MsgResult::Yes};

        f.commands.RemovePrograms();

        QCOMPARE(f.CountRows("Programs"), 0);
        QVERIFY(!f.scheduler.next.NextProgramFound);
        QCOMPARE(f.scheduler.next.NextLinkLaunchTime, AutomationDate::Never());
        QCOMPARE(f.scheduler.next.NextAppLaunchTime, AutomationDate::Never());
        QVERIFY(f.view.buttonUpdates > 0);
    }

    // The first row is enabled, the second disabled. Several rows, the selection with the
    // cursor's, go through the dialog; the cursor's row alone is asked yes or no.
    void toggleAsksForOneRowAndUsesTheDialogForSeveral_data()
    {
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<int>("cursor");       // -1: none
        QTest::addColumn<int>("answer");       // the dialog's choice, or the MsgResult
        QTest::addColumn<QString>("question"); // empty: the dialog
        QTest::addColumn<bool>("firstEnabledAfter");
        QTest::addColumn<bool>("secondEnabledAfter");
        const auto row = [](const char* tag, const QList<int>& selected, int cursor, int answer,
                            const QString& question, bool first, bool second) {
            QTest::newRow(tag) << selected << cursor << answer << question << first << second;
        };
        row("two selected, disable", {0, 1}, -1, 1, "", false, false);
        row("two selected, enable", {0, 1}, -1, 0, "", true, true);
        row("two selected, cancel", {0, 1}, -1, 2, "", true, false);
        row("one selected, cursor on another", {0}, 1, 1, "", false, false);
        const QString question = "Are you sure you want to %1 the selected program?";
        row("cursor only, disable, no", {}, 0, int(MsgResult::No), question.arg("disable"), true,
            false);
        row("cursor only, enable, yes", {}, 1, int(MsgResult::Yes), question.arg("enable"), true,
            true);
    }
    void toggleAsksForOneRowAndUsesTheDialogForSeveral()
    {
        QFETCH(QList<int>, selected);
        QFETCH(int, cursor);
        QFETCH(int, answer);
        QFETCH(QString, question);
        QFETCH(bool, firstEnabledAfter);
        QFETCH(bool, secondEnabledAfter);
        ProgramListFixture f;
        const QString longName = "An evening concert from the hall downtown";
        const QList<qint64> ids{
            f.Add(Programs::Weekly(longName, "10:00:00", "11:00:00", "0100000")),
            f.Add(Disabled(Programs::Weekly("Night talk", "22:00:00", "23:00:00", "0010000")))};
        for (int i : selected)
            f.view.selected << ids[i];
        if (cursor >= 0)
            f.view.current = ids[cursor];
        f.view.enableDisableChoice = answer;
        f.messageBox.answers = {MsgResult(answer)};
        f.scheduler.ScheduleNextRecording();

        f.commands.ToggleProgramEnables();

        QCOMPARE(f.view.enableDisableShown, question.isEmpty() ? 1 : 0);
        QCOMPARE(f.messageBox.asked.size(), question.isEmpty() ? 0 : 1);
        if (!question.isEmpty()) {
            QCOMPARE(f.messageBox.asked[0].text, question);
            QCOMPARE(f.view.current, ids[cursor]);
        }
        QCOMPARE(Field::ToBool(f.ProgramColumn(ids[0], "Enabled")), firstEnabledAfter);
        QCOMPARE(Field::ToBool(f.ProgramColumn(ids[1], "Enabled")), secondEnabledAfter);
        QCOMPARE(f.scheduler.next.NextProgramFound, firstEnabledAfter || secondEnabledAfter);
        QCOMPARE(f.ProgramColumn(ids[0], "DescriptionText").toString(),
                 ProgramEditor::DescriptionText(longName, firstEnabledAfter));
        QCOMPARE(f.ProgramColumn(ids[1], "DescriptionText").toString(),
                 secondEnabledAfter ? QString("Night talk")
                                    : QString("Night talk   **DISABLED** "));
    }

    // The editor is cancelled each time: a cancelled clone clears the selection, a cancelled
    // add does not, and both bring the buttons up to date.
    void editAndCloneFindTheirRow()
    {
        ProgramListFixture f;
        f.commands.EditProgram(); // empty list: nothing at all
        QCOMPARE(f.view.formsShown, 0);

        f.Add(Programs::Weekly("A", "10:00:00", "11:00:00", "0100000"));
        const qint64 b = f.Add(Programs::Weekly("B", "12:00:00", "13:00:00", "0100000"));
        f.view.selected = {b}; // no current row: the first selected counts
        f.commands.EditProgram();
        QCOMPARE(f.view.formsShown, 1);
        QCOMPARE(f.view.shownWith.FormDescription, QString("B"));
        QVERIFY(f.view.shownEditing);
        QCOMPARE(f.view.shownId, qint32(b));

        const int updates = f.view.buttonUpdates;
        f.commands.AddNewProgram();
        QCOMPARE(f.view.selected, QList<qint64>{b});
        f.commands.CopyProgram();
        QVERIFY(!f.view.shownEditing);
        QCOMPARE(f.view.shownWith.FormDescription, QString("B"));
        QVERIFY(f.view.selected.isEmpty());
        QCOMPARE(f.CountRows("Programs"), 2);
        QCOMPARE(f.view.buttonUpdates, updates + 2);
    }

    void aNewProgramStartsAtTheNextWholeHourAndIsScheduledWhenSaved()
    {
        ProgramListFixture f;
        f.clock.Set(QDateTime(QDate(2026, 6, 1), QTime(23, 20, 15)));
        f.view.answerForm = [](ProgramFormValues& v) {
            v.FormDescription = "Late show";
        };

        f.commands.AddNewProgram();

        const ProgramFormValues& shown = f.view.shownWith;
        QCOMPARE(AutomationDate::ToDateTime(shown.FormStartTime).time(), QTime(0, 0));
        QCOMPARE(AutomationDate::ToDateTime(shown.FormEndTime).time(), QTime(1, 0));
        QCOMPARE(AutomationDate::ToDateTime(shown.FormOneTimeDay).date(), QDate(2026, 6, 2));
        QVERIFY(shown.FormEnabled);
        QCOMPARE(shown.FormFrequency, qint16(0));
        QCOMPARE(shown.FormCompressionMethod, f.defaultFormat.TextCompressionMethod);

        QCOMPARE(f.CountRows("Programs"), 1);
        const NextProgram& next = f.scheduler.next;
        QVERIFY(next.NextProgramFound);
        QCOMPARE(next.NextProgramDescription, QString("Late show"));
        QCOMPARE(next.NextProgramStart, Programs::At(2026, 6, 2, "00:00:00"));
        QCOMPARE(f.view.current, qint64(next.NextProgramId));
    }

    void savingWritesTheDerivedColumns_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("days");
        QTest::addColumn<QString>("descriptionText");
        QTest::addColumn<QString>("frequencyText");
        const QString name = "123456789012345678901234567890";
        const auto row = [&name](const char* tag, const char* days, const char* frequency) {
            QTest::newRow(tag) << true << QString(days) << name << QString(frequency);
        };
        // Three days or more in a row are a range; the week does not wrap.
        row("working week", "0111110", "Mon-Fri");
        row("two days in a row stay two names", "1101000", "Sun,Mon,Wed");
        row("range then single", "1110100", "Sun-Tue,Thu");
        row("single then range to Saturday", "0100111", "Mon,Thu-Sat");
        row("whole week", "1111111", "Sun-Sat");
        row("no day", "0000000", " ");
        QTest::newRow("disabled weekend") << false << "1000001"
                                          << "1234567890123456789012345   **DISABLED** "
                                          << "Sun,Sat";
    }
    void savingWritesTheDerivedColumns()
    {
        QFETCH(bool, enabled);
        QFETCH(QString, days);
        QFETCH(QString, descriptionText);
        QFETCH(QString, frequencyText);
        ProgramListFixture f;
        QVariantHash row =
            Programs::Weekly("123456789012345678901234567890", "10:00:00", "11:00:00", days);
        row["RecordingCancelled"] = -1;
        const qint64 id = f.Add(row);
        f.view.current = id;
        f.view.answerForm = [enabled](ProgramFormValues& v) {
            v.FormEnabled = enabled;
        };

        f.commands.EditProgram();

        QCOMPARE(f.CountRows("Programs"), 1);
        QCOMPARE(f.ProgramColumn(id, "DescriptionText").toString(), descriptionText);
        QCOMPARE(f.ProgramColumn(id, "FrequencyText").toString(), frequencyText);
        QVERIFY(!Field::ToBool(f.ProgramColumn(id, "RecordingCancelled")));
    }

    void oldRowsReadWithTheirNullRules()
    {
        ProgramListFixture f;
        QVariantHash row = Programs::Weekly("Old", "10:00:00", "11:00:00", "0100000");
        row.remove("StreamingPlayerClose");
        row.remove("LaunchAppDelay");
        row.remove("InternetLinkDelay");
        row["LaunchAppPrior"] = "  player --start  ";
        const qint64 id = f.Add(row);
        Recordset& rs = f.database.DataPrograms.recordset();
        rs.SetBookmark(id);
        const ProgramFormValues v = ProgramEditor::ReadProgramRow(f.Root() + "/mixer", rs);
        QCOMPARE(v.FormStreamingPlayerClose, ProgramEditor::DoNotClose);
        QCOMPARE(v.FormLaunchAppPrior, QString("player --start"));
        QCOMPARE(v.FormLaunchAppDelay, qint16(0));
    }

    void conflictsAreFoundAsTheEditorSeesThem_data()
    {
        QTest::addColumn<QVariantHash>("other");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("days");
        QTest::addColumn<bool>("conflict");
        QTest::addColumn<int>("padding");
        const auto row = [](const char* tag, const QVariantHash& other, const QDate& day,
                            const char* start, const char* end, const char* days, bool conflict,
                            int padding = 0) {
            QTest::newRow(tag) << other << day << QString(start) << QString(end) << QString(days)
                               << conflict << padding;
        };
        const auto once = [](const QDate& d, const char* start, const char* end) {
            return Programs::OneTime("Other", AutomationDate::FromDate(d), start, end);
        };
        const QVariantHash mondays = Programs::Weekly("Other", "10:00:00", "11:00:00", "0100000");
        const QDate monday(2026, 6, 1);
        row("one time, same date, overlapping", once(monday, "10:00:00", "11:00:00"), monday,
            "10:30:00", "11:30:00", "", true);
        row("one time, a week apart", once(monday.addDays(7), "10:00:00", "11:00:00"), monday,
            "10:30:00", "11:30:00", "", false);
        row("one time across midnight into the other's morning",
            once(monday.addDays(1), "01:00:00", "03:00:00"), monday, "22:00:00", "02:00:00", "",
            true);
        row("one time of equal times has no length", once(monday, "12:00:00", "13:00:00"), monday,
            "10:00:00", "10:00:00", "", false);
        row("one time against weekly of its weekday", mondays, QDate(2030, 1, 7), "10:30:00",
            "11:30:00", "", true);
        row("disabled other", Disabled(mondays), QDate(), "10:00:00", "11:00:00", "0100000", false);
        // Padded windows: the other program's 11:00 end and this 11:01 start are 60 s
        // apart, so 30 s of padding at each end only touches, and 31 s overlaps.
        row("padding that only touches", mondays, QDate(), "11:01:00", "12:00:00", "0100000", false,
            30);
        row("padding that overlaps, weekly", mondays, QDate(), "11:01:00", "12:00:00", "0100000",
            true, 31);
        row("padding across midnight into the next weekday",
            Programs::Weekly("Other", "00:05:00", "01:00:00", "0010000"), QDate(), "23:00:00",
            "00:00:00", "0100000", true, 301);
    }
    void conflictsAreFoundAsTheEditorSeesThem()
    {
        QFETCH(QVariantHash, other);
        QFETCH(QDate, day);
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, days);
        QFETCH(bool, conflict);
        QFETCH(int, padding);
        ProgramListFixture f;
        f.Add(other);
        ProgramEditor::ConflictQuery q;
        q.paddingSeconds = qint16(padding);
        q.oneTime = day.isValid();
        if (q.oneTime)
            q.oneTimeDay = AutomationDate::FromDate(day);
        q.startTime = Programs::TimeOfDay(start);
        q.endTime = Programs::TimeOfDay(end);
        for (int d = 0; d < 7 && !days.isEmpty(); ++d)
            q.days[d] = days.at(d) == u'1';
        QString description;
        QCOMPARE(ProgramEditor::ProgramingConflict(f.database, q, description), conflict);
        QCOMPARE(description, conflict ? QString("Other") : QString());
    }
};

QTEST_GUILESS_MAIN(TestProgramList)
#include "test_programlist.moc"
