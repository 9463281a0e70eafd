#include "scheduling/frmLaunchProgramInfo.h"

#include "gui/FormPlacement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmLaunchProgramInfo::frmLaunchProgramInfo(QWidget* owner)
    : QDialog(owner)
{
    setObjectName(QStringLiteral("frmLaunchProgramInfo"));
    setWindowTitle(tr("Launch Program Info"));
    auto* layout = new QVBoxLayout(this);
    const QStringList lines = Lines();
    for (int i = 0; i < lines.size(); ++i) {
        auto* label = new QLabel(lines.at(i));
        label->setObjectName(QStringLiteral("lblInfo") + QString::number(i));
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        layout->addWidget(label);
        if (i == 0)
            layout->addSpacing(6);
    }
    auto* CommandOk = new QPushButton(tr("&OK"));
    CommandOk->setObjectName(QStringLiteral("CommandOk"));
    CommandOk->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandOk);
    layout->addLayout(buttons);
    connect(CommandOk, &QPushButton::clicked, this, &QDialog::accept);
    setFixedWidth(420);
    FormPlacement::PlaceAtMainForm(this, owner, 100);
}

QStringList frmLaunchProgramInfo::Lines()
{
    return {
        tr("The application launch command after recording can contain any of the "
           "following symbols which will be substituted with the appropriate string:"),
        tr("%d - recording file directory"),
        tr("%p - full recording file name including path"),
        tr("%e - recording file name extension, not including the dot"),
        tr("%% - the % character"),
        tr("%b - recording file name without the path and extension"),
        tr("%f - recording file name without the path"),
    };
}
