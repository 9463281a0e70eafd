#pragma once

#include "scheduling/ProgramListCommands.h"

#include <QObject>
#include <functional>

class AppContext;
class QPoint;
class QTableView;
class RecordsetModel;
class frmMain;

// The programs grid of the main window as the program commands see it, and the ways into
// them: menu entries, toolbar buttons, double click, right-click pop-up and corner click.
class ProgramListGrid : public QObject, public ProgramListView {
    Q_OBJECT
public:
    ProgramListGrid(AppContext& ctx, frmMain& form);

    ProgramListCommands& Commands() { return m_commands; }

    QList<qint64> SelBookmarks() const override;
    void AddSelBookmark(qint64 bookmark) override;
    void RemoveSelBookmark(qint64 bookmark) override;
    qint64 CurrentBookmark() const override;
    void SetCurrentBookmark(qint64 bookmark) override;
    bool ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                         qint32 editProgramId, ProgramFormValues& result) override;
    int ShowEnableDisablePrograms() override;
    void UpdateProgramsButtonsAndMenus() override;

protected:
    // The row's tip: when its recordings run, with the padding.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Runs a command under the trap of the entry that gave it.
    void Run(const char* entry, const std::function<void()>& command);
    RecordsetModel* Model() const;
    void DBGridPrograms_MouseDown(const QPoint& pos);
    void KeepACurrentRow();

    AppContext& m_ctx;
    frmMain& m_form;
    QTableView* m_grid;
    ProgramListCommands m_commands;
};
