#include "store/AppFolders.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

void MakePrivateFolder(const QString& path)
{
    QDir().mkpath(path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

AppFolders AppFolders::ForCurrentUser()
{
    AppFolders folders;
    folders.dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString runtimeRoot = qEnvironmentVariable("XDG_RUNTIME_DIR");
    folders.runtimeFolder =
        (runtimeRoot.isEmpty() ? QDir::tempPath() : runtimeRoot) + QStringLiteral("/nightreel");
    MakePrivateFolder(folders.runtimeFolder);
    return folders;
}

AppFolders AppFolders::Under(const QString& root)
{
    AppFolders folders;
    folders.dataFolder = root + QStringLiteral("/data");
    folders.runtimeFolder = root + QStringLiteral("/runtime");
    MakePrivateFolder(folders.runtimeFolder);
    return folders;
}

QString AppFolders::DatabaseFile() const
{
    return dataFolder + QStringLiteral("/nightreel.db");
}

QString AppFolders::TempDatabaseFile() const
{
    return dataFolder + QStringLiteral("/temp.db");
}

void AppFolders::InstallDatabaseOnFirstRun() const
{
    if (QDir(dataFolder).exists())
        return;
    QDir().mkpath(dataFolder);
    QFile::copy(QStringLiteral(":/original.db"), DatabaseFile());
    QFile::setPermissions(DatabaseFile(), QFile::ReadOwner | QFile::WriteOwner);
}
