#pragma once

#include "recordingslist/RecordingsList.h"
#include "recordingslist/RecordingsListCommands.h"

#include <QObject>

class AppContext;
class QTableView;
class RecordsetModel;
class frmMain;

// The recordings grid of the main window and the forms around it, as the recordings
// commands see them; also the grid's own ways: right-click pop-up and corner click.
class RecordingsListGrid : public QObject, public RecordingsListView {
    Q_OBJECT
public:
    RecordingsListGrid(AppContext& ctx, frmMain& form);

    RecordingsListCommands& Commands() { return m_commands; }

    QList<qint64> SelectedRows() const override;
    qint64 CommandRow() const override;
    void ClearSelection() override;
    void SelectAll() override;
    QString AskForFile(const QString& filter) override;
    QString AskForFolder(const QString& startFolder) override;
    void ShowRecordingDetails(const Recordset& row) override;
    void ShowLoadList() override;
    void ShowSaveList() override;
    void CopyToClipboard(const QString& text) override;
    void OpenFolder(const QString& folder) override;
    void PlayRecording(const QString& file, const QString& title, double startTime) override;
    void UpdateRecordingsButtonsAndMenus() override;
    void UpdateStatusBarPlus() override;
    void UpdateModeDisplay() override;

private:
    RecordsetModel* Model() const;

    AppContext& m_ctx;
    frmMain& m_form;
    QTableView* m_grid;
    RecordingsList& m_list;
    RecordingsListCommands m_commands;
};
