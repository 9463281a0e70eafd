#include "sideactions/frmAddMixerProfile.h"

#include "common/TextHelpers.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "sideactions/MixerProfiles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmAddMixerProfile::frmAddMixerProfile(MixerProfiles& profiles, EventLog& log,
                                       MessageBoxPresenter& messageBox,
                                       QListWidget& lstMixerProfiles, QWidget* owner)
    : QDialog(owner)
    , m_profiles(profiles)
    , m_log(log)
    , m_messageBox(messageBox)
    , m_lstMixerProfiles(lstMixerProfiles)
    , Combo1(new QComboBox)
{
    setObjectName(QStringLiteral("frmAddMixerProfile"));
    setWindowTitle(tr("Add Mixer Profile"));
    Combo1->setObjectName(QStringLiteral("Combo1"));
    Combo1->setEditable(true);
    // The list offers names to write over; it must not add what is typed by itself.
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    auto* label = new QLabel(tr("Enter mixer profile name"));
    label->setBuddy(Combo1);
    auto* note = new QLabel(tr("The current mixer settings will be saved to the shown "
                               "profile when the Save button is pressed."));
    note->setWordWrap(true);
    // Save closes the form only when its checks pass, so it is not the box's accept.
    auto* buttons = new QDialogButtonBox;
    QPushButton* save = buttons->addButton(tr("&Save"), QDialogButtonBox::ActionRole);
    save->setObjectName(QStringLiteral("frmSave"));
    save->setDefault(true);
    buttons->addButton(tr("&Exit"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("btnExit"));
    connect(save, &QPushButton::clicked, this, &frmAddMixerProfile::frmSave_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(Combo1);
    layout->addWidget(note);
    layout->addWidget(buttons);
    setMinimumWidth(340);
    FormPlacement::PlaceAtMainForm(this, owner, 500, 350);

    Trap(m_log, "Add Mixer profile form load", [&] {
        for (int row = 0; row < m_lstMixerProfiles.count(); ++row)
            Combo1->addItem(m_lstMixerProfiles.item(row)->text());
        Combo1->setCurrentText(QString());
    });
}

void frmAddMixerProfile::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Combo1->setFocus();
}

void frmAddMixerProfile::frmSave_Click()
{
    // A save that failed keeps the form open, as a refused name does.
    auto outcome = MixerProfiles::SaveOutcome::Kept;
    Trap(m_log, "Save Mixer profile",
         [&] { outcome = m_profiles.SaveMixerProfile(Combo1->currentText(), m_messageBox); });
    switch (outcome) {
    case MixerProfiles::SaveOutcome::Kept:
        return;
    case MixerProfiles::SaveOutcome::Added: {
        // A name listed for an empty file (which the save replaced) is listed once.
        const QString name = Text::Trim(Combo1->currentText());
        if (m_lstMixerProfiles.findItems(name, Qt::MatchExactly).isEmpty())
            m_lstMixerProfiles.addItem(name);
        break;
    }
    case MixerProfiles::SaveOutcome::Overwritten:
    case MixerProfiles::SaveOutcome::Failed:
        break;
    }
    accept();
}
