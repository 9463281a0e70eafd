#include "recording/frmManualRecord.h"

#include "common/MessageBox.h"
#include "common/PathHelpers.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "common/clsAppStatus.h"
#include "diagnostics/Trap.h"
#include "formats/clsRecordingFormat.h"
#include "formats/frmRecordFormat.h"
#include "gui/FormPlacement.h"
#include "recording/clsManualRecord.h"
#include "scheduling/SourceChooser.h"
#include "scheduling/StreamAddress.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

namespace {

const char* const kMaximum = "maximum";

QString TwoDigits(qint64 value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QChar(u'0'));
}

// The value of a duration box as the dialog counts it: the leading number of the text,
// rounded; "abc" counts as 0.
qint64 FieldValue(const QLineEdit* box)
{
    return Text::RoundHalfEven(Text::Val(box->text()));
}

QString DefaultFilenameCaption(qint16 fileNameFormat)
{
    switch (fileNameFormat) {
    case 1:
        return QCoreApplication::translate("frmManualRecord", "YY&MMDD_hhmmss");
    case 2:
        return QCoreApplication::translate("frmManualRecord", "DD&MMYY_hhmmss");
    default:
        return QCoreApplication::translate("frmManualRecord", "&MMDDYY_hhmmss");
    }
}

// One step of the arrows beside a duration box: from the value in the box, within range.
void StepDurationBox(QLineEdit* box, int step)
{
    const qint64 max = box->property(kMaximum).toInt();
    const qint64 value = std::clamp<qint64>(FieldValue(box), 0, max);
    box->setText(TwoDigits(std::clamp<qint64>(value + step, 0, max)));
}

} // namespace

frmManualRecord::frmManualRecord(const ManualRecordServices& services, bool quickStart,
                                 QWidget* owner)
    : QDialog(owner)
    , QuickStart(quickStart)
    , m_s(services)
{
    setObjectName(QStringLiteral("frmManualRecord"));
    setWindowTitle(tr("Manual Record"));
    const Options& options = m_s.options;

    TextProgramDescription = new QLineEdit(tr("Manual Record"));
    TextProgramDescription->setObjectName(QStringLiteral("TextProgramDescription"));
    TextProgramDescription->installEventFilter(this);
    auto* lblDescription = new QLabel(tr("Description:"));
    lblDescription->setBuddy(TextProgramDescription);

    QWidget* hoursArrows = nullptr;
    QWidget* minutesArrows = nullptr;
    QWidget* secondsArrows = nullptr;
    TextDurationHours = MakeDurationBox("TextDurationHours", "UpDownDurationHours", 23,
                                        options.DefaultManualRecordingDurationHours, hoursArrows);
    TextDurationMinutes =
        MakeDurationBox("TextDurationMinutes", "UpDownDurationMinutes", 59,
                        options.DefaultManualRecordingDurationMinutes, minutesArrows);
    TextDurationSeconds =
        MakeDurationBox("TextDurationSeconds", "UpDownDurationSeconds", 59,
                        options.DefaultManualRecordingDurationSeconds, secondsArrows);
    auto* duration = new QGridLayout;
    int column = 0;
    for (auto [box, arrows, caption] :
         {std::tuple{TextDurationHours, hoursArrows, tr("Hours")},
          std::tuple{TextDurationMinutes, minutesArrows, tr("Minutes")},
          std::tuple{TextDurationSeconds, secondsArrows, tr("Seconds")}}) {
        auto* pair = new QHBoxLayout;
        pair->setSpacing(0);
        pair->addWidget(box);
        pair->addWidget(arrows);
        duration->addLayout(pair, 0, column);
        auto* label = new QLabel(caption);
        label->setBuddy(box);
        duration->addWidget(label, 1, column, Qt::AlignHCenter);
        ++column;
    }
    duration->setColumnStretch(3, 1);

    TextCompressionMethod = new QLineEdit;
    TextCompressionMethod->setObjectName(QStringLiteral("TextCompressionMethod"));
    TextCompressionMethod->setReadOnly(true);
    ChangeComprMethodButton = new QPushButton(tr("Modi&fy"));
    ChangeComprMethodButton->setObjectName(QStringLiteral("ChangeComprMethodButton"));
    ChangeComprMethodButton->setAutoDefault(false);
    LabelDiskSpaceData = new QLabel;
    LabelDiskSpaceData->setObjectName(QStringLiteral("LabelDiskSpaceData"));

    auto* frameFilename = new QGroupBox(tr("Filename"));
    optDefaultFilename =
        new QRadioButton(DefaultFilenameCaption(options.DefaultRecordFileNameFormat));
    optDefaultFilename->setObjectName(QStringLiteral("optDefaultFilename"));
    optUserFilename = new QRadioButton(tr("&User"));
    optUserFilename->setObjectName(QStringLiteral("optUserFilename"));
    txtFilename = new QLineEdit;
    txtFilename->setObjectName(QStringLiteral("txtFilename"));
    auto* filenameLayout = new QGridLayout(frameFilename);
    filenameLayout->addWidget(optDefaultFilename, 0, 0, 1, 2);
    filenameLayout->addWidget(optUserFilename, 1, 0);
    filenameLayout->addWidget(txtFilename, 1, 1);
    filenameLayout->setColumnStretch(1, 1);

    auto* fields = new QGridLayout;
    fields->addWidget(lblDescription, 0, 0);
    fields->addWidget(TextProgramDescription, 0, 1, 1, 2);
    fields->addLayout(duration, 1, 1, 1, 2);
    auto* lblFormat = new QLabel(tr("Recording Format"));
    lblFormat->setBuddy(TextCompressionMethod);
    fields->addWidget(lblFormat, 2, 0);
    fields->addWidget(TextCompressionMethod, 2, 1);
    fields->addWidget(ChangeComprMethodButton, 2, 2);
    fields->addWidget(new QLabel(tr("Disk Storage:")), 3, 0);
    fields->addWidget(LabelDiskSpaceData, 3, 1, 1, 2);
    fields->addWidget(frameFilename, 4, 0, 1, 3);
    frameSource = new SourceChooser(m_s.taskProgram);
    fields->addWidget(frameSource, 5, 0, 1, 3);
    fields->setColumnStretch(1, 1);

    CommandOk = new QPushButton(tr("&OK"));
    CommandOk->setObjectName(QStringLiteral("CommandOk"));
    CommandOk->setDefault(true);
    CommandCancel = new QPushButton(tr("&Cancel"));
    CommandCancel->setObjectName(QStringLiteral("CommandCancel"));
    auto* pressOk = new QLabel(tr("Press OK to begin Recording."));
    pressOk->setWordWrap(true);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(pressOk);
    buttons->addWidget(CommandOk);
    buttons->addWidget(CommandCancel);
    buttons->addStretch();

    auto* layout = new QHBoxLayout(this);
    layout->addLayout(fields, 1);
    layout->addSpacing(8);
    layout->addLayout(buttons);
    setMinimumWidth(560);

    connect(ChangeComprMethodButton, &QPushButton::clicked, this,
            &frmManualRecord::ChangeComprMethodButton_Click);
    for (QRadioButton* option : {optDefaultFilename, optUserFilename})
        connect(option, &QRadioButton::clicked, this,
                [this] { txtFilename->setEnabled(optUserFilename->isChecked()); });
    connect(CommandOk, &QPushButton::clicked, this, &frmManualRecord::CommandOk_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &QDialog::reject);

    Form_Load();
}

