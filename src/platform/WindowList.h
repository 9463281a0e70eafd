#pragma once

#include <QList>
#include <QString>

using WindowHandle = quint32;

// One top-level window of the desktop, as the streaming player's search reads it.
struct TopLevelWindow {
    WindowHandle handle = 0;
    QString title;
    // A dialog that belongs to another window.
    bool hasOwner = false;
    // Shown or minimised; a withdrawn window is not.
    bool visible = false;
    bool enabled = true;
};

// The desktop's top-level windows. On a desktop without them (no X display, a pure Wayland
// session) the list is empty and every request does nothing.
class WindowList {
public:
    virtual ~WindowList() = default;
    // A window that goes away while it is read is left out.
    virtual QList<TopLevelWindow> TopLevelWindows() = 0;
    // Asks the window to close, as its close button would: a program may ask a question or
    // refuse. Never a kill.
    virtual void RequestClose(WindowHandle window) = 0;
    virtual WindowHandle ForegroundWindow() = 0;
    // False when the desktop refused or there is none.
    virtual bool SetForegroundWindow(WindowHandle window) = 0;
};
