// Keeping the machine awake for a recording, against logind's stand-in on a system bus of
// the test's own, with the program's recorder, the real recording task and a sound server of
// the test's own.
#include "LogindStandIn.h"
#include "Programs.h"
#include "RecordingRig.h"
#include "TestContext.h"
#include "TestParts.h"
#include "recording/RecorderParts.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

namespace {

// The wake time as an epoch, "0" when cleared.
QString WakeAlarm(const TestContext& tc)
{
    QFile file(tc.WakeAlarmFile());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : "gone";
}

QString EpochText(double date)
{
    return QString::number(AutomationDate::ToDateTime(date).toSecsSinceEpoch());
}

// A context at noon of Monday 1 June 2026 with the programs given, scheduled and the
// keep-awake brought up to date; without a wake alarm the machine has none to set.
struct Planned {
    explicit Planned(const QList<QVariantHash>& programs, bool wakeAlarm = true)
    {
        tc.OpenDatabase();
        if (!wakeAlarm)
            QFile::remove(tc.WakeAlarmFile());
        tc.clock.Set(RecordingRig::At("12:00:00"));
        for (const QVariantHash& p : programs)
            tc.AddProgram(p);
        Schedule();
    }
    void Schedule()
    {
        tc.ctx->database.DataPrograms.Requery();
        tc.ctx->scheduler.ScheduleNextRecording();
        RecorderParts::KeepAwakeControl(tc.ctx->recorder).Update();
    }
    TestContext tc;
};

const QVariantHash kNightNews = Programs::Weekly("Night news", "22:00:00", "22:30:00", "0100000");

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
        QTest::newRow("no bus, the task fails") << false << true;
    }
    // The program starts at 10:00:10, the application before it 90 seconds ahead: the wake
    // alarm and the block come a minute before that; the block goes with the recording.
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
        r.AddProgramAt10({{"LaunchAppPrior", "/usr/bin/player"}, {"LaunchAppDelay", 90}});
        auto tick = [&r](const QString& time) {
            r.tc.clock.Set(RecordingRig::At(time));
            RecorderParts::HeartbeatTimer(r.recorder()).Timer1_Timer();
        };
        r.tc.clock.Set(RecordingRig::At("09:57:30"));
        r.ctx().scheduler.ScheduleNextRecording();
        tick("09:57:30");
        QCOMPARE(WakeAlarm(r.tc), EpochText(RecordingRig::At("09:58:40")));
        if (logind) {
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
    // The sleep is delayed until the warning is out, and the delay is taken anew on waking.
    void sleepWithAProgramDue()
    {
        QFETCH(bool, programDue);
        QFETCH(bool, wakeAlarm);
        QFETCH(QStringList, messages);
        LogindStandIn logind;
        Planned p(programDue ? QList{kNightNews} : QList<QVariantHash>{}, wakeAlarm);
        QCOMPARE(logind.Inhibitors().filter("|delay").size(), 1);
        QVERIFY(logind.EmitPrepareForSleep(true));
        QTRY_COMPARE(logind.Inhibitors().filter("|delay").size(), 0);
        QCOMPARE(MessagesOf(p.tc.LogEntries()), messages);
        if (!messages.isEmpty())
            QVERIFY(p.tc.LogEntries().last().details.contains("Night news"));
        QVERIFY(logind.EmitPrepareForSleep(false));
        QTRY_COMPARE(logind.Inhibitors().filter("|delay").size(), 1);
    }

    // A program on Monday at 22:00, moved and removed by the user at noon. Another program
    // later in the week keeps an alarm of ours set before the change.
    void theAlarmFollowsTheProgramList()
    {
        Planned p({Programs::Weekly("Weekly", "09:00:00", "10:00:00", "0000001"), kNightNews});
        QCOMPARE(WakeAlarm(p.tc), EpochText(RecordingRig::At("21:59:00")));
        Recordset rs = p.tc.ctx->database.DataPrograms.recordset();
        rs.FindFirst("Id = 2");
        rs.Edit();
        rs.SetValue("StartTime", Programs::TimeOfDay("21:00:00"));
        rs.Update();
        p.Schedule();
        QCOMPARE(WakeAlarm(p.tc), EpochText(RecordingRig::At("20:59:00")));
        for (const char* id : {"Id = 2", "Id = 1"}) {
            rs.FindFirst(id);
            rs.Delete();
        }
        p.Schedule();
        QCOMPARE(WakeAlarm(p.tc), QString("0"));
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestKeepAwake, QCoreApplication)
#include "test_keepawake.moc"
