// What the context adds to its parts: the settings' and the database's reports upward become
// log entries and error flags.
#include "LogCapture.h"
#include "TestContext.h"
#include "TestFiles.h"

#include <QDir>
#include <QTest>

class TestAppContext : public QObject {
    Q_OBJECT

private slots:
    void aFailedSettingIsLogged()
    {
        TestContext tc;
        tc.OpenDatabase();
        // A folder where the file should be: the write fails.
        QVERIFY(QDir().mkpath(tc.SettingsFile()));
        tc.ctx->registry.SaveSetting("Settings", "PurgeDays", "14");
        const QList<LogEntry> entries = tc.LogEntries();
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries[0].type, int(EventError));
        QCOMPARE(entries[0].message, QString("Error saving setting in registry."));
        QCOMPARE(entries[0].details, QString("Settings PurgeDays 14"));
    }

    // Before the file is open the start-up's failures go to the diagnostic output.
    void aFailedStartUpStepIsLoggedUnderItsRoutine()
    {
        TestContext tc;
        QVERIFY(WriteFile(tc.ctx->database.DatabaseFile(), "Not a database.\n"));
        LogCapture capture;
        tc.OpenDatabase();
        QVERIFY(capture.Contains("Module: InitializeControls"));
    }

    void theRestoreClearsTheFlags()
    {
        TestContext tc;
        tc.OpenDatabase();
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
    }
};

QTEST_GUILESS_MAIN(TestAppContext)
#include "test_appcontext.moc"
