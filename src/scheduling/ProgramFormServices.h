#pragma once

#include <QString>

class AppDatabase;
class AudioDevices;
class Clock;
class EventLog;
class MessageBoxPresenter;
class Options;
class ProcessLauncher;
class RegKeys;

// What the program editor works with.
struct ProgramFormServices {
    EventLog& log;
    Options& options;
    RegKeys& registry;
    MessageBoxPresenter& messageBox;
    ProcessLauncher& launcher;
    AppDatabase& database;
    const Clock& clock;
    QString runtimeFolder;
    QString mixerFolder;
    // The recording task, which tests a stream's address.
    QString taskProgram;
    // The inputs a program may record from.
    AudioDevices& audioDevices;
};
