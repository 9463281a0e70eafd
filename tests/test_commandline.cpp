// What the command line asks of a start: the help and version texts, the start-up words of
// earlier versions, and --inspect.
#include "shell/CommandLine.h"

#include <QTest>
#include <QTextStream>

class TestCommandLine : public QObject {
    Q_OBJECT
private slots:
    void argumentsDecideTheStart_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");  // -1: the program goes on
        QTest::addColumn<QString>("start"); // hidden, second (instance), headless or inspect:FILE
        QTest::addColumn<QString>("printed");
        const auto row = [](const char* tag, const QStringList& arguments, int exitCode,
                            const QString& start, const QString& printed = {}) {
            QTest::newRow(tag) << arguments << exitCode << start << printed;
        };
        row("nothing", {}, -1, "");
        row("1: hidden", {"1"}, -1, "hidden");
        row("2: second instance", {"2"}, -1, "second");
        row("other words are ignored", {"3"}, -1, "");
        row("inspect", {"--inspect", "/a b.wav"}, -1, "inspect:/a b.wav");
        row("headless", {"--headless"}, -1, "headless");
        row("help names the program, its words and options", {"--help"}, 0, "",
            "Usage: nightreel [options] [1|2]");
        row("version", {"--version"}, 0, "",
            QStringLiteral("Nightreel 2000 %1.%2.%3\n")
                .arg(NIGHTREEL_VERSION_MAJOR)
                .arg(NIGHTREEL_VERSION_MINOR)
                .arg(NIGHTREEL_VERSION_REV));
        row("unknown option", {"--nonsense"}, 1, "", "nonsense");
    }
    void argumentsDecideTheStart()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, start);
        QFETCH(QString, printed);
        QString outText;
        QString errText;
        QTextStream out(&outText);
        QTextStream err(&errText);
        const CommandLine line = CommandLine::Parse(QStringList{"nightreel"} + arguments, out, err);
        QCOMPARE(line.exitCode.value_or(-1), exitCode);
        QCOMPARE(line.startHidden, start == "hidden");
        QCOMPARE(line.allowSecondInstance, start == "second");
        QCOMPARE(line.headless, start == "headless");
        QCOMPARE(line.inspectFile, start.section("inspect:", 1));
        const QString shown = outText + errText;
        QVERIFY2(printed.isEmpty() ? shown.isEmpty() : shown.contains(printed), qPrintable(shown));
        if (exitCode == 0)
            QVERIFY(errText.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_commandline.moc"