QLineEdit* frmManualRecord::MakeDurationBox(const char* name, const char* upDownName, int max,
                                            int start, QWidget*& withArrows)
{
    auto* box = new QLineEdit(TwoDigits(start));
    box->setObjectName(QString::fromLatin1(name));
    box->setProperty(kMaximum, max);
    box->setMaxLength(5);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 12);
    box->setAlignment(Qt::AlignRight);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, &frmManualRecord::CalcStorage);

    withArrows = new QWidget;
    withArrows->setObjectName(QString::fromLatin1(upDownName));
    auto* arrows = new QVBoxLayout(withArrows);
    arrows->setContentsMargins(0, 0, 0, 0);
    arrows->setSpacing(0);
    for (auto [type, step] : {std::pair{Qt::UpArrow, 1}, std::pair{Qt::DownArrow, -1}}) {
        auto* arrow = new QToolButton;
        arrow->setObjectName(QString::fromLatin1(upDownName) + (step > 0 ? tr("Up") : tr("Down")));
        arrow->setArrowType(type);
        arrow->setFixedSize(16, 11);
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::NoFocus);
        connect(arrow, &QToolButton::clicked, box, [box, step] { StepDurationBox(box, step); });
        arrows->addWidget(arrow);
    }
    return box;
}

void frmManualRecord::Form_Load()
{
    FormPlacement::PlaceAtMainForm(this, parentWidget(), 300);
    m_s.request.Filename.clear();
    optDefaultFilename->setChecked(true);
    txtFilename->setEnabled(false);
    TextProgramDescription->selectAll();
    FormatChanged = false;
    m_workingFormat.CopyFrom(m_s.defaultFormat);
    TextCompressionMethod->setText(m_workingFormat.TextCompressionMethod);
    // The source of the last manual recording, so the quick start records from it again.
    frameSource->SetStreamUrl(m_s.request.StreamUrl);
    CalcStorage();
}

bool frmManualRecord::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == TextProgramDescription && event->type() == QEvent::FocusIn) {
        // After the click that gave the focus has placed the cursor.
        QTimer::singleShot(0, TextProgramDescription, &QLineEdit::selectAll);
        return false;
    }
    auto* box = qobject_cast<QLineEdit*>(watched);
    if (!box || box == TextProgramDescription)
        return false;
    if (event->type() == QEvent::FocusOut) {
        ClampDurationBox(box);
    } else if (event->type() == QEvent::KeyPress) {
        // The arrow keys step the box as its arrows do.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            StepDurationBox(box, key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return false;
}

