#include "diagnostics/LoggedMessageBox.h"

#include "diagnostics/EventLog.h"
#include "diagnostics/UnreadBox.h"

#include <QCoreApplication>
#include <QDebug>

namespace {

QString AnswerText(MsgResult answer)
{
    switch (answer) {
    case MsgResult::No:
        return QCoreApplication::translate("LoggedMessageBox", "No");
    case MsgResult::Cancel:
        return QCoreApplication::translate("LoggedMessageBox", "Cancel");
    default:
        return QString();
    }
}

} // namespace

MsgResult LoggedMessageBox::Show(const QString& title, const QString& text, MsgIcon icon,
                                 MsgButtons buttons)
{
    const MsgResult answer = UnreadAnswer(buttons);
    QString details = text;
    if (answer != MsgResult::Ok)
        details += tr("\r\nAnswered without a window: ") + AnswerText(answer);
    if (m_log)
        m_log->LogEvent(EventTypeOf(icon), title, details);
    else
        qWarning().noquote() << title << '|' << details;
    return answer;
}
