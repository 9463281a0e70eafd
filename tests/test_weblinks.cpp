// Web pages go to the desktop's program for HTML files (a private handler registry here),
// never to the URL's own handler.
#include "DesktopData.h"
#include "PulseFixture.h"
#include "RecordingRig.h"
#include "TestFiles.h"
#include "recording/RecorderParts.h"
#include "sideactions/ViewHtmlFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace {
// The private desktop lives for the whole run: the desktop library reads its folders once.
QTemporaryDir& Desktop()
{
    static QTemporaryDir dir;
    return dir;
}

const QString kUrl = "http://radio.example/live?station=7&format=mp3";

// The desktop library reads its registry once: the test runs again with
// NIGHTREEL_TEST_NO_BROWSER set, without a browser.
bool WithBrowser()
{
    return !qEnvironmentVariableIsSet("NIGHTREEL_TEST_NO_BROWSER");
}

QString Opened()
{
    return Desktop().path() + "/opened.txt";
}

// A browser that writes the URL it was given into Opened().
bool RegisterBrowser()
{
    const QString script = Desktop().path() + "/browser.sh";
    QFile f(script);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    f.write(("#!/bin/sh\nprintf '%s' \"$1\" > " + Opened() + ".part && mv " + Opened() + ".part " +
             Opened() + "\n")
                .toUtf8());
    f.close();
    f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
    return DesktopData::RegisterHtmlHandler(Desktop().path(), "test-browser.desktop",
                                            script + " %u");
}

} // namespace

class TestWebLinks : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<PulseFixture> m_pulse;

private slots:
    void initTestCase()
    {
        const QString missing = RecordingRig::StartSound(m_pulse);
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing));
    }

    void pageOpensThroughTheHtmlHandler_data()
    {
        QTest::addColumn<QString>("handler");
        QTest::addColumn<bool>("startFails");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("opened") << "browser.desktop" << false << ""
                                << "";
        QTest::newRow("no browser") << "" << false << "Browser Not Found"
                                    << "Could not find associated Browser";
        QTest::newRow("start fails") << "browser.desktop" << true << "URL Failed"
                                     << "Web Page not Opened";
    }

    void pageOpensThroughTheHtmlHandler()
    {
        QFETCH(QString, handler);
        QFETCH(bool, startFails);
        QFETCH(QString, title);
        QFETCH(QString, text);

        QTemporaryDir folder;
        ScriptedMessageBox messageBox;
        RecordingLauncher launcher;
        launcher.handler = handler;
        if (startFails)
            launcher.failing.insert(kUrl);
        ViewHtmlFile(messageBox, launcher, folder.path(), kUrl);

        // The handler is asked about the page file, not about the URL.
        const QString page = folder.path() + "/temphtm.HTM";
        QCOMPARE(launcher.probed, QStringList{page});
        QVERIFY(!QFile::exists(page));
        if (!handler.isEmpty()) {
            QCOMPARE(launcher.started, QStringList{handler + " " + kUrl});
            QCOMPARE(launcher.styles, QList<int>{WindowStyleNormal});
        }
        QCOMPARE(messageBox.asked.size(), title.isEmpty() ? 0 : 1);
        if (!title.isEmpty()) {
            QCOMPARE(messageBox.asked[0].title, title);
            QCOMPARE(messageBox.asked[0].text, text);
            QCOMPARE(messageBox.asked[0].icon, MsgIcon::Exclamation);
        }
    }

    // The link opens with a lead of 5 s although 3 are asked for, the windows noted before it;
    // without a browser the box is shown without waiting and logged.
    void linkOpensAtItsTime()
    {
        RecordingRig r;
        r.tc.launcher.desktopPages = true;
        r.AddProgramAt10(
            {{"InternetLink", kUrl}, {"InternetLinkDelay", 3}, {"StreamingPlayerClose", ""}});
        double snapshotAt = 0;
        qsizetype launchesAtSnapshot = -1;
        QObject::connect(&RecorderParts::HeartbeatTimer(r.tc.ctx->recorder),
                         &Heartbeat::SnapshotWindowsBeforeLink, [&] {
                             snapshotAt = r.tc.clock.Now();
                             launchesAtSnapshot = r.tc.launcher.started.size();
                         });
        qsizetype launchesAtStart = 0;
        QVERIFY(r.Run(RecordingRig::At("10:00:03"),
                      [&] { launchesAtStart = r.tc.launcher.started.size(); }));
        QCOMPARE(r.Recordings().size(), 1);
        QVERIFY(!QFile::exists(r.tc.ctx->folders.runtimeFolder + "/temphtm.HTM"));
        if (!WithBrowser()) {
            QCOMPARE(r.tc.messageBox.asked.size(), 1);
            QCOMPARE(r.tc.messageBox.asked[0].title, QString("Browser Not Found"));
            QVERIFY(!r.tc.messageBox.asked[0].waited);
            QCOMPARE(r.LoggedMessages(), QStringList{"Browser Not Found"});
            QCOMPARE(r.Log()[0].type, 1);
            return;
        }
        QCOMPARE(launchesAtSnapshot, 0);
        QCOMPARE(launchesAtStart, 1);
        const qint64 sinceLinkTime =
            AutomationDate::SecondsBetween(RecordingRig::At("10:00:05"), snapshotAt);
        QVERIFY2(sinceLinkTime >= 0 && sinceLinkTime <= 1,
                 qPrintable(QString::number(sinceLinkTime)));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Opened()), 5000);
        QCOMPARE(QString::fromUtf8(ReadFile(Opened())), kUrl);
        QCOMPARE(r.tc.launcher.styles, QList<int>{WindowStyleNormal});
        QVERIFY(r.tc.messageBox.asked.isEmpty());
    }
};

int main(int argc, char* argv[])
{
    DesktopData::UsePrivateFolders(Desktop().path());
    // The player's automatic search would close windows that appear on the user's own display.
    qunsetenv("DISPLAY");
    if (WithBrowser() && !RegisterBrowser())
        return 1;
    QCoreApplication app(argc, argv);
    TestWebLinks test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_weblinks.moc"
