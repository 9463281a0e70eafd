#pragma once

#include "store/GridColumns.h"

#include <QAbstractTableModel>
#include <vector>

class DataControl;

// A grid's rows: the recordset a data control shows, in its order, with the grid's columns.
// A row's bookmark is what commands work on; the view follows every change of the rows.
class RecordsetModel : public QAbstractTableModel {
    Q_OBJECT
public:
    RecordsetModel(DataControl& control, QList<GridColumn> columns, QObject* parent = nullptr);
    ~RecordsetModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    qint64 BookmarkOfRow(int row) const;
    // -1 when the bookmark is not on show.
    int RowOfBookmark(qint64 bookmark) const;
    const QList<GridColumn>& Columns() const { return m_columns; }
    static QString DisplayText(const QVariant& value, GridColumn::Display display);

signals:
    // The rows changed: a row was added, edited or removed, or the recordset was replaced.
    void RowsChanged();

private:
    void Rebind();
    void Reload();

    DataControl& m_control;
    QList<GridColumn> m_columns;
    std::vector<int> m_fieldOfColumn;
    std::vector<int> m_slots;
    int m_subscription = 0;
};
