#pragma once

#include "platform/ProcessLauncher.h"

// The real starts: processes for commands, the desktop's handlers (GIO) for files and URLs.
class DetachedProcessLauncher : public ProcessLauncher {
public:
    using ProcessLauncher::StartDetached;
    bool StartDetached(const QString& commandLine, int windowStyle) override;
    QString FindExecutable(const QString& file) override;
    bool ShellExecute(const QString& program, const QString& url, int windowStyle) override;
    int OpenWithDefaultProgram(const QString& file) override;
};
