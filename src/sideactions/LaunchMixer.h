#pragma once

#include <QString>

class EventLog;
class ProcessLauncher;

// Starts the mixer application for adjusting the mixer by hand, in a normal window. The path
// is one program, blanks and all, started without arguments. A program that can't be started
// is logged as an error; nothing is shown, since the log is where the user looks for it.
void LaunchMixer(EventLog& log, ProcessLauncher& launcher, const QString& mixerPath);
