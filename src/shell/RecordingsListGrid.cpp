#include "shell/RecordingsListGrid.h"

#include "gui/GridSelection.h"
#include "options/frmSelectExistingRecordDirectory.h"
#include "player/PlayerChoice.h"
#include "recordingslist/frmLoadList.h"
#include "recordingslist/frmRecordingDetails.h"
#include "recordingslist/frmSaveList.h"
#include "shell/AppContext.h"
#include "shell/frmMain.h"
#include "store/RecordsetModel.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QTableView>
#include <QUrl>

RecordingsListGrid::RecordingsListGrid(AppContext& ctx, frmMain& form)
    : QObject(&form)
    , m_ctx(ctx)
    , m_form(form)
    , m_grid(form.ui.DBGridRecordings)
    , m_list(ctx.recordingsList)
    , m_commands(ctx.database, m_list, ctx.log, ctx.messageBox, ctx.options, *this)
{
    GridSelection::MakeCornerToggle(m_grid);
    connect(m_grid, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        const QModelIndex index = m_grid->indexAt(at);
        if (!index.isValid())
            return;
        m_grid->setCurrentIndex(index);
        m_form.ui.mnuRecordings->popup(m_grid->viewport()->mapToGlobal(at));
    });
}

RecordsetModel* RecordingsListGrid::Model() const
{
    return static_cast<RecordsetModel*>(m_grid->model());
}

QList<qint64> RecordingsListGrid::SelectedRows() const
{
    return GridSelection::Bookmarks(m_grid, Model(), true);
}

qint64 RecordingsListGrid::CommandRow() const
{
    return GridSelection::CommandRow(m_grid, Model());
}

void RecordingsListGrid::ClearSelection()
{
    m_grid->clearSelection();
}

void RecordingsListGrid::SelectAll()
{
    m_grid->selectAll();
}

QString RecordingsListGrid::AskForFile(const QString& filter)
{
    return QFileDialog::getOpenFileName(&m_form, QString(), QString(), filter);
}

QString RecordingsListGrid::AskForFolder(const QString& startFolder)
{
    return frmSelectExistingRecordDirectory::Choose(&m_form, startFolder);
}

void RecordingsListGrid::ShowRecordingDetails(const Recordset& row)
{
    frmRecordingDetails(row, &m_form).exec();
}

void RecordingsListGrid::ShowLoadList()
{
    frmLoadList::Open(m_ctx.savedLists, m_ctx.log, m_ctx.messageBox, &m_form);
}

void RecordingsListGrid::ShowSaveList()
{
    frmSaveList(m_ctx.savedLists, m_ctx.database, m_ctx.log, m_ctx.messageBox, &m_form).exec();
}

void RecordingsListGrid::CopyToClipboard(const QString& text)
{
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setText(text);
}

void RecordingsListGrid::OpenFolder(const QString& folder)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

void RecordingsListGrid::UpdateRecordingsButtonsAndMenus()
{
    m_form.UpdateRecordingsButtonsAndMenus();
}

void RecordingsListGrid::UpdateStatusBarPlus()
{
    m_form.UpdateStatusBarPlus();
}

void RecordingsListGrid::UpdateModeDisplay()
{
    m_form.UpdateModeDisplay();
}

void RecordingsListGrid::PlayRecording(const QString& file, const QString& title, double startTime)
{
    m_form.Players().PlayExistingFile(file, title, startTime);
}
