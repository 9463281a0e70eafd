#pragma once

#include "common/MessageBox.h"

class EventLog;

// The message boxes of the whole program. Off an unattended path a box waits for its answer
// as usual. On one (see UnattendedPath) it is shown without waiting, with its title and
// text, written to the event log, and answered as a box closed unread is: Ok, or Cancel or
// No where those are offered. So the recorder never stops for a box nobody sees.
class UnattendedMessageBox : public MessageBoxPresenter {
public:
    UnattendedMessageBox(MessageBoxPresenter& screen, EventLog& log);

    MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                   MsgButtons buttons) override;
    void ShowWithoutWaiting(const QString& title, const QString& text, MsgIcon icon) override;

private:
    MessageBoxPresenter& m_screen;
    EventLog& m_log;
};
