#pragma once

#include "platform/DetachedProcessLauncher.h"
#include "platform/ProcessLauncher.h"

#include <QList>
#include <QSet>
#include <QStringList>

// Records the commands it is asked to start, with their window styles; those listed in
// failing can't be started. Pages go to `handler`, which is none when empty, or, with
// desktopPages set, to the desktop's real handlers.
class RecordingLauncher : public ProcessLauncher {
public:
    using ProcessLauncher::StartDetached;
    bool StartDetached(const QString& commandLine, int windowStyle) override
    {
        started << commandLine;
        styles << windowStyle;
        return !failing.contains(commandLine);
    }

    QString FindExecutable(const QString& file) override
    {
        probed << file;
        return desktopPages ? m_desktop.FindExecutable(file) : handler;
    }

    bool ShellExecute(const QString& program, const QString& url, int windowStyle) override
    {
        started << program + " " + url;
        styles << windowStyle;
        if (desktopPages)
            return m_desktop.ShellExecute(program, url, windowStyle);
        return !failing.contains(url);
    }

    // A file opened in its default program is opened for real.
    int OpenWithDefaultProgram(const QString& file) override
    {
        return m_desktop.OpenWithDefaultProgram(file);
    }

    QStringList started;
    QList<int> styles;
    QSet<QString> failing;
    QStringList probed;
    QString handler = QStringLiteral("browser.desktop");
    bool desktopPages = false;

private:
    DetachedProcessLauncher m_desktop;
};
