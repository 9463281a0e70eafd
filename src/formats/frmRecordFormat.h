#pragma once

#include "formats/clsRecordingFormat.h"

#include <QDialog>
#include <QList>

class EventLog;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

// "Select Recording Format": chooses a recording format, in place, on the object it is
// given, and keeps a copy for Cancel. Standard PCM formats are chosen on the form; any
// other through "Select from all recording formats". OK marks the format as confirmed
// (FormatChanged).
class frmRecordFormat : public QDialog {
    Q_OBJECT
public:
    frmRecordFormat(EventLog& log, clsRecordingFormat& format, QWidget* parent);

    // Brings the controls in line with the format.
    void CheckRecordingFormat();

    void reject() override;

private:
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

    QCheckBox* CheckUsePcm;
    QGroupBox* framePcmFormat;
    QRadioButton* optPhoneQuality;
    QRadioButton* optRadioQuality;
    QRadioButton* optCDQuality;
    QGroupBox* FrameChannels;
    QRadioButton* OptionMono;
    QRadioButton* OptionStereo;
    QGroupBox* FrameResolution;
    QRadioButton* Option8bit;
    QRadioButton* Option16bit;
    QLabel* LabelSampleRate;
    QComboBox* ComboSampleRate;
    QPushButton* CommandAdvanced;
    QGroupBox* frameMP3;
    QCheckBox* chkConvert;
    QCheckBox* chkMP3FileExtension;
    QPushButton* btnInfo;
    QGroupBox* Frame4;
    QLabel* LabelFormat;
    QLabel* Label1;
    QPushButton* CommandOk;
    QPushButton* CommandCancel;
};

// Shows the format dialog for the format, modally over owner; true when the user
// confirmed with OK, false after Cancel.
bool ChangeFormat(EventLog& log, clsRecordingFormat& format, QWidget* owner);
