#include "LogCapture.h"
#include "TestContext.h"
#include "sideactions/LaunchCommands.h"

#include <QTest>

class TestLaunchCommands : public QObject {
    Q_OBJECT

private slots:
    void placeholders_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("expanded");
        QTest::newRow("all") << "tag %d|%p|%f|%b|%e|%%"
                             << "tag /rec/show/|/rec/show/news.wav|news.wav|news|wav|%";
        QTest::newRow("upper case") << "%P %F"
                                    << "/rec/show/news.wav news.wav";
        QTest::newRow("lone percent") << "%"
                                      << "%";
        QTest::newRow("percent at the end") << "a%"
                                            << "a%";
        QTest::newRow("escaped percent") << "%%p"
                                         << "%p";
        QTest::newRow("unknown") << "%x %"
                                 << "%x %";
        QTest::newRow("percent before a placeholder") << "%%%f"
                                                      << "%news.wav";
    }
    void placeholders()
    {
        QFETCH(QString, command);
        QFETCH(QString, expanded);
        TestContext tc;
        QCOMPARE(InterpretCommand(tc.ctx->log, command, "/rec/show/news.wav"), expanded);
    }

    void onlyTheFullNameIsTrimmed()
    {
        TestContext tc;
        QCOMPARE(InterpretCommand(tc.ctx->log, "[%p][%f]", " /rec/a.wav "),
                 QStringLiteral("[/rec/a.wav][a.wav ]"));
    }

    void pathParts_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("extension");
        QTest::newRow("plain") << "/rec/a.wav"
                               << "/rec/"
                               << "a"
                               << "wav";
        QTest::newRow("four characters") << "/rec/abcd"
                                         << "/rec/"
                                         << ""
                                         << "";
        QTest::newRow("longer extension") << "/rec/ab.html"
                                          << "/rec/"
                                          << "ab."
                                          << "tml";
        QTest::newRow("two closing separators") << "/rec/x//"
                                                << "/rec/x/"
                                                << ""
                                                << "";
    }
    void pathParts()
    {
        QFETCH(QString, path);
        QFETCH(QString, directory);
        QFETCH(QString, base);
        QFETCH(QString, extension);
        TestContext tc;
        EventLog& log = tc.ctx->log;
        QCOMPARE(GetDirectory(log, path), directory);
        const QString name = GetFilename(log, path);
        QCOMPARE(GetFileBase(log, name), base);
        QCOMPARE(GetFileExtension(log, name), extension);
    }

    void aNameWithoutAFolderIsLogged()
    {
        TestContext tc;
        LogCapture capture;
        QCOMPARE(InterpretCommand(tc.ctx->log, "run [%f]", "loose.wav"), QStringLiteral("run []"));
        QVERIFY(capture.Contains("Module: GetFilename"));
    }

    void theLaunchAfterARecording_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::addColumn<bool>("onlyIfOk");
        QTest::addColumn<bool>("started");
        QTest::newRow("good recording") << true << true << true;
        QTest::newRow("failed, only if ok") << false << true << false;
        QTest::newRow("failed, always") << false << false << true;
    }
    void theLaunchAfterARecording()
    {
        QFETCH(bool, ok);
        QFETCH(bool, onlyIfOk);
        QFETCH(bool, started);
        TestContext tc;
        LaunchAfterRecording(tc.ctx->log, tc.launcher, ok, "convert %p", onlyIfOk, "/rec/a.wav");
        QCOMPARE(tc.launcher.started, started ? QStringList{"convert /rec/a.wav"} : QStringList());
        LaunchAfterRecording(tc.ctx->log, tc.launcher, true, "   ", false, "/rec/a.wav");
        QCOMPARE(tc.launcher.started.size(), started ? 1 : 0);
    }

    void aCommandThatCantStartIsLogged()
    {
        TestContext tc;
        tc.OpenDatabase();
        tc.launcher.failing.insert("/opt/missing /rec/a.wav");
        LaunchAfterRecording(tc.ctx->log, tc.launcher, true, "/opt/missing %p", false,
                             "/rec/a.wav");
        Recordset& log = tc.ctx->database.ElogRecordset();
        log.MoveLast();
        QCOMPARE(log.Value("Type").toInt(), 1);
        QCOMPARE(log.Value("Message").toString(),
                 QStringLiteral("Invalid Launch Application command"));
        QCOMPARE(log.Value("Details").toString(),
                 QStringLiteral("The command to launch an application is invalid.  Check the "
                                "file paths and that the application exists.\r\n"
                                "Command= /opt/missing /rec/a.wav"));
    }
};

QTEST_GUILESS_MAIN(TestLaunchCommands)
#include "test_launchcommands.moc"
