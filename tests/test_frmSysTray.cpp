// The tray icon as a user meets it: an X server of the test's own with a real notification
// area (trayer) where the icon is embedded, clicks sent as X events, the menu on screen, and
// a real recording by the recording task to animate it. The session has no bus, so the icon
// is the embedded (XEmbed) kind. Without any way to make a display the tests are skipped.
#include "CountingSysTray.h"
#include "RecordingRig.h"
#include "XDisplay.h"
#include "common/AutomationDate.h"
#include "shell/frmMain.h"
#include "tray/SysTrayIcon.h"
#include "tray/clsSysTrayMgr.h"
#include "tray/frmSysTray.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <algorithm>

namespace {
// The notification area docked at the top of the test's display. A trayer that quits before
// its window shows is started again; what the last one said is kept for the failure message.
QString g_trayOutput;
bool StartTray(QProcess& trayer)
{
    trayer.setProcessChannelMode(QProcess::MergedChannels);
    for (int attempt = 0; attempt < 3; ++attempt) {
        trayer.start("trayer", {"--edge", "top", "--align", "right", "--widthtype", "request",
                                "--height", "24", "--SetDockType", "true", "--transparent", "false",
                                "--tint", "0x404050"});
        for (int i = 0; i < 100 && trayer.waitForStarted(5000); ++i) {
            if (QProcess::execute("xdotool", {"search", "--classname", "trayer"}) == 0)
                return true;
            QTest::qSleep(100);
        }
        trayer.kill();
        trayer.waitForFinished(3000);
        g_trayOutput = QString::fromLocal8Bit(trayer.readAll());
    }
    return false;
}

bool g_haveDisplay = false;
bool g_haveTray = false;

// The embedded icon: the window that Qt gives the notification area.
QWidget* IconWidget()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto it = std::find_if(widgets.cbegin(), widgets.cend(), [](QWidget* w) {
        return w->objectName() == QLatin1String("QSystemTrayIconSys");
    });
    return it == widgets.cend() ? nullptr : *it;
}

// Whether the window has been taken in by another (the notification area), as X sees it.
bool Embedded(WId window)
{
    QProcess info;
    info.start("xwininfo", {"-id", QString::number(window), "-tree"});
    if (!info.waitForFinished(5000))
        return false;
    const QString out = QString::fromUtf8(info.readAllStandardOutput());
    const auto parent =
        QRegularExpression("Parent window id: (\\S+)( \\(the root window\\))?").match(out);
    return parent.hasMatch() && parent.captured(2).isEmpty();
}

void ClickIcon(const QStringList& click)
{
    QWidget* icon = IconWidget();
    QVERIFY(icon);
    QCOMPARE(QProcess::execute("xdotool",
                               QStringList{"mousemove", "--window", QString::number(icon->winId()),
                                           "11", "11", "click"} +
                                   click),
             0);
}

} // namespace

class TestFrmSysTray : public QObject {
    Q_OBJECT

private:
    AppContext& ctx() { return m_rig->ctx(); }
    clsSysTrayMgr& mgr() { return *m_form->SysTrayMgr(); }
    frmSysTray& tray() { return m_form->SysTray(); }
    QString IconTip() { return IconWidget() ? IconWidget()->toolTip() : QString(); }

    std::unique_ptr<PulseFixture> m_pulse;
    QString m_noSound;
    std::unique_ptr<RecordingRig> m_rig;
    SysTrayCalls m_calls;
    std::unique_ptr<frmMain> m_form;

private slots:
    // One run of the program for all the tests: the window, its tray and its recorder.
    void initTestCase()
    {
        if (!g_haveDisplay)
            QSKIP("no X display could be made (Xvfb)");
        // The notification area's absence is a failure, not a reason to skip.
        QVERIFY2(g_haveTray, qPrintable("trayer shows no window: " + g_trayOutput));
        m_noSound = RecordingRig::StartSound(m_pulse);
        m_rig = std::make_unique<RecordingRig>(false);
        m_form = std::make_unique<frmMain>(
            ctx(), false, nullptr, [this](std::unique_ptr<cSysTray> icon) {
                return std::make_unique<CountingSysTray>(m_calls, std::move(icon));
            });
        m_form->show();
        m_form->FirstActivate();
        // The icon is in the notification area from the start, before any hiding.
        QTRY_VERIFY_WITH_TIMEOUT(IconWidget() && Embedded(IconWidget()->winId()), 10000);
        QVERIFY(m_form->isVisible());
    }

