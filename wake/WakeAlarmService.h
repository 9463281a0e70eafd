#pragma once

#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QTimer>

class PolkitCheck;

// The one privileged thing the recorder needs: the real-time clock's wake alarm. It takes a
// moment between one minute and 31 days ahead, or a clear, from callers that polkit allows,
// and nothing else: no path, no command. It ends itself when idle; the bus starts it again.
class WakeAlarmService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.larkmoor.NightreelWake1")
public:
    static inline const QString ServiceName = QStringLiteral("org.larkmoor.NightreelWake1");
    static inline const QString ObjectPath = QStringLiteral("/org/larkmoor/NightreelWake1");
    static inline const QString ActionId = QStringLiteral("org.larkmoor.nightreel.set-wake-alarm");
    static constexpr qint64 SoonestSeconds = 60;
    static constexpr qint64 LatestSeconds = 31 * 86400;

    // clockFolder holds the clock's "wakealarm" file.
    WakeAlarmService(const QString& clockFolder, const PolkitCheck& polkit, int idleExitMs,
                     QObject* parent = nullptr);

public slots:
    // Seconds since the epoch.
    Q_SCRIPTABLE void SetWakeAlarm(qlonglong epochSeconds);
    Q_SCRIPTABLE void ClearWakeAlarm();

private:
    bool CallerAllowed();
    bool Write(const QByteArray& value);

    const QString m_alarmFile;
    const PolkitCheck& m_polkit;
    QTimer m_idle;
};
