#include "common/PathHelpers.h"

#include "common/TextHelpers.h"

bool InvalidFilenameCharacters(const QString& name)
{
    static const QString forbidden = QStringLiteral("/\\:*?\"<>|");
    for (const QChar c : name) {
        if (forbidden.contains(c))
            return true;
    }
    return false;
}

QString UserFilenameBase(const QString& typed)
{
    QString base = Text::Trim(typed);
    const QString upper = base.toUpper();
    if (upper.endsWith(QStringLiteral(".MP3")) || upper.endsWith(QStringLiteral(".WAV")))
        base.chop(4);
    return Text::Trim(base);
}
