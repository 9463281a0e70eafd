#include "Programs.h"
#include "RecordingsListFixture.h"
#include "TaskWaveSource.h"
#include "TestFiles.h"
#include "formats/MediaReaders.h"
#include "recordingslist/ListFile.h"
#include "recordingslist/SavedLists.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

// A second of silent 8-bit PCM in the recording task's layout, which every wave reader takes.
void WriteWave(const QString& path)
{
    QVERIFY(TaskWaveSource::Write(QFile::encodeName(path).toStdString(), 1, 8000,
                                  std::string(8000, char(0x80)), 0, 8));
}

QStringList ListedFiles(AppDatabase& database)
{
    QStringList files;
    Recordset rs = database.DataRecordings.recordset().Clone();
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext())
        files << QFileInfo(rs.Value("File").toString()).fileName();
    return files;
}

} // namespace

class TestRecordingsList : public QObject {
    Q_OBJECT

private slots:
    // A file is listed once, and the one being recorded not at all; a folder lists its wave
    // files first and leaves its sub-folders alone.
    void aFileIsListedOnce()
    {
        RecordingsListFixture f;
        QVERIFY(WriteFile(f.File("a.mp3"), QByteArray(600, 'x')));
        for (const char* name : {"b.WAV", "c.wav", "now.wav"})
            WriteWave(f.File(name));
        QDir().mkpath(f.Folder() + "/sub");
        WriteWave(f.Folder() + "/sub/d.wav");
        f.busy << f.File("now.wav");
        f.list.AddFileToRecordingsList(f.File("c.wav"));
        QCOMPARE(f.database.DataRecordings.recordset().Value("File").toString(),
                 f.File("c.wav")); // the new row is the current one
        f.list.AddFileToRecordingsList("  " + f.File("c.wav") + " ");
        f.list.AddFileToRecordingsList(f.File("notes.txt"));
        f.list.AddFileToRecordingsList(f.File("now.wav"));
        f.list.AddFolderToRecordingsList(f.Folder());
        QCOMPARE(ListedFiles(f.database), QStringList({"c.wav", "b.WAV", "a.mp3"}));
        // Names compare trimmed and upper-cased.
        QVERIFY(IsFileInRecordingsList(f.database, f.File("C.WAV")));
    }

