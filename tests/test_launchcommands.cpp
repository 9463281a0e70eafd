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

    void pathParts_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("parts");
        QTest::newRow("plain") << "/rec/a.wav" << QStringList{"/rec/", "a", "wav"};
        QTest::newRow("four characters") << "/rec/abcd" << QStringList{"/rec/", "", ""};
        QTest::newRow("longer extension") << "/rec/ab.html" << QStringList{"/rec/", "ab.", "tml"};
        QTest::newRow("two closing separators") << "/rec/x//" << QStringList{"/rec/x/", "", ""};
    }
    // Directory, base and extension, the last two of the file's name.
    void pathParts()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, parts);
        MemoryLog log;
        const QString name = GetFilename(log.log, path);
        QCOMPARE(QStringList({GetDirectory(log.log, path), GetFileBase(log.log, name),
                              GetFileExtension(log.log, name)}),
                 parts);
    }

    void aNameWithoutAFolderIsLogged()
    {
        MemoryLog log;
        QCOMPARE(InterpretCommand(log.log, "run [%f]", "loose.wav"), QStringLiteral("run []"));
        QCOMPARE(log.entries.size(), 1);
        QVERIFY2(log.entries[0].details.contains("Module: GetFilename"),
                 qPrintable(log.entries[0].details));
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
    // A blank command starts nothing.
    void theLaunchAfterARecording()
    {
        QFETCH(bool, ok);
        QFETCH(bool, onlyIfOk);
        QFETCH(bool, started);
        MemoryLog log;
        RecordingLauncher launcher;
        LaunchAfterRecording(log.log, launcher, ok, "convert %p", onlyIfOk, "/rec/a.wav");
        QCOMPARE(launcher.started, started ? QStringList{"convert /rec/a.wav"} : QStringList());
        LaunchAfterRecording(log.log, launcher, true, "   ", false, "/rec/a.wav");
        QCOMPARE(launcher.started.size(), started ? 1 : 0);
    }

    void aCommandThatCantStartIsLogged()
    {
        MemoryLog log;
        RecordingLauncher launcher;
        launcher.failing.insert("/opt/missing /rec/a.wav");
        LaunchAfterRecording(log.log, launcher, true, "/opt/missing %p", false, "/rec/a.wav");
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
