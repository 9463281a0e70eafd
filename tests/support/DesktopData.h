#pragma once

#include <QDir>
#include <QFile>
#include <QString>

// A desktop of the test's own for the handlers of files and URLs: the data and
// configuration folders in XDG_* point into `root`, so only the handlers registered here
// exist. The desktop library reads these once, so this comes before anything asks it.
namespace DesktopData {

inline void UsePrivateFolders(const QString& root)
{
    for (const char* sub : {"data/applications", "share", "config", "xdg"})
        QDir().mkpath(root + "/" + sub);
    qputenv("XDG_DATA_HOME", (root + "/data").toUtf8());
    qputenv("XDG_DATA_DIRS", (root + "/share").toUtf8());
    qputenv("XDG_CONFIG_HOME", (root + "/config").toUtf8());
    qputenv("XDG_CONFIG_DIRS", (root + "/xdg").toUtf8());
}

// Registers a program for text/html that runs `exec` (a desktop entry's Exec line).
inline bool RegisterHtmlHandler(const QString& root, const QString& id, const QString& exec)
{
    QFile entry(root + "/data/applications/" + id);
    if (!entry.open(QIODevice::WriteOnly))
        return false;
    entry.write(("[Desktop Entry]\nType=Application\nName=Test browser\nExec=" + exec +
                 "\nMimeType=text/html;\n")
                    .toUtf8());
    return true;
}

} // namespace DesktopData
