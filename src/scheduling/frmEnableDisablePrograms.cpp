#include "scheduling/frmEnableDisablePrograms.h"

#include "gui/FormPlacement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmEnableDisablePrograms::frmEnableDisablePrograms(QWidget* owner)
    : QDialog(owner)
{
    setObjectName(QStringLiteral("frmEnableDisablePrograms"));
    setWindowTitle(tr("Enable/Disable Programs"));
    auto* label =
        new QLabel(tr("All selected programs will be enabled or disabled based on selection."));
    label->setObjectName(QStringLiteral("lblPrompt"));
    label->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    const auto button = [&](const char* name, const QString& caption, int choice) {
        auto* b = new QPushButton(caption);
        b->setObjectName(QString::fromLatin1(name));
        connect(b, &QPushButton::clicked, this, [this, choice] { Choose(choice); });
        buttons->addWidget(b);
        return b;
    };
    button("btnEnable", tr("&Enable Programs"), 0)->setDefault(true);
    button("btnDisable", tr("&Disable Programs"), 1);
    button("btnCancel", tr("&Cancel"), 2);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(buttons);
    FormPlacement::PlaceAtMainForm(this, owner, 1000);
}

int frmEnableDisablePrograms::Ask(QWidget* owner)
{
    frmEnableDisablePrograms form(owner);
    form.exec();
    return form.EnableDisableChoice();
}

void frmEnableDisablePrograms::Choose(int choice)
{
    m_choice = choice;
    if (choice == 2)
        reject();
    else
        accept();
}
