#pragma once

#include <QObject>
#include <QString>

// What keeps the machine up for a recording: a lock against sleep and idling, word before
// it goes to sleep all the same, and the wake alarm of its clock. Where the machine has
// none of these, each call does nothing.
class SleepInhibitor : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Keeps the machine from sleeping or idling until Release; why is what the system's
    // tools show as the reason. A second call while blocking changes nothing.
    virtual void Block(const QString& why) = 0;
    virtual void Release() = 0;
    virtual bool Blocking() const = 0;
    // While watching, PrepareForSleep(true) comes before each sleep, and the sleep waits
    // (briefly) until the receivers have returned.
    virtual void SetWatching(bool watching) = 0;
    // Wakes the machine at the moment given in seconds since the epoch; 0 clears the alarm.
    // False when the machine has no wake alarm that can be set.
    virtual bool SetWakeAlarm(qint64 epochSeconds) = 0;

signals:
    // true before a sleep, false after the machine woke up.
    void PrepareForSleep(bool start);
};
