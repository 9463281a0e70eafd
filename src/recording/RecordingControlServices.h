#pragma once

class AppDatabase;
class Clock;
class DiskSpace;
class EventLog;
class MessageBoxPresenter;
class MixerProfiles;
class NetworkConnections;
class Options;
class ProcessLauncher;
class RegKeys;
class Scheduler;
class WindowList;
class clsAppStatus;

// What the recording control uses of the rest of the system.
struct RecordingControlServices {
    EventLog& log;
    Clock& clock;
    Options& options;
    // The recent recordings of the File menu are saved there.
    RegKeys& registry;
    clsAppStatus& appStatus;
    AppDatabase& database;
    Scheduler& scheduler;
    MessageBoxPresenter& messageBox;
    // The application after a recording.
    ProcessLauncher& launcher;
    DiskSpace& diskSpace;
    MixerProfiles& mixerProfiles;
    // The streaming player's window is closed at the end, the connections hung up.
    WindowList& windows;
    NetworkConnections& network;
    // Whether a desktop is there to close a player window on.
    bool hasDisplay = true;
};
