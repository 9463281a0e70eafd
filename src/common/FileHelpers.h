#pragma once

#include <QString>

// The file test used throughout: true for a file with content. A zero-length file counts
// as absent and is deleted by the test; a path that can't be read gives false.
bool FileExistsOrClear(const QString& path);
