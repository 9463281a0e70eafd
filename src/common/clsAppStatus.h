#pragma once

#include <QObject>

class MessageBoxPresenter;

// The mode flags of the program. A setter repaints only when the value changes.
class clsAppStatus : public QObject {
    Q_OBJECT
public:
    explicit clsAppStatus(QObject* parent = nullptr);

    bool Paused() const { return m_paused; }
    void SetPaused(bool value) { Set(m_paused, value); }
    bool Converting() const { return m_converting; }
    void SetConverting(bool value) { Set(m_converting, value); }
    bool Playing() const { return m_playing; }
    void SetPlaying(bool value) { Set(m_playing, value); }
    bool Recording() const { return m_recording; }
    void SetRecording(bool value) { Set(m_recording, value); }
    bool Suspended() const { return m_suspended; }
    bool Maintenance() const { return m_maintenance; }
    void SetMaintenance(bool value) { Set(m_maintenance, value); }
    // The application-ready flag: false until the end of the first activation; the timers
    // idle until then. Not a mode: it repaints nothing.
    bool Ready() const { return m_ready; }
    void SetReady(bool value) { m_ready = value; }

    // The Suspend command: ends a suspension, or starts one once the user agrees; refused
    // while recording or converting.
    void HandleSuspendMenuClickEvent(MessageBoxPresenter& messageBox);

signals:
    // A flag changed: the mode display is brought up to date.
    void Update();

private:
    void Set(bool& flag, bool value);

    bool m_paused = false;
    bool m_converting = false;
    bool m_playing = false;
    bool m_recording = false;
    bool m_suspended = false;
    bool m_maintenance = false;
    bool m_ready = false;
};
