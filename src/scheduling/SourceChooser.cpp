#include "scheduling/SourceChooser.h"

#include "gui/InputChooser.h"
#include "scheduling/StreamAddress.h"
#include "scheduling/StreamTest.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// The item that stands for a stream carries no input name.
constexpr int StreamItemRole = Qt::UserRole + 1;

} // namespace

SourceChooser::SourceChooser(QWidget* parent)
    : QGroupBox(tr("Source"), parent)
    , m_test(new StreamTest(QString(), this))
    , m_inputs(new InputChooser)
{
    setObjectName(QStringLiteral("frameSource"));
    cboSource = m_inputs;
    cboSource->setObjectName(QStringLiteral("cboSource"));
    // Where a program or a manual recording names no input of its own.
    cboSource->setItemText(0, tr("The input chosen in the options"));
    cboSource->addItem(tr("Internet stream"));
    cboSource->setItemData(cboSource->count() - 1, true, StreamItemRole);
    txtStreamUrl = new QLineEdit;
    txtStreamUrl->setObjectName(QStringLiteral("txtStreamUrl"));
    txtStreamUrl->setPlaceholderText(tr("http://… or https://…, or a .pls, .m3u or .m3u8 list"));
    auto* lblAddress = new QLabel(tr("A&ddress"));
    lblAddress->setBuddy(txtStreamUrl);
    btnTestStream = new QPushButton(tr("Test"));
    btnTestStream->setObjectName(QStringLiteral("btnTestStream"));
    lblStreamTest = new QLabel;
    lblStreamTest->setObjectName(QStringLiteral("lblStreamTest"));
    lblStreamTest->setWordWrap(true);
    lblStreamTest->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* grid = new QGridLayout(this);
    grid->addWidget(cboSource, 0, 0, 1, 3);
    grid->addWidget(lblAddress, 1, 0);
    grid->addWidget(txtStreamUrl, 1, 1);
    grid->addWidget(btnTestStream, 1, 2);
    grid->addWidget(lblStreamTest, 2, 1, 1, 2);
    grid->setColumnStretch(1, 1);

    connect(cboSource, &QComboBox::currentIndexChanged, this, &SourceChooser::UpdateEnables);
    connect(txtStreamUrl, &QLineEdit::textChanged, this, [this] {
        lblStreamTest->clear();
        UpdateEnables();
    });
    connect(btnTestStream, &QPushButton::clicked, this, &SourceChooser::btnTestStream_Click);
    connect(m_test, &StreamTest::Finished, this, [this](bool, const QString& text) {
        lblStreamTest->setText(text);
        btnTestStream->setText(tr("Test"));
        UpdateEnables();
    });
    UpdateEnables();
}

SourceChooser::~SourceChooser() = default;

void SourceChooser::SetTaskProgram(const QString& taskProgram)
{
    m_test->SetTaskProgram(taskProgram);
}

void SourceChooser::SetStreamUrl(const QString& address)
{
    txtStreamUrl->setText(address.trimmed());
    cboSource->setCurrentIndex(address.trimmed().isEmpty() ? 0 : cboSource->count() - 1);
}

void SourceChooser::ListInputs(AudioDevices& devices)
{
    m_inputs->ListInputs(devices);
}

void SourceChooser::SetInputName(const QString& name)
{
    if (!StreamChosen())
        m_inputs->SetInputName(name);
}

QString SourceChooser::InputName() const
{
    return m_inputs->InputName();
}

bool SourceChooser::StreamChosen() const
{
    return cboSource->currentData(StreamItemRole).toBool();
}

QString SourceChooser::StreamUrl() const
{
    return StreamChosen() ? txtStreamUrl->text().trimmed() : QString();
}

void SourceChooser::UpdateEnables()
{
    const bool stream = StreamChosen();
    txtStreamUrl->setEnabled(stream);
    btnTestStream->setEnabled(stream && !m_test->Running() &&
                              !txtStreamUrl->text().trimmed().isEmpty());
    lblStreamTest->setVisible(stream);
}

void SourceChooser::btnTestStream_Click()
{
    const QString problem = StreamAddress::Problem(txtStreamUrl->text());
    if (!problem.isEmpty()) {
        lblStreamTest->setText(problem);
        return;
    }
    lblStreamTest->setText(tr("Connecting and listening for a few seconds…"));
    btnTestStream->setText(tr("Testing…"));
    m_test->Start(txtStreamUrl->text());
    UpdateEnables();
}
