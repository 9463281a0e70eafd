#pragma once

#include "store/AppFolders.h"
#include "store/DataControl.h"
#include "store/Database.h"
#include "store/EventLogTable.h"
#include "store/Recordset.h"

#include <QList>
#include <QObject>
#include <exception>

class MessageBoxPresenter;

// The open database of the run: the file, one recordset per table, and the data controls
// that the grids show. Holds the start-up steps, the sort of the grids, compaction and the
// restore of the empty original. It reports upward and logs nothing itself.
class AppDatabase : public QObject, public EventLogTable {
    Q_OBJECT
public:
    AppDatabase(const AppFolders& folders, MessageBoxPresenter& messageBox);

    // The database steps of the first activation: open, upgrade, bind, sort. A failing step
    // does not stop the next, so a missing or damaged file does not stop the start; the
    // failures come back in order.
    QList<std::exception_ptr> InitializeControls();
    // The default order of both main grids.
    void SortDbgrids();
    // Compacts the file through the temp file. A failure is shown and leaves the lists
    // closed; the file itself stays as it was.
    void CompactDatabase();
    // Replaces the file by the empty original; a failing step does not stop the next, and
    // the failures come back in order.
    QList<std::exception_ptr> RestoreOriginalDatabase();
    // After a compaction or restore: the database counts as missing unless the file is there
    // (DatabaseMissingChecked says which).
    void CheckDatabaseMissing();
    // Closes the recordsets and then the file, at the end of the run.
    void CloseAll();

    // The log's recordset, bound the first time it is needed after start-up or after the
    // file was replaced (binding it counts as the log having been viewed).
    Recordset& ElogRecordset();

    QString DatabaseFile() const;

    int RowCount() override;
    void Append(qint16 type, double dateAndTime, const QString& message,
                const QString& details) override;

    Database db;
    Recordset rsPrograms;
    Recordset rsRecordings;
    Recordset rsInfo;
    Recordset rsEventLog;
    DataControl DataPrograms;
    DataControl DataRecordings;
    DataControl DataInfo;
    DataControl DataElog;

signals:
    // The log's recordset was bound, which counts as the log having been viewed, or the
    // log is about to be replaced by the original's empty one.
    void ElogViewed();
    void DatabaseMissingChecked(bool missing);

private:
    void UpgradeProgramsTable(QList<std::exception_ptr>& failures);
    void OpenRecordsets();
    void CloseRecordsetsAndDatabase();
    void UnloadElog();

    const AppFolders m_folders;
    MessageBoxPresenter& m_messageBox;
    bool m_elogBound = false;
};
