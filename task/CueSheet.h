#pragma once

#include <QList>
#include <QString>

// The titles a station sent during a recording, as a CUE sheet beside the recording
// (CueSheetPath), so that a song can be found in a long show. The sheet is written anew
// with each title, so a task that is killed leaves the titles up to then.
class CueSheet {
public:
    // recordingPath is the recording as the user will find it.
    CueSheet(const QString& recordingPath, const QString& showTitle);

    // A title from this many seconds into the recording on; a repeat of the title under way
    // changes nothing.
    void Add(const QString& title, double seconds);

private:
    void Write() const;

    struct Track {
        QString title;
        double seconds;
    };
    QString m_recordingPath;
    QString m_showTitle;
    QList<Track> m_tracks;
};
