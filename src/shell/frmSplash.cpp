#include "shell/frmSplash.h"

#include "shell/frmAbout.h"

#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

frmSplash::frmSplash(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(frmAbout::ProductName());

    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("Frame1"));
    frame->setFrameShape(QFrame::Box);

    auto* picture = new QLabel;
    picture->setPixmap(style()->standardIcon(QStyle::SP_MediaVolume).pixmap(64, 64));
    picture->setAlignment(Qt::AlignTop);
    auto* lblProductName = new QLabel(frmAbout::ProductName());
    lblProductName->setObjectName(QStringLiteral("lblProductName"));
    QFont titleFont = lblProductName->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 2.2);
    titleFont.setBold(true);
    lblProductName->setFont(titleFont);
    auto* lblVersion = new QLabel(frmAbout::VersionText());
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblVersion->setAlignment(Qt::AlignRight);
    auto* lblCompany = new QLabel(QStringLiteral("Larkmoor Systems"));
    lblCompany->setObjectName(QStringLiteral("lblCompany"));
    auto* lblNotice = new QLabel(frmAbout::NoticeText());
    lblNotice->setObjectName(QStringLiteral("lblNotice"));
    lblNotice->setWordWrap(true);

    auto* texts = new QVBoxLayout;
    texts->addWidget(lblProductName);
    texts->addWidget(lblVersion);
    texts->addWidget(lblCompany);
    texts->addStretch();
    texts->addWidget(lblNotice);
    auto* inner = new QHBoxLayout(frame);
    inner->setContentsMargins(16, 16, 16, 16);
    inner->addWidget(picture);
    inner->addSpacing(12);
    inner->addLayout(texts, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(frame);
    resize(480, 240);

    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}
