#include "common/IntervalTimer.h"

IntervalTimer::IntervalTimer(QObject* parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &IntervalTimer::timeout);
}

void IntervalTimer::SetInterval(int milliseconds)
{
    if (milliseconds <= 0)
        m_timer.stop();
    else
        m_timer.start(milliseconds);
}
