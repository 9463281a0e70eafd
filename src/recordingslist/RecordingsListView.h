#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

class Recordset;

// What the recordings commands need of the recordings grid, of the forms they open and of
// the desktop. Rows are named by their bookmarks.
class RecordingsListView {
public:
    virtual ~RecordingsListView() = default;

    // The selected rows in the grid's order; the row under the cursor counts as selected.
    virtual QList<qint64> SelectedRows() const = 0;
    // The row a single-row command works on: the current row, else the first selected one;
    // -1 for none.
    virtual qint64 CommandRow() const = 0;
    virtual void ClearSelection() = 0;
    virtual void SelectAll() = 0;

    // Asks for an existing file, offering the filter's types; empty when cancelled.
    virtual QString AskForFile(const QString& filter) = 0;
    // Asks for an existing folder, starting on startFolder; empty when cancelled.
    virtual QString AskForFolder(const QString& startFolder) = 0;
    // Shows the facts of the row that the recordset stands on, modally.
    virtual void ShowRecordingDetails(const Recordset& row) = 0;
    virtual void ShowLoadList() = 0;
    virtual void ShowSaveList() = 0;
    virtual void CopyToClipboard(const QString& text) = 0;
    virtual void OpenFolder(const QString& folder) = 0;
    // Plays a recording whose file exists in the player chosen for it; the start time is an
    // automation date.
    virtual void PlayRecording(const QString& /*file*/, const QString& /*title*/,
                               double /*startTime*/)
    {
    }

    // What the main window shows of the list, the disk and the mode follows a change.
    virtual void UpdateRecordingsButtonsAndMenus() = 0;
    virtual void UpdateStatusBarPlus() = 0;
    virtual void UpdateModeDisplay() = 0;
};
