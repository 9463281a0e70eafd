#pragma once

#include "platform/WindowList.h"

// The windows of the X display named in DISPLAY, over a connection of its own for each
// request.
class XcbWindowList : public WindowList {
public:
    QList<TopLevelWindow> TopLevelWindows() override;
    void RequestClose(WindowHandle window) override;
    WindowHandle ForegroundWindow() override;
    bool SetForegroundWindow(WindowHandle window) override;
};
