#include "common/ProcessLauncher.h"

#include <QProcess>

bool DetachedProcessLauncher::StartDetached(const QString& commandLine)
{
    QStringList words = QProcess::splitCommand(commandLine);
    if (words.isEmpty())
        return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}
