#include "shell/frmAbout.h"

#include "common/MessageBox.h"
#include "shell/AppContext.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QSysInfo>
#include <QVBoxLayout>

QString frmAbout::ProductName()
{
    return tr("Nightreel 2000");
}

QString frmAbout::VersionText()
{
    QString version = QCoreApplication::applicationVersion();
    if (version.isEmpty())
        version = QStringLiteral("%1.%2.%3")
                      .arg(NIGHTREEL_VERSION_MAJOR)
                      .arg(NIGHTREEL_VERSION_MINOR)
                      .arg(NIGHTREEL_VERSION_REV);
    return tr("Version ") + version;
}

QString frmAbout::NoticeText()
{
    return tr("Copyright \u00A9 Larkmoor Systems. All rights reserved.\n"
              "Recording broadcasts may be subject to copyright; make sure you "
              "have the right to record what you schedule.");
}

QString frmAbout::SystemFacts()
{
    QStringList facts;
    facts << tr("Operating system: ") + QSysInfo::prettyProductName()
          << tr("Kernel: ") + QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()
          << tr("Processor architecture: ") + QSysInfo::currentCpuArchitecture()
          << tr("Program built for: ") + QSysInfo::buildAbi()
          << tr("Computer name: ") + QSysInfo::machineHostName()
          << tr("Qt version: ") + QString::fromLatin1(qVersion());
    return facts.join(u'\n');
}

frmAbout::frmAbout(AppContext& ctx, QWidget* owner)
    : QDialog(owner)
    , m_ctx(ctx)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About ") + ProductName());

    auto* picture = new QLabel;
    picture->setPixmap(style()->standardIcon(QStyle::SP_MediaVolume).pixmap(48, 48));
    picture->setAlignment(Qt::AlignTop);
    auto* lblTitle = new QLabel(ProductName());
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont titleFont = lblTitle->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
    titleFont.setBold(true);
    lblTitle->setFont(titleFont);
    auto* lblVersion = new QLabel(VersionText());
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    auto* lblNotice = new QLabel(NoticeText());
    lblNotice->setObjectName(QStringLiteral("lblNotice"));
    lblNotice->setWordWrap(true);

    auto* btnOK = new QPushButton(QStringLiteral("OK"));
    btnOK->setObjectName(QStringLiteral("btnOK"));
    btnOK->setDefault(true);
    auto* btnSysInfo = new QPushButton(tr("&System Info..."));
    btnSysInfo->setObjectName(QStringLiteral("btnSysInfo"));
    connect(btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(btnSysInfo, &QPushButton::clicked, this, &frmAbout::btnSysInfo_Click);

    auto* texts = new QVBoxLayout;
    texts->addWidget(lblTitle);
    texts->addWidget(lblVersion);
    texts->addSpacing(12);
    texts->addWidget(lblNotice);
    texts->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(picture);
    top->addLayout(texts, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnOK);
    buttons->addWidget(btnSysInfo);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(buttons);
    resize(420, 220);
}

void frmAbout::btnSysInfo_Click()
{
    m_ctx.messageBox.Show(tr("System Information"), SystemFacts(), MsgIcon::Information,
                          MsgButtons::Ok);
}
