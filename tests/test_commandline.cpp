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
        QTest::addColumn<int>("exitCode"); // -1: the program goes on
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<bool>("second");
        QTest::addColumn<QString>("inspect");
        QTest::addColumn<bool>("headless");
        QTest::addColumn<QString>("printed");
        QTest::newRow("nothing") << QStringList{} << -1 << false << false << "" << false << "";
        QTest::newRow("1: hidden") << QStringList{"1"} << -1 << true << false << "" << false << "";
        QTest::newRow("2: second instance")
            << QStringList{"2"} << -1 << false << true << "" << false << "";
        QTest::newRow("other words are ignored")
            << QStringList{"3"} << -1 << false << false << "" << false << "";
        QTest::newRow("inspect") << QStringList{"--inspect", "/a b.wav"} << -1 << false << false
                                 << "/a b.wav" << false << "";
        QTest::newRow("headless") << QStringList{"--headless"} << -1 << false << false << "" << true
                                  << "";
        QTest::newRow("help names the program, its words and options")
            << QStringList{"--help"} << 0 << false << false << "" << false
            << "Usage: nightreel [options] [1|2]";
        QTest::newRow("version") << QStringList{"--version"} << 0 << false << false << "" << false
                                 << QStringLiteral("Nightreel 2000 %1.%2.%3\n")
                                        .arg(NIGHTREEL_VERSION_MAJOR)
                                        .arg(NIGHTREEL_VERSION_MINOR)
                                        .arg(NIGHTREEL_VERSION_REV);
        QTest::newRow("unknown option")
            << QStringList{"--nonsense"} << 1 << false << false << "" << false << "nonsense";
    }
    void argumentsDecideTheStart()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, printed);
        QString outText;
        QString errText;
        QTextStream out(&outText);
        QTextStream err(&errText);
        const CommandLine line = CommandLine::Parse(QStringList{"nightreel"} + arguments, out, err);
        QCOMPARE(line.exitCode.value_or(-1), exitCode);
        QTEST(line.startHidden, "hidden");
        QTEST(line.allowSecondInstance, "second");
        QTEST(line.inspectFile, "inspect");
        QTEST(line.headless, "headless");
        const QString shown = outText + errText;
        QVERIFY2(printed.isEmpty() ? shown.isEmpty() : shown.contains(printed), qPrintable(shown));
        if (exitCode == 0)
            QVERIFY(errText.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_commandline.moc"
