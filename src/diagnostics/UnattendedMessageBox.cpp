#include "diagnostics/UnattendedMessageBox.h"

#include "common/UnattendedPath.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/UnreadBox.h"

UnattendedMessageBox::UnattendedMessageBox(MessageBoxPresenter& screen, EventLog& log)
    : m_screen(screen)
    , m_log(log)
{
}

MsgResult UnattendedMessageBox::Show(const QString& title, const QString& text, MsgIcon icon,
                                     MsgButtons buttons)
{
    if (!UnattendedPath::Active())
        return m_screen.Show(title, text, icon, buttons);
    // The log keeps it for a user who comes back after the box was closed or covered.
    m_log.LogEvent(EventTypeOf(icon), title, text);
    m_screen.ShowWithoutWaiting(title, text, icon);
    return UnreadAnswer(buttons);
}

void UnattendedMessageBox::ShowWithoutWaiting(const QString& title, const QString& text,
                                              MsgIcon icon)
{
    m_screen.ShowWithoutWaiting(title, text, icon);
}
