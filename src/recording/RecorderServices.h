#pragma once

#include "recording/RecordingControlServices.h"

#include <QString>

class SleepInhibitor;
class clsError;
struct clsManualRecord;

// What the recorder and its parts use of the rest of the system, handed in by whoever
// composes the program (the application context, or a test): the recording control's share,
// which the other parts draw on too, and what only they use. The recorder hands each part
// the few of these it uses.
struct RecorderServices : RecordingControlServices {
    clsError& error;
    // The socket to the recording task and its parameter file lie here.
    QString runtimeFolder;
    // What outlasts the run (the conversion queue) lies here.
    QString dataFolder;
    // The machine's sleep, idling and wake alarm, kept in step with the recordings.
    SleepInhibitor& sleepInhibitor;
    // The one manual request, filled by the dialog and the bus interface.
    const clsManualRecord& manualRequest;
};
