#include "recordingslist/frmRecordingDetails.h"

#include "gui/FormPlacement.h"
#include "recordingslist/RecordingsList.h"
#include "store/Options.h"
#include "store/Recordset.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmRecordingDetails::frmRecordingDetails(const Recordset& row, QWidget* owner)
    : QDialog(owner)
{
    setObjectName(QStringLiteral("frmRecordingDetails"));
    setWindowTitle(QStringLiteral("Recording Details"));
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
    add("lblStartTime", QStringLiteral("Start Time:"), Options::DateText(start));
    add("lblEndTime", QStringLiteral("End Time:"), Options::DateText(end));
    add("lblDuration", QStringLiteral("Duration:"), RecordingsList::DurationText(start, end));
    add("lblDataSize", QStringLiteral("Data Size:"),
        QString::number(row.Value(QStringLiteral("Size")).toDouble(), 'f', 1) +
            QStringLiteral(" Mbytes"));
    add("lblCompressionMethod", QStringLiteral("Compression Method:"),
        row.Value(QStringLiteral("CompressionMethod")).toString());
    add("lblFileName", QStringLiteral("File Name:"), row.Value(QStringLiteral("File")).toString());
    auto* exit = new QPushButton(QStringLiteral("E&xit"));
    exit->setObjectName(QStringLiteral("Command1"));
    exit->setDefault(true);
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(exit, 0, Qt::AlignRight);
    setMinimumWidth(420);
    FormPlacement::PlaceAtMainForm(this, owner, 500);
}
