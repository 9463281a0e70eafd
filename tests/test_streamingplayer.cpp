// The streaming player is closed at the end of the recording, on an X display of the test's
// own (with a window manager when NIGHTREEL_TEST_WM is set).
#include "DesktopData.h"
#include "MemoryLog.h"
#include "PulseFixture.h"
#include "RecordingRig.h"
#include "TestParts.h"
#include "XDisplay.h"
#include "platform/XcbWindowList.h"
#include "sideactions/StreamingPlayer.h"

#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace {
QTemporaryDir& Desktop()
{
    static QTemporaryDir dir;
    return dir;
}

QList<WindowHandle> WindowsTitled(WindowList& windows, const QString& title)
{
    QList<WindowHandle> found;
    for (const TopLevelWindow& w : windows.TopLevelWindows())
        if (w.title == title)
            found << w.handle;
    return found;
}

} // namespace

class TestStreamingPlayer : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<PulseFixture> m_pulse;
    std::unique_ptr<XDisplay> m_display;

private slots:
    void initTestCase()
    {
        m_display = std::make_unique<XDisplay>(qEnvironmentVariableIsSet("NIGHTREEL_TEST_WM"));
        if (!m_display->Running())
            QSKIP("no X display (or window manager) could be started");
        const QString missing = RecordingRig::StartSound(m_pulse);
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing));
    }

    void closingAtTheEndOfTheRecording_data()
    {
        QTest::addColumn<QString>("playerClose");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<bool>("firstRefuses");
        QTest::addColumn<QList<bool>>("closed");
        // The X server stands for XWayland: the log says once that native windows can't close.
        QTest::addColumn<bool>("waylandSession");
        const QStringList titles{"Media PLAYER", "player - radio", "Notes"};
        QTest::newRow("never") << "DO_NOT_CLOSE" << titles << false
                               << QList<bool>{false, false, false} << false;
        QTest::newRow("player refuses")
            << "player" << titles << true << QList<bool>{false, true, false} << false;
        QTest::newRow("own windows too") << "nightreel" << QStringList{"Nightreel 2000", "Notes"}
                                         << false << QList<bool>{true, false} << false;
        QTest::newRow("by part of the title, on a Wayland session")
            << "  player " << titles << false << QList<bool>{true, true, false} << true;
    }

    void closingAtTheEndOfTheRecording()
    {
        QFETCH(QString, playerClose);
        QFETCH(QStringList, titles);
        QFETCH(bool, firstRefuses);
        QFETCH(QList<bool>, closed);
        QFETCH(bool, waylandSession);
        if (waylandSession)
            qputenv("WAYLAND_DISPLAY", "wayland-test");
        const auto leaveWayland = qScopeGuard([] { qunsetenv("WAYLAND_DISPLAY"); });

        QList<QProcess*> windows;
        // A failed check leaves the function early; its windows are not to meet the next row.
        const auto closeAll = qScopeGuard([&] {
            for (QProcess* w : windows)
                w->kill();
        });
        for (int i = 0; i < titles.size(); ++i) {
            windows << m_display->OpenWindow(titles[i], i == 0 && firstRefuses);
            QVERIFY(windows.last());
        }
        RecordingRig r;
        r.AddProgramAt10(
            {{"InternetLink", "http://radio.example/live"}, {"StreamingPlayerClose", playerClose}});
        QVERIFY(r.Run(RecordingRig::At("10:00:08")));
        QCOMPARE(r.Recordings().size(), 1);
        for (int i = 0; i < windows.size(); ++i)
            QVERIFY2(XDisplay::Closed(windows[i], closed[i] ? 3000 : 500) == closed[i],
                     qPrintable(titles[i]));
        QCOMPARE(r.Logged("Streaming player on Wayland").size(), waylandSession ? 1 : 0);
    }

    void automaticSearchClosesOnlyTheNewWindows()
    {
        // The link's browser (registered in main) opens a window titled as an older one.
        QProcess* before = m_display->OpenWindow("Radio");
        QVERIFY(before);
        RecordingRig r;
        r.tc.launcher.desktopPages = true;
        const QList<WindowHandle> old = WindowsTitled(r.tc.windows, "Radio");
        QCOMPARE(old.size(), 1);

        r.AddProgramAt10(
            {{"InternetLink", "http://radio.example/live"}, {"StreamingPlayerClose", ""}});
        int radiosAtStart = 0;
        QVERIFY(r.Run(RecordingRig::At("10:00:03"),
                      [&] { radiosAtStart = WindowsTitled(r.tc.windows, "Radio").size(); }));
        QCOMPARE(radiosAtStart, 2);
        QCOMPARE(r.Recordings().size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(WindowsTitled(r.tc.windows, "Radio"), old, 3000);
        QVERIFY(!XDisplay::Closed(before, 200));
        before->kill();
    }

    void newWindowsCountOnlyNearTheSnapshot_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<bool>("closed");
        QTest::newRow("149 s") << 149 << true;
        QTest::newRow("151 s") << 151 << false;
    }

    void newWindowsCountOnlyNearTheSnapshot()
    {
        QFETCH(int, seconds);
        QFETCH(bool, closed);
        MemoryLog log;
        XcbWindowList windows;
        StreamingPlayer player(log.clock, windows, log.log);
        const double t0 = RecordingRig::At("10:00:00");
        log.clock.Set(t0);
        player.SnapshotWindowsBeforeLink();
        QProcess* window = m_display->OpenWindow("Stream player");
        QVERIFY(window);
        log.clock.Set(AutomationDate::AddSeconds(t0, seconds));
        player.SnapshotWindowsAtRecordingStart();
        player.CloseNewWindows();
        QCOMPARE(XDisplay::Closed(window, closed ? 3000 : 500), closed);
        window->kill();
    }
};

int main(int argc, char* argv[])
{
    DesktopData::UsePrivateFolders(Desktop().path());
    // Before anything asks the desktop library, which reads its registry once.
    if (!DesktopData::RegisterHtmlHandler(Desktop().path(), "player.desktop",
                                          QString(TESTWINDOW_PATH) + " Radio %u"))
        return 1;
    QCoreApplication app(argc, argv);
    TestStreamingPlayer test;
    return RunTestPart(test, argc, argv);
}

#include "test_streamingplayer.moc"
