#pragma once

#include "common/Clock.h"

// A clock the test sets and moves.
class TestClock : public Clock {
public:
    double Now() const override { return m_now; }
    void Set(double date) { m_now = date; }
    void Set(const QDateTime& local) { m_now = AutomationDate::FromDateTime(local); }
    void AdvanceSeconds(double seconds) { m_now = AutomationDate::AddSeconds(m_now, seconds); }

private:
    double m_now = AutomationDate::FromText(QStringLiteral("06/01/2026")) + 0.5;
};
