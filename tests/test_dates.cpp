#include "TestFiles.h"
#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/FileHelpers.h"
#include "common/TextHelpers.h"

#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <ctime>

using namespace AutomationDate;

class TestDates : public QObject {
    Q_OBJECT

private slots:
    void roundTripsLocalTimes_data()
    {
        QTest::addColumn<QDateTime>("local");
        QTest::addColumn<double>("date");
        QTest::newRow("epoch") << QDateTime(QDate(1899, 12, 30), QTime(0, 0)) << 0.0;
        QTest::newRow("noon") << QDateTime(QDate(2026, 1, 1), QTime(12, 0)) << 46023.5;
        QTest::newRow("before the epoch") << QDateTime(QDate(1899, 12, 29), QTime(6, 0)) << -1.25;
    }
    void roundTripsLocalTimes()
    {
        QFETCH(QDateTime, local);
        QFETCH(double, date);
        QCOMPARE(FromDateTime(local), date);
        QCOMPARE(ToDateTime(date), local);
    }

    // A wall time that the change to summer time skipped is the moment after the gap, so that
    // a limit worked out from it still compares with real times.
    void aSkippedWallTimeIsTheMomentAfterTheGap()
    {
        const QByteArray zone = qgetenv("TZ");
        const auto restore = qScopeGuard([&] {
            qputenv("TZ", zone);
            tzset();
        });
        qputenv("TZ", "Europe/Berlin");
        tzset();
        const QDateTime t =
            ToDateTime(FromDateTime(QDateTime(QDate(2026, 3, 29), QTime(0, 0))) + 2.5 / 24);
        QCOMPARE(t, QDateTime(QDate(2026, 3, 29), QTime(3, 30)));
    }

    // Differences count the unit boundaries passed, not the elapsed whole units.
    void differencesCountBoundaries()
    {
        const double a = FromDateTime(QDateTime(QDate(2026, 3, 1), QTime(10, 59, 59)));
        const double b = AddSeconds(a, 2);
        QCOMPARE(MinutesBetween(a, b), qint64(1));
        QCOMPARE(HoursBetween(a, b), qint64(1));
        QCOMPARE(HoursBetween(b, a), qint64(-1));
    }

    void theSystemClockGivesWholeSeconds()
    {
        SystemClock clock;
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(ToDateTime(clock.Now()).time().msec(), 0);
            QTest::qSleep(7);
        }
    }

    void addingSecondsLandsOnTheSecond()
    {
        const double d = FromDateTime(QDateTime(QDate(2026, 3, 1), QTime(23, 59, 50)));
        QCOMPARE(ToDateTime(AddSeconds(d, 30)), QDateTime(QDate(2026, 3, 2), QTime(0, 0, 20)));
    }

    void textRules_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("plain") << "500" << 500.0;
        QTest::newRow("letters") << "abc" << 0.0;
        QTest::newRow("trailing letters") << "12abc" << 12.0;
        QTest::newRow("negative") << "-5" << -5.0;
        QTest::newRow("fraction") << " 7.6 " << 7.6;
        QTest::newRow("inner blanks") << "1 2" << 12.0;
    }
    void textRules()
    {
        QFETCH(QString, text);
        QTEST(Text::Val(text), "value");
    }

    void numbersWithASignPlace()
    {
        QCOMPARE(Text::Str(3021), QStringLiteral(" 3021"));
        QCOMPARE(Text::Str(-5), QStringLiteral("-5"));
        QCOMPARE(Text::Trim(QStringLiteral("  a\tb  ")), QStringLiteral("a\tb"));
    }

    void emptyFilesCountAsAbsentAndGo()
    {
        QTemporaryDir dir;
        const QString empty = dir.filePath("empty.wav");
        const QString full = dir.filePath("full.wav");
        QVERIFY(WriteFile(empty, {}) && WriteFile(full, "RIFF"));
        QVERIFY(!FileExistsOrClear(empty));
        QVERIFY(!QFile::exists(empty));
        QVERIFY(FileExistsOrClear(full));
        QVERIFY(!FileExistsOrClear(dir.filePath("missing.wav")));
        QVERIFY(!FileExistsOrClear(dir.path()));
    }
};

QTEST_APPLESS_MAIN(TestDates)
#include "test_dates.moc"
