// Two simulated days of the recorder on its own, the Sundays of the summer-time changes,
// each with the clock set forward and back by an hour: every occurrence starts as often as
// the rules give, and the cases that the rules decide start as worked out here by hand.
#include "SoakRun.h"

#include <QTest>

class TestSoak : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SoakOptions options;
        options.taskProgram = NIGHTREEL_FAKETASK;
        options.stretches = {{QDate(2026, 3, 29), 1}, {QDate(2026, 10, 25), 1}};
        m_report = RunSoak(options);
    }

    void everyOccurrenceAsTheRulesGive()
    {
        QVERIFY(m_report.occurrencesDue > 30);
        QVERIFY2(m_report.faults.isEmpty(), qPrintable(m_report.faults.join('\n')));
        QCOMPARE(m_report.missed, 0);
        QCOMPARE(m_report.startedTwice, 0);
        // An occurrence started again in its window (the hour that comes twice, the clock
        // set back) takes the next free name instead of replacing the first recording; the
        // log notes those renames and nothing else.
        QVERIFY(!m_report.logged.isEmpty());
        for (const QString& line : m_report.logged)
            QVERIFY2(line.startsWith("type 0: Recording saved under a new name: "),
                     qPrintable(line));
    }

    void startsOfOccurrence_data()
    {
        QTest::addColumn<QString>("occurrence");
        QTest::addColumn<int>("starts");
        QTest::newRow("weekly inside the skipped hour") << "Small hours|2026-03-29 02:15" << 0;
        QTest::newRow("one-time inside the skipped hour")
            << "Skipped hour one-time|2026-03-29 02:05" << 0;
        QTest::newRow("running into the skipped hour") << "Into the gap|2026-03-29 01:40" << 1;
        QTest::newRow("ending after the skipped hour: late")
            << "Late by the gap|2026-03-29 02:50" << 1;
        QTest::newRow("weekly in the hour that comes twice") << "Small hours|2026-10-25 02:15" << 2;
        QTest::newRow("weekly ending in the hour that comes twice")
            << "Into the gap|2026-10-25 01:40" << 2;
        QTest::newRow("one-time in the hour that comes twice")
            << "Repeated hour one-time|2026-10-25 02:42" << 1;
        QTest::newRow("after the first three o'clock") << "Three o'clock|2026-10-25 03:00" << 1;
        QTest::newRow("skipped by the clock set forward")
            << "Skipped by the clock|2026-03-29 14:20" << 0;
        QTest::newRow("one-time skipped by the clock set forward")
            << "Set forward one-time|2026-10-25 20:30" << 0;
        QTest::newRow("clock set back after it") << "Sunday matinee|2026-10-25 13:15" << 2;
        QTest::newRow("clock set back while recording") << "Sunday evening|2026-03-29 19:20" << 1;
        QTest::newRow("late, after a program over midnight")
            << "Saturday night|2026-03-28 23:00" << 1;
        QTest::newRow("late, after an overlapping program")
            << "Sunday service|2026-03-29 10:30" << 1;
    }

    void startsOfOccurrence()
    {
        QFETCH(QString, occurrence);
        QFETCH(int, starts);
        QCOMPARE(m_report.starts.value(occurrence), starts);
    }

private:
    SoakReport m_report;
};

QTEST_GUILESS_MAIN(TestSoak)
#include "test_soak.moc"
