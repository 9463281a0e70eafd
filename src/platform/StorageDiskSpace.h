#pragma once

#include "platform/DiskSpace.h"

#include <QByteArray>
#include <QHash>

// The real file systems, through statvfs: the guard asks four times a second, and
// QStorageInfo reads the whole mount table on each call.
class StorageDiskSpace : public DiskSpace {
protected:
    DiskSpaceMb Measure(const QString& folder) override;

private:
    // The folders asked about, in the file system's encoding: the same few on every round.
    QHash<QString, QByteArray> m_encoded;
};
