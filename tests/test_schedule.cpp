#include "LogCapture.h"
#include "OpenedContext.h"
#include "Programs.h"

#include <QTest>

using Programs::At;

namespace {

std::optional<ProgramOccurrence> Search(AppContext& ctx, double reference, bool readOnly = false)
{
    return ctx.scheduler.DetermineNextProgramToSchedule(readOnly, reference);
}

QVariant Column(AppContext& ctx, qint64 id, const QString& column)
{
    Recordset rs = ctx.database.DataPrograms.recordset().Clone();
    rs.SetBookmark(id);
    return rs.Value(column);
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
        OpenedContext tc;
        const qint64 id = tc.AddProgram(program);
        const auto f = Search(*tc.ctx, reference, readOnly);
        QTEST(f ? f->startDateTime : 0.0, "start");
        QTEST(f ? f->endDateTime : 0.0, "end");
        QFETCH(int, stillCancelled);
        if (stillCancelled >= 0)
            QCOMPARE(Field::ToBool(Column(*tc.ctx, id, "RecordingCancelled")),
                     bool(stillCancelled));
    }

    // Of two programs due, the one that starts first wins, a running one before a later
    // one; equal starts go by the grid's order.
    void theFirstOfTwoProgramsWins_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QStringList>("alpha"); // start and end; Bravo runs from 20:00 to 21:00
        QTest::addColumn<QString>("winner");
        QTest::newRow("equal starts, ascending")
            << QString("ASC") << QStringList{"20:00:00", "20:30:00"} << QString("Alpha");
        QTest::newRow("equal starts, descending")
            << QString("DESC") << QStringList{"20:00:00", "20:30:00"} << QString("Bravo");
        QTest::newRow("running beats a later start")
            << QString("DESC") << QStringList{"11:00:00", "21:30:00"} << QString("Alpha");
    }
    void theFirstOfTwoProgramsWins()
    {
        QFETCH(QString, order);
        QFETCH(QStringList, alpha);
        OpenedContext tc;
        tc.AddProgram(Programs::Weekly("Bravo", "20:00:00", "21:00:00", "0100000"));
        tc.AddProgram(Programs::Weekly("Alpha", alpha[0], alpha[1], "0100000"));
        AppDatabase& db = tc.ctx->database;
        db.DataPrograms.SetRecordSource("SELECT * FROM [Programs] ORDER BY [DescriptionText] " +
                                        order);
        db.DataPrograms.Refresh();
        QTEST(Search(*tc.ctx, At(2026, 6, 1, "12:00:00"))->description, "winner");
    }

    // Rows of an older file: NULL in the added columns reads as the documented value,
    // a row of NULLs is left out, and a damaged row ends the search with what it found.
    void rowsWithNulls()
    {
        OpenedContext tc;
        tc.AddProgram({{"Description", "all null"}});
        QVariantHash old = Programs::Weekly("Old", "20:00:00", "21:00:00", "0100000");
        for (const char* added : {"StreamingPlayerClose", "InternetLinkDelay", "LaunchAppDelay"})
            old.remove(added);
        old["HangupInternetConnection"] = QVariant();
        tc.AddProgram(old);
        auto f = Search(*tc.ctx, At(2026, 6, 1, "12:00:00"));
        QVERIFY(f);
        QCOMPARE(f->description, QStringLiteral("Old"));
        QCOMPARE(f->streamingPlayerClose, QStringLiteral("DO_NOT_CLOSE"));
        QCOMPARE(f->internetLink, QString());
        QCOMPARE(f->internetLinkDelay, qint16(0));
        QCOMPARE(f->launchAppDelay, qint16(0));
        QVERIFY(!f->hangupInternetConnection);

        // What the start does with a one-time row of NULLs: the trap names the routine.
        tc.AddProgram({{"Frequency", 0}});
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
        {
            LogCapture capture;
            tc.ctx->scheduler.ScheduleNextRecording();
            tc.ctx->scheduler.OfferRemovalOfExpiredPrograms();
            QVERIFY(tc.ctx->scheduler.next.NextProgramFound);
            QVERIFY(capture.Contains("Module: OfferRemovalOfExpiredPrograms"));
        }

        QVariantHash damaged = Programs::Weekly("Damaged", "10:00:00", "11:00:00", "0100000");
        damaged["Mon"] = QVariant();
        tc.AddProgram(damaged);
        LogCapture capture;
        f = Search(*tc.ctx, At(2026, 6, 1, "12:00:00"));
        QVERIFY(f);
        QCOMPARE(f->description, QStringLiteral("Old"));
        QVERIFY(capture.Contains("Module: DetermineNextProgramToSchedule"));
    }

    // A program from 20:00 to 21:00 on Monday and maybe another after it.
    void paddingWidensScheduledRecordings_data()
    {
        QTest::addColumn<int>("padding");
        QTest::addColumn<QString>("following");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        const auto row = [](const char* tag, int padding, const char* following, const char* start,
                            const char* end) {
            QTest::newRow(tag) << padding << QString(following) << QString(start) << QString(end);
        };
        row("none", 0, "", "20:00:00", "21:00:00");
        row("alone", 300, "", "19:55:00", "21:05:00");
        row("gives way to the next", 300, "21:00:00", "19:55:00", "21:00:00");
        row("gives way part way", 300, "21:03:00", "19:55:00", "21:03:00");
        row("an overlapping one does not cut it", 300, "20:30:00", "19:55:00", "21:00:00");
    }
    void paddingWidensScheduledRecordings()
    {
        QFETCH(int, padding);
        QFETCH(QString, following);
        QFETCH(QString, start);
        QFETCH(QString, end);
        OpenedContext tc;
        tc.ctx->options.PaddingSeconds = qint16(padding);
        tc.AddProgram(Programs::Weekly("Evening", "20:00:00", "21:00:00", "0100000"));
        if (!following.isEmpty())
            tc.AddProgram(Programs::Weekly("Later", following, "23:00:00", "0100000"));
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
        tc.ctx->scheduler.ScheduleNextRecording();
        const NextProgram& n = tc.ctx->scheduler.next;
        QCOMPARE(n.NextProgramDescription, QString("Evening"));
        QCOMPARE(n.NextProgramStart, At(2026, 6, 1, start));
        QCOMPARE(n.NextProgramEnd, At(2026, 6, 1, end));
    }

    void launchTimesAheadOfTheStart_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<int>("linkDelay");
        QTest::addColumn<QString>("close");
        QTest::addColumn<QString>("launch");
        QTest::addColumn<int>("launchDelay");
        QTest::addColumn<int>("linkLead");
        QTest::addColumn<int>("appLead");
        const auto row = [](const char* tag, const char* link, int linkDelay, const char* close,
                            const char* launch, int launchDelay, int linkLead, int appLead) {
            QTest::newRow(tag) << QString(link) << linkDelay << QString(close) << QString(launch)
                               << launchDelay << linkLead << appLead;
        };
        row("automatic player: at least 5 s", "http://radio", 0, "", "", 0, 5, -1);
        row("do not close: at the start", "http://radio", 0, "DO_NOT_CLOSE", "player", 0, 0, 0);
        row("a longer lead stays", "http://radio", 60, "", "player", 3, 60, 3);
        row("no link", "", 30, "", "player", 120, -1, 120);
    }
    void launchTimesAheadOfTheStart()
    {
        OpenedContext tc;
        QVariantHash row = Programs::Weekly("Stream", "20:00:00", "21:00:00", "0100000");
        QFETCH(QString, link);
        row["InternetLink"] = link;
        QFETCH(int, linkDelay);
        row["InternetLinkDelay"] = linkDelay;
        QFETCH(QString, close);
        row["StreamingPlayerClose"] = close;
        QFETCH(QString, launch);
        row["LaunchAppPrior"] = launch;
        QFETCH(int, launchDelay);
        row["LaunchAppDelay"] = launchDelay;
        tc.AddProgram(row);
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
        tc.ctx->scheduler.ScheduleNextRecording();
        const NextProgram& n = tc.ctx->scheduler.next;
        QVERIFY(n.NextProgramFound);
        const double start = At(2026, 6, 1, "20:00:00");
        QFETCH(int, linkLead);
        QFETCH(int, appLead);
        QCOMPARE(n.NextLinkLaunchTime, linkLead < 0 ? AutomationDate::Never()
                                                    : AutomationDate::AddSeconds(start, -linkLead));
        QCOMPARE(n.NextAppLaunchTime, appLead < 0 ? AutomationDate::Never()
                                                  : AutomationDate::AddSeconds(start, -appLead));
        QCOMPARE(n.NextInternetLinkDelay, qint16(linkDelay));
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
        OpenedContext tc;
        QFETCH(bool, removeExpired);
        tc.ctx->options.RemoveExpiredPrograms = removeExpired;
        QFETCH(MsgResult, answer);
        tc.messageBox.answers << answer;
        tc.AddProgram(
            Programs::OneTime("Missed", At(2026, 5, 31, "00:00:00"), "10:00:00", "11:00:00"));
        tc.AddProgram(
            Programs::OneTime("Tonight", At(2026, 5, 31, "00:00:00"), "23:00:00", "13:00:00"));
        tc.AddProgram(Programs::Weekly("Weekly", "10:00:00", "11:00:00", "1000000"));
        tc.clock.Set(At(2026, 6, 1, "12:00:00"));
        tc.ctx->scheduler.OfferRemovalOfExpiredPrograms();
        QFETCH(int, asked);
        QCOMPARE(tc.messageBox.asked.size(), asked);
        if (!tc.messageBox.asked.isEmpty())
            QCOMPARE(tc.messageBox.asked[0].title, QStringLiteral("Missed recordings"));
        QFETCH(int, left);
        QCOMPARE(tc.ctx->database.DataPrograms.recordset().RecordCount(), left);
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
        OpenedContext tc;
        QFETCH(bool, removeExpired);
        tc.ctx->options.RemoveExpiredPrograms = removeExpired;
        QVariantHash row =
            Programs::OneTime("Show", At(2026, 6, 1, "00:00:00"), "10:00:00", "11:00:00");
        QFETCH(int, frequency);
        row["Frequency"] = frequency;
        row["Mon"] = -1; // 1 June 2026 is a Monday
        const qint64 id = tc.AddProgram(row);
        const double end = At(2026, 6, 1, "11:00:00");
        tc.ctx->scheduler.CancelRecording(qint32(id), end);
        tc.ctx->scheduler.CancelRecording(qint32(id + 100), end); // no such row: nothing happens
        Recordset rs = tc.ctx->database.DataPrograms.recordset().Clone();
        QFETCH(bool, deleted);
        QCOMPARE(rs.RecordCount(), deleted ? 0 : 1);
        if (rs.RecordCount()) {
            rs.MoveFirst();
            QVERIFY(Field::ToBool(rs.Value("RecordingCancelled")));
            QCOMPARE(rs.Value("RecordingCancelledEndDateAndTime").toDouble(),
                     At(2026, 6, 1, "11:00:00"));
        }
        // The occurrence dealt with is not found again; a weekly one's next week is.
        const auto f = Search(*tc.ctx, At(2026, 6, 1, "10:30:00"));
        QVERIFY(!f || f->startDateTime == At(2026, 6, 8, "10:00:00"));
    }

    // A search in the last half-second of Monday must take Monday's date and weekday
    // alike, or Tuesday's program would be put a week later.
    void aSearchJustBeforeMidnightFindsTomorrowsProgram()
    {
        OpenedContext tc;
        tc.AddProgram(Programs::Weekly("Tuesday show", "08:00:00", "09:00:00", "0010000"));
        tc.clock.Set(QDateTime(QDate(2026, 6, 1), QTime(23, 59, 59, 700)));
        tc.ctx->scheduler.ScheduleNextRecording();
        QVERIFY(tc.ctx->scheduler.next.NextProgramFound);
        QCOMPARE(tc.ctx->scheduler.next.NextProgramStart, At(2026, 6, 2, "08:00:00"));
    }
};

QTEST_GUILESS_MAIN(TestSchedule)
#include "test_schedule.moc"
