// What the context adds to its parts: the settings' and the database's reports upward become
// log entries and error flags (the start-up's are the main window's test), and the recordings
// list learns which file the recorder writes.
#include "TaskWaveSource.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "recording/RecorderParts.h"

#include <QDir>
#include <QTest>

class TestAppContext : public QObject {
    Q_OBJECT

private slots:
    void thePartsOfAnOpenContext()
    {
        TestContext tc;
        tc.OpenDatabase();
        // The list leaves out the file that the recorder writes.
        const QString file = tc.Root() + "/now.wav";
        QVERIFY(TaskWaveSource::Write(QFile::encodeName(file).toStdString(), 1, 8000,
                                      std::string(8000, char(0x80)), 0, 8));
        RecorderParts::Status(tc.ctx->recorder).FinalFile = file;
        tc.ctx->recordingsList.AddFileToRecordingsList(file);
        QCOMPARE(tc.CountRows("Recordings"), 0);

        // A folder where the settings file should be: the write fails.
        QVERIFY(QDir().mkpath(tc.SettingsFile()));
        tc.ctx->registry.SaveSetting("Settings", "PurgeDays", "14");
        const QList<LogEntry> entries = tc.LogEntries();
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries[0].type, int(EventError));
        QCOMPARE(entries[0].message, QString("Error saving setting in registry."));
        QCOMPARE(entries[0].details, QString("Settings PurgeDays 14"));
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 1);

        tc.ctx->database.CloseAll();
        QVERIFY(QFile::remove(tc.ctx->database.DatabaseFile()));
        tc.ctx->database.CheckDatabaseMissing();
        QVERIFY(tc.ctx->error.DatabaseMissing());
        tc.ctx->RestoreOriginalDatabase();
        tc.ctx->database.CheckDatabaseMissing();
        QVERIFY(!tc.ctx->error.DatabaseMissing());
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 0);
    }
};

QTEST_GUILESS_MAIN(TestAppContext)
#include "test_appcontext.moc"
