// The main window on a desktop as many are today: an X display under a window manager but
// with no notification area, and a notification service (python-dbusmock's) on a session
// bus of the test's own. Recordings are made by the stand-in task. Without a display or
// the service the tests are skipped.
#include "ModalDialogs.h"
#include "NotificationDaemonStandIn.h"
#include "Programs.h"
#include "TestContext.h"
#include "XDisplay.h"
#include "common/AutomationDate.h"
#include "platform/FreedesktopNotifications.h"
#include "recording/RecorderParts.h"
#include "shell/frmMain.h"
#include "tray/SysTrayIcon.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTest>

namespace {

bool g_haveDisplay = false;

int Count(const QList<LogEntry>& entries, const QString& message)
{
    return int(std::count_if(entries.cbegin(), entries.cend(),
                             [&](const LogEntry& e) { return e.message == message; }));
}

// A notification as the stand-in service keeps it; a click opens the event log.
QString Note(const QString& summary, const QString& body, int urgency)
{
    return "Nightreel 2000|nightreel|" + summary + u'|' + body + "|default,Open Event Log|" +
           QString::number(urgency);
}

} // namespace

class TestFrmMainDesktop : public QObject {
    Q_OBJECT

private:
    AppContext& ctx() { return *m_tc->ctx; }

    // A manual recording by the stand-in task with the given plan; `during` runs while it
    // records. Returns once it has ended.
    void Record(const QString& plan, const std::function<void()>& during = {})
    {
        qputenv("NIGHTREEL_FAKE_PLAN", plan.toUtf8());
        qputenv("NIGHTREEL_FAKE_LOG", (m_tc->Root() + "/fake.log").toUtf8());
        ctx().manualRequest.Format.SetToPcm(1, 22050, 16);
        RecorderParts::Status(ctx().recorder).ProgramId = -1;
        const double now = ctx().Now();
        RecorderParts::Control(ctx().recorder)
            .StartRecording(-1, now, AutomationDate::AddSeconds(now, 60), "Night show");
        if (during && ctx().appStatus.Recording())
            during();
        ctx().recorder.StopCommand(false);
        QTRY_VERIFY_WITH_TIMEOUT(!ctx().appStatus.Recording(), 15000);
        // The last answers of the bus.
        QTest::qWait(300);
    }

    std::unique_ptr<NotificationDaemonStandIn> m_daemon;
    std::unique_ptr<FreedesktopNotifications> m_notifications;
    std::unique_ptr<TestContext> m_tc;
    std::unique_ptr<frmMain> m_form;

private slots:
    void initTestCase()
    {
        if (!g_haveDisplay)
            QSKIP("no X display with a window manager could be made (Xvfb, openbox)");
        m_daemon = std::make_unique<NotificationDaemonStandIn>();
        if (!m_daemon->Running())
            QSKIP("no notification service could be started (dbus-daemon, python3-dbusmock)");
        m_notifications = std::make_unique<FreedesktopNotifications>(QDBusConnection::connectToBus(
            qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "nightreel-test-session"));
        m_tc = std::make_unique<TestContext>(m_notifications.get());
        QDir().mkpath(m_tc->Root() + "/recordings");
        ctx().registry.SaveSetting("Settings", "DefaultRecordingDirectory",
                                   m_tc->Root() + "/recordings");
        ctx().recorder.SetTaskProgram(NIGHTREEL_FAKETASK);
        m_form = std::make_unique<frmMain>(ctx(), true);
        m_form->show();
        m_form->FirstActivate();
    }

    // Hiding would leave nothing to bring the window back from: it goes to the task bar, and
    // the options say why the hidden start is not offered.
    void withoutANotificationAreaTheWindowIsMinimised()
    {
        QVERIFY(!SysTrayIcon::Available());
        QTRY_VERIFY_WITH_TIMEOUT(m_form->isMinimized(), 5000);
        QVERIFY(m_form->isVisible());
        QCOMPARE(Count(m_tc->LogEntries(), "No notification area"), 1);

        for (const auto& minimise : std::initializer_list<std::function<void()>>{
                 [this] { m_form->ui.Action("mnuFileHide")->trigger(); },
                 [this] {
                     m_form->setWindowState(Qt::WindowMinimized);
                 }}) {
            m_form->showNormal();
            QTRY_VERIFY_WITH_TIMEOUT(!m_form->isMinimized(), 5000);
            minimise();
            QTest::qWait(300);
            QVERIFY(m_form->isMinimized());
            QVERIFY(m_form->isVisible());
        }

        bool offered = true;
        QString tip;
        WhenModalOpens([&](QDialog* options) {
            auto* hidden = options->findChild<QAbstractButton*>("optHiddenStartupMode");
            offered = hidden->isEnabled();
            tip = hidden->toolTip();
            options->reject();
        });
        m_form->ui.Action("mnuViewOptions")->trigger();
        QVERIFY(!offered);
        QCOMPARE(tip, SysTrayIcon::MissingNote());
    }

