#pragma once

#include <QList>
#include <QString>

// The columns of the main grids and of the log grid, caption and bound field. Statements
// that sort a grid look the field up by the caption, so a changed grid needs no changed SQL.
struct GridColumn {
    // Source: a program's stream address, or the sound server's input where it has none.
    enum class Display { Text, GeneralDate, LongTime, Boolean, Number, Source };
    QString caption;
    QString dataField;
    Display display = Display::Text;
};

namespace GridColumns {

const QList<GridColumn>& Programs();
const QList<GridColumn>& Recordings();
const QList<GridColumn>& EventLog();
QString DataFieldOf(const QList<GridColumn>& columns, const QString& caption);
// "SELECT * FROM [table] ORDER BY [field] COLLATE NOCASE ASC" or " DESC".
QString SortStatement(const QString& table, const QString& field, bool ascending);

} // namespace GridColumns
