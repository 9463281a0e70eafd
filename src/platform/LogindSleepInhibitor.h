#pragma once

#include "platform/SleepInhibitor.h"

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>

// systemd-logind's inhibitor locks on the given bus (the system bus, or a test's own), and
// the real-time clock's wake alarm: set by the privileged helper nightreel-wake on the same
// bus, or, where wakeAlarmFile names a clock file that this user may write, written directly.
class LogindSleepInhibitor : public SleepInhibitor {
    Q_OBJECT
public:
    LogindSleepInhibitor(const QDBusConnection& bus, const QString& wakeAlarmFile,
                         QObject* parent = nullptr);
    ~LogindSleepInhibitor() override;

    void Block(const QString& why) override;
    void Release() override;
    bool Blocking() const override { return m_block.isValid(); }
    void SetWatching(bool watching) override;
    bool SetWakeAlarm(qint64 epochSeconds) override;

private slots:
    void OnPrepareForSleep(bool start);

private:
    // An invalid descriptor when logind is not there or refuses.
    QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& why, const QString& mode);
    QDBusUnixFileDescriptor TakeDelay();
    bool AskWakeHelper(qint64 epochSeconds);

    QDBusConnection m_bus;
    const QString m_wakeAlarmFile;
    // Each lock lasts as long as its descriptor is open; dropping the object closes it.
    QDBusUnixFileDescriptor m_block;
    QDBusUnixFileDescriptor m_delay;
    bool m_watching = false;
};