    void aFileThatCantBeDeletedKeepsItsRow()
    {
        RecordingsListFixture f;
        WriteWave(f.File("gone.wav"));
        WriteWave(f.File("stuck.wav"));
        f.list.AddFolderToRecordingsList(f.Folder());
        // A folder of that name can't be removed as a file, whoever asks.
        QFile::remove(f.File("stuck.wav"));
        QVERIFY(QDir().mkpath(f.File("stuck.wav") + "/inside"));
        Recordset rs = f.database.DataRecordings.recordset().Clone();
        QList<qint64> all;
        for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext())
            all << rs.Bookmark();
        f.list.DeleteFromDisk(all);
        QCOMPARE(ListedFiles(f.database), QStringList{"stuck.wav"});
        QVERIFY(!QFile::exists(f.File("gone.wav")));
        const QList<LogEntry> log = f.LogEntries();
        QCOMPARE(MessagesOf(log), QStringList{"Recording was not deleted from disk."});
        QVERIFY(log[0].details.endsWith("Filename: " + f.File("stuck.wav")));
    }

    // The purge deletes old recordings that are listed and in the recording folder, with
    // their CUE sheets, and their rows; the user's own files in that folder stay, however old.
    // A purge that deleted something also drops the rows of files gone from that folder, and
    // only from that folder.
    void thePurgeDeletesOldListedRecordingsOnly()
    {
        RecordingsListFixture f;
        const QString elsewhere = f.Root() + "/elsewhere";
        QDir().mkpath(elsewhere);
        const QStringList old = {f.File("old.wav"), f.File("old.mp3"), f.File("mine.wav"),
                                 f.File("mine.mp3"), elsewhere + "/old.wav"};
        for (const QString& path : old + QStringList{f.File("new.wav")})
            WriteWave(path);
        for (const QString& cue : {f.File("old.cue"), f.File("mine.cue")})
            QVERIFY(WriteFile(cue, "FILE"));
        for (const char* name : {"old.wav", "old.mp3", "new.wav"})
            f.list.AddFileToRecordingsList(f.File(name));
        f.list.AddFileToRecordingsList(elsewhere + "/old.wav");
        for (const QString& gone : {f.File("gone.wav"), elsewhere + "/gone.wav"}) {
            WriteWave(gone);
            f.list.AddFileToRecordingsList(gone);
            QVERIFY(QFile::remove(gone));
        }
        f.clock.Set(QDateTime::currentDateTime());
        const QDateTime longAgo = QDateTime::currentDateTime().addDays(-40);
        for (const QString& path : old) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
        }
        f.options.PurgeDays = 30;
        f.list.Purge();
        QCOMPARE(QDir(f.Folder()).entryList(QDir::Files),
                 QStringList({"mine.cue", "mine.mp3", "mine.wav", "new.wav"}));
        QVERIFY(QFile::exists(elsewhere + "/old.wav"));
        QStringList listed = ListedFiles(f.database);
        listed.sort();
        QCOMPARE(listed, QStringList({"gone.wav", "new.wav", "old.wav"}));
        QCOMPARE(f.list.PurgeOldRecordings(), 0);
    }

    void durations_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("text");
        QTest::newRow("singular") << "21:01:01"
                                  << "1 Hour 1 Minute 1 Second";
        QTest::newRow("plural and zero") << "22:00:02"
                                         << "2 Hours 0 Minutes 2 Seconds";
    }
    void durations()
    {
        QFETCH(QString, end);
        QFETCH(QString, text);
        QCOMPARE(RecordingsList::DurationText(Programs::At(2026, 6, 1, "20:00:00"),
                                              Programs::At(2026, 6, 1, end)),
                 text);
    }

    void aSavedListKeepsPathsInTheListsOrder()
    {
        RecordingsListFixture f;
        WriteWave(f.File("b.wav"));
        WriteWave(f.File("a.wav"));
        f.list.AddFolderToRecordingsList(f.Folder());
        SavedLists lists(f.database, f.list, f.folders.dataFolder);
        QDir().mkpath(lists.Folder());
        lists.Save("Disk one");
        QCOMPARE(ReadFile(lists.PathOf("Disk one")),
                 QByteArray("\"" + f.File("a.wav").toUtf8() + "\"\r\n\"" +
                            f.File("b.wav").toUtf8() + "\"\r\n"));

        // Merging a listed file keeps one row.
        f.list.ClearRecordingsList();
        f.list.AddFileToRecordingsList(f.File("a.wav"));
        lists.LoadList("Disk one", true);
        QStringList merged = ListedFiles(f.database);
        merged.sort();
        QCOMPARE(merged, QStringList({"a.wav", "b.wav"}));

        // Files that are gone drop out in silence.
        QFile::remove(f.File("a.wav"));
        QFile::remove(f.File("b.wav"));
        lists.LoadList("Disk one", false);
        QVERIFY(ListedFiles(f.database).isEmpty());
        QCOMPARE(f.CountRows("EventLog"), 0);
    }

    void listFilesAreReadItemByItem_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("two") << QByteArray("\"/a b.wav\"\r\n\"/c.mp3\"\r\n")
                             << QStringList({"/a b.wav", "/c.mp3"});
        QTest::newRow("ends inside an item")
            << QByteArray("\"/a.wav\"\r\n\"/trunc") << QStringList{"/a.wav"};
        QTest::newRow("no line ends")
            << QByteArray("\"/a.wav\"\"/b.wav\"") << QStringList({"/a.wav", "/b.wav"});
        QTest::newRow("empty") << QByteArray() << QStringList();
    }
    void listFilesAreReadItemByItem()
    {
        QFETCH(QByteArray, content);
        QTEST(ListFile::ReadItems(content), "items");
    }
};

QTEST_GUILESS_MAIN(TestRecordingsList)
#include "test_recordingslist.moc"
