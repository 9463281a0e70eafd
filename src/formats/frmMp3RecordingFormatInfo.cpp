#include "formats/frmMp3RecordingFormatInfo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmMp3RecordingFormatInfo::frmMp3RecordingFormatInfo(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmMp3RecordingFormatInfo"));
    setWindowTitle(tr("Selecting MP3 Recording Format"));
    const QString texts[] = {
        tr("To enable MP3 recording, follow the steps below:"),
        tr("1) Click on the ") + tr("\"Select from all recording formats\"") + tr(" button"),
        tr("2) Select the ") + tr("\"MPEG Layer-3\"") +
            tr(" recording format.  If this recording format does not show up on "
               "the list, install the MP3 encoder library (package libmp3lame0) "
               "and start Nightreel 2000 again."),
    };
    auto* layout = new QVBoxLayout(this);
    for (int i = 0; i < 3; ++i) {
        auto* label = new QLabel(texts[i], this);
        label->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    auto* ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName(QStringLiteral("CommandOk"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    layout->addLayout(buttons);
    setFixedWidth(400);
}
