#pragma once

#include <QList>

class QTableView;
class RecordsetModel;

// The selection of a bound grid in the system's terms: bookmarks of rows.
namespace GridSelection {

// The bookmarks of the selected rows, in the grid's order; with includeCurrent the row
// under the cursor counts as selected too.
QList<qint64> Bookmarks(const QTableView* grid, const RecordsetModel* model, bool includeCurrent);
// The row a single-row command works on: the current row, else the first selected one;
// -1 for none.
qint64 CommandRow(const QTableView* grid, const RecordsetModel* model);
// The grid's corner toggles between all rows selected and none, instead of selecting all.
void MakeCornerToggle(QTableView* grid);

} // namespace GridSelection
