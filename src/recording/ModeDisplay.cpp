#include "recording/ModeDisplay.h"

#include "common/clsAppStatus.h"
#include "diagnostics/clsError.h"

namespace {

const QString kTitle = QStringLiteral("Nightreel 2000");
const QString kStopRecording = QStringLiteral("Stop Current Recording");

} // namespace

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
        d.pauseToolTip = QStringLiteral("Continue Recording");
        d.pauseImage = QStringLiteral("pause2");
        d.pauseMenuCaption = QStringLiteral("&Continue Recording");
        d.trayPauseCaption = d.pauseMenuCaption;
    } else {
        d.pauseToolTip = recording ? QStringLiteral("Pause Recording") : QString();
        d.pauseImage = QStringLiteral("pause1");
        d.pauseMenuCaption = QStringLiteral("Pa&use Recording");
        d.trayPauseCaption = QStringLiteral("&Pause Recording");
    }
    d.diskStatusEnabled = !error.InvalidRecordingDirectory();
    d.stopEnabled = recording || status.Converting();
    d.stopCaption =
        !recording && status.Converting() ? QStringLiteral("Stop MP3 Conversion") : kStopRecording;

    // The first condition that holds decides the mode.
    if (status.Suspended()) {
        d.title = kTitle + QStringLiteral(" - Suspended");
        d.panelText = QStringLiteral("SUSPENDED");
        d.panelToolTip = QStringLiteral("Nightreel 2000 is in suspended mode");
    } else if (recording && status.Paused()) {
        d.title = kTitle + QStringLiteral(" - Recording (PAUSED)");
        d.panelText = extra.blinkOn ? QStringLiteral("RECORDING PAUSED") : QString();
        d.panelToolTip = QStringLiteral("RECORDING PAUSED");
    } else if (recording) {
        d.title = kTitle + QStringLiteral(" - Recording");
        d.panelText = QStringLiteral("RECORDING");
        d.panelToolTip = extra.elapsedRemainingText;
    } else if (status.Converting()) {
        d.title = kTitle + QStringLiteral(" - Converting to MP3");
        d.panelText = extra.convertingText;
        // The panel shows the percent already; the tip says which recording it is.
        d.panelToolTip = QStringLiteral("Converting: ") + extra.convertingDescription;
    } else if (status.Playing()) {
        d.title = kTitle + QStringLiteral(" - Playing");
        d.panelText = QStringLiteral("PLAYING");
        d.panelToolTip = QStringLiteral("Nightreel 2000 is playing a recording");
    } else {
        d.title = kTitle;
        d.panelText = QStringLiteral("STOPPED");
        d.panelToolTip = QStringLiteral("Nightreel 2000 is currently stopped");
    }
    return d;
}
