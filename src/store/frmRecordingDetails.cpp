#include "store/frmRecordingDetails.h"

#include "gui/FormPlacement.h"
#include "store/Options.h"
#include "store/RecordingsList.h"
#include "store/Recordset.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmRecordingDetails::frmRecordingDetails(const Recordset& row, QWidget* owner)
    : QDialog(owner)
{
    setObjectName(QStringLiteral("frmRecordingDetails"));
    setWindowTitle(tr("Recording Details"));
    const double start = row.Value(QStringLiteral("StartTime")).toDouble();
    const double end = row.Value(QStringLiteral("EndTime")).toDouble();
    auto* form = new QFormLayout;
    const auto add = [this, form](const char* name, const QString& caption, const QString& text) {
        auto* label = new QLabel(text);
        label->setObjectName(QString::fromLatin1(name));
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
        form->addRow(caption, label);
    };
    add("lblTitle", QStringLiteral("Title:"), row.Value(QStringLiteral("Title")).toString());
    add("lblStartTime", tr("Start Time:"), Options::DateText(start));
    add("lblEndTime", tr("End Time:"), Options::DateText(end));
    add("lblDuration", tr("Duration:"), RecordingsList::DurationText(start, end));
    add("lblDataSize", tr("Data Size:"),
        QString::number(row.Value(QStringLiteral("Size")).toDouble(), 'f', 1) + tr(" Mbytes"));
    add("lblCompressionMethod", tr("Compression Method:"),
        row.Value(QStringLiteral("CompressionMethod")).toString());
    add("lblFileName", QStringLiteral("File Name:"), row.Value(QStringLiteral("File")).toString());
    auto* exit = new QPushButton(tr("E&xit"));
    exit->setObjectName(QStringLiteral("Command1"));
    exit->setDefault(true);
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(exit, 0, Qt::AlignRight);
    setMinimumWidth(420);
    FormPlacement::PlaceAtMainForm(this, owner, 500);
}
