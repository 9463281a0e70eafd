#pragma once

#include <QString>

// Starts the side programs of a recording (applications before and after it). Commands
// are split into words as a shell would split them and run without a shell.
class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;
    // Starts the command detached; false when it could not be started.
    virtual bool StartDetached(const QString& commandLine) = 0;
};

class DetachedProcessLauncher : public ProcessLauncher {
public:
    bool StartDetached(const QString& commandLine) override;
};
