#include "store/GridColumns.h"

#include <QCoreApplication>

namespace GridColumns {

const QList<GridColumn>& Programs()
{
    static const QList<GridColumn> columns{
        {QCoreApplication::translate("GridColumns", "Description"),
         QStringLiteral("DescriptionText")},
        {QCoreApplication::translate("GridColumns", "Start Time"), QStringLiteral("StartTime"),
         GridColumn::Display::LongTime},
        {QCoreApplication::translate("GridColumns", "End Time"), QStringLiteral("EndTime"),
         GridColumn::Display::LongTime},
        {QCoreApplication::translate("GridColumns", "Frequency"), QStringLiteral("FrequencyText")},
        {QCoreApplication::translate("GridColumns", "Enabled"), QStringLiteral("Enabled"),
         GridColumn::Display::Boolean},
        {QCoreApplication::translate("GridColumns", "Source"), QStringLiteral("StreamUrl"),
         GridColumn::Display::Source},
    };
    return columns;
}

const QList<GridColumn>& Recordings()
{
    static const QList<GridColumn> columns{
        {QCoreApplication::translate("GridColumns", "Description"), QStringLiteral("Title")},
        {QStringLiteral("Date/Time"), QStringLiteral("StartTime"),
         GridColumn::Display::GeneralDate},
        {QStringLiteral("EndTime"), QStringLiteral("EndTime"), GridColumn::Display::GeneralDate},
        {QStringLiteral("CompressionMethod"), QStringLiteral("CompressionMethod")},
        {QCoreApplication::translate("GridColumns", "Size (Mbytes)"), QStringLiteral("Size"),
         GridColumn::Display::Number},
        {QCoreApplication::translate("GridColumns", "File"), QStringLiteral("File")},
    };
    return columns;
}

const QList<GridColumn>& EventLog()
{
    static const QList<GridColumn> columns{
        {QString(), QStringLiteral("Type")},
        {QStringLiteral("Date/Time"), QStringLiteral("DateAndTime"),
         GridColumn::Display::GeneralDate},
        {QCoreApplication::translate("GridColumns", "Message"), QStringLiteral("Message")},
        {QCoreApplication::translate("GridColumns", "Details"), QStringLiteral("Details")},
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
    // Text sorts without case, as the old database sorted it; other kinds ignore NOCASE.
    return QStringLiteral("SELECT * FROM [%1] ORDER BY [%2] COLLATE NOCASE%3")
        .arg(table, field, ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC"));
}

} // namespace GridColumns
