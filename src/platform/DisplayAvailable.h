#pragma once

#include <QtGlobal>

// Whether a desktop is there to show windows: an X display or a Wayland compositor. A
// recorder started by the service manager on a machine nobody sits at has neither, and
// skips what would open or close a window.
inline bool DisplayAvailable()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}
