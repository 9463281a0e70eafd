#include "ModalDialogs.h"
#include "Programs.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "common/Twips.h"
#include "scheduling/DiskForecast.h"
#include "scheduling/frmDiskStatus.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTableView>
#include <QTest>

namespace {

// A daily program from 16:00 to 17:00 at the given byte rate.
QVariantHash DailyHour(const QString& description, int bytesPerSec)
{
    QVariantHash row = Programs::Weekly(description, "16:00:00", "17:00:00", "1111111");
    row.insert("wfx_nAvgBytesPerSec", bytesPerSec);
    return row;
}

QVariantHash Cancelled(QVariantHash row, double cancelledEnd)
{
    row["RecordingCancelled"] = -1;
    row["RecordingCancelledEndDateAndTime"] = cancelledEnd;
    return row;
}

QString Moment(double date)
{
    return AutomationDate::ToDateTime(date).toString("yyyy-MM-dd HH:mm");
}

// Every row of Programs, every column, as text.
QStringList ProgramsTable(const TestContext& tc)
{
    QStringList rows;
    QSqlQuery q(tc.ctx->database.db.Connection());
    q.exec("SELECT * FROM Programs ORDER BY ID");
    while (q.next()) {
        QStringList values;
        for (int c = 0; c < q.record().count(); ++c)
            values << q.value(c).toString();
        rows << values.join('|');
    }
    return rows;
}

// The number in a label such as "Disk Capacity: 1234.5 Megabytes".
double NumberIn(const QLabel* label)
{
    const QString text = label->text().section(": ", 1);
    return text.section(' ', 0, 0).remove('%').toDouble();
}

QString Run(const QString& program, const QStringList& arguments)
{
    return QString::fromLocal8Bit(RunProgram(program, arguments)).trimmed();
}

} // namespace

class TestFrmDiskStatus : public QObject {
    Q_OBJECT

private slots:
    // The clock stands at noon on Monday, 1 June 2026; the stop limit is 25 Mbytes.
    void forecastChainsTheSearch_data()
    {
        QTest::addColumn<int>("bytesPerSec"); // < 0: no program
        QTest::addColumn<double>("cancelledEnd");
        QTest::addColumn<QString>("clock");
        QTest::addColumn<double>("freeMb");
        QTest::addColumn<int>("rowCount");
        QTest::addColumn<QString>("firstStart");
        QTest::addColumn<QList<int>>("firstMbytes");
        QTest::addColumn<QString>("lastDescription");
        QTest::addColumn<int>("lastMbytes");
        const auto row = [](const char* tag, int bytesPerSec, double cancelledEnd,
                            const char* clock, double freeMb, int rowCount, const char* firstStart,
                            const QList<int>& firstMbytes, bool truncated, int lastMbytes) {
            const QString name = "Evening news and the weat";
            QTest::newRow(tag) << bytesPerSec << cancelledEnd << QString(clock) << freeMb
                               << rowCount << QString(firstStart) << firstMbytes
                               << (truncated ? name + "  **TRUNCATED**" : name + "her report")
                               << lastMbytes;
        };
        // 57,600,000 bytes an hour is 54.93 Mbytes; the running value keeps its fraction.
        row("an hour a day runs out of disk", 16000, 0.0, "12:00:00", 1000.0, 18,
            "2026-06-01 16:00", {945, 890, 835, 780}, true, 25);
        row("a cheap program stops at 101 rows", 100, 0.0, "12:00:00", 1000.0, 101,
            "2026-06-01 16:00", {1000, 999}, false, 965);
        row("free space already under the stop limit", 16000, 0.0, "12:00:00", 20.0, 1,
            "2026-06-01 16:00", {25}, true, 25);
        row("a cancelled occurrence is left out, later ones count", 16000,
            Programs::At(2026, 6, 1, "17:00:00"), "12:00:00", 1000.0, 18, "2026-06-02 16:00",
            {945, 890}, true, 25);
        row("a running occurrence comes first, charged in full", 16000, 0.0, "16:30:00", 1000.0, 18,
            "2026-06-01 16:00", {945}, true, 25);
        row("no program", -1, 0.0, "12:00:00", 1000.0, 0, "", {}, false, 0);
    }
    void forecastChainsTheSearch()
    {
        QFETCH(int, bytesPerSec);
        QFETCH(double, cancelledEnd);
        QFETCH(QString, clock);
        QFETCH(double, freeMb);
        TestContext tc;
        tc.OpenDatabase();
        tc.clock.Set(Programs::At(2026, 6, 1, clock));
        if (bytesPerSec >= 0) {
            QVariantHash row = DailyHour("Evening news and the weather report", bytesPerSec);
            tc.AddProgram(cancelledEnd > 0 ? Cancelled(row, cancelledEnd) : row);
        }
        const DiskForecast forecast(tc.clock, tc.ctx->scheduler);
        const QList<DiskForecastRow> rows = forecast.Rows(freeMb, 25);

        QFETCH(int, rowCount);
        QCOMPARE(rows.size(), rowCount);
        if (rows.isEmpty())
            return;
        QFETCH(QString, firstStart);
        QCOMPARE(Moment(rows.first().startTime), firstStart);
        QCOMPARE(AutomationDate::SecondsBetween(rows.first().startTime, rows.first().endTime),
                 3600);
        QFETCH(QList<int>, firstMbytes);
        for (int i = 0; i < firstMbytes.size(); ++i)
            QCOMPARE(rows[i].remainingMbytes, firstMbytes[i]);
        // One occurrence a day, chained from the end of the one before.
        for (int i = 1; i < rows.size(); ++i)
            QCOMPARE(rows[i].startTime, rows[i - 1].startTime + 1.0);
        QFETCH(QString, lastDescription);
        QFETCH(int, lastMbytes);
        QCOMPARE(rows.last().description, lastDescription);
        QCOMPARE(rows.last().remainingMbytes, lastMbytes);
    }

