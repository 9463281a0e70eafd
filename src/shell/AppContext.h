#pragma once

#include "diagnostics/EventLog.h"
#include "diagnostics/clsError.h"
#include "formats/FormatStore.h"
#include "formats/clsRecordingFormat.h"
#include "scheduling/Scheduler.h"
#include "shell/clsAppStatus.h"
#include "shell/clsRecordingStatus.h"
#include "store/AppDatabase.h"
#include "store/AppFolders.h"
#include "store/Options.h"
#include "store/RegKeys.h"

class AudioDevices;
class Clock;
class MessageBoxPresenter;
class ProcessLauncher;

// The seams that tests replace; everything else in the context is real.
struct Seams {
    Clock& clock;
    MessageBoxPresenter& messageBox;
    ProcessLauncher& launcher;
    AudioDevices& audioDevices;
};

// What the system holds for the whole run, owned in one place and handed to whoever needs
// it. Tests build a fresh one over temporary folders.
class AppContext {
public:
    AppContext(const Seams& seams, const AppFolders& folders);
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

    double Now() const;

    Clock& clock;
    MessageBoxPresenter& messageBox;
    ProcessLauncher& launcher;
    AudioDevices& audioDevices;
    const AppFolders folders;

    clsError error;
    EventLog log;
    RegKeys registry;
    Options options;
    clsAppStatus appStatus;
    clsRecordingStatus recordingStatus;
    AppDatabase database;
    Scheduler scheduler;
    // The format of the program being handled, the working copy that the dialogs show and
    // change, and the default format of the Info row.
    clsRecordingFormat ProgramFormat;
    clsRecordingFormat ProgramFormFormat;
    clsRecordingFormat WfxDefault;
    // Where WfxDefault is read from and saved to.
    DefaultFormatStore defaultFormats;
    // False until the end of the first activation: the timers idle until then.
    bool appReady = false;
    // Asks the running MP3 conversion to stop at its next step.
    bool StopMp3Conversion = false;
};