    void doubleClickOrMenuRestoresSingleClickDoesNothing()
    {
        m_form->HideToTray();
        QVERIFY(!m_form->isVisible());
        QVERIFY(tray().mnuRestore->isEnabled());

        ClickIcon({"1"});
        QTest::qWait(1000);
        QVERIFY(!m_form->isVisible());
        QVERIFY(!QApplication::activePopupWidget());

        ClickIcon({"--repeat", "2", "--delay", "80", "1"});
        QTRY_VERIFY_WITH_TIMEOUT(m_form->isVisible(), 5000);
        QVERIFY(!tray().mnuRestore->isEnabled());

        m_form->HideToTray();
        tray().mnuRestore->trigger();
        QVERIFY(m_form->isVisible());
    }

    void rightClickOpensTheMenu()
    {
        QMenu* menu = tray().mnuSystemTray();
        ClickIcon({"3"});
        QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), 5000);
        // Stopped, with the window on screen: nothing to restore.
        QVERIFY(!tray().mnuRestore->isEnabled());
        QCOMPARE(QProcess::execute("xdotool", {"key", "Escape"}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!menu->isVisible(), 5000);
    }

    // One row for each item the mode turns on or off, or renames.
    void menuFollowsTheMode_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("pause"); // empty: disabled, of the usual caption
        QTest::addColumn<QString>("stop");
        QTest::newRow("paused") << QString("recording,paused") << QString("&Continue Recording")
                                << QString("&Stop Current Recording");
        QTest::newRow("converting")
            << QString("converting") << QString() << QString("&Stop MP3 Conversion");
        QTest::newRow("no recording folder") << QString("nofolder") << QString() << QString();
        QTest::newRow("suspended") << QString("suspended") << QString() << QString();
    }

    // The flags are set as the recorder sets them, with no task behind them; the items follow
    // through the mode display.
    void menuFollowsTheMode()
    {
        QFETCH(QString, flags);
        QFETCH(QString, pause);
        QFETCH(QString, stop);
        const bool suspended = flags.contains("suspended");
        clsAppStatus& s = ctx().appStatus;
        if (suspended) {
            m_rig->tc.messageBox.answers << MsgResult::Yes;
            tray().mnuSystraySuspend->trigger();
        }
        ctx().error.SetInvalidRecordingDirectory(flags.contains("nofolder"));
        s.SetConverting(flags.contains("converting"));
        s.SetRecording(flags.contains("recording"));
        s.SetPaused(flags.contains("paused"));

        QAction* pauseItem = tray().mnuSystrayPauseRecording;
        QCOMPARE(pauseItem->isEnabled(), !pause.isEmpty());
        QCOMPARE(pauseItem->text(), pause.isEmpty() ? QString("&Pause Recording") : pause);
        QAction* stopItem = tray().mnuSystrayStopRecording;
        QCOMPARE(stopItem->isEnabled(), !stop.isEmpty());
        QCOMPARE(stopItem->text(), stop.isEmpty() ? QString("&Stop Current Recording") : stop);
        QCOMPARE(tray().mnuSystrayDiskStatus->isEnabled(), !flags.contains("nofolder"));
        QCOMPARE(tray().mnuSystraySuspend->isChecked(), suspended);
        QCOMPARE(m_form->ui.Action("mnuFileSuspend")->isChecked(), suspended);

        if (suspended)
            tray().mnuSystraySuspend->trigger();
        s.SetPaused(false);
        s.SetRecording(false);
        s.SetConverting(false);
        ctx().error.SetInvalidRecordingDirectory(false);
        QVERIFY(!s.Suspended());
        QCOMPARE(IconTip(), QString("Nightreel 2000 - STOPPED"));
    }

    // One icon on a notification area that takes it: a second activation is refused, a long
    // tip is cut to what the area shows, and a change of picture alone keeps the tip.
    void iconAnswersWithItsStatus()
    {
        SysTrayIcon icon(ctx().log, nullptr, nullptr);
        const SysTrayPicture normal{SysTrayList::General, SysTrayPicture::Normal};
        QCOMPARE(icon.Activate(normal, "Nightreel 2000 - STOPPED", false), int(cSysTray::Done));
        QCOMPARE(icon.Activate(normal, "again", false), int(cSysTray::AlreadyActive));
        const QString longTip = QString("Nightreel 2000 - ") + QString(60, u'x');
        icon.ChangeSystemTrayIcon({SysTrayList::Record, 7}, longTip);
        icon.ChangeSystemTrayIcon({SysTrayList::Record, 8}, QString());
        QCOMPARE(icon.Icon().toolTip(), longTip.left(63));
        QCOMPARE(icon.Delete(), int(cSysTray::Done));
        QVERIFY(!icon.Icon().isVisible());
        QCOMPARE(icon.ChangeSystemTrayIcon(normal, "late"), int(cSysTray::NotActive));
    }

    // A manual recording by the real task: the timer starts with it and the icon goes round
    // its frames (their order and pace are the tray manager's own test); paused through the
    // tray's item, the mode panel blinks in step with the icon; the tray's Stop ends it.
    void recordingAnimatesAndPauseBlinks()
    {
        if (!m_noSound.isEmpty())
            QSKIP(qPrintable(m_noSound));
        ctx().options.ConfirmStopManualRecording = false;
        ctx().manualRequest.Format.SetToPcm(1, 22050, 16);
        QCOMPARE(mgr().tmrSystray.Interval(), 0);
        m_rig->StartManual(ctx().Now(), 120, "Tray");
        QVERIFY(ctx().appStatus.Recording());
        QCOMPARE(mgr().tmrSystray.Interval(), 500);
        QCOMPARE(IconTip(), QString("Nightreel 2000 - RECORDING"));
        const qsizetype from = m_calls.calls.size();
        QTRY_VERIFY_WITH_TIMEOUT(m_calls.calls.size() - from >= 3, 3000);
        for (const SysTrayCalls::Call& frame : m_calls.calls.mid(from))
            QCOMPARE(frame.picture.list, SysTrayList::Record);

        QList<std::pair<int, QString>> blinks;
        m_calls.onCall = [&](const SysTrayCalls::Call& c) {
            if (c.picture.list == SysTrayList::Pause)
                blinks << std::pair{c.picture.index, m_form->ui.ModeStatus->text()};
        };
        tray().mnuSystrayPauseRecording->trigger();
        QVERIFY(ctx().appStatus.Paused());
        QCOMPARE(tray().mnuSystrayPauseRecording->text(), QString("&Continue Recording"));
        QCOMPARE(IconTip(), QString("Nightreel 2000 - RECORDING PAUSED"));
        QTRY_VERIFY_WITH_TIMEOUT(blinks.size() >= 3, 3000);
        m_calls.onCall = nullptr;
        for (qsizetype i = 0; i < blinks.size(); ++i) {
            if (i > 0)
                QCOMPARE(blinks[i].first, 3 - blinks[i - 1].first);
            QCOMPARE(blinks[i].second,
                     blinks[i].first == 1 ? QString("RECORDING PAUSED") : QString());
        }

        tray().mnuSystrayStopRecording->trigger();
        QVERIFY(m_rig->WaitUntilStopped());
        QTRY_COMPARE_WITH_TIMEOUT(IconTip(), QString("Nightreel 2000 - STOPPED"), 2000);
        QCOMPARE(m_rig->Recordings().size(), 1);
        m_pulse->StopTone();
    }

    void closingTheProgramTakesTheIconOut()
    {
        QVERIFY(IconWidget());
        m_rig->tc.messageBox.answers << MsgResult::Yes;
        m_form->close();
        QVERIFY(!m_form->SysTrayMgr());
        QTRY_VERIFY_WITH_TIMEOUT(!IconWidget() || !IconWidget()->isVisible(), 5000);
    }
};

// The display and its notification area must be there before the application connects.
int main(int argc, char* argv[])
{
    XDisplay display(false);
    QProcess trayer;
    g_haveDisplay = display.Running();
    if (g_haveDisplay) {
        g_haveTray = StartTray(trayer);
        qputenv("QT_QPA_PLATFORM", "xcb");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    } else {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    int result = 0;
    {
        QApplication app(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        TestFrmSysTray test;
        result = QTest::qExec(&test, argc, argv);
    }
    trayer.terminate();
    trayer.waitForFinished(3000);
    return result;
}

#include "test_frmSysTray.moc"
