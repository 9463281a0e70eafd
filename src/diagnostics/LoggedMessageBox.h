#pragma once

#include "common/MessageBox.h"

#include <QCoreApplication>

class EventLog;

// The message boxes of a recorder that has no window: each becomes an entry of the event
// log (a critical box an error, an exclamation a warning, the rest information), and each
// question gets the answer that changes nothing, since nobody is there to give another.
class LoggedMessageBox : public MessageBoxPresenter {
public:
    // The log lives in the database, which is opened after the boxes are handed out: until
    // then a box goes to the diagnostic output only.
    void Attach(EventLog& log) { m_log = &log; }

    MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                   MsgButtons buttons) override;
    // There is no screen; the box that does not wait has been logged by whoever showed it.
    void ShowWithoutWaiting(const QString&, const QString&, MsgIcon) override {}

private:
    EventLog* m_log = nullptr;

    Q_DECLARE_TR_FUNCTIONS(LoggedMessageBox)
};
