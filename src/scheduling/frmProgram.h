#pragma once

#include "scheduling/ProgramEditor.h"
#include "scheduling/ProgramFormServices.h"

#include <QDialog>
#include <QList>
#include <array>

struct ProgramCheckValues;
class QCheckBox;
class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTimeEdit;
class SourceChooser;

// The program editor: one program on five tabs. It writes nothing to the database itself;
// the caller fills it, shows it modally and, when ProgramFormOk() is true afterwards,
// writes FormValues().
class frmProgram : public QDialog {
    Q_OBJECT
public:
    frmProgram(const ProgramFormServices& services, QWidget* owner);

    // Set by the caller before the dialog is shown: an edit is never in conflict with the
    // row it edits.
    bool EditingExisting = false;
    qint32 EditProgramId = 0;

    bool FormatChanged = false;
    qint32 DurationSeconds = 0;
    qint16 DurationHours = 0;
    qint16 DurationMinutes = 0;
    qint16 DurationSecondsPart = 0;
    bool MixerListsFilled = false;

    // Puts a program's values into the controls, with the rules of the file name, the
    // launches, the link and the mixer profiles; the enabling rules follow.
    void FillProgramForm(const ProgramFormValues& values);

    void CalcTimeDuration();
    void DoFilenameEnables();
    void DoLaunchPriorEnables();
    void DoLaunchAfterEnables();
    void DoLaunchLinkEnables();
    void FillMixerListBoxes();

    // True only once OK passed every check; FormValues() then holds what is to be saved.
    bool ProgramFormOk() const { return m_programFormOk; }
    const ProgramFormValues& FormValues() const { return m_values; }

private:
    void BuildGeneralTab(QWidget* page);
    void BuildFileTab(QWidget* page);
    void BuildExternalAppTab(QWidget* page);
    void BuildInternetTab(QWidget* page);
    void BuildMixerTab(QWidget* page);
    template <typename T> T* Named(T* widget, const char* name);

    void Form_Load();
    void ApplyFrequencyRule();
    void OptionOneTimeOrDaily_Click();
    void CheckEnabled_Click();
    void ChangeComprMethodButton_Click();
    void SSTab1_Click(int tab);
    void btnTestUrl_Click();
    void btnInfo_Click();
    void CommandOk_Click();
    ProgramCheckValues CheckValues() const;
    bool CommandOkChecks();
    void CopyFormValues();
    void CommandCancel_Click();
    static void SelectProfile(QListWidget* list, const QString& name);
    static QString ProfileOf(const QListWidget* list);

    ProgramFormServices m_services;
    ProgramFormValues m_values;
    // The program's format as it came in, and the working copy the format dialog changes.
    clsRecordingFormat m_programFormat;
    clsRecordingFormat m_formFormat;
    bool m_programFormOk = false;
    // Every control that CheckEnabled switches, in the order they were made.
    QList<QWidget*> m_controls;

    QTabWidget* SSTab1;
    QWidget* frameGeneral;
    QWidget* frameFile;
    QWidget* frameExternalApp;
    QWidget* frameInternet;
    QWidget* frameMixer;

    QLineEdit* TextProgramDescription;
    QCheckBox* CheckEnabled;
    QGroupBox* frameFrequency;
    std::array<QRadioButton*, 2> OptionOneTimeOrDaily{};
    QDateEdit* dtpkrOnceDate;
    std::array<QCheckBox*, 7> CheckDaysOfWeek{};
    QTimeEdit* dtpkrStartTime;
    QTimeEdit* dtpkrEndTime;
    QLabel* LabelDurationData;
    QLabel* LabelDiskSpaceData;
    QLineEdit* TextCompressionMethod;
    QPushButton* ChangeComprMethodButton;
    SourceChooser* frameSource;

    QRadioButton* optDefaultFilename;
    QRadioButton* optUserFilename;
    QLineEdit* txtUserFilename;
    QCheckBox* chkPrefix;
    QLineEdit* txtPrefix;
    QCheckBox* chkSuffix;
    QLineEdit* txtSuffix;

    QCheckBox* chkLaunchPrior;
    QLineEdit* txtLaunchPrior;
    QLineEdit* txtLaunchPriorDelay;
    QWidget* updnLaunchPriorDelay;
    QLabel* lblLaunchPriorDelay;
    QCheckBox* chkLaunchAfter;
    QLineEdit* txtLaunchAfter;
    QCheckBox* chkLaunchAfterOnlyIfOk;
    QPushButton* btnInfo;

    QCheckBox* chkLaunchLink;
    QLineEdit* txtLaunchLink;
    QPushButton* btnTestUrl;
    QLineEdit* txtLaunchLinkDelay;
    QWidget* updnLaunchLinkDelay;
    QLabel* lblLaunchLinkDelay;
    QGroupBox* frameCloseStreamingPlayer;
    std::array<QRadioButton*, 3> optCloseStreamingPlayer{};
    QLineEdit* txtStreamingPlayerWindowTitle;
    QCheckBox* chkHangUp;

    QListWidget* lstMixerProfilePrior;
    QListWidget* lstMixerProfileAfter;

    QPushButton* CommandOk;
    QPushButton* CommandCancel;
};
