#include "diagnostics/LoggedMessageBox.h"

#include "diagnostics/EventLog.h"

#include <QDebug>

namespace {

MsgResult UnattendedAnswer(MsgButtons buttons)
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

QString AnswerText(MsgResult answer)
{
    switch (answer) {
    case MsgResult::No:
        return QStringLiteral("No");
    case MsgResult::Cancel:
        return QStringLiteral("Cancel");
    default:
        return QString();
    }
}

} // namespace

MsgResult LoggedMessageBox::Show(const QString& title, const QString& text, MsgIcon icon,
                                 MsgButtons buttons)
{
    const MsgResult answer = UnattendedAnswer(buttons);
    QString details = text;
    if (answer != MsgResult::Ok)
        details += QStringLiteral("\r\nAnswered without a window: ") + AnswerText(answer);
    const qint16 type = icon == MsgIcon::Critical      ? EventError
                        : icon == MsgIcon::Exclamation ? EventWarning
                                                       : EventInformation;
    if (m_log)
        m_log->LogEvent(type, title, details);
    else
        qWarning().noquote() << title << '|' << details;
    return answer;
}
