#include "MemoryLog.h"
#include "RecordingLauncher.h"
#include "sideactions/LaunchCommands.h"

#include <QTest>

class TestLaunchCommands : public QObject {
    Q_OBJECT

private slots:
    void placeholders_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expanded");
        const QString news = "/rec/show/news.wav";
        QTest::newRow("all") << "tag %d|%p|%f|%b|%e|%%" << news
                             << "tag /rec/show/|/rec/show/news.wav|news.wav|news|wav|%";
        QTest::newRow("upper case") << "%P %F" << news << "/rec/show/news.wav news.wav";
        QTest::newRow("lone percent") << "%" << news << "%";
        QTest::newRow("percent at the end") << "a%" << news << "a%";
        QTest::newRow("escaped percent") << "%%p" << news << "%p";
        QTest::newRow("unknown") << "%x %" << news << "%x %";
        QTest::newRow("percent before a placeholder") << "%%%f" << news << "%news.wav";
        QTest::newRow("only the full name is trimmed") << "[%p][%f]"
                                                       << " /rec/a.wav "
                                                       << "[/rec/a.wav][a.wav ]";
        // The extension is the name's last three characters, the base what comes before
        // them and the dot.
        QTest::newRow("four characters") << "%d|%b|%e"
                                         << "/rec/abcd"
                                         << "/rec/||";
        QTest::newRow("longer extension") << "%d|%b|%e"
                                          << "/rec/ab.html"
                                          << "/rec/|ab.|tml";
        QTest::newRow("two closing separators") << "%d|%b|%e"
                                                << "/rec/x//"
                                                << "/rec/x/||";
    }
    void placeholders()
    {
        QFETCH(QString, command);
        QFETCH(QString, path);
        QFETCH(QString, expanded);
        MemoryLog log;
        QCOMPARE(InterpretCommand(log.log, command, path), expanded);
        QVERIFY(log.entries.isEmpty());
    }

    void aNameWithoutAFolderIsLogged()
    {
        MemoryLog log;
        QCOMPARE(InterpretCommand(log.log, "run [%f]", "loose.wav"), QStringLiteral("run []"));
        QCOMPARE(log.entries.size(), 1);
        QVERIFY2(log.entries[0].details.contains("Module: GetFilename"),
                 qPrintable(log.entries[0].details));
    }

    void aCommandThatCantStartIsLogged()
    {
        MemoryLog log;
        RecordingLauncher launcher;
        launcher.failing.insert("/opt/missing /rec/a.wav");
        LaunchAfterRecording(log.log, launcher, true, "/opt/missing %p", false, "/rec/a.wav");
        LaunchAfterRecording(log.log, launcher, true, "   ", false, "/rec/a.wav"); // nothing
        QCOMPARE(launcher.started.size(), 1);
        QCOMPARE(log.entries.size(), 1);
        QCOMPARE(log.entries[0].type, 1);
        QCOMPARE(log.entries[0].message, QStringLiteral("Invalid Launch Application command"));
        QCOMPARE(log.entries[0].details,
                 QStringLiteral("The command to launch an application is invalid.  Check the "
                                "file paths and that the application exists.\r\n"
                                "Command= /opt/missing /rec/a.wav"));
    }
};

QTEST_GUILESS_MAIN(TestLaunchCommands)
#include "test_launchcommands.moc"
