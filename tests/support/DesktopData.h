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
    // The system's file types (not its programs), so that a page file is judged by its name
    // as on a real desktop.
    if (QFile::exists("/usr/share/mime/mime.cache"))
        QFile::link("/usr/share/mime", root + "/share/mime");
    qputenv("XDG_DATA_HOME", (root + "/data").toUtf8());
    qputenv("XDG_DATA_DIRS", (root + "/share").toUtf8());
    qputenv("XDG_CONFIG_HOME", (root + "/config").toUtf8());
    qputenv("XDG_CONFIG_DIRS", (root + "/xdg").toUtf8());
}

// Registers a program that runs `exec` (a desktop entry's Exec line) as the default for
// mimeType. The desktop library learns a type's programs from the lists of associations,
// not from the entries' MimeType lines, so the entry is named in mimeapps.list as well.
inline bool RegisterHandler(const QString& root, const QString& id, const QString& exec,
                            const QString& mimeType)
{
    QFile entry(root + "/data/applications/" + id);
    QFile defaults(root + "/config/mimeapps.list");
    if (!entry.open(QIODevice::WriteOnly) || !defaults.open(QIODevice::WriteOnly))
        return false;
    entry.write(("[Desktop Entry]\nType=Application\nName=Test handler\nExec=" + exec +
                 "\nMimeType=" + mimeType + ";\n")
                    .toUtf8());
    defaults.write(("[Default Applications]\n" + mimeType + "=" + id + "\n").toUtf8());
    return true;
}

inline bool RegisterHtmlHandler(const QString& root, const QString& id, const QString& exec)
{
    return RegisterHandler(root, id, exec, "text/html");
}

} // namespace DesktopData
