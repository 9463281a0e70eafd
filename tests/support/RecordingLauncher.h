#pragma once

#include "common/ProcessLauncher.h"

#include <QSet>
#include <QStringList>

// Records the commands it is asked to start; those listed in failing can't be started.
class RecordingLauncher : public ProcessLauncher {
public:
    bool StartDetached(const QString& commandLine) override
    {
        started << commandLine;
        return !failing.contains(commandLine);
    }

    QStringList started;
    QSet<QString> failing;
};
