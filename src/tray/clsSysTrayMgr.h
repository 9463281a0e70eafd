#pragma once

#include "common/IntervalTimer.h"
#include "tray/cSysTray.h"

#include <QObject>
#include <QString>
#include <memory>

class EventLog;
class clsAppStatus;
class clsError;

// Chooses the tray icon's picture and tip from the mode flags and the error state, and
// animates it while a recording or a conversion runs. The platform is called only when the
// picture or the tip changes, so the animation timer costs nothing in the steady states.
class clsSysTrayMgr : public QObject {
    Q_OBJECT
public:
    // Puts the icon in at once, stopped; every later change of the mode flags or of the
    // error state updates it.
    clsSysTrayMgr(EventLog& log, clsAppStatus& appStatus, clsError& error,
                  std::unique_ptr<cSysTray> tray, QObject* parent = nullptr);
    // Removes the icon.
    ~clsSysTrayMgr() override;

    void Update();
    // One animation step: Update with the phases reached, then both phases move on.
    void HandleTimerEvent();
    // From the first recording that started for good to the end of the run.
    void StartTimer() { tmrSystray.SetInterval(500); }

    int RecordPhase() const { return m_recordPhase; }
    int ConvertPhase() const { return m_convertPhase; }
    // The paused blink: on for an even record phase.
    bool BlinkOn() const { return m_recordPhase % 2 == 0; }

    const SysTrayPicture& CurrentIcon() const { return m_currentIcon; }
    const QString& CurrentTip() const { return m_currentTip; }

    IntervalTimer tmrSystray;

signals:
    // While a recording is paused, each update: the mode panel shows "RECORDING PAUSED"
    // when on and nothing when off, without its picture, in step with the icon.
    void PausedBlink(bool on);

private:
    void InitializeSystemTray();

    EventLog& m_log;
    clsAppStatus& m_appStatus;
    clsError& m_error;
    std::unique_ptr<cSysTray> m_tray;
    // The animation's frames; they run for the life of the object and are never reset, so
    // a new mode starts at whatever frame was reached.
    int m_recordPhase = 1;
    int m_convertPhase = 1;
    SysTrayPicture m_currentIcon;
    QString m_currentTip;
};
