#pragma once

#include <QObject>
#include <QTimer>

// A timer driven by its interval, as the system's timers are: an interval of 0 stops it,
// any other interval (re)starts it. QTimer alone would treat 0 as "fire continuously".
class IntervalTimer : public QObject {
    Q_OBJECT
public:
    explicit IntervalTimer(QObject* parent = nullptr);
    void SetInterval(int milliseconds);
    int Interval() const { return m_timer.isActive() ? m_timer.interval() : 0; }

signals:
    void timeout();

private:
    QTimer m_timer;
};
