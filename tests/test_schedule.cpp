#include "LogCapture.h"
#include "Programs.h"
#include "StoreParts.h"
#include "diagnostics/Trap.h"
#include "scheduling/Scheduler.h"

#include <QTest>

using Programs::At;

namespace {

// The scheduler over a fresh database.
struct Schedule : StoreParts {
    Scheduler scheduler{clock, database, log, messageBox, options};
};

std::optional<ProgramOccurrence> Search(Schedule& s, double reference, bool readOnly = false)
{
    return s.scheduler.DetermineNextProgramToSchedule(readOnly, reference);
}

} // namespace

class TestSchedule : public QObject {
    Q_OBJECT

private slots:
    // The occurrence found from a moment, and whether the search let a lapsed cancellation
    // go. Monday 1 June 2026 is the reference week's Monday.
    void theNextOccurrence_data()
    {
        QTest::addColumn<QVariantHash>("program");
        QTest::addColumn<double>("reference");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<double>("start"); // 0: none found
        QTest::addColumn<double>("end");
        QTest::addColumn<int>("stillCancelled"); // -1: not asked
        const auto row = [](const char* tag, const QVariantHash& program, double reference,
                            double start, double end, int stillCancelled = -1,
                            bool readOnly = false) {
            QTest::newRow(tag) << program << reference << readOnly << start << end
                               << stillCancelled;
        };
        const auto cancelled = [](QVariantHash program, double end) {
            program["RecordingCancelled"] = -1;
            program["RecordingCancelledEndDateAndTime"] = end;
            return program;
        };
        const QVariantHash late = Programs::Weekly("Late", "23:00:00", "01:00:00", "0100000");
        row("across midnight, before it", late, At(2026, 6, 1, "22:00:00"),
            At(2026, 6, 1, "23:00:00"), At(2026, 6, 2, "01:00:00"));
        row("across midnight, while it runs", late, At(2026, 6, 2, "00:30:00"),
            At(2026, 6, 1, "23:00:00"), At(2026, 6, 2, "01:00:00"));
        row("across midnight, at its end", late, At(2026, 6, 2, "01:00:00"),
            At(2026, 6, 8, "23:00:00"), At(2026, 6, 9, "01:00:00"));
        // The last half-second of Monday takes Monday's date and weekday alike.
        row("tomorrow's, just before midnight",
            Programs::Weekly("Tuesday", "08:00:00", "09:00:00", "0010000"),
            AutomationDate::FromDateTime(QDateTime(QDate(2026, 6, 1), QTime(23, 59, 59, 700))),
            At(2026, 6, 2, "08:00:00"), At(2026, 6, 2, "09:00:00"));
        // Stopped at 10:20 on Wednesday: the cancellation holds until after 11:00.
        const QVariantHash daily =
            cancelled(Programs::Weekly("Daily", "10:00:00", "11:00:00", "1111111"),
                      At(2026, 6, 3, "11:00:00"));
        const double thursday = At(2026, 6, 4, "10:00:00");
        const double thursdayEnd = At(2026, 6, 4, "11:00:00");
        row("cancelled, during the stopped one", daily, At(2026, 6, 3, "10:20:00"), thursday,
            thursdayEnd, 1);
        row("cancelled, at its very end", daily, At(2026, 6, 3, "11:00:00"), thursday, thursdayEnd,
            1);
        row("cancelled, after its end", daily, At(2026, 6, 3, "11:00:01"), thursday, thursdayEnd,
            0);
        row("cancelled, after its end, read only", daily, At(2026, 6, 3, "11:00:01"), thursday,
            thursdayEnd, 1, true);
        row("an occurrence starting at the cancelled end is skipped",
            cancelled(Programs::Weekly("Wed", "10:00:00", "11:00:00", "0001000"),
                      At(2026, 6, 3, "10:00:00")),
            At(2026, 6, 3, "09:00:00"), At(2026, 6, 10, "10:00:00"), At(2026, 6, 10, "11:00:00"));
        const QVariantHash party =
            Programs::OneTime("Party", At(2026, 12, 31, "00:00:00"), "23:00:00", "01:00:00");
        const double newYearsEve = At(2026, 12, 31, "00:00:00");
        row("one time, into the new year", party, At(2027, 1, 1, "00:30:00"),
            At(2026, 12, 31, "23:00:00"), At(2027, 1, 1, "01:00:00"));
        row("one time, over at 01:00", party, At(2027, 1, 1, "01:00:00"), 0, 0);
        // The cancellation lapses before the enabled test leaves the row out.
        QVariantHash off = cancelled(Programs::Weekly("Off", "10:00:00", "11:00:00", "1111111"),
                                     At(2026, 5, 1, "11:00:00"));
        off["Enabled"] = 0;
        row("disabled, a lapsed cancellation", off, At(2026, 6, 1, "12:00:00"), 0, 0, 0);
        for (const QVariant& flag : {QVariant(-1), QVariant()}) {
            QVariantHash cancelledParty = party;
            cancelledParty["RecordingCancelled"] = flag;
            row(flag.isNull() ? "one time, NULL cancellation" : "one time, cancelled",
                cancelledParty, newYearsEve, 0, 0);
        }
    }
    void theNextOccurrence()
    {
        QFETCH(QVariantHash, program);
        QFETCH(double, reference);
        QFETCH(bool, readOnly);
        Schedule s;
        const qint64 id = s.AddProgram(program);
        const auto f = Search(s, reference, readOnly);
        QTEST(f ? f->startDateTime : 0.0, "start");
        QTEST(f ? f->endDateTime : 0.0, "end");
        QFETCH(int, stillCancelled);
        if (stillCancelled >= 0)
            QCOMPARE(Field::ToBool(s.ProgramColumn(id, "RecordingCancelled")),
                     bool(stillCancelled));
    }

