#include "LogCapture.h"
#include "OpenedContext.h"
#include "TestFiles.h"
#include "common/TextHelpers.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

namespace {

// Runs statements on a database file through a connection of the test's own.
void RunSql(const QString& path, const QStringList& statements)
{
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "test-setup");
        db.setDatabaseName(path);
        QVERIFY(db.open());
        for (const QString& sql : statements) {
            QSqlQuery q(db);
            QVERIFY2(q.exec(sql), qPrintable(sql));
        }
    }
    QSqlDatabase::removeDatabase("test-setup");
}

// The tables besides Programs of a file from an older version.
const QStringList kOlderTables = {
    "CREATE TABLE Recordings (ID INTEGER PRIMARY KEY, Title TEXT, File TEXT, StartTime REAL, "
    "EndTime REAL, CompressionMethod TEXT, Size REAL)",
    "CREATE TABLE EventLog (ID INTEGER PRIMARY KEY, Type INTEGER, DateAndTime REAL, "
    "Message TEXT, Details TEXT)",
    "CREATE TABLE Info (VersionMajor INTEGER)"};

} // namespace

class TestDatabase : public QObject {
    Q_OBJECT

private slots:
    void anOlderFileGetsTheNewColumnsOnce()
    {
        TestContext tc;
        const QString file = tc.ctx->database.DatabaseFile();
        QFile::remove(file);
        RunSql(file, QStringList{
                         "CREATE TABLE Programs (ID INTEGER PRIMARY KEY, Enabled INTEGER, "
                         "Description TEXT, DescriptionText TEXT, StartTime REAL, EndTime REAL, "
                         "Frequency INTEGER, OneTimeDay REAL, Sun INTEGER, Mon INTEGER, "
                         "Tue INTEGER, Wed INTEGER, Thu INTEGER, Fri INTEGER, Sat INTEGER, "
                         "wfx_nAvgBytesPerSec INTEGER, RecordingCancelled INTEGER, "
                         "RecordingCancelledEndDateAndTime REAL)",
                         "INSERT INTO Programs (Description, DescriptionText, Enabled) "
                         "VALUES ('Old show', 'Old show', -1)",
                     } + kOlderTables);
        tc.OpenDatabase();
        Recordset& rs = tc.ctx->database.DataPrograms.recordset();
        QCOMPARE(rs.FieldNames().size(), 18 + 16);
        for (const char* column :
             {"Flags", "LaunchAfterOnlyIfOk", "StreamingPlayerClose", "StreamUrl", "InputName"}) {
            QVERIFY(rs.FieldIndex(column) >= 0);
            QVERIFY(rs.IsNull(column));
        }
        QCOMPARE(rs.Value("Description").toString(), QStringLiteral("Old show"));
        QCOMPARE(tc.CountRows("EventLog"), 0);

        // The next start finds everything in place and adds nothing.
        tc.ctx->database.CloseAll();
        tc.OpenDatabase();
        QCOMPARE(tc.ctx->database.DataPrograms.recordset().FieldNames().size(), 18 + 16);
        QCOMPARE(tc.CountRows("EventLog"), 0);
    }

