#pragma once

#include <QDialog>

class EventLog;
class MessageBoxPresenter;
class MixerProfiles;
class QComboBox;
class QListWidget;

// Saves the present mixer as a profile under a name typed or picked from the profiles of
// the list it was opened from; a new name joins that list.
class frmAddMixerProfile : public QDialog {
    Q_OBJECT
public:
    frmAddMixerProfile(MixerProfiles& profiles, EventLog& log, MessageBoxPresenter& messageBox,
                       QListWidget& lstMixerProfiles, QWidget* owner = nullptr);

    void frmSave_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    MixerProfiles& m_profiles;
    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    QListWidget& m_lstMixerProfiles;
    QComboBox* Combo1;
};
