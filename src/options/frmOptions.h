#pragma once

#include "formats/clsRecordingFormat.h"

#include <QDialog>
#include <array>
#include <functional>

class AudioDevices;
class DefaultFormatStore;
class EventLog;
class MessageBoxPresenter;
class Options;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTimeEdit;
class RecordingInputBox;
class RegKeys;
class UpDown;
class clsError;

// What the options dialog reads and writes.
struct OptionsFormServices {
    EventLog& log;
    RegKeys& registry;
    Options& options;
    clsError& error;
    MessageBoxPresenter& messageBox;
    // The default recording format and where it is kept.
    clsRecordingFormat& defaultFormat;
    DefaultFormatStore& formatStore;
    // A round of the status bar and its disk guard, so that new limits count at once.
    std::function<void()> updateStatusBarPlus;
    // The folder of the running program, where its desktop entry lies.
    QString programFolder;
    // The inputs to record from, and their level.
    AudioDevices& audioDevices;
};

// "Options": the user's settings on five tabs. Nothing is stored before OK, and OK stores
// each group only when its values are within their limits; a recording folder that does
// not exist keeps the dialog open.
class frmOptions : public QDialog {
    Q_OBJECT
public:
    // Without the enhanced player its name is not offered in the player lists.
    frmOptions(const OptionsFormServices& services, bool mediaPlayerAvailable, QWidget* owner);

    void cmdOK_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildRecordTab();
    QWidget* BuildPlayTab();
    QWidget* BuildStartupTab();
    QWidget* BuildDiskTab();
    QWidget* BuildAdvancedTab();
    QLineEdit* LimitedBox(const char* boxName, const char* upDownName, int min, int max,
                          UpDown*& upDown);
    void FormLoad(bool mediaPlayerAvailable);
    void ClampOnLostFocus(QLineEdit* box);
    void btnChangeRecordingFolder_Click();
    void CommandChangeDefautWfx_Click();
    void btnSelectMixer_Click();
    void btnDefaultMixer_Click();
    void SetMixerButtonsState();
    // The parts of OK: the folder (false when it is refused) and what else comes before the
    // format, the step sizes, and everything after them.
    bool TakeFolderAndDiskLimits();
    void SavePlayFwdRevSettings();
    void TakeTheRest();
    void ShowRecordingFolder();

    OptionsFormServices m_s;
    QString m_workingMixerPath;
    QString m_workingRecordingFolder;
    clsRecordingFormat m_workingFormat;
    bool m_formatChanged = false;

    QTabWidget* SSTab1;
    // Record
    QLabel* lblRecordingFolder;
    RecordingInputBox* frameRecordingInput;
    QPushButton* btnChangeRecordingFolder;
    QLabel* LabelCompressionFormat;
    QPushButton* CommandChangeDefautWfx;
    QLineEdit* TextDurationHours;
    QLineEdit* TextDurationMinutes;
    QLineEdit* TextDurationSeconds;
    UpDown* UpDownDurationHours;
    UpDown* UpDownDurationMinutes;
    UpDown* UpDownDurationSeconds;
    QCheckBox* chkConfirmLongRecordings;
    QLineEdit* txtLongRecordingHours;
    UpDown* updnConfirmLongRecordings;
    QCheckBox* chkConfirmStopManualRecording;
    // Play
    QComboBox* ComboWavPlayer;
    QComboBox* ComboMP3Player;
    std::array<QLineEdit*, 6> txtFwdRev{};
    std::array<UpDown*, 6> UpDown1{};
    std::array<QComboBox*, 6> comboMinSec{};
    QCheckBox* chkShowActualTimeInPlayer;
    // Startup
    QCheckBox* chkStartupFolder;
    QRadioButton* optNormalStartupMode;
    QRadioButton* optHiddenStartupMode;
    QCheckBox* chkShowSplashScreen;
    // Disk
    QLineEdit* txtWarnRecMegsLeft;
    UpDown* updnWarnRecMegsLeft;
    QLineEdit* txtStopRecMegsLeft;
    UpDown* updnStopRecMegsLeft;
    QCheckBox* chkPurgeOldRecordings;
    QLineEdit* txtPaddingSeconds;
    UpDown* updnPaddingSeconds;
    QLineEdit* txtPurgeDays;
    UpDown* updnPurgeDays;
    QTimeEdit* dtpkrPurgeTime;
    // Advanced
    QCheckBox* chkAllowJoystickActivation;
    QCheckBox* chkRemoveExpiredPrograms;
    QCheckBox* chkShowRecordingTimeInTaskBar;
    QCheckBox* chkKeepAwakeForRecordings;
    QCheckBox* chkSilenceAlarm;
    QCheckBox* chkShowDesktopNotifications;
    QComboBox* comboDefaultRecordFileNameFormat;
    QLabel* lblMixerControl;
    QPushButton* btnSelectMixer;
    QPushButton* btnDefaultMixer;

    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};
