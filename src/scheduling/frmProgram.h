#pragma once

#include "scheduling/ProgramEditor.h"
#include "scheduling/ProgramFormServices.h"
#include "ui_frmProgram.h"

#include <QDialog>
#include <QList>
#include <array>

struct ProgramCheckValues;

// The program editor: one program on five tabs. It writes nothing to the database itself;
// the caller fills it, shows it modally and, when ProgramFormOk() is true afterwards,
// writes FormValues().
class frmProgram : public QDialog, private Ui::frmProgram {
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
    void ConnectControls();

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
    // Every control that CheckEnabled switches.
    QList<QWidget*> m_controls;

    // The controls that are arrays, by index.
    std::array<QRadioButton*, 2> OptionOneTimeOrDaily{};
    std::array<QCheckBox*, 7> CheckDaysOfWeek{};
    std::array<QRadioButton*, 3> optCloseStreamingPlayer{};
};
