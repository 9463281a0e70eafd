#pragma once

#include "MemoryLog.h"
#include "ScriptedMessageBox.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/RegKeys.h"

#include <QSettings>
#include <QSqlQuery>
#include <QTemporaryDir>

// A temporary folder with the process's settings file and the empty database in it, the
// test's clock and scripted boxes, and readers and writers of the rows of the database the
// test works on: what the test context and a unit's parts stand on.
class TestFolder {
public:
    TestFolder()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Root() + "/config");
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Root() + "/config");
        folders.InstallDatabaseOnFirstRun();
    }
    QString Root() const { return dir.path(); }
    // The file of the organisation and application that RegKeys names.
    QString SettingsFile() const { return Root() + "/config/Larkmoor Systems/Nightreel.conf"; }

    // Adds a row to Programs with the given columns, in the list the program reads as well;
    // returns its ID.
    qint64 AddProgram(const QVariantHash& columns)
    {
        Recordset rs = m_database->DataPrograms.recordset();
        rs.AddNew();
        for (auto it = columns.cbegin(); it != columns.cend(); ++it)
            rs.SetValue(it.key(), it.value());
        rs.Update();
        const qint64 id = rs.LastModified();
        m_database->DataPrograms.Requery();
        return id;
    }
    // A column of a row of Programs as the file holds it; null without the row.
    QVariant ProgramColumn(qint64 id, const QString& column) const
    {
        QSqlQuery q(m_database->db.Connection());
        q.exec(QStringLiteral("SELECT [%1] FROM Programs WHERE ID = %2").arg(column).arg(id));
        return q.next() ? q.value(0) : QVariant();
    }
    // Rows of a table, counted in the file itself.
    int CountRows(const QString& table) const
    {
        QSqlQuery q(m_database->db.Connection());
        q.exec("SELECT count(*) FROM [" + table + "]");
        return q.next() ? q.value(0).toInt() : -1;
    }
    // The rows of the event log, oldest first.
    QList<LogEntry> LogEntries() const
    {
        QList<LogEntry> entries;
        QSqlQuery q(m_database->db.Connection());
        q.exec("SELECT Type, Message, Details FROM EventLog ORDER BY ID");
        while (q.next())
            entries.append({q.value(0).toInt(), q.value(1).toString(), q.value(2).toString()});
        return entries;
    }

    QTemporaryDir dir;
    AppFolders folders = AppFolders::Under(dir.path());
    TestClock clock;
    ScriptedMessageBox messageBox;

protected:
    // The parts' own database or the context's.
    AppDatabase* m_database = nullptr;
};

// The lowest layers, for a unit that needs nothing else of the program: the database (open
// unless the test opens it), the event log writing into it, the settings and the options.
struct StoreParts : TestFolder {
    explicit StoreParts(bool open = true)
    {
        m_database = &database;
        if (open)
            Open();
    }
    // The database's steps of the first activation; the failures come back.
    QList<std::exception_ptr> Open() { return database.InitializeControls(); }

    clsError error;
    AppDatabase database{folders, messageBox};
    EventLog log{database, error, clock};
    RegKeys registry;
    Options options;
};
