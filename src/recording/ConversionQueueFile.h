#pragma once

#include "recording/clsConvertToMP3Request.h"

#include <QString>

// The conversion queue as it lies on disk in the data folder: the running request first,
// then the waiting ones. Written at every change, so that an exit or a crash with captures
// still to convert loses none of them: the next start converts them, in order.
namespace ConversionQueueFile {

// Replaces the file as a whole; throws a RuntimeError when it can't be written.
void Save(const QString& path, const Mp3ConvertQueueList& requests);
// The saved requests; none when there is no file or it can't be read.
Mp3ConvertQueueList Load(const QString& path);

} // namespace ConversionQueueFile
