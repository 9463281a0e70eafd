#include "store/GridColumns.h"

namespace GridColumns {

const QList<GridColumn>& Programs()
{
    static const QList<GridColumn> columns{
        {QStringLiteral("Description"), QStringLiteral("DescriptionText")},
        {QStringLiteral("Start Time"), QStringLiteral("StartTime")},
        {QStringLiteral("End Time"), QStringLiteral("EndTime")},
        {QStringLiteral("Frequency"), QStringLiteral("FrequencyText")},
        {QStringLiteral("Enabled"), QStringLiteral("Enabled")},
    };
    return columns;
}

const QList<GridColumn>& Recordings()
{
    static const QList<GridColumn> columns{
        {QStringLiteral("Description"), QStringLiteral("Title")},
        {QStringLiteral("Date/Time"), QStringLiteral("StartTime")},
        {QStringLiteral("EndTime"), QStringLiteral("EndTime")},
        {QStringLiteral("CompressionMethod"), QStringLiteral("CompressionMethod")},
        {QStringLiteral("Size (Mbytes)"), QStringLiteral("Size")},
        {QStringLiteral("File"), QStringLiteral("File")},
    };
    return columns;
}

const QList<GridColumn>& EventLog()
{
    static const QList<GridColumn> columns{
        {QString(), QStringLiteral("Type")},
        {QStringLiteral("Date/Time"), QStringLiteral("DateAndTime")},
        {QStringLiteral("Message"), QStringLiteral("Message")},
        {QStringLiteral("Details"), QStringLiteral("Details")},
    };
    return columns;
}

QString DataFieldOf(const QList<GridColumn>& columns, const QString& caption)
{
    for (const GridColumn& column : columns) {
        if (column.caption == caption)
            return column.dataField;
    }
    return QString();
}

QString SortStatement(const QString& table, const QString& field, bool ascending)
{
    return QStringLiteral("SELECT * FROM [%1] ORDER BY [%2]%3")
        .arg(table, field, ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC"));
}

} // namespace GridColumns
