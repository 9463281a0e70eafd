#pragma once

#include "common/Clock.h"

#include <optional>

// A clock the test sets and moves, or the system's own for a run in real time.
class TestClock : public Clock {
public:
    double Now() const override { return m_system ? m_system->Now() : m_now; }
    qint64 MsecsUntil(double date) const override
    {
        return m_system ? m_system->MsecsUntil(date) : Clock::MsecsUntil(date);
    }
    void FollowSystemTime() { m_system.emplace(); }
    void Set(double date) { m_now = date; }
    void Set(const QDateTime& local) { m_now = AutomationDate::FromDateTime(local); }
    void AdvanceSeconds(double seconds) { m_now = AutomationDate::AddSeconds(m_now, seconds); }

private:
    std::optional<SystemClock> m_system;
    double m_now = AutomationDate::FromText(QStringLiteral("06/01/2026")) + 0.5;
};