    // Rows of an older file: NULL in the added columns reads as the documented value,
    // a row of NULLs is left out, and a damaged row ends the search with what it found.
    void rowsWithNulls()
    {
        Schedule s;
        s.AddProgram({{"Description", "all null"}});
        QVariantHash old = Programs::Weekly("Old", "20:00:00", "21:00:00", "0100000");
        for (const char* added : {"StreamingPlayerClose", "InternetLinkDelay", "LaunchAppDelay"})
            old.remove(added);
        old["HangupInternetConnection"] = QVariant();
        s.AddProgram(old);
        auto f = Search(s, At(2026, 6, 1, "12:00:00"));
        QVERIFY(f);
        QCOMPARE(f->description, QStringLiteral("Old"));
        QCOMPARE(f->streamingPlayerClose, QStringLiteral("DO_NOT_CLOSE"));
        QCOMPARE(f->internetLink, QString());
        QCOMPARE(f->internetLinkDelay, qint16(0));
        QCOMPARE(f->launchAppDelay, qint16(0));
        QVERIFY(!f->hangupInternetConnection);

        // What the start does with a one-time row of NULLs: the trap names the routine.
        s.AddProgram({{"Frequency", 0}});
        s.clock.Set(At(2026, 6, 1, "12:00:00"));
        {
            LogCapture capture;
            s.scheduler.ScheduleNextRecording();
            Trap(s.log, "test", [&] { s.scheduler.OfferRemovalOfExpiredPrograms(); });
            QVERIFY(s.scheduler.next.NextProgramFound);
            QVERIFY(capture.Contains("Module: OfferRemovalOfExpiredPrograms"));
        }

        // After Old in the list's order.
        QVariantHash damaged = Programs::Weekly("Worn", "10:00:00", "11:00:00", "0100000");
        damaged["Mon"] = QVariant();
        s.AddProgram(damaged);
        LogCapture capture;
        f = Search(s, At(2026, 6, 1, "12:00:00"));
        QVERIFY(f);
        QCOMPARE(f->description, QStringLiteral("Old"));
        QVERIFY(capture.Contains("Module: DetermineNextProgramToSchedule"));
    }

