#include "common/AutomationDate.h"
#include "formats/clsProgramFlags.h"
#include "scheduling/ModuleUtility.h"
#include "scheduling/clsWeekdays.h"

#include <QtTest>

using Days = std::array<bool, 7>;

namespace {
double At(int hour, int minute = 0)
{
    return AutomationDate::FromTime(hour, minute, 0);
}

// "Mon,Wed" -> the day array; "" for no day.
Days DaysOf(const QString& names)
{
    static const QStringList all = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    Days days{};
    for (const QString& name : names.split(u',', Qt::SkipEmptyParts))
        days[all.indexOf(name)] = true;
    return days;
}

clsWeekdays Weekly(const QString& names, double start, double end)
{
    clsWeekdays w;
    w.Weekdays(DaysOf(names), start, end);
    return w;
}

clsWeekdays OneTime(const QString& monthDayYear, double start, double end)
{
    clsWeekdays w;
    w.OneTimeDtm(AutomationDate::FromText(monthDayYear), start, end);
    return w;
}

} // namespace

class TestWeekdays : public QObject {
    Q_OBJECT

private slots:
    void flagsFollowTheSystemsTrue_data()
    {
        QTest::addColumn<qint32>("before");
        QTest::addColumn<bool>("convert");
        QTest::addColumn<int>("value");
        QTest::addColumn<qint32>("after");

        QTest::newRow("True sets the extension bit") << 0 << false << -1 << 1;
        QTest::newRow("True sets the convert bit") << 0 << true << -1 << 2;
        QTest::newRow("setting keeps the other bits") << 0x72 << false << -1 << 0x73;
        QTest::newRow("1 is not True and clears") << 3 << false << 1 << 2;
        QTest::newRow("False clears only its bit") << 0x73 << true << 0 << 0x71;
    }

    void flagsFollowTheSystemsTrue()
    {
        QFETCH(qint32, before);
        QFETCH(bool, convert);
        QFETCH(int, value);
        QFETCH(qint32, after);

        clsProgramFlags flags;
        flags.Flags = before;
        if (convert)
            flags.SetConvertToMP3(value);
        else
            flags.SetSaveMP3FileExtension(value);
        QCOMPARE(flags.Flags, after);
        QCOMPARE(flags.SaveMP3FileExtension(), (after & 1) != 0);
        QCOMPARE(flags.ConvertToMP3(), (after & 2) != 0);
    }

    void daysString_data()
    {
        QTest::addColumn<QString>("days");
        QTest::addColumn<QString>("text");

        QTest::newRow("working week") << "Mon,Tue,Wed,Thu,Fri"
                                      << "Mon-Fri";
        QTest::newRow("two days in a row stay two names") << "Sun,Mon,Wed"
                                                          << "Sun,Mon,Wed";
        QTest::newRow("weekend does not wrap") << "Sun,Sat"
                                               << "Sun,Sat";
        QTest::newRow("no day") << ""
                                << "";
        QTest::newRow("range then single") << "Sun,Mon,Tue,Thu"
                                           << "Sun-Tue,Thu";
        QTest::newRow("single then range to Saturday") << "Mon,Thu,Fri,Sat"
                                                       << "Mon,Thu-Sat";
    }

    void daysString()
    {
        QFETCH(QString, days);
        QFETCH(QString, text);
        QCOMPARE(DaysString(DaysOf(days)), text);
    }

    void consecDays_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("days");
        QTest::addColumn<int>("count");

