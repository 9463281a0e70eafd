#pragma once

#include "common/MessageBox.h"
#include "store/RecordingsListView.h"

#include <QCoreApplication>

class AppDatabase;
class EventLog;
class Options;
class RecordingsList;

// The commands of the recordings list. Each asks what it has to ask, then acts through the
// list, traps its failures under its own name, and brings the window up to date after a
// change, whether the change went through or not.
class RecordingsListCommands {
public:
    RecordingsListCommands(AppDatabase& database, RecordingsList& list, EventLog& log,
                           MessageBoxPresenter& messageBox, const Options& options,
                           RecordingsListView& view);

    // The single-row commands, on the view's CommandRow.
    void RecordingsPlay();
    void ShowRecordingDetails();
    void ExploreRecording();
    void CopyRecordingFilename();

    void AddFileToList();
    void AddFolderToList();
    void RemoveSelectedRecordingsFromList();
    void DeleteSelectedRecordingsFromDisk();
    void ClearRecordingsList();
    void LoadList();
    void SaveList();
    void SelectAll();

private:
    // Puts a clone of the list on the row a single-row command works on; false for none.
    bool RecordingCommandRow(Recordset& rs) const;
    // The selected rows once the user has said Yes to the question about them; empty when
    // nothing is selected (nothing is asked then) or the answer was not Yes.
    QList<qint64> AgreedSelection(const QString& title, const QString& text, MsgIcon icon);
    void AfterRecordingsChange();

    AppDatabase& m_database;
    RecordingsList& m_list;
    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    const Options& m_options;
    RecordingsListView& m_view;

    Q_DECLARE_TR_FUNCTIONS(RecordingsListCommands)
};