    // What the search at noon on Monday hands on to the heartbeat: the padded window, which
    // gives way to the next program, and the lead times of the link and the application.
    // Of two programs, the first to start wins, a running one before a later one; equal
    // starts go by the grid's order.
    void theNextRecordingAsScheduled_data()
    {
        QTest::addColumn<QList<QVariantHash>>("programs");
        QTest::addColumn<int>("padding");
        QTest::addColumn<QString>("order");
        QTest::addColumn<QStringList>("window"); // description, start, end
        QTest::addColumn<int>("linkLead");       // seconds ahead, -1: never
        QTest::addColumn<int>("appLead");
        const auto row = [](const char* tag, const QList<QVariantHash>& programs, int padding,
                            const QStringList& window, int linkLead = -1, int appLead = -1,
                            const char* order = "ASC") {
            QTest::newRow(tag) << programs << padding << QString(order) << window << linkLead
                               << appLead;
        };
        const auto evening = [](const QVariantHash& columns = {}) {
            QVariantHash program = Programs::Weekly("Evening", "20:00:00", "21:00:00", "0100000");
            program["StreamingPlayerClose"] = ""; // the automatic player
            program.insert(columns);
            return program;
        };
        const auto later = [](const char* start) {
            return Programs::Weekly("Later", start, "23:00:00", "0100000");
        };
        const QStringList asIs{"Evening", "20:00:00", "21:00:00"};
        row("no padding", {evening()}, 0, asIs);
        row("padded", {evening()}, 300, {"Evening", "19:55:00", "21:05:00"});
        row("padding gives way to the next", {evening(), later("21:00:00")}, 300,
            {"Evening", "19:55:00", "21:00:00"});
        row("padding gives way part way", {evening(), later("21:03:00")}, 300,
            {"Evening", "19:55:00", "21:03:00"});
        row("an overlapping one does not cut it", {evening(), later("20:30:00")}, 300,
            {"Evening", "19:55:00", "21:00:00"});
        row("automatic player: at least 5 s", {evening({{"InternetLink", "http://radio"}})}, 0,
            asIs, 5);
        row("do not close: at the start",
            {evening({{"InternetLink", "http://radio"},
                      {"StreamingPlayerClose", "DO_NOT_CLOSE"},
                      {"LaunchAppPrior", "player"}})},
            0, asIs, 0, 0);
        row("a longer lead stays",
            {evening({{"InternetLink", "http://radio"},
                      {"InternetLinkDelay", 60},
                      {"LaunchAppPrior", "player"},
                      {"LaunchAppDelay", 3}})},
            0, asIs, 60, 3);
        row("no link",
            {evening({{"InternetLinkDelay", 30},
                      {"LaunchAppPrior", "player"},
                      {"LaunchAppDelay", 120}})},
            0, asIs, -1, 120);
        const QVariantHash bravo = Programs::Weekly("Bravo", "20:00:00", "21:00:00", "0100000");
        const QVariantHash alpha = Programs::Weekly("Alpha", "20:00:00", "20:30:00", "0100000");
        row("equal starts, ascending", {bravo, alpha}, 0, {"Alpha", "20:00:00", "20:30:00"});
        row("equal starts, descending", {bravo, alpha}, 0, {"Bravo", "20:00:00", "21:00:00"}, -1,
            -1, "DESC");
        row("running beats a later start",
            {bravo, Programs::Weekly("Alpha", "11:00:00", "21:30:00", "0100000")}, 0,
            {"Alpha", "11:00:00", "21:30:00"}, -1, -1, "DESC");
    }
    void theNextRecordingAsScheduled()
    {
        QFETCH(QList<QVariantHash>, programs);
        QFETCH(QStringList, window);
        Schedule s;
        QFETCH(int, padding);
        s.options.PaddingSeconds = qint16(padding);
        for (const QVariantHash& program : programs)
            s.AddProgram(program);
        QFETCH(QString, order);
        s.database.DataPrograms.SetRecordSource(
            "SELECT * FROM [Programs] ORDER BY [DescriptionText] " + order);
        s.database.DataPrograms.Refresh();
        s.clock.Set(At(2026, 6, 1, "12:00:00"));
        s.scheduler.ScheduleNextRecording();
        const NextProgram& n = s.scheduler.next;
        QVERIFY(n.NextProgramFound);
        QCOMPARE(n.NextProgramDescription, window[0]);
        const double start = At(2026, 6, 1, window[1]);
        QCOMPARE(n.NextProgramStart, start);
        QCOMPARE(n.NextProgramEnd, At(2026, 6, 1, window[2]));
        QFETCH(int, linkLead);
        QFETCH(int, appLead);
        const auto lead = [start](int seconds) {
            return seconds < 0 ? AutomationDate::Never()
                               : AutomationDate::AddSeconds(start, -seconds);
        };
        QCOMPARE(n.NextLinkLaunchTime, lead(linkLead));
        QCOMPARE(n.NextAppLaunchTime, lead(appLead));
        QCOMPARE(n.NextInternetLinkDelay, qint16(programs[0].value("InternetLinkDelay").toInt()));
    }

