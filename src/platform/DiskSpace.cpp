#include "platform/DiskSpace.h"

#include "common/TextHelpers.h"

#include <QFile>
#include <sys/statvfs.h>

namespace {
constexpr double kBytesPerMb = 1048576.0;
} // namespace

DiskSpaceMb DiskSpaceMb::FromBytes(qint64 totalBytes, qint64 freeBytes)
{
    DiskSpaceMb d;
    d.total = totalBytes / kBytesPerMb;
    d.free = freeBytes / kBytesPerMb;
    d.used = d.total - d.free;
    d.usedPercent = d.total < 1.0 ? 100.0f : float(d.used / d.total * 100.0);
    return d;
}

DiskSpaceMb DiskSpace::GetRecDirDiskSpaceMb(const QString& folder)
{
    if (Text::Trim(folder).size() < 3)
        return {};
    return Measure(folder);
}

DiskSpaceMb StorageDiskSpace::Measure(const QString& folder)
{
    auto encoded = m_encoded.constFind(folder);
    if (encoded == m_encoded.constEnd()) {
        // Bounded, as the options may name a new folder at any time.
        if (m_encoded.size() >= 16)
            m_encoded.clear();
        encoded = m_encoded.insert(folder, QFile::encodeName(folder));
    }
    struct statvfs fs;
    if (::statvfs(encoded->constData(), &fs) != 0)
        return {};
    // What an unprivileged writer may use, as the task writes without privilege.
    return DiskSpaceMb::FromBytes(qint64(fs.f_blocks) * qint64(fs.f_frsize),
                                  qint64(fs.f_bavail) * qint64(fs.f_frsize));
}
