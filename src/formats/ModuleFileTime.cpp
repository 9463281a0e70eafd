#include "formats/ModuleFileTime.h"

#include "common/AutomationDate.h"

#include <QFile>
#include <QFileInfo>

namespace ModuleFileTime {

void SetFileDateTime(const QString& path, double date)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return;
    // Creation time can't be set here; the write and access times carry the date.
    const QDateTime moment = AutomationDate::ToDateTime(date);
    file.setFileTime(moment, QFileDevice::FileModificationTime);
    file.setFileTime(moment, QFileDevice::FileAccessTime);
}

double FileDateTime(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? AutomationDate::FromDateTime(info.lastModified()) : 0.0;
}

float GetFileSizeMbytes(const QString& path)
{
    return float(QFileInfo(path).size()) / 1024.0f / 1024.0f;
}

} // namespace ModuleFileTime
