#pragma once

#include "store/AppFolders.h"
#include "store/DataControl.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <QCoreApplication>

class EventLog;
class MessageBoxPresenter;
class clsError;

// The open database of the run: the file, one recordset per table, and the data controls
// that the grids show. Holds the start-up steps, the sort of the grids, compaction and the
// restore of the empty original.
class AppDatabase {
public:
    AppDatabase(const AppFolders& folders, EventLog& log, clsError& error,
                MessageBoxPresenter& messageBox);

    // The database steps of the first activation: open, upgrade, bind, sort. Each step
    // that fails is logged and the next one runs, so a missing or damaged file does not
    // stop the start.
    void InitializeControls();
    // The default order of both main grids.
    void SortDbgrids();
    // Compacts the file through the temp file. A failure is shown and leaves the lists
    // closed; the file itself stays as it was.
    void CompactDatabase();
    // Replaces the file by the empty original; failing steps are skipped silently.
    void RestoreOriginalDatabase();
    // After a compaction or restore: the database counts as missing unless the file is there.
    void CheckDatabaseMissing();
    // Closes the recordsets and then the file, at the end of the run.
    void CloseAll();

    // The log's recordset, bound the first time it is needed after start-up or after the
    // file was replaced (binding it counts as the log having been viewed).
    Recordset& ElogRecordset();

    QString DatabaseFile() const;

    Database db;
    Recordset rsPrograms;
    Recordset rsRecordings;
    Recordset rsInfo;
    Recordset rsEventLog;
    DataControl DataPrograms;
    DataControl DataRecordings;
    DataControl DataInfo;
    DataControl DataElog;

private:
    void UpgradeProgramsTable();
    void OpenRecordsets();
    void CloseRecordsetsAndDatabase();
    void UnloadElog();

    const AppFolders m_folders;
    EventLog& m_log;
    clsError& m_error;
    MessageBoxPresenter& m_messageBox;
    bool m_elogBound = false;

    Q_DECLARE_TR_FUNCTIONS(AppDatabase)
};
