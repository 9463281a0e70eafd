#pragma once

// The entry routine: one instance only (unless asked for a second), the splash, the main
// window, and the event loop until the main window closes.
struct CommandLine;

namespace ModuleStart {
int Main(int argc, char* argv[], const CommandLine& line);
} // namespace ModuleStart
