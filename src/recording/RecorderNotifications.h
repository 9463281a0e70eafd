#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

class DesktopNotifications;
class EventLog;
class Options;
class Recorder;
class clsAppStatus;
class clsError;

// What the recorder has to say to a user who is away, sent to the desktop's notifications:
// a recording that failed or that the disk guard stopped, the silence alarm, the disk
// running low, a task that stopped answering, a conversion that failed. It hears them as
// they go into the event log, so that the reasons are the log's own; each event gives one
// notification, and none while the option is off.
class RecorderNotifications : public QObject {
    Q_OBJECT
public:
    RecorderNotifications(EventLog& log, const Options& options, const clsAppStatus& appStatus,
                          const clsError& error, Recorder& recorder, DesktopNotifications& desktop,
                          QObject* parent = nullptr);
    ~RecorderNotifications() override;

    // How an entry of the log reads as a notification.
    struct Event {
        QString summary;
        // Why, in the user's words. Empty: the entry's heading says it, or for a conversion
        // the first line of its details (the encoder's error code).
        QString reason;
        // About the conversion in progress rather than the recording.
        bool conversion = false;
        bool critical = true;
    };

private:
    void Heard(const QString& message, const QString& details);
    void ModeChanged();
    void DiskLowChanged();
    void Send(const QString& summary, const QString& subject, const QString& reason, bool critical);

    EventLog& m_log;
    const Options& m_options;
    const clsAppStatus& m_appStatus;
    const clsError& m_error;
    Recorder& m_recorder;
    DesktopNotifications& m_desktop;
    const QHash<QString, Event> m_events;
    // What went out since the last recording or conversion began: the disk guard logs its
    // stop again on every round until the recording has ended.
    QSet<QString> m_sent;
    bool m_recording = false;
    bool m_converting = false;
    bool m_diskLow = false;
};
