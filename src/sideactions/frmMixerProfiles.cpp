#include "sideactions/frmMixerProfiles.h"

#include "common/MessageBox.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "sideactions/MixerProfiles.h"
#include "sideactions/frmAddMixerProfile.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QPushButton* Button(const char* name, const QString& caption)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

frmMixerProfiles::frmMixerProfiles(MixerProfiles& profiles, EventLog& log,
                                   MessageBoxPresenter& messageBox, QWidget* owner)
    : QDialog(owner)
    , m_profiles(profiles)
    , m_log(log)
    , m_messageBox(messageBox)
    , lstMixerProfiles(new QListWidget)
    , btnActivate(Button("btnActivate", tr("A&ctivate")))
    , btnRemove(Button("btnRemove", tr("&Remove")))
{
    setObjectName(QStringLiteral("frmMixerProfiles"));
    setWindowTitle(tr("Mixer Profiles"));
    lstMixerProfiles->setObjectName(QStringLiteral("lstMixerProfiles"));
    auto* btnAdd = Button("btnAdd", tr("&Add"));
    auto* btnExit = Button("btnExit", tr("&Exit"));
    connect(btnActivate, &QPushButton::clicked, this, &frmMixerProfiles::btnActivate_Click);
    connect(btnAdd, &QPushButton::clicked, this, &frmMixerProfiles::btnAdd_Click);
    connect(btnRemove, &QPushButton::clicked, this, &frmMixerProfiles::btnRemove_Click);
    connect(btnExit, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {btnActivate, btnAdd, btnRemove, btnExit})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(lstMixerProfiles, 1);
    layout->addLayout(buttons);
    resize(360, 240);
    FormPlacement::PlaceAtMainForm(this, owner, 250);

    Trap(m_log, "Mixer Profiles form load", [&] {
        lstMixerProfiles->addItems(m_profiles.Names());
        const bool any = lstMixerProfiles->count() > 0;
        if (any)
            lstMixerProfiles->setCurrentRow(0);
        EnableProfileButtons(any);
    });
}

void frmMixerProfiles::EnableProfileButtons(bool enabled)
{
    btnRemove->setEnabled(enabled);
    btnActivate->setEnabled(enabled);
}

bool frmMixerProfiles::HasSelection() const
{
    return !lstMixerProfiles->selectedItems().isEmpty();
}

void frmMixerProfiles::btnActivate_Click()
{
    if (!HasSelection()) {
        EnableProfileButtons(false);
        return;
    }
    if (m_messageBox.Show(tr("Activate mixer profile"),
                          tr("The sound server's mixer settings will be set according to the "
                             "selected mixer profile. Proceed?"),
                          MsgIcon::Question, MsgButtons::YesNo) == MsgResult::Yes)
        Trap(m_log, "Activate Mixer Profile",
             [&] { m_profiles.ActivateMixerProfile(lstMixerProfiles->currentItem()->text()); });
}

void frmMixerProfiles::btnAdd_Click()
{
    Trap(m_log, "Add Mixer profile", [&] {
        frmAddMixerProfile(m_profiles, m_log, m_messageBox, *lstMixerProfiles, this).exec();
        if (lstMixerProfiles->count() == 0)
            return;
        EnableProfileButtons(true);
        if (!HasSelection())
            lstMixerProfiles->setCurrentRow(0);
    });
}

void frmMixerProfiles::btnRemove_Click()
{
    Trap(m_log, "Remove Mixer Profile", [&] {
        if (!HasSelection()) {
            EnableProfileButtons(false);
            return;
        }
        if (m_messageBox.Show(tr("Remove mixer profile"),
                              tr("The selected mixer profile will be permanently "
                                 "removed. Proceed?"),
                              MsgIcon::Question, MsgButtons::YesNo) != MsgResult::Yes)
            return;
        const int row = lstMixerProfiles->currentRow();
        m_profiles.RemoveFile(lstMixerProfiles->item(row)->text());
        delete lstMixerProfiles->takeItem(row);
        if (lstMixerProfiles->count() == 0) {
            EnableProfileButtons(false);
            return;
        }
        // The entry before the removed one; the new first when the first went.
        lstMixerProfiles->setCurrentRow(std::max(row - 1, 0));
    });
}
