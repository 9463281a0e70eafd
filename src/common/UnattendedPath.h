#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <utility>

// Marks code that runs while nobody need be at the machine: the heartbeat's round, what the
// recording task says, a conversion step. A message box asked for on such a path must not
// wait for a person. The events that such a path lets run belong to whoever sent them (a
// user's click among them), so LetEventsRun lifts the mark for their time.
class UnattendedPath {
public:
    UnattendedPath() { ++s_depth; }
    ~UnattendedPath() { --s_depth; }
    UnattendedPath(const UnattendedPath&) = delete;
    UnattendedPath& operator=(const UnattendedPath&) = delete;

    static bool Active() { return s_depth > 0; }

    static void LetEventsRun(QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents)
    {
        const int depth = std::exchange(s_depth, 0);
        QCoreApplication::processEvents(flags);
        s_depth = depth;
    }

private:
    static inline thread_local int s_depth = 0;
};
