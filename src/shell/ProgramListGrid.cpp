#include "shell/ProgramListGrid.h"

#include "common/AutomationDate.h"
#include "diagnostics/Trap.h"
#include "gui/GridSelection.h"
#include "scheduling/frmEnableDisablePrograms.h"
#include "scheduling/frmProgram.h"
#include "shell/AppContext.h"
#include "shell/frmMain.h"
#include "store/RecordsetModel.h"

#include <QAction>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QMenu>
#include <QTableView>
#include <QToolTip>

ProgramListGrid::ProgramListGrid(AppContext& ctx, frmMain& form)
    : QObject(&form)
    , m_ctx(ctx)
    , m_form(form)
    , m_grid(form.ui.DBGridPrograms)
    , m_commands(ctx.ForProgramList(), *this)
{
    const auto on = [this](const char* name, void (ProgramListCommands::*command)()) {
        connect(m_form.ui.Action(QString::fromLatin1(name)), &QAction::triggered, this,
                [this, name, command] { Run(name, [&] { (m_commands.*command)(); }); });
    };
    on("mnuAddNew", &ProgramListCommands::AddNewProgram);
    on("ToolbarPrograms.Add", &ProgramListCommands::AddNewProgram);
    on("mnuEdit", &ProgramListCommands::EditProgram);
    on("ToolbarPrograms.Edit", &ProgramListCommands::EditProgram);
    on("mnuRemovePrograms", &ProgramListCommands::RemovePrograms);
    on("ToolbarPrograms.Remove", &ProgramListCommands::RemovePrograms);
    on("mnuCloneProgram", &ProgramListCommands::CopyProgram);
    on("ToolbarPrograms.Clone", &ProgramListCommands::CopyProgram);
    on("mnuProgramEnable", &ProgramListCommands::ToggleProgramEnables);
    on("ToolbarPrograms.Enable", &ProgramListCommands::ToggleProgramEnables);
    on("mnuProgramsSelectAll", &ProgramListCommands::SelectAll);

    // The view only reports double clicks on a cell, which is where they edit.
    connect(m_grid, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        Run("DBGridPrograms_DblClick", [&] { m_commands.DblClick(index.isValid()); });
    });
    connect(m_grid, &QWidget::customContextMenuRequested, this,
            &ProgramListGrid::DBGridPrograms_MouseDown);
    GridSelection::MakeCornerToggle(m_grid);
    connect(Model(), &RecordsetModel::RowsChanged, this, &ProgramListGrid::KeepACurrentRow);
    m_grid->viewport()->installEventFilter(this);
}

void ProgramListGrid::Run(const char* entry, const std::function<void()>& command)
{
    // A command that failed has not refreshed the buttons for what it left.
    if (!Trap(m_ctx.log, entry, command))
        UpdateProgramsButtonsAndMenus();
}

bool ProgramListGrid::eventFilter(QObject* watched, QEvent* event)
{
    const qint16 pad = m_ctx.options.PaddingSeconds;
    if (event->type() != QEvent::ToolTip || pad <= 0)
        return QObject::eventFilter(watched, event);
    auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = m_grid->indexAt(help->pos());
    if (!index.isValid())
        return QObject::eventFilter(watched, event);
    Recordset rs = m_ctx.database.DataPrograms.recordset().Clone();
    rs.SetBookmark(Model()->BookmarkOfRow(index.row()));
    const auto at = [&rs, pad](const char* column, int sign) {
        const double time = rs.Value(QString::fromLatin1(column)).toDouble();
        return Options::TimeText(
            AutomationDate::TimePart(AutomationDate::AddSeconds(time, sign * pad)));
    };
    QToolTip::showText(help->globalPos(),
                       tr("Recorded from %1 to %2 (%3 seconds early and late; the "
                          "late end gives way to a program that follows)")
                           .arg(at("StartTime", -1), at("EndTime", 1), QString::number(pad)),
                       m_grid->viewport());
    return true;
}

RecordsetModel* ProgramListGrid::Model() const
{
    return static_cast<RecordsetModel*>(m_grid->model());
}

// A bound grid always stands on a row while it has rows, as the data control does.
void ProgramListGrid::KeepACurrentRow()
{
    if (!m_grid->currentIndex().isValid() && Model()->rowCount() > 0)
        m_grid->selectionModel()->setCurrentIndex(Model()->index(0, 0),
                                                  QItemSelectionModel::NoUpdate);
}

void ProgramListGrid::DBGridPrograms_MouseDown(const QPoint& pos)
{
    Trap(m_ctx.log, "DBGridPrograms_MouseDown", [&] {
        const QModelIndex index = m_grid->indexAt(pos);
        if (!index.isValid())
            return;
        m_grid->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        m_form.ui.mnuPrograms->popup(m_grid->viewport()->mapToGlobal(pos));
    });
}

QList<qint64> ProgramListGrid::SelBookmarks() const
{
    QList<qint64> bookmarks;
    for (const QModelIndex& row : m_grid->selectionModel()->selectedRows())
        bookmarks.append(Model()->BookmarkOfRow(row.row()));
    return bookmarks;
}

void ProgramListGrid::AddSelBookmark(qint64 bookmark)
{
    const int row = Model()->RowOfBookmark(bookmark);
    if (row >= 0)
        m_grid->selectionModel()->select(Model()->index(row, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void ProgramListGrid::RemoveSelBookmark(qint64 bookmark)
{
    const int row = Model()->RowOfBookmark(bookmark);
    if (row >= 0)
        m_grid->selectionModel()->select(Model()->index(row, 0),
                                         QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
}

qint64 ProgramListGrid::CurrentBookmark() const
{
    const QModelIndex current = m_grid->currentIndex();
    return current.isValid() ? Model()->BookmarkOfRow(current.row()) : -1;
}

void ProgramListGrid::SetCurrentBookmark(qint64 bookmark)
{
    const int row = Model()->RowOfBookmark(bookmark);
    if (row >= 0)
        m_grid->selectionModel()->setCurrentIndex(Model()->index(row, 0),
                                                  QItemSelectionModel::NoUpdate);
}

bool ProgramListGrid::ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                                      qint32 editProgramId, ProgramFormValues& result)
{
    frmProgram form(m_ctx.ForProgramForm(), &m_form);
    form.FillProgramForm(initial);
    form.EditingExisting = editingExisting;
    form.EditProgramId = editProgramId;
    form.exec();
    if (!form.ProgramFormOk())
        return false;
    result = form.FormValues();
    return true;
}

int ProgramListGrid::ShowEnableDisablePrograms()
{
    return frmEnableDisablePrograms::Ask(&m_form);
}

void ProgramListGrid::UpdateProgramsButtonsAndMenus()
{
    m_form.UpdateProgramsButtonsAndMenus();
}
