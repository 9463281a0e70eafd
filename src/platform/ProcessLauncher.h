#pragma once

#include <QString>

// How a started program's window comes up: 1 shown normally with focus, 6 minimised
// without focus. The desktop may not honour it; the launcher passes it on where it can.
enum WindowStyle : int { WindowStyleNormal = 1, WindowStyleMinimizedNoActivate = 6 };

// Starts the side programs of a recording (applications before and after it, the browser
// for a web link). Commands are split into words as a shell would split them and run
// without a shell.
class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;
    // Starts the command detached; false when it could not be started.
    virtual bool StartDetached(const QString& commandLine, int windowStyle) = 0;
    bool StartDetached(const QString& commandLine)
    {
        return StartDetached(commandLine, WindowStyleNormal);
    }
    // The desktop's program for files like this one (judged by its type); "" when the
    // desktop has none.
    virtual QString FindExecutable(const QString& file) = 0;
    // Starts a program that FindExecutable named, with the URL as its argument; false when
    // it could not be started.
    virtual bool ShellExecute(const QString& program, const QString& url, int windowStyle) = 0;
    // Opens the file in the desktop's default program for its type; the result as
    // ::OpenWithDefaultProgram gives it.
    virtual int OpenWithDefaultProgram(const QString& file) = 0;
};
