#include "control/CallMessageBox.h"

CallMessageBox::CallMessageBox(MessageBoxPresenter& presenter)
    : m_presenter(presenter)
{
}

CallMessageBox::Capture::Capture(CallMessageBox& box)
    : m_box(box)
{
    m_box.m_capturing = true;
    m_box.m_refusal.reset();
}

CallMessageBox::Capture::~Capture()
{
    m_box.m_capturing = false;
}

MsgResult CallMessageBox::Show(const QString& title, const QString& text, MsgIcon icon,
                               MsgButtons buttons)
{
    if (!m_capturing)
        return m_presenter.Show(title, text, icon, buttons);
    const bool refusal = icon == MsgIcon::Exclamation || icon == MsgIcon::Critical;
    if (refusal && !m_refusal)
        m_refusal = Refusal{title, text};
    if (buttons == MsgButtons::YesNo || buttons == MsgButtons::YesNoCancel)
        return refusal ? MsgResult::No : MsgResult::Yes;
    return refusal && buttons == MsgButtons::OkCancel ? MsgResult::Cancel : MsgResult::Ok;
}

void CallMessageBox::ShowWithoutWaiting(const QString& title, const QString& text, MsgIcon icon)
{
    m_presenter.ShowWithoutWaiting(title, text, icon);
}
