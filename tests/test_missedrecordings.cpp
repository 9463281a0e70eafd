// Recordings missed while the recorder was not running or the computer slept: what the log
// says at the next start and after a resume, over a real database and settings file.
#include "Programs.h"
#include "StoreParts.h"
#include "common/clsAppStatus.h"
#include "platform/LogindSleepInhibitor.h"
#include "recording/MissedRecordings.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/Scheduler.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString kOff = QStringLiteral(" (the recorder was not running)");

double Jun(int day, const QString& time)
{
    return Programs::At(2026, 6, day, time);
}

QString Due(const QString& description, double start)
{
    return description + ", due " + Options::DateText(AutomationDate::DatePart(start)) + " " +
           Options::TimeText(AutomationDate::TimePart(start));
}

// The check over a database and settings file whose last run left its alive stamp (0: none),
// on a machine without logind.
struct Run : StoreParts {
    Run(const QList<QVariantHash>& programs, double stamp)
    {
        for (const QVariantHash& p : programs)
            AddProgram(p);
        if (stamp > 0)
            registry.SaveSetting("Settings", "RecorderAliveTime", QString::number(stamp));
    }
    QStringList Messages() { return MessagesOf(LogEntries()); }

    Scheduler scheduler{clock, database, log, messageBox, options};
    clsAppStatus appStatus;
    clsRecordingStatus status;
    LogindSleepInhibitor sleep{QDBusConnection(QString()), Root() + "/wakealarm"};
    MissedRecordings missed{clock, log, registry, scheduler, database, appStatus, status, sleep};
};

} // namespace

class TestMissedRecordings : public QObject {
    Q_OBJECT

private slots:
    void missedAtTheNextStart_data()
    {
        QTest::addColumn<QList<QVariantHash>>("programs");
        QTest::addColumn<double>("stamp");
        QTest::addColumn<double>("now");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first");
        const QVariantHash lateShow =
            Programs::Weekly("Late show", "23:00:00", "01:00:00", "0100000");
        QVariantHash cancelled = lateShow;
        cancelled["RecordingCancelled"] = -1;
        cancelled["RecordingCancelledEndDateAndTime"] = Jun(2, "01:00:00");
        const QVariantHash daily = Programs::Weekly("News", "08:00:00", "08:10:00", "1111111");
        QVariantHash daily2 = daily;
        daily2["Description"] = "Weather";
        QVariantHash concertDone =
            Programs::OneTime("Concert", Jun(1, "00:00:00"), "20:00:00", "21:00:00");
        concertDone["RecordingCancelled"] = -1;

        QTest::newRow("across midnight")
            << QList{lateShow} << Jun(1, "22:00:00") << Jun(2, "02:00:00") << 1
            << "Missed recording: " + Due("Late show", Jun(1, "23:00:00")) + kOff;
        QTest::newRow("running: started late")
            << QList{lateShow} << Jun(1, "22:00:00") << Jun(2, "00:30:00") << 1
            << "Recording started late: " + Due("Late show", Jun(1, "23:00:00")) +
                   ", the first 1 h 30 min missed" + kOff;
        QTest::newRow("running at the last stamp")
            << QList{lateShow} << Jun(1, "23:30:00") << Jun(2, "02:00:00") << 0 << QString();
        QTest::newRow("cancel mark")
            << QList{cancelled} << Jun(1, "22:00:00") << Jun(2, "02:00:00") << 0 << QString();
        QTest::newRow("one time done")
            << QList{concertDone} << Jun(1, "12:00:00") << Jun(2, "12:00:00") << 0 << QString();
        QTest::newRow("first start ever")
            << QList{daily} << 0.0 << Jun(2, "12:00:00") << 0 << QString();
        QTest::newRow("30 days at most")
            << QList{daily} << Jun(1, "12:00:00") - 40 << Jun(1, "12:00:00") << 30
            << "Missed recording: " + Due("News", Programs::At(2026, 5, 3, "08:00:00")) + kOff;
        QTest::newRow("more than 50 in one entry")
            << QList{daily, daily2} << Jun(1, "12:00:00") - 40 << Jun(1, "12:00:00") << 1
            << "Missed recordings: 60 recordings due from " +
                   Due("x", Jun(1, "12:00:00") - 30).mid(7) + " to " +
                   Due("x", Jun(1, "12:00:00")).mid(7) + " were not made" + kOff;
    }
    void missedAtTheNextStart()
    {
        QFETCH(QList<QVariantHash>, programs);
        QFETCH(double, stamp);
        QFETCH(double, now);
        QFETCH(int, count);
        QFETCH(QString, first);
        Run r(programs, stamp);
        QSignalSpy notified(&r.missed, &MissedRecordings::RecordingsMissed);
        r.clock.Set(now);
        r.missed.CheckAtStart();
        const QStringList messages = r.Messages();
        QCOMPARE(messages.size(), count);
        QCOMPARE(notified.size(), count > 0 ? 1 : 0);
        if (count > 0)
            QCOMPARE(messages.first(), first);
        // Once each: the next start looks back only as far as this one.
        r.clock.AdvanceSeconds(600);
        r.missed.CheckAtStart();
        QCOMPARE(r.Messages().size(), count);
    }

    void sleepAcrossPrograms()
    {
        Run r({Programs::Weekly("Late show", "23:00:00", "01:00:00", "0100000"),
               Programs::Weekly("Night news", "00:00:00", "00:05:00", "0010000")},
              Jun(1, "22:00:00"));
        r.clock.Set(Jun(1, "22:00:00"));
        r.missed.CheckAtStart();
        r.clock.Set(Jun(1, "22:30:00"));
        emit r.sleep.PrepareForSleep(true);
        // A heartbeat that comes before the word after waking does not hide the sleep.
        r.clock.Set(Jun(2, "00:30:00"));
        r.missed.NoteAlive();
        emit r.sleep.PrepareForSleep(false);
        const QString asleep = " (the computer was asleep)";
        QCOMPARE(
            r.Messages(),
            (QStringList{"Recording started late: " + Due("Late show", Jun(1, "23:00:00")) +
                             ", the first 1 h 30 min missed" + asleep,
                         "Missed recording: " + Due("Night news", Jun(2, "00:00:00")) + asleep}));
    }
};

QTEST_GUILESS_MAIN(TestMissedRecordings)
#include "test_missedrecordings.moc"
