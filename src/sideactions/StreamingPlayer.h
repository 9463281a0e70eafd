#pragma once

#include "platform/WindowList.h"

#include <QCoreApplication>
#include <QList>
#include <QSet>
#include <QString>

class Clock;
class EventLog;

// Closes the player that a web link opened before a recording, which the system didn't
// start itself and can't follow: either the windows whose title holds a given text, or
// those that appeared between the moment the link was opened and the start of the
// recording. Closing is a request; what the player does with it isn't checked.
class StreamingPlayer {
public:
    StreamingPlayer(Clock& clock, WindowList& windows, EventLog& log);

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

    // What can't be closed on a Wayland session; the log says it once, at the first closing,
    // and the program editor in its tip.
    static QString WaylandNote()
    {
        return QCoreApplication::translate(
            "StreamingPlayer", "On a Wayland session only players that run as X11 programs "
                               "(XWayland) can be closed: native Wayland windows can't be.");
    }

private:
    QList<TopLevelWindow> SnapshotCandidates();
    void NoteWaylandOnce();

    Clock& m_clock;
    WindowList& m_windows;
    EventLog& m_log;
    bool m_waylandNoted = false;
    QSet<WindowHandle> m_firstCollection;
    // In the order the desktop listed them, which is the order of closing.
    QList<WindowHandle> m_secondCollection;
    bool m_secondPass = false;
    double m_snapshotTime;

    Q_DECLARE_TR_FUNCTIONS(StreamingPlayer)
};
