#include "store/RecordingRow.h"

#include "common/TextHelpers.h"
#include "store/AppDatabase.h"

qint64 WriteRecordingRow(AppDatabase& database, const RecordingRow& row)
{
    Recordset& rs = database.DataRecordings.recordset();
    rs.FindFirst(QStringLiteral("File = ") + Text::SqlQuoted(row.File));
    if (!rs.NoMatch())
        rs.Delete();
    rs.AddNew();
    rs.SetValue(QStringLiteral("Title"), row.Title);
    rs.SetValue(QStringLiteral("File"), row.File);
    rs.SetValue(QStringLiteral("StartTime"), row.StartTime);
    rs.SetValue(QStringLiteral("EndTime"), row.EndTime);
    rs.SetValue(QStringLiteral("CompressionMethod"), row.CompressionMethod);
    rs.SetValue(QStringLiteral("Size"), double(row.Size));
    rs.Update();
    return rs.LastModified();
}
