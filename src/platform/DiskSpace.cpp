#include "platform/DiskSpace.h"

#include "common/TextHelpers.h"

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