    void eachEventIsNotifiedOnce_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<bool>("diskFills");
        QTest::addColumn<bool>("switchedOn");
        QTest::addColumn<QStringList>("notified");
        QTest::newRow("the task refuses to start")
            << "ready=1053" << false << true
            << QStringList{Note("Recording failed", "Night show / Bad Recording Format.", 2)};
        QTest::newRow("the input goes silent")
            << "write=200000 afterstart=1048:-900" << false << true
            << QStringList{Note("Recording is silent", "Night show / No sound is coming in.", 1)};
        QTest::newRow("the disk guard stops the recording, round after round")
            << "write=200000" << true << true
            << QStringList{Note("Recording stopped: disk nearly full",
                                "Night show / Free disk space fell below the limit set in Options.",
                                2),
                           Note("Disk space low",
                                "Night show / Less than 50 Megabytes are free in the recording "
                                "folder.",
                                1)};
        QTest::newRow("switched off") << "ready=1053" << false << false << QStringList{};
    }
    void eachEventIsNotifiedOnce()
    {
        QFETCH(QString, plan);
        QFETCH(bool, diskFills);
        QFETCH(bool, switchedOn);
        ctx().options.ShowDesktopNotifications = switchedOn;
        m_daemon->Forget();
        Record(plan, [&] {
            if (!diskFills)
                return;
            m_tc->diskSpace.freeMb = 1.0;
            for (int round = 0; round < 3; ++round)
                ctx().recorder.UpdateStatusBarPlus();
        });
        m_tc->diskSpace.freeMb.reset();
        ctx().recorder.UpdateStatusBarPlus();
        QFETCH(QStringList, notified);
        QCOMPARE(m_daemon->Notified(), notified);
        ctx().options.ShowDesktopNotifications = true;
    }

    // Programs missed while the recorder was not running: one notification lists them all,
    // as the log does, and the next start finds none to tell again.
    void missedRecordingsAreNotifiedOnce()
    {
        m_daemon->Forget();
        m_tc->AddProgram(Programs::Weekly("Late show", "23:00:00", "23:30:00", "0100000"));
        m_tc->AddProgram(Programs::Weekly("Night news", "00:00:00", "00:05:00", "0010000"));
        ctx().registry.SaveSetting("Settings", "RecorderAliveTime",
                                   QString::number(Programs::At(2026, 6, 1, "22:00:00")));
        m_tc->clock.Set(Programs::At(2026, 6, 2, "08:00:00"));
        RecorderParts::Missed(ctx().recorder).CheckAtStart();
        m_tc->clock.AdvanceSeconds(600);
        RecorderParts::Missed(ctx().recorder).CheckAtStart();
        QTest::qWait(300);

        QStringList missed;
        for (const LogEntry& e : m_tc->LogEntries()) {
            if (e.message.startsWith("Missed recording: "))
                missed << e.message;
        }
        QCOMPARE(missed.size(), 2);
        QVERIFY(missed[0].contains("Late show") && missed[1].contains("Night news"));
        QCOMPARE(m_daemon->Notified(),
                 QStringList{Note("Recordings missed", missed.join(" / "), 2)});
    }

    // The click on a notification brings the window forward with the event log open.
    void clickingANotificationOpensTheEventLog()
    {
        // The stand-in numbers notifications from 1: this one is the first when run alone.
        m_tc->diskSpace.freeMb = 1.0;
        ctx().recorder.UpdateStatusBarPlus();
        m_tc->diskSpace.freeMb.reset();
        ctx().recorder.UpdateStatusBarPlus();
        m_form->showMinimized();
        QString opened;
        bool windowForward = false;
        WhenModalOpens([&](QDialog* dialog) {
            opened = dialog->objectName();
            windowForward = !m_form->isMinimized() && m_form->isVisible();
            dialog->reject();
        });
        // Not a notification of ours: nothing happens.
        QVERIFY(m_daemon->Click(99));
        QTest::qWait(500);
        QVERIFY(opened.isEmpty());
        QVERIFY(m_daemon->Click(1));
        QTRY_COMPARE_WITH_TIMEOUT(opened, QString("frmElog"), 5000);
        QVERIFY(windowForward);
    }

    // Without a service the first notification is lost and the log says so, once.
    void withoutAServiceItIsSaidOnce()
    {
        FreedesktopNotifications nowhere{QDBusConnection(QString())};
        TestContext tc(&nowhere);
        tc.OpenDatabase();
        tc.ctx->options.DefaultRecordingDirectory = tc.Root();
        for (int i = 0; i < 2; ++i) {
            tc.diskSpace.freeMb = 1.0;
            tc.ctx->recorder.UpdateStatusBarPlus();
            tc.diskSpace.freeMb.reset();
            tc.ctx->recorder.UpdateStatusBarPlus();
            QTest::qWait(200);
        }
        QCOMPARE(Count(tc.LogEntries(), "No desktop notifications"), 1);
    }

    void cleanupTestCase()
    {
        if (!m_form)
            return;
        m_tc->messageBox.answers << MsgResult::Yes;
        m_form->close();
    }
};

// The display must be there before the application connects, and the session bus must not
// be the desktop's own.
int main(int argc, char* argv[])
{
    XDisplay display(true);
    g_haveDisplay = display.Running();
    qputenv("QT_QPA_PLATFORM", g_haveDisplay ? "xcb" : "offscreen");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestFrmMainDesktop test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_frmMainDesktop.moc"
