#pragma once

#include <QDialog>

class EventLog;
class MessageBoxPresenter;
class MixerProfiles;
class QListWidget;
class QPushButton;

// The list of mixer profiles: activate one now, add the present mixer as a profile, remove
// one. The buttons that need a profile are enabled only while one is selected.
class frmMixerProfiles : public QDialog {
    Q_OBJECT
public:
    frmMixerProfiles(MixerProfiles& profiles, EventLog& log, MessageBoxPresenter& messageBox,
                     QWidget* owner = nullptr);

    void btnActivate_Click();
    void btnAdd_Click();
    void btnRemove_Click();

private:
    void EnableProfileButtons(bool enabled);
    bool HasSelection() const;

    MixerProfiles& m_profiles;
    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    QListWidget* lstMixerProfiles;
    QPushButton* btnActivate;
    QPushButton* btnRemove;
};
