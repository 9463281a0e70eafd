#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// The path of a new recording: the user's own name, or prefix + a stamp of the present time
// + suffix, in the folder, with ".MP3" or ".WAV" as the flag says. The folder is trimmed and
// gets its closing separator in place. The stamp is of `now` in the style `stampFormat`
// names (the option DefaultRecordFileNameFormat).
QString NewRecordingFileName(double now, qint16 stampFormat, const QString& userName,
                             const QString& prefix, const QString& suffix, QString& folder,
                             bool mp3Extension, QString& baseName, QString& extension);

// Whether a path names a file; the disk's answer outside the tests of plans.
using FileExists = std::function<bool(const QString& path)>;

// A recording never replaces a file: the first of baseName, "baseName (2)", "baseName (3)"...
// that names no file in the folder with any of the endings.
QString FreeBaseName(const QString& folder, const QString& baseName, const QStringList& endings,
                     const FileExists& exists);
