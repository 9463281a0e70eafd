#pragma once

#include <QString>

// Dates of files as the recordings list uses them, in local time as automation dates.
namespace ModuleFileTime {

// Stamps the file's modification and access time; a file that can't be opened for writing
// is left as it is.
void SetFileDateTime(const QString& path, double date);
// The file's last write time; 0 when there is no such file.
double FileDateTime(const QString& path);
// The file's length in Mbytes (1024 times 1024 bytes), in single precision.
float GetFileSizeMbytes(const QString& path);

} // namespace ModuleFileTime
