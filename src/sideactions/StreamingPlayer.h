#pragma once

#include "platform/WindowList.h"

#include <QList>
#include <QSet>
#include <QString>

class Clock;

// Closes the player that a web link opened before a recording, which the system didn't
// start itself and can't follow: either the windows whose title holds a given text, or
// those that appeared between the moment the link was opened and the start of the
// recording. Closing is a request; what the player does with it isn't checked.
class StreamingPlayer {
public:
    StreamingPlayer(Clock& clock, WindowList& windows);

    // The windows present just before the link is opened.
    void SnapshotWindowsBeforeLink();
    // The windows that are new at the start of the recording, if it begins within 150
    // seconds of the first snapshot; only once per first snapshot.
    void SnapshotWindowsAtRecordingStart();
    // Asks every window of the second snapshot to close.
    void CloseNewWindows();
    // Asks every top-level window whose title holds the text, in any case, to close.
    void CloseWindowsByTitle(const QString& Title);
    // Brings the window to the front; true when the desktop took the request.
    bool ForceForegroundWindow(WindowHandle window);

    static constexpr int SnapshotSpanSeconds = 150;

private:
    QList<TopLevelWindow> SnapshotCandidates();

    Clock& m_clock;
    WindowList& m_windows;
    QSet<WindowHandle> m_firstCollection;
    // In the order the desktop listed them, which is the order of closing.
    QList<WindowHandle> m_secondCollection;
    bool m_secondPass = false;
    double m_snapshotTime;
};