void frmManualRecord::ClampDurationBox(QLineEdit* box)
{
    box->setText(
        TwoDigits(std::clamp<qint64>(FieldValue(box), 0, box->property(kMaximum).toInt())));
}

qint32 frmManualRecord::DurationSecondsOfFields() const
{
    const qint64 seconds = FieldValue(TextDurationHours) * 3600 +
                           FieldValue(TextDurationMinutes) * 60 + FieldValue(TextDurationSeconds);
    if (seconds < std::numeric_limits<qint32>::min() ||
        seconds > std::numeric_limits<qint32>::max())
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
    return qint32(seconds);
}

void frmManualRecord::CalcStorage()
{
    Trap(m_s.log, "Manual Record CalcStorage", [&] {
        const float mbytes = m_workingFormat.CalcStorageMbytesSng(DurationSecondsOfFields());
        // Below ten Mbytes the Kbytes figure with the digits a single-precision number has.
        LabelDiskSpaceData->setText(
            mbytes >= 10.0f ? QString::number(double(mbytes), 'f', 1) + tr(" Mbytes")
                            : QString::number(double(mbytes * 1024.0f), 'g', 7) + tr(" Kbytes"));
    });
}

void frmManualRecord::ChangeComprMethodButton_Click()
{
    Trap(m_s.log, "ChangeComprMethodButton_Click", [&] {
        FormatChanged = ChangeFormat(m_s.log, m_workingFormat, this);
        if (FormatChanged) {
            TextCompressionMethod->setText(m_workingFormat.TextCompressionMethod);
            CalcStorage();
        }
    });
}

void frmManualRecord::CommandOk_Click()
{
    Trap(m_s.log, "Manual Record CommandOk_Click", [&] {
        clsManualRecord& request = m_s.request;
        MessageBoxPresenter& box = m_s.messageBox;
        const auto warn = [&box](const QString& title, const QString& text) {
            box.Show(title, text, MsgIcon::Exclamation, MsgButtons::Ok);
        };
        // Enter presses OK without leaving a duration box: its rule applies all the same,
        // so that nothing beyond 23:59:59 is ever asked for.
        for (QLineEdit* field : {TextDurationHours, TextDurationMinutes, TextDurationSeconds})
            ClampDurationBox(field);

        // The checks below run in turn; the later ones only when all is well so far.
        bool failed = false;
        if (optUserFilename->isChecked()) {
            if (InvalidFilenameCharacters(txtFilename->text())) {
                warn(tr("Invalid Filename"), tr("The filename cannot contain any of the following "
                                                "characters:\n\\ / : * ? \" < > | "));
                failed = true;
            } else {
                const QString name = UserFilenameBase(txtFilename->text());
                if (name.isEmpty()) {
                    warn(tr("Invalid Filename"), tr("Invalid Filename"));
                    failed = true;
                } else {
                    request.Filename = name;
                }
            }
        } else {
            request.Filename.clear();
        }

        if (m_s.appStatus.Recording()) {
            if (!QuickStart)
                warn(tr("Recording already in progress"),
                     tr("The manual recording request will not be processed since "
                        "recording is already in progress."));
            failed = true;
            reject();
        }

        if (Text::Trim(TextProgramDescription->text()).isEmpty()) {
            warn(tr("Program description required"), tr("Please enter a program description."));
            TextProgramDescription->setFocus();
            failed = true;
        }

        if (!failed && frameSource->StreamChosen()) {
            const QString problem = StreamAddress::Problem(frameSource->txtStreamUrl->text());
            if (!problem.isEmpty()) {
                warn(tr("Invalid stream address"), problem);
                frameSource->txtStreamUrl->setFocus();
                failed = true;
            }
        }

        const qint32 seconds = DurationSecondsOfFields();
        if (!failed && CheckFor2GbLimit(box, m_workingFormat, seconds))
            failed = true;

        // Only whole minutes count here: 2:00:30 is not longer than two hours.
        const qint64 minutes = FieldValue(TextDurationHours) * 60 + FieldValue(TextDurationMinutes);
        if (!QuickStart && !failed && m_s.options.ConfirmLongRecordings &&
            minutes > qint64(m_s.options.LongRecordingHours) * 60 &&
            box.Show(tr("Long Recording Confirmation"),
                     tr("A recording longer than ") +
                         QString::number(m_s.options.LongRecordingHours) +
                         tr(" hours is programmed.  Record? "),
                     MsgIcon::None, MsgButtons::YesNo) != MsgResult::Yes)
            failed = true;

        if (failed)
            return;
        // A format chosen here serves this recording only.
        request.Format.CopyFrom(FormatChanged ? m_workingFormat : m_s.defaultFormat);
        request.Requested = true;
        request.DurationSeconds = seconds;
        request.Description = TextProgramDescription->text();
        request.StreamUrl = frameSource->StreamUrl();
        accept();
    });
}
