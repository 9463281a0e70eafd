#pragma once

#include "MemoryLog.h"
#include "ScriptedMessageBox.h"
#include "TestClock.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/clsError.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/RegKeys.h"

#include <QSettings>
#include <QSqlQuery>
#include <QTemporaryDir>

// The settings file of the organisation and application that RegKeys names, under root.
inline QString SettingsFileUnder(const QString& root)
{
    return root + "/config/Larkmoor Systems/Nightreel.conf";
}

// Sends the process's settings to that file.
inline void KeepSettingsUnder(const QString& root)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, root + "/config");
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, root + "/config");
}

// Adds a row to Programs with the given columns; returns its ID.
inline qint64 AddProgram(AppDatabase& database, const QVariantHash& columns)
{
    Recordset rs = database.DataPrograms.recordset();
    rs.AddNew();
    for (auto it = columns.cbegin(); it != columns.cend(); ++it)
        rs.SetValue(it.key(), it.value());
    rs.Update();
    return rs.LastModified();
}

// Rows of a table, counted in the file itself.
inline int CountRows(AppDatabase& database, const QString& table)
{
    QSqlQuery q(database.db.Connection());
    q.exec("SELECT count(*) FROM [" + table + "]");
    return q.next() ? q.value(0).toInt() : -1;
}

// The rows of the event log, oldest first.
inline QList<LogEntry> LogEntries(AppDatabase& database)
{
    QList<LogEntry> entries;
    QSqlQuery q(database.db.Connection());
    q.exec("SELECT Type, Message, Details FROM EventLog ORDER BY ID");
    while (q.next())
        entries.append({q.value(0).toInt(), q.value(1).toString(), q.value(2).toString()});
    return entries;
}

// The lowest layers over a temporary folder, for a unit that needs nothing else of the
// program: its own settings file, the empty database (open unless the test opens it), the
// event log writing into it, the options, a clock and scripted boxes.
struct StoreParts {
    explicit StoreParts(bool open = true)
    {
        KeepSettingsUnder(Root());
        folders.InstallDatabaseOnFirstRun();
        if (open)
            Open();
    }
    // The database's steps of the first activation; the failures come back.
    QList<std::exception_ptr> Open() { return database.InitializeControls(); }

    QString Root() const { return dir.path(); }
    QString SettingsFile() const { return SettingsFileUnder(Root()); }
    qint64 AddProgram(const QVariantHash& columns) { return ::AddProgram(database, columns); }
    int CountRows(const QString& table) { return ::CountRows(database, table); }
    QList<LogEntry> LogEntries() { return ::LogEntries(database); }

    QTemporaryDir dir;
    AppFolders folders = AppFolders::Under(dir.path());
    TestClock clock;
    ScriptedMessageBox messageBox;
    clsError error;
    AppDatabase database{folders, messageBox};
    EventLog log{database, error, clock};
    RegKeys registry;
    Options options;
};
