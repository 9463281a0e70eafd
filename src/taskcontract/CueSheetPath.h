#pragma once

#include <QFileInfo>
#include <QString>

// Where the task writes a stream's titles: beside the recording as the user will find it,
// same base name, .cue. The recorder removes it with a discarded recording, the purge with
// an old one.
inline QString CueSheetPath(const QString& recordingPath)
{
    const QFileInfo info(recordingPath);
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral(".cue");
}
