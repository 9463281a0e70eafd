#pragma once

#include <QString>

class AppDatabase;
class Clock;
class DiskSpace;
class EventLog;
class MessageBoxPresenter;
class MixerProfiles;
class NetworkConnections;
class Options;
class ProcessLauncher;
class SleepInhibitor;
class RegKeys;
class Scheduler;
class WindowList;
class clsAppStatus;
class clsError;
struct clsManualRecord;

// What the recorder and its parts use of the rest of the system, handed in by whoever
// composes the program (the application context, or a test). The recorder hands each part
// the few of these it uses.
struct RecorderServices {
    EventLog& log;
    Clock& clock;
    Options& options;
    RegKeys& registry;
    clsAppStatus& appStatus;
    clsError& error;
    AppDatabase& database;
    Scheduler& scheduler;
    MessageBoxPresenter& messageBox;
    ProcessLauncher& launcher;
    DiskSpace& diskSpace;
    MixerProfiles& mixerProfiles;
    // The desktop's windows and network connections, for the streaming player and the hang-up.
    WindowList& windows;
    NetworkConnections& network;
    // The socket to the recording task and its parameter file lie here.
    QString runtimeFolder;
    // What outlasts the run (the conversion queue) lies here.
    QString dataFolder;
    // The machine's sleep, idling and wake alarm, kept in step with the recordings.
    SleepInhibitor& sleepInhibitor;
    // Whether a desktop is there to open a browser or close a player window on.
    bool hasDisplay = true;
    // The one manual request, filled by the dialog and the bus interface.
    const clsManualRecord& manualRequest;
};
