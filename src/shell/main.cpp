#include "shell/CommandLine.h"
#include "shell/ModuleStart.h"

int main(int argc, char* argv[])
{
    const CommandLine line = CommandLine::Parse(argc, argv);
    if (line.exitCode)
        return *line.exitCode;
    return ModuleStart::Main(argc, argv, line);
}
