#include "shell/ModuleStart.h"

int main(int argc, char* argv[])
{
    return ModuleStart::Main(argc, argv);
}
