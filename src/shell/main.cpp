#include "shell/HeadlessStart.h"
#include "shell/ModuleStart.h"

#include <QByteArray>

int main(int argc, char* argv[])
{
    // The run without a window goes nowhere near the widgets: no display is needed.
    if (argc == 2 && qstrcmp(argv[1], "--headless") == 0)
        return HeadlessStart::Main(argc, argv);
    return ModuleStart::Main(argc, argv);
}
