#pragma once

#include <QString>

// Megabytes (bytes divided by 1024 twice) of the file system that holds a folder.
struct DiskSpaceMb {
    double used = 0.0;
    double free = 0.0;
    double total = 0.0;
    float usedPercent = 0.0f;

    // A total under one megabyte counts as full.
    static DiskSpaceMb FromBytes(qint64 totalBytes, qint64 freeBytes);
};

// The file systems' figures, as the disk guard and the space checks read them.
class DiskSpace {
public:
    virtual ~DiskSpace() = default;

    // Zeros for a folder text of under three characters, as for a folder that can't be read.
    DiskSpaceMb GetRecDirDiskSpaceMb(const QString& folder);

protected:
    // The figures of the file system that holds an existing folder; zeros when unknown.
    virtual DiskSpaceMb Measure(const QString& folder) = 0;
};
