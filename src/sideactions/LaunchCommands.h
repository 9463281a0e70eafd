#pragma once

#include <QString>

class EventLog;
class ProcessLauncher;

// The path helpers the launches rest on. Folders are split at the native separator.
// The directory up to and including its last separator; "" without one.
QString GetDirectory(const QString& path);
// The text behind the last separator; a path without one is a mistake of the caller and
// is logged, giving "".
QString GetFilename(EventLog& log, const QString& path);
// All but the last four characters of the trimmed name, assuming a three-letter extension;
// "" for under five characters.
QString GetFileBase(const QString& name);
// The last three characters of the trimmed name; "" for under five characters.
QString GetFileExtension(const QString& name);

// Expands %d %p %f %b %e (in either case) and %% with the parts of the file name. Any
// other character behind a % leaves the % as it stands. Throws, marked with its name.
QString InterpretCommand(EventLog& log, const QString& command, const QString& fileName);

// Starts the command of a program after its recording, with the recording's file name put
// into it; a command that can't be started is logged.
void LaunchAfterRecording(EventLog& log, ProcessLauncher& launcher, bool recordingOk,
                          const QString& command, bool onlyIfOk, const QString& fileName);
