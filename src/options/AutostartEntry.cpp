#include "options/AutostartEntry.h"

#include "common/FileHelpers.h"
#include "common/ProgramFiles.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace AutostartEntry {

namespace {
const QString kEntryName = QStringLiteral("nightreel.desktop");
} // namespace

QString Folder()
{
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (config.trimmed().isEmpty())
        return QString();
    return config + QStringLiteral("/autostart/");
}

QString Path()
{
    const QString folder = Folder();
    return folder.isEmpty() ? QString() : folder + kEntryName;
}

bool Exists()
{
    const QString path = Path();
    return !path.isEmpty() && FileExistsOrClear(path);
}

QString Source(const QString& programFolder)
{
    const QString entry = ProgramFiles(programFolder).DesktopEntry();
    return FileExistsOrClear(entry) ? entry : QString();
}

void Set(bool on, const QString& programFolder)
{
    const QString path = Path();
    if (path.isEmpty())
        return;
    if (!on) {
        QFile::remove(path);
        return;
    }
    if (FileExistsOrClear(path))
        return;
    const QString source = Source(programFolder);
    if (source.isEmpty())
        return;
    QDir().mkpath(Folder());
    QFile::copy(source, path);
}

} // namespace AutostartEntry
