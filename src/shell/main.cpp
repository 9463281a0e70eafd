#include "shell/CommandLine.h"
#include "shell/HeadlessStart.h"
#include "shell/ModuleStart.h"

int main(int argc, char* argv[])
{
    const CommandLine line = CommandLine::Parse(argc, argv);
    if (line.exitCode)
        return *line.exitCode;
    // The run without a window goes nowhere near the widgets: no display is needed.
    if (line.headless)
        return HeadlessStart::Main(argc, argv);
    return ModuleStart::Main(argc, argv, line);
}
