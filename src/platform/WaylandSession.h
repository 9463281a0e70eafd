#pragma once

#include <QtGlobal>

// Whether the desktop is a Wayland session. The X server there (XWayland) sees only the
// windows of X11 programs: native Wayland windows can be neither listed nor closed.
inline bool IsWaylandSession()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qgetenv("XDG_SESSION_TYPE") == QByteArrayLiteral("wayland");
}
