#include "recording/ModeDisplay.h"

#include "common/clsAppStatus.h"
#include "diagnostics/clsError.h"

#include <QCoreApplication>

ModeDisplay ModeDisplay::Compute(const clsAppStatus& status, const clsError& error,
                                 const Extra& extra)
{
    const bool recording = status.Recording();
    ModeDisplay d;
    d.playEnabled = extra.recentRecordingExists;
    d.recordEnabled =
        !recording && !status.Suspended() && !status.Maintenance() && !error.AnyCurrentErrors();
    d.pauseEnabled = recording;
    d.pausePressed = recording && status.Paused();
    if (d.pausePressed) {
        d.pauseToolTip = tr("Continue Recording");
        d.pauseImage = QStringLiteral("pause2");
        d.pauseMenuCaption = tr("&Continue Recording");
        d.trayPauseCaption = d.pauseMenuCaption;
    } else {
        d.pauseToolTip = recording ? tr("Pause Recording") : QString();
        d.pauseImage = QStringLiteral("pause1");
        d.pauseMenuCaption = tr("Pa&use Recording");
        d.trayPauseCaption = tr("&Pause Recording");
    }
    d.diskStatusEnabled = !error.InvalidRecordingDirectory();
    d.stopEnabled = recording || status.Converting();
    d.stopCaption = !recording && status.Converting() ? tr("Stop MP3 Conversion")
                                                      : tr("Stop Current Recording");

    // The first condition that holds decides the mode.
    if (status.Suspended()) {
        d.title = tr("Nightreel 2000") + tr(" - Suspended");
        d.panelText = QStringLiteral("SUSPENDED");
        d.panelToolTip = tr("Nightreel 2000 is in suspended mode");
    } else if (recording && status.Paused()) {
        d.title = tr("Nightreel 2000") + tr(" - Recording (PAUSED)");
        d.panelText = extra.blinkOn ? tr("RECORDING PAUSED") : QString();
        d.panelToolTip = tr("RECORDING PAUSED");
    } else if (recording) {
        d.title = tr("Nightreel 2000") + tr(" - Recording");
        d.panelText = QStringLiteral("RECORDING");
        d.panelToolTip = extra.elapsedRemainingText;
    } else if (status.Converting()) {
        d.title = tr("Nightreel 2000") + tr(" - Converting to MP3");
        d.panelText = extra.convertingText;
        // The panel shows the percent already; the tip says which recording it is.
        d.panelToolTip = tr("Converting: ") + extra.convertingDescription;
    } else if (status.Playing()) {
        d.title = tr("Nightreel 2000") + tr(" - Playing");
        d.panelText = QStringLiteral("PLAYING");
        d.panelToolTip = tr("Nightreel 2000 is playing a recording");
    } else {
        d.title = tr("Nightreel 2000");
        d.panelText = QStringLiteral("STOPPED");
        d.panelToolTip = tr("Nightreel 2000 is currently stopped");
    }
    return d;
}
