#include "recordingslist/ListFile.h"

#include <QFile>

namespace ListFile {

QByteArray Line(const QString& path)
{
    return '"' + QFile::encodeName(path) + "\"\r\n";
}

QStringList ReadItems(const QByteArray& content)
{
    QStringList items;
    qsizetype pos = 0;
    while (true) {
        const qsizetype open = content.indexOf('"', pos);
        if (open < 0)
            break;
        const qsizetype close = content.indexOf('"', open + 1);
        if (close < 0)
            break;
        items << QFile::decodeName(content.mid(open + 1, close - open - 1));
        pos = close + 1;
    }
    return items;
}

} // namespace ListFile
