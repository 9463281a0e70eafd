#include "sideactions/StreamingPlayer.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "diagnostics/EventLog.h"
#include "platform/WaylandSession.h"

#include <QCoreApplication>
#include <cstdlib>

StreamingPlayer::StreamingPlayer(Clock& clock, WindowList& windows, EventLog& log)
    : m_clock(clock)
    , m_windows(windows)
    , m_log(log)
    , m_snapshotTime(AutomationDate::LongAgo())
{
}

QList<TopLevelWindow> StreamingPlayer::SnapshotCandidates()
{
    QList<TopLevelWindow> candidates;
    for (const TopLevelWindow& window : m_windows.TopLevelWindows())
        if (!window.hasOwner && window.visible && window.enabled)
            candidates.append(window);
    return candidates;
}

void StreamingPlayer::SnapshotWindowsBeforeLink()
{
    m_firstCollection.clear();
    m_secondPass = false;
    m_snapshotTime = m_clock.Now();
    for (const TopLevelWindow& window : SnapshotCandidates())
        m_firstCollection.insert(window.handle);
}

void StreamingPlayer::SnapshotWindowsAtRecordingStart()
{
    m_secondCollection.clear();
    const qint64 sinceSnapshot = AutomationDate::SecondsBetween(m_snapshotTime, m_clock.Now());
    if (m_secondPass || std::llabs(sinceSnapshot) >= SnapshotSpanSeconds)
        return;
    m_secondPass = true;
    for (const TopLevelWindow& window : SnapshotCandidates()) {
        if (m_firstCollection.contains(window.handle))
            continue;
        // The desktop and this program's own windows are never taken for the player.
        if (window.title.contains(QStringLiteral("Program Manager")) ||
            window.title.contains(QStringLiteral("Nightreel")))
            continue;
        if (!m_secondCollection.contains(window.handle))
            m_secondCollection.append(window.handle);
    }
}

void StreamingPlayer::NoteWaylandOnce()
{
    if (m_waylandNoted || !IsWaylandSession())
        return;
    m_waylandNoted = true;
    m_log.LogEvent(EventInformation, tr("Streaming player on Wayland"), WaylandNote());
}

void StreamingPlayer::CloseNewWindows()
{
    NoteWaylandOnce();
    for (WindowHandle window : m_secondCollection)
        m_windows.RequestClose(window);
}

void StreamingPlayer::CloseWindowsByTitle(const QString& Title)
{
    NoteWaylandOnce();
    const QString searchTitle = Title.trimmed().toUpper();
    for (const TopLevelWindow& window : m_windows.TopLevelWindows())
        if (!window.title.isEmpty() && window.title.trimmed().toUpper().contains(searchTitle))
            m_windows.RequestClose(window.handle);
}

bool StreamingPlayer::ForceForegroundWindow(WindowHandle window)
{
    if (m_windows.ForegroundWindow() == window)
        return true;
    return m_windows.SetForegroundWindow(window);
}
