#include "common/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

// The build defines each NIGHTREEL_*_FROM_BIN as the path from the installed bin folder to
// that piece's folder.

ProgramFiles::ProgramFiles(const QString& programFolder)
    : m_programFolder(programFolder)
    , m_installed(QFileInfo(programFolder + u'/' + QStringLiteral(NIGHTREEL_TASK_FROM_BIN)).isDir())
{
}

ProgramFiles ProgramFiles::OfRunningProgram()
{
    return ProgramFiles(QCoreApplication::applicationDirPath());
}

QString ProgramFiles::TaskProgram() const
{
    return Under(NIGHTREEL_TASK_FROM_BIN, QStringLiteral("nightreel-rec"));
}

QString ProgramFiles::LibraryFolder() const
{
    return Under(NIGHTREEL_LIBRARIES_FROM_BIN, QString());
}

QString ProgramFiles::Manual() const
{
    // The build keeps it in a folder of its own, as the source tree does.
    return m_installed ? Under(NIGHTREEL_DATA_FROM_BIN, QStringLiteral("manual.html"))
                       : m_programFolder + QStringLiteral("/docs/manual.html");
}

QString ProgramFiles::TranslationFolder() const
{
    return Under(NIGHTREEL_DATA_FROM_BIN, QStringLiteral("translations"));
}

QString ProgramFiles::DesktopEntry() const
{
    return Under(NIGHTREEL_APPLICATIONS_FROM_BIN, QStringLiteral("nightreel.desktop"));
}

QString ProgramFiles::Under(const char* relativeFolder, const QString& name) const
{
    const QString folder =
        m_installed ? m_programFolder + u'/' + QString::fromUtf8(relativeFolder) : m_programFolder;
    return QDir::cleanPath(name.isEmpty() ? folder : folder + u'/' + name);
}