    // The real folder's figures, the forecast in the grid, nothing written to the program
    // list (a lapsed cancellation stays as it is), the layout kept at closing; and no form
    // without a recording folder.
    void formShowsTheFolderAndTheForecast()
    {
        TestContext tc;
        tc.OpenDatabase();
        const QString folder = tc.Root() + "/rec";
        QVERIFY(QDir().mkpath(folder));
        tc.ctx->options.DefaultRecordingDirectory = folder;
        tc.AddProgram(
            Cancelled(DailyHour("Morning show", 16000), Programs::At(2026, 5, 31, "17:00:00")));
        const QStringList before = ProgramsTable(tc);
        const QStringList stat = Run("stat", {"-f", "-c", "%S %b %a", folder}).split(' ');
        const double blockMb = stat[0].toDouble() / 1048576.0;
        const double total = stat[1].toDouble() * blockMb;
        const double free = stat[2].toDouble() * blockMb;
        const QString mountPoint = Run("df", {"--output=target", folder}).split('\n').last();

        const DiskForecast forecast(tc.clock, tc.ctx->scheduler);
        frmDiskStatus form(tc.ctx->log, tc.ctx->registry, tc.ctx->options, tc.ctx->error,
                           tc.diskSpace, forecast, nullptr);
        QVERIFY(form.Loaded());
        const auto label = [&form](const char* name) {
            return form.findChild<QLabel*>(name);
        };
        QCOMPARE(label("lblCurrentDrive")->text(), "Default Recording Drive: " + mountPoint);
        QCOMPARE(label("lblDiskCapacity")->text(),
                 "Disk Capacity: " + QString::number(total, 'f', 1) + " Megabytes");
        // Other programs write to the same disk meanwhile: free and used within a margin.
        QVERIFY(qAbs(NumberIn(label("lblDiskRemaining")) - free) < 64);
        QVERIFY(qAbs(NumberIn(label("lblDiskSpaceUsed")) - (total - free)) < 64);
        QVERIFY(qAbs(NumberIn(label("lblPercentUsed")) - (total - free) / total * 100) < 0.2);
        QVERIFY(label("lblPercentUsed")->text().endsWith('%'));
        auto* grid = form.findChild<QTableView*>("TDBGrid1");
        QVERIFY(grid->model()->rowCount() > 1);
        QCOMPARE(ProgramsTable(tc), before);

        form.show();
        if (qEnvironmentVariableIsSet("NIGHTREEL_GRAB_DIR"))
            form.grab().save(qEnvironmentVariable("NIGHTREEL_GRAB_DIR") + "/frmDiskStatus.png");
        form.resize(640, 300);
        grid->setColumnWidth(0, 222);
        form.reject();
        const auto setting = [&tc](const char* name) {
            return tc.ctx->registry.GetSetting("Settings", name, QString()).toInt();
        };
        QCOMPARE(setting("DiskFormWidth"), Twips::FromPixels(640));
        QCOMPARE(setting("DiskFormHeight"), Twips::FromPixels(300));
        QCOMPARE(setting("DiskFormCol0Width"), Twips::FromPixels(222));

        // Without a valid recording folder the form does not open.
        tc.ctx->error.SetInvalidRecordingDirectory(true);
        frmDiskStatus refused(tc.ctx->log, tc.ctx->registry, tc.ctx->options, tc.ctx->error,
                              tc.diskSpace, forecast, nullptr);
        QCOMPARE(refused.exec(), int(QDialog::Rejected));
        QVERIFY(!refused.Loaded());
    }

    // The main window's ways into the forecast, from the menu, the tool bar and the tray.
    void theMainWindowOpensTheForecast_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("menu") << "mnuViewDiskStatus";
        QTest::newRow("tool bar") << "ToolbarMain.DiskStatus";
        QTest::newRow("tray") << "mnuSystrayDiskStatus";
    }
    void theMainWindowOpensTheForecast()
    {
        QFETCH(QString, action);
        TestContext tc;
        tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", tc.Root());
        frmMain form(*tc.ctx, false);
        form.FirstActivate();
        QString opened;
        WhenModalOpens([&opened](QDialog* dialog) {
            opened = dialog->objectName();
            dialog->reject();
        });
        form.ui.Action(action)->trigger();
        QCOMPARE(opened, QString("frmDiskStatus"));
    }
};

QTEST_MAIN(TestFrmDiskStatus)
#include "test_frmDiskStatus.moc"
