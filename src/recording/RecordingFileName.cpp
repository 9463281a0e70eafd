#include "recording/RecordingFileName.h"

#include "common/AutomationDate.h"
#include "common/TextHelpers.h"

#include <QDir>
#include <algorithm>

namespace {

// The stamp of the file name format option: 0 MMDDYY_hhmmss, 1 YYMMDD_hhmmss,
// 2 DDMMYY_hhmmss; any other value as 0.
QString Stamp(double now, qint16 format)
{
    const QDateTime moment = AutomationDate::ToDateTime(now);
    const QString time = moment.toString(QStringLiteral("_HHmmss"));
    switch (format) {
    case 1:
        return moment.toString(QStringLiteral("yyMMdd")) + time;
    case 2:
        return moment.toString(QStringLiteral("ddMMyy")) + time;
    default:
        return moment.toString(QStringLiteral("MMddyy")) + time;
    }
}

} // namespace

QString NewRecordingFileName(double now, qint16 stampFormat, const QString& userName,
                             const QString& prefix, const QString& suffix, QString& folder,
                             bool mp3Extension, QString& baseName, QString& extension)
{
    folder = Text::Trim(folder);
    extension = mp3Extension ? QStringLiteral(".MP3") : QStringLiteral(".WAV");
    if (!Text::Trim(userName).isEmpty())
        baseName = userName;
    else
        baseName = prefix + Stamp(now, stampFormat) + suffix;
    baseName = Text::Trim(baseName);
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    return folder + baseName + extension;
}

QString FreeBaseName(const QString& folder, const QString& baseName, const QStringList& endings,
                     const FileExists& exists)
{
    const QDir dir(folder);
    QString candidate = baseName;
    for (int n = 2; std::any_of(
             endings.cbegin(), endings.cend(),
             [&](const QString& ending) { return exists(dir.filePath(candidate + ending)); });
         ++n)
        candidate = QStringLiteral("%1 (%2)").arg(baseName).arg(n);
    return candidate;
}
