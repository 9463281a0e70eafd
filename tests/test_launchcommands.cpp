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
        QTest::addColumn<QString>("logged"); // the routine of the one entry, if any
        const auto row = [](const char* tag, const char* command, const char* path,
                            const char* expanded, const char* logged = "") {
            QTest::newRow(tag) << QString(command) << QString(path) << QString(expanded)
                               << QString(logged);
        };
        const char* news = "/rec/show/news.wav";
        row("all", "tag %d|%p|%f|%b|%e|%%", news,
            "tag /rec/show/|/rec/show/news.wav|news.wav|news|wav|%");
        row("upper case", "%P %F", news, "/rec/show/news.wav news.wav");
        row("lone percent", "%", news, "%");
        row("percent at the end", "a%", news, "a%");
        row("escaped percent", "%%p", news, "%p");
        row("unknown", "%x %", news, "%x %");
        row("percent before a placeholder", "%%%f", news, "%news.wav");
        row("only the full name is trimmed", "[%p][%f]", " /rec/a.wav ", "[/rec/a.wav][a.wav ]");
        // The extension is the name's last three characters, the base what comes before
        // them and the dot.
        row("five characters", "%d|%b|%e", "/rec/a.wav", "/rec/|a|wav");
        row("four characters", "%d|%b|%e", "/rec/abcd", "/rec/||");
        row("longer extension", "%d|%b|%e", "/rec/ab.html", "/rec/|ab.|tml");
        row("two closing separators", "%d|%b|%e", "/rec/x//", "/rec/x/||");
        row("a name without a folder", "run [%f]", "loose.wav", "run []", "GetFilename");
    }
    void placeholders()
    {
        QFETCH(QString, command);
        QFETCH(QString, path);
        QFETCH(QString, expanded);
        MemoryLog log;
        QFETCH(QString, logged);
        QCOMPARE(InterpretCommand(log.log, command, path), expanded);
        QCOMPARE(log.entries.size(), logged.isEmpty() ? 0 : 1);
        if (!logged.isEmpty())
            QVERIFY2(log.entries[0].details.contains("Module: " + logged),
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
