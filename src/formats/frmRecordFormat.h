#pragma once

#include "formats/clsRecordingFormat.h"
#include "ui_frmRecordFormat.h"

#include <QDialog>
#include <QList>

class EventLog;

// "Select Recording Format": chooses a recording format, in place, on the object it is
// given, and keeps a copy for Cancel. Standard PCM formats are chosen on the form; any
// other through "Select from all recording formats". OK marks the format as confirmed
// (FormatChanged).
class frmRecordFormat : public QDialog, private Ui::frmRecordFormat {
    Q_OBJECT
public:
    frmRecordFormat(EventLog& log, clsRecordingFormat& format, QWidget* parent);

    // Brings the controls in line with the format: the form's load and the format's options
    // report a failure here, a button's handler lets ShowFormat's pass.
    void CheckRecordingFormat();

    void reject() override;

private:
    void ShowFormat();
    void UpdateMp3Frame();
    void SetPcmControlsEnabled(bool enabled);
    void SetWfxFromPcmForm();
    void SelectPreset(quint16 channels, quint32 samplesPerSec, quint16 bits);
    void CheckUsePcm_Click();
    void Mp3Flag_Click();
    void CommandAdvanced_Click();
    void CommandOk_Click();
    void CommandCancel_Click();

    EventLog& m_log;
    clsRecordingFormat& m_format;
    clsRecordingFormat m_backup;
    QList<quint32> m_sampleRates;
    bool m_updating = false;
};

// Shows the format dialog for the format, modally over owner; true when the user
// confirmed with OK, false after Cancel. A failure of the dialog is an error.
bool ChangeFormat(EventLog& log, clsRecordingFormat& format, QWidget* owner);
