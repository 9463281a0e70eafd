#include "CueSheet.h"

#include "taskcontract/CueSheetPath.h"

#include <QFile>
#include <QFileInfo>
#include <cmath>

namespace {

// A CUE sheet quotes with double quotes and has no escape for them.
QString Quoted(QString text)
{
    text.replace(u'"', u'\'');
    text.remove(u'\r');
    text.replace(u'\n', u' ');
    return u'"' + text + u'"';
}

// mm:ss:ff, with 75 frames a second; minutes go beyond 99 for long shows.
QString Index(double seconds)
{
    const qint64 frames = qint64(std::llround(qMax(0.0, seconds) * 75));
    return QStringLiteral("%1:%2:%3")
        .arg(frames / (75 * 60), 2, 10, QLatin1Char('0'))
        .arg(frames / 75 % 60, 2, 10, QLatin1Char('0'))
        .arg(frames % 75, 2, 10, QLatin1Char('0'));
}

} // namespace

CueSheet::CueSheet(const QString& recordingPath, const QString& showTitle)
    : m_recordingPath(recordingPath)
    , m_showTitle(showTitle)
{
}

void CueSheet::Add(const QString& title, double seconds)
{
    const QString trimmed = title.trimmed();
    if (trimmed.isEmpty() || (!m_tracks.isEmpty() && m_tracks.last().title == trimmed))
        return;
    // Two titles at the same moment: the later one is what played.
    if (!m_tracks.isEmpty() && Index(m_tracks.last().seconds) == Index(seconds))
        m_tracks.removeLast();
    m_tracks.append({trimmed, m_tracks.isEmpty() ? 0.0 : seconds});
    Write();
}

void CueSheet::Write() const
{
    const QFileInfo recording(m_recordingPath);
    const bool mp3 = recording.suffix().compare(QLatin1String("mp3"), Qt::CaseInsensitive) == 0;
    QString text = QStringLiteral("TITLE %1\r\nFILE %2 %3\r\n")
                       .arg(Quoted(m_showTitle), Quoted(recording.fileName()),
                            mp3 ? QStringLiteral("MP3") : QStringLiteral("WAVE"));
    for (int i = 0; i < m_tracks.size(); ++i)
        text += QStringLiteral("  TRACK %1 AUDIO\r\n    TITLE %2\r\n    INDEX 01 %3\r\n")
                    .arg(i + 1, 2, 10, QLatin1Char('0'))
                    .arg(Quoted(m_tracks[i].title), Index(m_tracks[i].seconds));
    QFile file(CueSheetPath(m_recordingPath));
    // A sheet that can't be written costs the titles, never the recording.
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(text.toUtf8());
}
