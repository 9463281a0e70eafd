#include "options/FolderPaths.h"

#include <QDir>
#include <QFileInfo>

namespace FolderPaths {

bool FullPathName(const QString& text, QString& fullPath)
{
    if (text.trimmed().isEmpty() || text.contains(QChar(u'\0')))
        return false;
    QString path = QDir::cleanPath(QDir::current().absoluteFilePath(text));
    if (text.endsWith(u'/') && !path.endsWith(u'/'))
        path += u'/';
    fullPath = path;
    return true;
}

bool FolderListingFinds(const QString& path)
{
    if (path.endsWith(u'/'))
        return QFileInfo(path).isDir();
    const QFileInfo info(path);
    const QString prefix = info.fileName();
    const QStringList entries =
        QDir(info.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (entry.startsWith(prefix))
            return true;
    }
    return false;
}

bool CreateFolderPath(const QString& path)
{
    const int first = path.indexOf(u'/');
    if (first < 0)
        return true;
    for (int next = path.indexOf(u'/', first + 1); next >= 0; next = path.indexOf(u'/', next + 1)) {
        const QString level = path.left(next);
        if (!QFileInfo(level).isDir())
            QDir().mkdir(level);
    }
    return true;
}

QString WithClosingSeparator(const QString& path)
{
    return path.endsWith(u'/') ? path : path + u'/';
}

} // namespace FolderPaths
