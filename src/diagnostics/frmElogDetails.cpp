#include "diagnostics/frmElogDetails.h"

#include "common/AutomationDate.h"
#include "gui/FormPlacement.h"
#include "store/Options.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

QLabel* ValueLabel(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

frmElogDetails::frmElogDetails(QWidget* owner)
    : QDialog(owner)
    , m_lblDate(ValueLabel("lblDate"))
    , m_lblTime(ValueLabel("lblTime"))
    , m_lblType(ValueLabel("lblType"))
    , m_lblDescription(ValueLabel("lblDescription"))
    , m_lblDetails(ValueLabel("lblDetails"))
{
    setObjectName(QStringLiteral("frmElogDetails"));
    setWindowTitle(tr("Error Log Details"));

    m_lblDescription->setWordWrap(true);
    m_lblDetails->setWordWrap(true);
    m_lblDetails->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* detailsArea = new QScrollArea;
    detailsArea->setWidget(m_lblDetails);
    detailsArea->setWidgetResizable(true);
    detailsArea->setFrameShape(QFrame::NoFrame);
    detailsArea->setMinimumHeight(100);

    auto* frame = new QGroupBox(tr("Details"));
    frame->setObjectName(QStringLiteral("fraDetails"));
    auto* fields = new QFormLayout;
    fields->addRow(tr("Date:"), m_lblDate);
    fields->addRow(tr("Time:"), m_lblTime);
    fields->addRow(tr("Type:"), m_lblType);
    fields->addRow(tr("Description:"), m_lblDescription);
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->addLayout(fields);
    frameLayout->addWidget(detailsArea, 1);

    auto* btnExit = new QPushButton(tr("E&xit"));
    btnExit->setObjectName(QStringLiteral("btnExit"));
    btnExit->setDefault(true);
    connect(btnExit, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnExit);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame, 1);
    layout->addLayout(buttons);
    resize(440, 300);
    FormPlacement::PlaceAtMainForm(this, owner, 100);
}

void frmElogDetails::Fill(const QVariant& type, const QVariant& dateAndTime, const QString& message,
                          const QString& details)
{
    const double moment = dateAndTime.toDouble();
    m_lblDate->setText(Options::DateText(AutomationDate::DatePart(moment)));
    m_lblTime->setText(Options::DateText(AutomationDate::TimePart(moment)));
    if (!type.isNull()) {
        switch (type.toInt()) {
        case 0:
            m_lblType->setText(tr("Information"));
            break;
        case 1:
            m_lblType->setText(tr("Warning"));
            break;
        case 2:
            m_lblType->setText(tr("Error"));
            break;
        default:
            break;
        }
    }
    m_lblDescription->setText(message);
    m_lblDetails->setText(details);
}
