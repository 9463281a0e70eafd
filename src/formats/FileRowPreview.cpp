#include "formats/FileRowPreview.h"

#include "common/AutomationDate.h"
#include "formats/MediaReaders.h"

#include <QFileInfo>
#include <QTextStream>

int InspectFile(const QString& path, QTextStream& out)
{
    RecordingRow row;
    if (!QFileInfo(path).isFile() || !MediaReaders::ReadRecordingRow(path, row))
        return 1;
    // Times in ISO form and the size as a plain number, for scripts to read back.
    auto time = [](double date) {
        return AutomationDate::ToDateTime(date).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    };
    out << "Title: " << row.Title << '\n'
        << "File: " << row.File << '\n'
        << "Start: " << time(row.StartTime) << '\n'
        << "End: " << time(row.EndTime) << '\n'
        << "Format: " << row.CompressionMethod << '\n'
        << "Size: " << QString::number(double(row.Size), 'f', 3) << '\n';
    out.flush();
    return 0;
}