    // A column that can't be added is reported on its own and the next is still tried.
    void eachColumnThatCannotBeAddedIsReported()
    {
        TestContext tc;
        const QString file = tc.ctx->database.DatabaseFile();
        QFile::remove(file);
        // Columns can't be added to a view: every one of the sixteen fails.
        RunSql(file, QStringList{
                         "CREATE TABLE OldPrograms (ID INTEGER PRIMARY KEY, Description TEXT, "
                         "DescriptionText TEXT)",
                         "CREATE VIEW Programs AS SELECT * FROM OldPrograms",
                     } + kOlderTables);
        tc.OpenDatabase();
        QSqlQuery q(tc.ctx->database.db.Connection());
        QVERIFY(q.exec("SELECT COUNT(*) FROM EventLog WHERE Details LIKE "
                       "'%Module: InitializeControls%'"));
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toInt(), 16);
        QVERIFY(tc.ctx->database.DataRecordings.recordset().IsOpen());
    }

    void recordsetOperations()
    {
        OpenedContext tc;
        Recordset& rs = tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("Title", "First");
        rs.SetValue("File", "/rec/a.wav");
        rs.SetValue("StartTime", 46000.5);
        rs.Update();
        const qint64 first = rs.LastModified();
        rs.AddNew();
        rs.SetValue("Title", "Second");
        rs.Update();
        const qint64 second = rs.LastModified();

        // A clone sees the rows and the changes of its original, with a position of its own.
        Recordset clone = rs.Clone();
        QCOMPARE(clone.RecordCount(), 2);
        clone.SetBookmark(first);
        QCOMPARE(clone.Value("title").toString(), QStringLiteral("First"));
        clone.Edit();
        clone.SetValue("Title", "Renamed");
        clone.Update();
        rs.SetBookmark(first);
        QCOMPARE(rs.Value("Title").toString(), QStringLiteral("Renamed"));
        QVERIFY(rs.IsNull("Size"));

        clone.Delete();
        QCOMPARE(rs.RecordCount(), 1);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, rs.Value("Title"));
        rs.MoveFirst();
        QCOMPARE(rs.Bookmark(), second);

        // Changes were written through to the file.
        tc.ctx->database.DataRecordings.Requery();
        QCOMPARE(tc.ctx->database.DataRecordings.recordset().RecordCount(), 1);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, rs.SetValue("Title", "no edit"));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, rs.Value("NoSuchColumn"));
    }

    void anApostropheIsFoundAgain_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("apostrophe") << "/home/me/Tom's show.wav";
        QTest::newRow("two") << "/rec/''quoted''.mp3";
        QTest::newRow("accented") << "/rec/émission.wav";
    }
    void anApostropheIsFoundAgain()
    {
        QFETCH(QString, file);
        OpenedContext tc;
        Recordset& rs = tc.ctx->database.DataRecordings.recordset();
        for (const QString& f : {QStringLiteral("/rec/other.wav"), file}) {
            rs.AddNew();
            rs.SetValue("File", f);
            rs.SetValue("Title", f);
            rs.Update();
        }
        Recordset clone = rs.Clone();
        clone.FindFirst("File = " + Text::SqlQuoted(file));
        QVERIFY(!clone.NoMatch());
        QCOMPARE(clone.Value("Title").toString(), file);
        clone.FindFirst("Title = " + Text::SqlQuoted(file + "x"));
        QVERIFY(clone.NoMatch());
        // Upper-cased as the test whether a file is listed compares it.
        clone.FindFirst("UCASE(File) = " + Text::SqlQuoted(file.toUpper()));
        QVERIFY(!clone.NoMatch());
    }

    // Text sorts without regard to case, as the old database sorted it. The descending sort
    // is the main window's test, and clones in the grid's order the schedule's.
    void clonesFollowTheGridsSort()
    {
        OpenedContext tc;
        for (const char* name : {"bravo", "Alpha", "Charlie"})
            tc.AddProgram({{"Description", name}, {"DescriptionText", name}});
        tc.ctx->database.SortDbgrids();
        QStringList names;
        Recordset clone = tc.ctx->database.DataPrograms.recordset().Clone();
        for (clone.MoveFirst(); !clone.IsEOF(); clone.MoveNext())
            names << clone.Value("Description").toString();
        QCOMPARE(names, QStringList({"Alpha", "bravo", "Charlie"}));
    }

    // A temporary file left by a crash is replaced; where none can be written the file stays
    // as it was and the box says why.
    void compaction_data()
    {
        QTest::addColumn<bool>("tempIsAFolder");
        QTest::newRow("a stale temporary file") << false;
        QTest::newRow("a folder in its place") << true;
    }
    void compaction()
    {
        QFETCH(bool, tempIsAFolder);
        OpenedContext tc;
        tc.AddProgram({{"Description", "Kept"}});
        const QByteArray before = ReadFile(tc.ctx->database.DatabaseFile());
        const QString temp = tc.ctx->folders.TempDatabaseFile();
        QVERIFY(tempIsAFolder ? QDir().mkpath(temp + "/busy") : WriteFile(temp, "left over"));

        tc.ctx->database.CompactDatabase();
        QCOMPARE(tc.messageBox.asked.size(), tempIsAFolder ? 1 : 0);
        if (tempIsAFolder) {
            QCOMPARE(tc.messageBox.asked[0].title, QStringLiteral("Nightreel 2000 Error"));
            QVERIFY(tc.messageBox.asked[0].text.startsWith(
                "Compact Database failed.  The following error occurred: "));
            QVERIFY(!tc.ctx->database.rsPrograms.IsOpen());
            QCOMPARE(ReadFile(tc.ctx->database.DatabaseFile()), before);
            return;
        }
        QVERIFY(!QFile::exists(temp));
        Recordset& rs = tc.ctx->database.DataPrograms.recordset();
        QCOMPARE(rs.RecordCount(), 1);
        QCOMPARE(rs.Value("Description").toString(), QStringLiteral("Kept"));
        QVERIFY(tc.ctx->database.rsEventLog.IsOpen());
    }

    // The restore over a live file is the main window's test, through its menu.
    void restoreGivesTheEmptyOriginal()
    {
        OpenedContext tc;
        tc.ctx->log.LogEvent(EventError, "An error", "details");
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 1);
        tc.ctx->database.CloseAll();
        QVERIFY(QFile::remove(tc.ctx->database.DatabaseFile()));

        tc.ctx->database.CheckDatabaseMissing();
        QVERIFY(tc.ctx->error.DatabaseMissing());
        tc.ctx->RestoreOriginalDatabase();
        tc.ctx->database.CheckDatabaseMissing();
        QVERIFY(!tc.ctx->error.DatabaseMissing());
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 0);
        // The empty original: its tables, no program, and the one Info row.
        QCOMPARE(tc.ctx->database.DataPrograms.recordset().RecordCount(), 0);
        QCOMPARE(tc.ctx->database.DataInfo.recordset().RecordCount(), 1);
        QCOMPARE(tc.CountRows("EventLog"), 0);
        // The restored file is writable.
        tc.AddProgram({{"Description", "New"}});
        QCOMPARE(tc.ctx->database.DataPrograms.recordset().RecordCount(), 1);
    }

    void aBadFileDoesNotStopTheStart_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("present");
        QTest::newRow("not a database") << QByteArray("Not a database.\n") << true;
        QTest::newRow("missing") << QByteArray() << false;
    }
    void aBadFileDoesNotStopTheStart()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, present);
        TestContext tc;
        const QString file = tc.ctx->database.DatabaseFile();
        QFile::remove(file);
        if (present)
            QVERIFY(WriteFile(file, content.repeated(200)));
        LogCapture capture;
        tc.OpenDatabase();
        QVERIFY(capture.Contains("Module: InitializeControls"));
        QVERIFY(!tc.ctx->database.DataPrograms.recordset().IsOpen());
        QCOMPARE(QFile::exists(file), present);
        QCOMPARE(ReadFile(file), content.repeated(200));
        // The rest of the system goes on with empty lists.
        tc.ctx->scheduler.ScheduleNextRecording();
        QVERIFY(!tc.ctx->scheduler.next.NextProgramFound);
    }
};

QTEST_GUILESS_MAIN(TestDatabase)
#include "test_database.moc"
