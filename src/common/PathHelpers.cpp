#include "common/PathHelpers.h"

bool InvalidFilenameCharacters(const QString& name)
{
    static const QString forbidden = QStringLiteral("/\\:*?\"<>|");
    for (const QChar c : name) {
        if (forbidden.contains(c))
            return true;
    }
    return false;
}
