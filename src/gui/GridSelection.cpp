#include "gui/GridSelection.h"

#include "store/RecordsetModel.h"

#include <QAbstractButton>
#include <QItemSelectionModel>
#include <QTableView>
#include <algorithm>

namespace GridSelection {

QList<qint64> Bookmarks(const QTableView* grid, const RecordsetModel* model, bool includeCurrent)
{
    QList<int> rows;
    for (const QModelIndex& index : grid->selectionModel()->selectedRows())
        rows << index.row();
    const QModelIndex current = grid->currentIndex();
    if (includeCurrent && current.isValid() && !rows.contains(current.row()))
        rows << current.row();
    std::sort(rows.begin(), rows.end());
    QList<qint64> bookmarks;
    for (const int row : rows)
        bookmarks << model->BookmarkOfRow(row);
    return bookmarks;
}

qint64 CommandRow(const QTableView* grid, const RecordsetModel* model)
{
    const QModelIndex current = grid->currentIndex();
    if (current.isValid())
        return model->BookmarkOfRow(current.row());
    const QList<qint64> selected = Bookmarks(grid, model, false);
    return selected.isEmpty() ? -1 : selected.first();
}

void MakeCornerToggle(QTableView* grid)
{
    auto* corner = grid->findChild<QAbstractButton*>();
    if (!corner)
        return;
    QObject::disconnect(corner, nullptr, grid, nullptr);
    QObject::connect(corner, &QAbstractButton::clicked, grid, [grid] {
        const int selected = int(grid->selectionModel()->selectedRows().size());
        if (selected < grid->model()->rowCount())
            grid->selectAll();
        else
            grid->clearSelection();
    });
}

} // namespace GridSelection