    void expiredOneTimeProgramsAreOfferedForRemoval_data()
    {
        QTest::addColumn<bool>("removeExpired");
        QTest::addColumn<MsgResult>("answer");
        QTest::addColumn<int>("asked");
        QTest::addColumn<int>("left");
        QTest::newRow("yes") << true << MsgResult::Yes << 1 << 2;
        QTest::newRow("no") << true << MsgResult::No << 1 << 3;
        QTest::newRow("setting off") << false << MsgResult::Yes << 0 << 3;
    }
    void expiredOneTimeProgramsAreOfferedForRemoval()
    {
        Schedule s;
        QFETCH(bool, removeExpired);
        s.options.RemoveExpiredPrograms = removeExpired;
        QFETCH(MsgResult, answer);
        s.messageBox.answers << answer;
        s.AddProgram(
            Programs::OneTime("Missed", At(2026, 5, 31, "00:00:00"), "10:00:00", "11:00:00"));
        s.AddProgram(
            Programs::OneTime("Tonight", At(2026, 5, 31, "00:00:00"), "23:00:00", "13:00:00"));
        s.AddProgram(Programs::Weekly("Weekly", "10:00:00", "11:00:00", "1000000"));
        s.clock.Set(At(2026, 6, 1, "12:00:00"));
        s.scheduler.OfferRemovalOfExpiredPrograms();
        QFETCH(int, asked);
        QCOMPARE(s.messageBox.asked.size(), asked);
        if (!s.messageBox.asked.isEmpty())
            QCOMPARE(s.messageBox.asked[0].title, QStringLiteral("Missed recordings"));
        QTEST(s.database.DataPrograms.recordset().RecordCount(), "left");
    }

    void cancellingARecording_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<bool>("removeExpired");
        QTest::addColumn<bool>("deleted");
        QTest::newRow("weekly") << 1 << true << false;
        QTest::newRow("one time, removed") << 0 << true << true;
        QTest::newRow("one time, kept") << 0 << false << false;
    }
    void cancellingARecording()
    {
        Schedule s;
        QFETCH(bool, removeExpired);
        s.options.RemoveExpiredPrograms = removeExpired;
        QVariantHash row =
            Programs::OneTime("Show", At(2026, 6, 1, "00:00:00"), "10:00:00", "11:00:00");
        QFETCH(int, frequency);
        row["Frequency"] = frequency;
        row["Mon"] = -1; // 1 June 2026 is a Monday
        const qint64 id = s.AddProgram(row);
        const double end = At(2026, 6, 1, "11:00:00");
        s.scheduler.CancelRecording(qint32(id), end);
        s.scheduler.CancelRecording(qint32(id + 100), end); // no such row: nothing happens
        Recordset rs = s.database.DataPrograms.recordset().Clone();
        QFETCH(bool, deleted);
        QCOMPARE(rs.RecordCount(), deleted ? 0 : 1);
        if (rs.RecordCount()) {
            rs.MoveFirst();
            QVERIFY(Field::ToBool(rs.Value("RecordingCancelled")));
            QCOMPARE(rs.Value("RecordingCancelledEndDateAndTime").toDouble(),
                     At(2026, 6, 1, "11:00:00"));
        }
        // The occurrence dealt with is not found again; a weekly one's next week is.
        const auto f = Search(s, At(2026, 6, 1, "10:30:00"));
        QVERIFY(!f || f->startDateTime == At(2026, 6, 8, "10:00:00"));
    }
};

QTEST_GUILESS_MAIN(TestSchedule)
#include "test_schedule.moc"
