#include "common/AutomationDate.h"
#include "formats/clsProgramFlags.h"
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

    // A one-time program (a date given) meets a weekly one on its weekday only.
    void conflicts_data()
    {
        QTest::addColumn<QString>("firstDays"); // or the one-time date, month first
        QTest::addColumn<double>("firstStart");
        QTest::addColumn<double>("firstEnd");
        QTest::addColumn<QString>("secondDays");
        QTest::addColumn<double>("secondStart");
        QTest::addColumn<double>("secondEnd");
        QTest::addColumn<bool>("conflict");
        const auto row = [](const char* tag, const char* firstDays, double firstStart,
                            double firstEnd, const char* secondDays, double secondStart,
                            double secondEnd, bool conflict) {
            QTest::newRow(tag) << QString(firstDays) << firstStart << firstEnd
                               << QString(secondDays) << secondStart << secondEnd << conflict;
        };
        row("one ends as the other starts", "Wed", At(22), At(23), "Wed", At(23), At(0, 30), false);
        row("Monday night into Tuesday morning", "Mon", At(23), At(0, 30), "Tue", At(0, 15), At(1),
            true);
        row("past midnight, touching", "Mon", At(23), At(0, 30), "Tue", At(0, 30), At(1), false);
        // Intended: the week does not wrap, so Saturday night never meets Sunday morning.
        row("Saturday night and Sunday morning", "Sat", At(23), At(0, 30), "Sun", At(0, 15), At(1),
            false);
        row("same time, different days", "Mon", At(10), At(11), "Tue", At(10), At(11), false);
        row("any of several days", "Mon,Wed,Fri", At(10), At(11), "Fri", At(10, 30), At(12), true);
        row("no day at all", "", At(10), At(11), "Sun,Mon,Tue,Wed,Thu,Fri,Sat", At(0), At(23),
            false);
        // Intended: equal start and end count as 24 hours from the start.
        row("equal times, later that day", "Mon", At(8), At(8), "Mon", At(20), At(21), true);
        row("equal times, next morning", "Mon", At(8), At(8), "Tue", At(7), At(7, 30), true);
        row("equal times, earlier that day", "Mon", At(8), At(8), "Mon", At(6), At(7, 59), false);
        row("equal times, next day from the same time", "Mon", At(8), At(8), "Tue", At(8), At(9),
            false);
        // 3 March 2024 was a Sunday, 4 March a Monday, 9 March a Saturday.
        row("Monday date, weekly on Tuesday", "03/04/2024", At(10), At(11), "Tue", At(10, 30),
            At(12), false);
        row("Sunday date, weekly on Sunday", "03/03/2024", At(10), At(11), "Sun", At(10, 30),
            At(12), true);
        row("Sunday date, weekly on Saturday", "03/03/2024", At(10), At(11), "Sat", At(10, 30),
            At(12), false);
        row("Saturday date, weekly on Saturday", "03/09/2024", At(10), At(11), "Sat", At(10, 30),
            At(12), true);
        row("date before the reference week", "12/31/1899", At(10), At(11), "Sun", At(10, 30),
            At(12), true);
    }
    void conflicts()
    {
        QFETCH(QString, firstDays);
        QFETCH(double, firstStart);
        QFETCH(double, firstEnd);
        QFETCH(QString, secondDays);
        QFETCH(double, secondStart);
        QFETCH(double, secondEnd);
        clsWeekdays first;
        if (firstDays.contains('/'))
            first.OneTimeDtm(AutomationDate::FromText(firstDays), firstStart, firstEnd);
        else
            first = Weekly(firstDays, firstStart, firstEnd);
        const clsWeekdays second = Weekly(secondDays, secondStart, secondEnd);
        QTEST(first.IsConflictWith(second), "conflict");
        QTEST(second.IsConflictWith(first), "conflict");
    }
};

QTEST_APPLESS_MAIN(TestWeekdays)
#include "test_weekdays.moc"
