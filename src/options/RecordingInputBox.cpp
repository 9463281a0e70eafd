#include "options/RecordingInputBox.h"

#include "gui/InputChooser.h"
#include "gui/InputLevelMeter.h"

#include <QHBoxLayout>

RecordingInputBox::RecordingInputBox(AudioDevices& devices, QWidget* parent)
    : QGroupBox(tr("&Input"), parent)
    , cboRecordingInput(new InputChooser)
    , meterRecordingInput(new InputLevelMeter(devices))
{
    cboRecordingInput->ListInputs(devices);
    setObjectName(QStringLiteral("frameRecordingInput"));
    cboRecordingInput->setObjectName(QStringLiteral("cboRecordingInput"));
    meterRecordingInput->setObjectName(QStringLiteral("meterRecordingInput"));
    meterRecordingInput->setToolTip(tr("The level of the chosen input now"));
    auto* line = new QHBoxLayout(this);
    line->addWidget(cboRecordingInput, 2);
    line->addWidget(meterRecordingInput, 1);
    connect(cboRecordingInput, &QComboBox::currentIndexChanged, this,
            [this] { meterRecordingInput->SetInputName(InputName()); });
}

void RecordingInputBox::SetInputName(const QString& name)
{
    cboRecordingInput->SetInputName(name);
    meterRecordingInput->SetInputName(InputName());
}

QString RecordingInputBox::InputName() const
{
    return cboRecordingInput->InputName();
}
