#include "common/clsAppStatus.h"

#include "common/MessageBox.h"

clsAppStatus::clsAppStatus(QObject* parent)
    : QObject(parent)
{
}

void clsAppStatus::Set(bool& flag, bool value)
{
    if (flag == value)
        return;
    flag = value;
    emit Update();
}

void clsAppStatus::HandleSuspendMenuClickEvent(MessageBoxPresenter& messageBox)
{
    if (m_suspended) {
        Set(m_suspended, false);
        return;
    }
    const QString invalid = tr("Invalid request");
    if (m_recording) {
        messageBox.Show(invalid, tr("Please stop the recording in process prior to suspending."),
                        MsgIcon::Exclamation, MsgButtons::Ok);
    } else if (m_converting) {
        messageBox.Show(invalid,
                        tr("Please stop the MP3 conversion in process prior to suspending."),
                        MsgIcon::Exclamation, MsgButtons::Ok);
    } else if (messageBox.Show(tr("Suspend Nightreel 2000"),
                               tr("This will suspend Nightreel 2000. No recording will "
                                  "take place while suspended. Proceed?"),
                               MsgIcon::None, MsgButtons::YesNo) == MsgResult::Yes) {
        Set(m_suspended, true);
    }
}
