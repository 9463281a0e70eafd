#pragma once

#include "common/RuntimeError.h"
#include "platform/StorageDiskSpace.h"

#include <QDir>
#include <QHash>
#include <optional>

// The real file systems, unless the test names the free megabytes it wants seen (of one
// folder, or of all), or makes the measuring fail.
class TestDiskSpace : public StorageDiskSpace {
public:
    std::optional<double> freeMb;
    QHash<QString, double> freeMbOf;
    bool fails = false;

protected:
    DiskSpaceMb Measure(const QString& folder) override
    {
        if (fails)
            throw RuntimeError(ErrorNumber::PathFileAccess, "the disk did not answer");
        DiskSpaceMb d = StorageDiskSpace::Measure(folder);
        if (const auto it = freeMbOf.constFind(QDir::cleanPath(folder)); it != freeMbOf.cend())
            d.free = *it;
        else if (freeMb)
            d.free = *freeMb;
        return d;
    }
};