        QTest::newRow("run stops at the first free day") << 1 << "Mon,Tue,Wed,Fri" << 3;
        QTest::newRow("Saturday does not wrap to Sunday") << 5 << "Sun,Mon,Fri,Sat" << 2;
        QTest::newRow("whole week") << 0 << "Sun,Mon,Tue,Wed,Thu,Fri,Sat" << 7;
    }

    void consecDays()
    {
        QFETCH(int, start);
        QFETCH(QString, days);
        QFETCH(int, count);
        QCOMPARE(ConsecDays(start, DaysOf(days)), count);
    }

    void timeRangesOverlap_data()
    {
        QTest::addColumn<double>("a0");
        QTest::addColumn<double>("a1");
        QTest::addColumn<double>("b0");
        QTest::addColumn<double>("b1");
        QTest::addColumn<bool>("overlap");

        QTest::newRow("apart") << 1.0 << 2.0 << 3.0 << 4.0 << false;
        QTest::newRow("touching") << 1.0 << 2.0 << 2.0 << 3.0 << false;
        QTest::newRow("partly") << 1.0 << 3.0 << 2.0 << 4.0 << true;
        QTest::newRow("enclosed") << 1.0 << 4.0 << 2.0 << 3.0 << true;
        QTest::newRow("zero length inside") << 1.0 << 3.0 << 2.0 << 2.0 << true;
        QTest::newRow("zero length at the start") << 1.0 << 3.0 << 1.0 << 1.0 << true;
        QTest::newRow("zero length at the end") << 1.0 << 3.0 << 3.0 << 3.0 << true;
        QTest::newRow("zero length outside") << 1.0 << 3.0 << 4.0 << 4.0 << false;
    }

    void timeRangesOverlap()
    {
        QFETCH(double, a0);
        QFETCH(double, a1);
        QFETCH(double, b0);
        QFETCH(double, b1);
        QFETCH(bool, overlap);

        // The answer must not depend on which range comes first.
        QCOMPARE(TimeRangesOverlap(a0, a1, b0, b1), overlap);
        QCOMPARE(TimeRangesOverlap(b0, b1, a0, a1), overlap);
    }

    void weeklyConflicts_data()
    {
        QTest::addColumn<QString>("firstDays");
        QTest::addColumn<double>("firstStart");
        QTest::addColumn<double>("firstEnd");
        QTest::addColumn<QString>("secondDays");
        QTest::addColumn<double>("secondStart");
        QTest::addColumn<double>("secondEnd");
        QTest::addColumn<bool>("conflict");

        QTest::newRow("one ends as the other starts")
            << "Wed" << At(22) << At(23) << "Wed" << At(23) << At(0, 30) << false;
        QTest::newRow("Monday night into Tuesday morning")
            << "Mon" << At(23) << At(0, 30) << "Tue" << At(0, 15) << At(1) << true;
        QTest::newRow("past midnight, touching")
            << "Mon" << At(23) << At(0, 30) << "Tue" << At(0, 30) << At(1) << false;
        // Intended: the week does not wrap, so Saturday night never meets Sunday morning.
        QTest::newRow("Saturday night and Sunday morning")
            << "Sat" << At(23) << At(0, 30) << "Sun" << At(0, 15) << At(1) << false;
        QTest::newRow("same time, different days")
            << "Mon" << At(10) << At(11) << "Tue" << At(10) << At(11) << false;
        QTest::newRow("any of several days")
            << "Mon,Wed,Fri" << At(10) << At(11) << "Fri" << At(10, 30) << At(12) << true;
        QTest::newRow("no day at all")
            << "" << At(10) << At(11) << "Sun,Mon,Tue,Wed,Thu,Fri,Sat" << At(0) << At(23) << false;
        // Intended: equal start and end count as 24 hours from the start.
        QTest::newRow("equal times, later that day")
            << "Mon" << At(8) << At(8) << "Mon" << At(20) << At(21) << true;
        QTest::newRow("equal times, next morning")
            << "Mon" << At(8) << At(8) << "Tue" << At(7) << At(7, 30) << true;
        QTest::newRow("equal times, earlier that day")
            << "Mon" << At(8) << At(8) << "Mon" << At(6) << At(7, 59) << false;
        QTest::newRow("equal times, next day from the same time")
            << "Mon" << At(8) << At(8) << "Tue" << At(8) << At(9) << false;
    }

    void weeklyConflicts()
    {
        QFETCH(QString, firstDays);
        QFETCH(double, firstStart);
        QFETCH(double, firstEnd);
        QFETCH(QString, secondDays);
        QFETCH(double, secondStart);
        QFETCH(double, secondEnd);
        QFETCH(bool, conflict);

        const clsWeekdays first = Weekly(firstDays, firstStart, firstEnd);
        const clsWeekdays second = Weekly(secondDays, secondStart, secondEnd);
        QCOMPARE(first.IsConflictWith(second), conflict);
        QCOMPARE(second.IsConflictWith(first), conflict);
    }

    void oneTimeUsesOnlyTheWeekday_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("weeklyDays");
        QTest::addColumn<bool>("conflict");

        // 3 March 2024 was a Sunday, 4 March a Monday, 9 March a Saturday.
        QTest::newRow("Monday date, weekly on Tuesday") << "03/04/2024"
                                                        << "Tue" << false;
        QTest::newRow("Sunday date, weekly on Sunday") << "03/03/2024"
                                                       << "Sun" << true;
        QTest::newRow("Sunday date, weekly on Saturday") << "03/03/2024"
                                                         << "Sat" << false;
        QTest::newRow("Saturday date, weekly on Saturday") << "03/09/2024"
                                                           << "Sat" << true;
        QTest::newRow("date before the reference week") << "12/31/1899"
                                                        << "Sun" << true;
    }

    void oneTimeUsesOnlyTheWeekday()
    {
        QFETCH(QString, date);
        QFETCH(QString, weeklyDays);
        QFETCH(bool, conflict);

        const clsWeekdays once = OneTime(date, At(10), At(11));
        const clsWeekdays weekly = Weekly(weeklyDays, At(10, 30), At(12));
        QCOMPARE(once.IsConflictWith(weekly), conflict);
        QCOMPARE(weekly.IsConflictWith(once), conflict);
    }
};

QTEST_APPLESS_MAIN(TestWeekdays)
#include "test_weekdays.moc"
