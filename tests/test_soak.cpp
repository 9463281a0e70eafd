// Simulated days of the recorder on its own: the Sundays of the summer-time changes with the
// clock set forward and back, and a Monday with the recorder stopped and the computer asleep.
// The cases the rules decide start as worked out here by hand.
#include "SoakRun.h"
#include "TestParts.h"

#include <QCoreApplication>
#include <QTest>

class TestSoak : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SoakOptions options;
        options.taskProgram = NIGHTREEL_FAKETASK;
        options.stretches = {
            {QDate(2026, 3, 29), 1}, {QDate(2026, 6, 8), 1}, {QDate(2026, 10, 25), 1}};
        options.outages = {{QDateTime(QDate(2026, 6, 8), QTime(4, 30)), 6, false},
                           {QDateTime(QDate(2026, 6, 8), QTime(15, 25)), 2, true}};
        m_report = RunSoak(options);
    }

    void everyOccurrenceAsTheRulesGive()
    {
        QVERIFY(m_report.occurrencesDue > 30);
        QVERIFY2(m_report.faults.isEmpty(), qPrintable(m_report.faults.join('\n')));
        QCOMPARE(m_report.missed, 0);
        QCOMPARE(m_report.startedTwice, 0);
        QCOMPARE(m_report.missedUnreported, 0);
        // What the outages missed (7, 1 and two late), and the renames of occurrences started
        // again in their window.
        int missed = 0, renamed = 0;
        for (const QString& row : m_report.logged) {
            missed += row.startsWith("type 1: Missed recording: ") ||
                      row.startsWith("type 1: Recording started late: ");
            renamed += row.startsWith("type 0: Recording saved under a new name: ");
        }
        QCOMPARE(missed, 10);
        QVERIFY(renamed > 0);
        QCOMPARE(missed + renamed, m_report.logged.size());
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
        QTest::newRow("while the recorder was stopped") << "Block A|2026-06-08 09:00" << 0;
        QTest::newRow("late, after the recorder's start") << "Block B|2026-06-08 10:00" << 1;
        QTest::newRow("while the computer slept") << "Tea time|2026-06-08 16:00" << 0;
        QTest::newRow("late, after waking") << "Moved show|2026-06-08 17:10" << 1;
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

NIGHTREEL_TEST_PARTS_MAIN(TestSoak, QCoreApplication)
#include "test_soak.moc"
