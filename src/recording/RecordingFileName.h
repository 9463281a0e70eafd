#pragma once

#include <QString>

// The path of a new recording: the user's own name, or prefix + a stamp of the present time
// + suffix, in the folder, with ".MP3" or ".WAV" as the flag says. No numbering: a user's
// fixed name replaces its older recording on purpose. The folder is trimmed and gets its
// closing separator in place. The stamp is of `now` in the style `stampFormat` names (the
// option DefaultRecordFileNameFormat).
QString NewRecordingFileName(double now, qint16 stampFormat, const QString& userName,
                             const QString& prefix, const QString& suffix, QString& folder,
                             bool mp3Extension, QString& baseName, QString& extension);
