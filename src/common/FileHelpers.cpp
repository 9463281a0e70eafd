#include "common/FileHelpers.h"

#include <QFile>
#include <QFileInfo>

bool FileExistsOrClear(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isFile())
        return false;
    if (info.size() > 0)
        return true;
    QFile::remove(path);
    return false;
}
