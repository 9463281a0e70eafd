#pragma once

#include "common/clsAppStatus.h"
#include "control/ControlService.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/UnattendedMessageBox.h"
#include "diagnostics/clsError.h"
#include "formats/FormatStore.h"
#include "formats/clsRecordingFormat.h"
#include "recording/Recorder.h"
#include "recording/RecorderNotifications.h"
#include "recordingslist/RecordingsList.h"
#include "recordingslist/SavedLists.h"
#include "scheduling/ProgramFormServices.h"
#include "scheduling/ProgramListCommands.h"
#include "scheduling/Scheduler.h"
#include "sideactions/MixerProfiles.h"
#include "store/AppDatabase.h"
#include "store/AppFolders.h"
#include "store/Options.h"
#include "store/RegKeys.h"

class AudioDevices;
class Clock;
class DesktopNotifications;
class DiskSpace;
class Joystick;
class MessageBoxPresenter;
class Mixer;
class NetworkConnections;
class ProcessLauncher;
class SleepInhibitor;
class WindowList;

// The seams that tests replace; everything else in the context is real.
struct Seams {
    Clock& clock;
    MessageBoxPresenter& messageBox;
    ProcessLauncher& launcher;
    AudioDevices& audioDevices;
    DiskSpace& diskSpace;
    Mixer& mixer;
    WindowList& windows;
    NetworkConnections& network;
    SleepInhibitor& sleepInhibitor;
    Joystick& joystick;
    DesktopNotifications& notifications;
    // False for a run without a window on a machine with no desktop: what would open or
    // close a window is skipped and logged.
    bool hasDisplay = true;
};

// The composition root: what the system holds for the whole run, built in the entry
// routine (tests build a fresh one over temporary folders). Each part is handed the few
// others it uses; nothing below the shell sees the context itself.
class AppContext {
public:
    AppContext(const Seams& seams, const AppFolders& folders);
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

    // The database's steps of the first activation and its restore to the empty original;
    // the steps that fail are logged.
    void InitializeDatabase();
    void RestoreOriginalDatabase();

    double Now() const;
    // What the program list's commands and the program editor are built with.
    ProgramListServices ForProgramList();
    ProgramFormServices ForProgramForm();
    // What the bus interface is built with; its boxes are captured by the given presenter,
    // which must be the one the context shows its boxes through.
    ControlServices ForControl(CallMessageBox& messageBox);

    Clock& clock;
    MessageBoxPresenter& messageBox;
    ProcessLauncher& launcher;
    AudioDevices& audioDevices;
    DiskSpace& diskSpace;
    Mixer& mixer;
    WindowList& windows;
    NetworkConnections& network;
    const AppFolders folders;

    clsError error;
    // Before the log, which writes to it.
    AppDatabase database;
    EventLog log;
    // What messageBox is: the seam's boxes, which never wait on the recorder's own paths.
    UnattendedMessageBox boxes;
    RegKeys registry;
    Options options;
    clsAppStatus appStatus;
    Scheduler scheduler;
    // The profiles in the data folder's "mixer".
    MixerProfiles mixerProfiles;
    // The default format of the Info row: new programs and manual recordings start with it.
    clsRecordingFormat WfxDefault;
    // Where WfxDefault is read from and saved to.
    DefaultFormatStore defaultFormats;
    // The one manual request that a recording of program -1 starts from: the manual dialog
    // and the bus interface fill it, the recorder reads it.
    clsManualRecord manualRequest;
    Recorder recorder;
    RecordingsList recordingsList;
    SavedLists savedLists;
    // Its buttons start, pause and stop manual recordings.
    Joystick& joystick;
    // The desktop's notifications: the recorder's troubles go there, and a click on one
    // asks for the event log.
    DesktopNotifications& desktopNotifications;
    RecorderNotifications recorderNotifications;
};
