#pragma once

#include "common/MessageBox.h"
#include "diagnostics/EventLog.h"

// A box that nobody reads: answered as if closed unread (Ok where that is the only button,
// else No or Cancel) and logged under the type its icon stands for.
inline MsgResult UnreadAnswer(MsgButtons buttons)
{
    switch (buttons) {
    case MsgButtons::Ok:
        return MsgResult::Ok;
    case MsgButtons::YesNo:
        return MsgResult::No;
    default:
        return MsgResult::Cancel;
    }
}

inline EventType EventTypeOf(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Critical:
        return EventError;
    case MsgIcon::Exclamation:
        return EventWarning;
    default:
        return EventInformation;
    }
}
