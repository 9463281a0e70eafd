#include "StoreParts.h"
#include "TestFiles.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
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
    // A column that can't be added (a view takes none) is reported on its own and the next
    // is still tried.
    void anOlderFileGetsTheNewColumnsOnce_data()
    {
        QTest::addColumn<QStringList>("programs");
        QTest::addColumn<int>("failures");
        QTest::newRow("a table")
            << QStringList{"CREATE TABLE Programs (ID INTEGER PRIMARY KEY, Enabled INTEGER, "
                           "Description TEXT, DescriptionText TEXT, StartTime REAL, EndTime REAL, "
                           "Frequency INTEGER, OneTimeDay REAL, Sun INTEGER, Mon INTEGER, "
                           "Tue INTEGER, Wed INTEGER, Thu INTEGER, Fri INTEGER, Sat INTEGER, "
                           "wfx_nAvgBytesPerSec INTEGER, RecordingCancelled INTEGER, "
                           "RecordingCancelledEndDateAndTime REAL)",
                           "INSERT INTO Programs (Description, DescriptionText, Enabled) "
                           "VALUES ('Old show', 'Old show', -1)"}
            << 0;
        QTest::newRow("a view")
            << QStringList{"CREATE TABLE OldPrograms (ID INTEGER PRIMARY KEY, Description TEXT, "
                           "DescriptionText TEXT)",
                           "CREATE VIEW Programs AS SELECT * FROM OldPrograms"}
            << 16;
    }
    void anOlderFileGetsTheNewColumnsOnce()
    {
        QFETCH(QStringList, programs);
        QFETCH(int, failures);
        StoreParts s(false);
        const QString file = s.database.DatabaseFile();
        QFile::remove(file);
        RunSql(file, programs + kOlderTables);
        QCOMPARE(s.Open().size(), failures);
        QVERIFY(s.database.DataRecordings.recordset().IsOpen());
        if (failures)
            return;
        Recordset& rs = s.database.DataPrograms.recordset();
        QCOMPARE(rs.FieldNames().size(), 18 + 16);
        for (const char* column :
             {"Flags", "LaunchAfterOnlyIfOk", "StreamingPlayerClose", "StreamUrl", "InputName"}) {
            QVERIFY(rs.FieldIndex(column) >= 0);
            QVERIFY(rs.IsNull(column));
        }
        QCOMPARE(rs.Value("Description").toString(), QStringLiteral("Old show"));

        // The next start finds everything in place and adds nothing.
        s.database.CloseAll();
        QVERIFY(s.Open().isEmpty());
        QCOMPARE(s.database.DataPrograms.recordset().FieldNames().size(), 18 + 16);
    }

    void recordsetOperations()
    {
        StoreParts s;
        Recordset& rs = s.database.DataRecordings.recordset();
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
        s.database.DataRecordings.Requery();
        QCOMPARE(s.database.DataRecordings.recordset().RecordCount(), 1);
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
        StoreParts s;
        Recordset& rs = s.database.DataRecordings.recordset();
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
        StoreParts s;
        for (const char* name : {"bravo", "Alpha", "Charlie"})
            s.AddProgram({{"Description", name}, {"DescriptionText", name}});
        s.database.SortDbgrids();
        QStringList names;
        Recordset clone = s.database.DataPrograms.recordset().Clone();
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
        StoreParts s;
        s.AddProgram({{"Description", "Kept"}});
        const QByteArray before = ReadFile(s.database.DatabaseFile());
        const QString temp = s.folders.TempDatabaseFile();
        QVERIFY(tempIsAFolder ? QDir().mkpath(temp + "/busy") : WriteFile(temp, "left over"));

        s.database.CompactDatabase();
        QCOMPARE(s.messageBox.asked.size(), tempIsAFolder ? 1 : 0);
        if (tempIsAFolder) {
            QCOMPARE(s.messageBox.asked[0].title, QStringLiteral("Nightreel 2000 Error"));
            QVERIFY(s.messageBox.asked[0].text.startsWith(
                "Compact Database failed.  The following error occurred: "));
            QVERIFY(!s.database.rsPrograms.IsOpen());
            QCOMPARE(ReadFile(s.database.DatabaseFile()), before);
            return;
        }
        QVERIFY(!QFile::exists(temp));
        Recordset& rs = s.database.DataPrograms.recordset();
        QCOMPARE(rs.RecordCount(), 1);
        QCOMPARE(rs.Value("Description").toString(), QStringLiteral("Kept"));
        QVERIFY(s.database.rsEventLog.IsOpen());
    }

    // The restore over a live file is the main window's test, through its menu; what the
    // context makes of the signals, the context's.
    void restoreGivesTheEmptyOriginal()
    {
        StoreParts s;
        s.log.LogEvent(EventError, "An error", "details");
        QSignalSpy viewed(&s.database, &AppDatabase::ElogViewed);
        QSignalSpy missing(&s.database, &AppDatabase::DatabaseMissingChecked);
        s.database.CloseAll();
        QVERIFY(QFile::remove(s.database.DatabaseFile()));

        s.database.CheckDatabaseMissing();
        QCOMPARE(missing.last(), QVariantList{true});
        QVERIFY(s.database.RestoreOriginalDatabase().isEmpty());
        s.database.CheckDatabaseMissing();
        QCOMPARE(missing.last(), QVariantList{false});
        QVERIFY(!viewed.isEmpty());
        // The empty original: its tables, no program, and the one Info row.
        QCOMPARE(s.database.DataPrograms.recordset().RecordCount(), 0);
        QCOMPARE(s.database.DataInfo.recordset().RecordCount(), 1);
        QCOMPARE(s.CountRows("EventLog"), 0);
        // The restored file is writable.
        s.AddProgram({{"Description", "New"}});
        QCOMPARE(s.database.DataPrograms.recordset().RecordCount(), 1);
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
        StoreParts s(false);
        const QString file = s.database.DatabaseFile();
        QFile::remove(file);
        if (present)
            QVERIFY(WriteFile(file, content.repeated(200)));
        QVERIFY(!s.Open().isEmpty());
        QVERIFY(!s.database.DataPrograms.recordset().IsOpen());
        QCOMPARE(QFile::exists(file), present);
        QCOMPARE(ReadFile(file), content.repeated(200));
    }
};

QTEST_GUILESS_MAIN(TestDatabase)
#include "test_database.moc"
