#pragma once

#include <QCoreApplication>
#include <QString>

class clsAppStatus;
class clsError;

// What is shown of the mode flags: which commands are open, the title and the mode panel.
// Worked out from the state in one place; the window applies it, the bus reports its panel.
struct ModeDisplay {
    bool playEnabled = false;
    bool recordEnabled = false;
    bool pauseEnabled = false;
    bool pausePressed = false;
    QString pauseToolTip;
    QString pauseImage;
    QString pauseMenuCaption;
    QString trayPauseCaption;
    bool diskStatusEnabled = false;
    bool stopEnabled = false;
    QString stopCaption;

    QString title;
    QString panelText;
    QString panelToolTip;

    // Inputs that are not mode flags or error conditions.
    struct Extra {
        bool recentRecordingExists = false;
        // The blink state of the tray while paused: the panel text alternates with it.
        bool blinkOn = true;
        // The running conversion's status text and its recording's description.
        QString convertingText;
        QString convertingDescription;
        QString elapsedRemainingText;
    };
    static ModeDisplay Compute(const clsAppStatus& status, const clsError& error,
                               const Extra& extra);

    Q_DECLARE_TR_FUNCTIONS(ModeDisplay)
};
