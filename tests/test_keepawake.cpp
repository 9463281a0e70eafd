// Keeping the machine awake for a recording, against logind's stand-in on a system bus of
// the test's own, with the program's recorder, the real recording task and a sound server of
// the test's own.
#include "LogindStandIn.h"
#include "Programs.h"
#include "RecordingRig.h"
#include "TestContext.h"
#include "TestParts.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

namespace {

QString WakeAlarm(const TestContext& tc)
{
    QFile file(tc.WakeAlarmFile());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : "gone";
}

QString EpochText(double date)
{
    return QString::number(AutomationDate::ToDateTime(date).toSecsSinceEpoch());
}

} // namespace

class TestKeepAwake : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!LogindStandIn().Running())
            QSKIP("logind's stand-in could not be started");
    }

    void oneBlockFromThePreLaunchTimeToTheEnd_data()
    {
        QTest::addColumn<bool>("withBus");
        QTest::addColumn<bool>("taskFails");
        QTest::newRow("ends by the clock") << true << false;
        QTest::newRow("the task fails") << true << true;
        QTest::newRow("no bus") << false << false;
    }
    void oneBlockFromThePreLaunchTimeToTheEnd()
    {
        QFETCH(bool, withBus);
        QFETCH(bool, taskFails);
        std::unique_ptr<PulseFixture> pulse;
        if (const QString why = RecordingRig::StartSound(pulse); !why.isEmpty())
            QSKIP(qPrintable(why));
        // The context finds the bus that is there when it is made.
        std::unique_ptr<LogindStandIn> logind;
        if (withBus)
            logind = std::make_unique<LogindStandIn>();
        RecordingRig r;
        // Starts at 10:00:10; the application before it is launched 90 seconds ahead.
        r.AddProgramAt10({{"LaunchAppPrior", "/usr/bin/player"}, {"LaunchAppDelay", 90}});
        auto tick = [&r](const QString& time) {
            r.tc.clock.Set(RecordingRig::At(time));
            r.tc.ctx->recorder.HeartbeatTimer().Timer1_Timer();
        };
        r.tc.clock.Set(RecordingRig::At("09:57:30"));
        r.tc.ctx->scheduler.ScheduleNextRecording();
        tick("09:57:30");
        QCOMPARE(WakeAlarm(r.tc), EpochText(RecordingRig::At("09:58:40")));
        if (logind) {
            QCOMPARE(logind->Inhibitors(), QStringList{"sleep|Notes a recording that the sleep "
                                                       "will miss|delay"});
            tick("09:58:39");
            QCOMPARE(logind->BlockInhibitors(), 0);
            tick("09:58:40");
            QCOMPARE(logind->Inhibitors().filter("|block"),
                     QStringList{"sleep:idle|Recording Stream|block"});
        }
        int blocksWhileRecording = -1;
        QVERIFY(r.Run(RecordingRig::At("10:00:08"), [&] {
            if (logind)
                blocksWhileRecording = logind->BlockInhibitors();
            if (taskFails) {
                QTest::qWait(1000);
                pulse->Stop();
            }
        }));
        QCOMPARE(r.Recordings().size(), taskFails ? 0 : 1);
        QCOMPARE(r.LoggedMessages().size(), taskFails ? 1 : 0);
        if (logind) {
            QCOMPARE(blocksWhileRecording, 1);
            QTRY_COMPARE(logind->BlockInhibitors(), 0);
        }
        // The next occurrence is a week later: the alarm follows it.
        QCOMPARE(WakeAlarm(r.tc), EpochText(RecordingRig::At("09:58:40") + 7));
    }

    void sleepWithAProgramDue_data()
    {
        QTest::addColumn<bool>("programDue");
        QTest::addColumn<bool>("wakeAlarm");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("due, no wake alarm")
            << true << false << QStringList{"No wake alarm", "Computer going to sleep"};
        QTest::newRow("due, the wake alarm set") << true << true << QStringList{};
        QTest::newRow("nothing due") << false << false << QStringList{};
    }
    void sleepWithAProgramDue()
    {
        QFETCH(bool, programDue);
        QFETCH(bool, wakeAlarm);
        QFETCH(QStringList, messages);
        LogindStandIn logind;
        TestContext tc;
        tc.OpenDatabase();
        if (programDue)
            tc.AddProgram(Programs::Weekly("Night news", "22:00:00", "22:30:00", "0100000"));
        tc.ctx->database.DataPrograms.Requery();
        if (!wakeAlarm)
            QFile::remove(tc.WakeAlarmFile());
        tc.clock.Set(RecordingRig::At("12:00:00"));
        tc.ctx->scheduler.ScheduleNextRecording();
        tc.ctx->recorder.KeepAwakeControl().Update();
        QCOMPARE(logind.Inhibitors().filter("|delay").size(), 1);

        QVERIFY(logind.EmitPrepareForSleep(true));
        // The sleep may go on once the warning is out: the delay lock goes.
        QTRY_COMPARE(logind.Inhibitors().filter("|delay").size(), 0);
        QList<LogEntry> entries = tc.LogEntries();
        QStringList logged;
        for (const LogEntry& e : entries)
            logged << e.message;
        QCOMPARE(logged, messages);
        if (!messages.isEmpty()) {
            QCOMPARE(entries.last().type, 1);
            QVERIFY(entries.last().details.contains("Night news"));
            QVERIFY(
                entries.last().details.contains(Options::DateText(RecordingRig::At("22:00:00"))));
        }
        // After waking it is taken anew for the next sleep.
        QVERIFY(logind.EmitPrepareForSleep(false));
        QTRY_COMPARE(logind.Inhibitors().filter("|delay").size(), 1);
        QCOMPARE(logind.BlockInhibitors(), 0);
    }

    // A program on Monday at 22:00 in the list; the user changes the list at noon.
    void theAlarmFollowsTheProgramList_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("alarm"); // the wake time, or "0" for cleared
        QTest::newRow("added") << "add"
                               << "21:59:00";
        QTest::newRow("moved to 21:00") << "edit"
                                        << "20:59:00";
        QTest::newRow("removed") << "remove"
                                 << "0";
    }
    void theAlarmFollowsTheProgramList()
    {
        QFETCH(QString, change);
        QFETCH(QString, alarm);
        TestContext tc;
        tc.OpenDatabase();
        tc.clock.Set(RecordingRig::At("12:00:00"));
        const auto schedule = [&tc] {
            tc.ctx->database.DataPrograms.Requery();
            tc.ctx->scheduler.ScheduleNextRecording();
            tc.ctx->recorder.KeepAwakeControl().Update();
        };
        // Another program later in the week keeps an alarm of ours set before the change.
        tc.AddProgram(Programs::Weekly("Weekly", "09:00:00", "10:00:00", "0000001"));
        schedule();
        const qint64 id =
            change == "add"
                ? 0
                : tc.AddProgram(Programs::Weekly("Night news", "22:00:00", "22:30:00", "0100000"));
        schedule();
        Recordset rs = tc.ctx->database.DataPrograms.recordset();
        if (change == "add") {
            tc.AddProgram(Programs::Weekly("Night news", "22:00:00", "22:30:00", "0100000"));
        } else {
            rs.FindFirst("Id = " + QString::number(id));
            if (change == "edit") {
                rs.Edit();
                rs.SetValue("StartTime", Programs::TimeOfDay("21:00:00"));
                rs.Update();
            } else {
                rs.Delete();
                rs.FindFirst("Id = 1");
                rs.Delete();
            }
        }
        schedule();
        QCOMPARE(WakeAlarm(tc), alarm == "0" ? alarm : EpochText(RecordingRig::At(alarm)));
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestKeepAwake, QCoreApplication)
#include "test_keepawake.moc"
