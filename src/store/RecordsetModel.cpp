#include "store/RecordsetModel.h"

#include "store/DataControl.h"
#include "store/Options.h"
#include "store/Recordset.h"

RecordsetModel::RecordsetModel(DataControl& control, QList<GridColumn> columns, QObject* parent)
    : QAbstractTableModel(parent)
    , m_control(control)
    , m_columns(std::move(columns))
{
    connect(&m_control, &DataControl::RecordsetChanged, this, &RecordsetModel::Rebind);
    Rebind();
}

RecordsetModel::~RecordsetModel()
{
    m_control.recordset().Unsubscribe(m_subscription);
}

void RecordsetModel::Rebind()
{
    Recordset& rs = m_control.recordset();
    rs.Unsubscribe(m_subscription);
    m_subscription = rs.IsOpen() ? rs.Subscribe([this] { Reload(); }) : 0;
    Reload();
}

void RecordsetModel::Reload()
{
    beginResetModel();
    const Recordset& rs = m_control.recordset();
    m_slots.clear();
    m_fieldOfColumn.clear();
    if (rs.IsOpen()) {
        for (const GridColumn& column : m_columns)
            m_fieldOfColumn.push_back(rs.FieldIndex(column.dataField));
        for (int slot = 0; slot < rs.SlotCount(); ++slot) {
            if (!rs.IsDeletedAt(slot))
                m_slots.push_back(slot);
        }
    }
    endResetModel();
    emit RowsChanged();
}

int RecordsetModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_slots.size());
}

int RecordsetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant RecordsetModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= int(m_slots.size()))
        return {};
    const int field = m_fieldOfColumn.at(index.column());
    if (field < 0)
        return {};
    const QVariant value = m_control.recordset().ValueAt(m_slots[index.row()], field);
    if (role == Qt::EditRole)
        return value;
    if (role == Qt::DisplayRole)
        return DisplayText(value, m_columns.at(index.column()).display);
    return {};
}

QVariant RecordsetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return {};
    return m_columns.value(section).caption;
}

qint64 RecordsetModel::BookmarkOfRow(int row) const
{
    return m_control.recordset().BookmarkAt(m_slots.at(row));
}

int RecordsetModel::RowOfBookmark(qint64 bookmark) const
{
    const Recordset& rs = m_control.recordset();
    for (int row = 0; row < int(m_slots.size()); ++row) {
        if (rs.BookmarkAt(m_slots[row]) == bookmark)
            return row;
    }
    return -1;
}

QString RecordsetModel::DisplayText(const QVariant& value, GridColumn::Display display)
{
    if (display == GridColumn::Display::Source) {
        const QString stream = value.toString().trimmed();
        return stream.isEmpty() ? tr("Sound server input") : stream;
    }
    if (value.isNull())
        return QString();
    switch (display) {
    case GridColumn::Display::GeneralDate:
        return Options::DateText(value.toDouble());
    case GridColumn::Display::LongTime:
        return Options::TimeText(value.toDouble());
    case GridColumn::Display::Boolean:
        return Field::ToBool(value) ? tr("True") : tr("False");
    case GridColumn::Display::Number:
        return QString::number(value.toDouble(), 'g', 7);
    case GridColumn::Display::Text:
    case GridColumn::Display::Source:
        break;
    }
    return value.toString();
}
