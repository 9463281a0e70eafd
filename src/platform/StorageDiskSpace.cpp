#include "platform/StorageDiskSpace.h"

#include <QFile>
#include <sys/statvfs.h>

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
