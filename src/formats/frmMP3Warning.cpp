#include "formats/frmMP3Warning.h"

#include "common/TextHelpers.h"
#include "store/Options.h"
#include "store/RegKeys.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

Mp3WarningForm::Mp3WarningForm(RegKeys& registry, Options& options, const QString& objectName,
                               const QString& text, QWidget* parent)
    : QDialog(parent)
    , m_registry(registry)
    , m_options(options)
    , m_label(new QLabel(text, this))
    , m_showAgain(new QCheckBox(QStringLiteral("&Do not show this warning again"), this))
{
    setObjectName(objectName);
    setWindowTitle(QStringLiteral("MPEG Layer-3"));
    m_label->setObjectName(QStringLiteral("Label1"));
    m_label->setWordWrap(true);
    m_label->setFixedWidth(360);
    m_showAgain->setObjectName(QStringLiteral("chkShowAgain"));
    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* icon = new QLabel(this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(32, 32));
    icon->setAlignment(Qt::AlignTop);
    auto* top = new QHBoxLayout;
    top->addWidget(icon);
    top->addWidget(m_label, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_showAgain);
    bottom->addStretch();
    bottom->addWidget(ok);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(bottom);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

bool Mp3WarningForm::WarningDue(const RegKeys& registry)
{
    const QString setting = Text::Trim(
        registry.GetSetting(QStringLiteral("Settings"), QStringLiteral("ShowMp3Warning"), {}));
    return setting.isEmpty() || setting.toUpper() == QLatin1String("Y");
}

void Mp3WarningForm::done(int result)
{
    if (m_showAgain->isChecked()) {
        m_registry.SaveSetting(QStringLiteral("Settings"), QStringLiteral("ShowMp3Warning"),
                               QStringLiteral("N"));
        m_options.ShowMp3Warning = QStringLiteral("N");
    }
    QDialog::done(result);
}

frmMP3Warning::frmMP3Warning(RegKeys& registry, Options& options, QWidget* parent)
    : Mp3WarningForm(
          registry, options, QStringLiteral("frmMP3Warning"),
          QStringLiteral("CAUTION: Real-time recording of the MP3 format may not be fully "
                         "compatible with Windows 95/98/Me, causing the system in many cases to "
                         "crash.  Save data or files from all applications if you are trying to "
                         "record directly with this format for the first time.  It is "
                         "recommended to use the convert option instead of real-time recording "
                         "with this format."),
          parent)
{
}
