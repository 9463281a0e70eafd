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
#include "scheduling/StreamAddress.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <limits>

namespace {

// Each duration box carries its upper limit as this property, set in the layout file.
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
    setupUi(this);
    const Options& options = m_s.options;
    TextProgramDescription->installEventFilter(this);
    SetUpDurationBox(TextDurationHours, UpDownDurationHoursUp, UpDownDurationHoursDown,
                     options.DefaultManualRecordingDurationHours);
    SetUpDurationBox(TextDurationMinutes, UpDownDurationMinutesUp, UpDownDurationMinutesDown,
                     options.DefaultManualRecordingDurationMinutes);
    SetUpDurationBox(TextDurationSeconds, UpDownDurationSecondsUp, UpDownDurationSecondsDown,
                     options.DefaultManualRecordingDurationSeconds);
    optDefaultFilename->setText(DefaultFilenameCaption(options.DefaultRecordFileNameFormat));

    frameSource->SetTaskProgram(m_s.taskProgram);

    connect(ChangeComprMethodButton, &QPushButton::clicked, this,
            &frmManualRecord::ChangeComprMethodButton_Click);
    for (QRadioButton* option : {optDefaultFilename, optUserFilename})
        connect(option, &QRadioButton::clicked, this,
                [this] { txtFilename->setEnabled(optUserFilename->isChecked()); });
    connect(CommandOk, &QPushButton::clicked, this, &frmManualRecord::CommandOk_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &QDialog::reject);

    Form_Load();
}

void frmManualRecord::SetUpDurationBox(QLineEdit* box, QToolButton* up, QToolButton* down,
                                       int start)
{
    box->setText(TwoDigits(start));
    // Four digits wide in the font the box has.
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 12);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, &frmManualRecord::CalcStorage);
    connect(up, &QToolButton::clicked, box, [box] { StepDurationBox(box, 1); });
    connect(down, &QToolButton::clicked, box, [box] { StepDurationBox(box, -1); });
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
    Trap(m_s.log, "Manual Record CalcStorage", [&] { ShowStorage(); });
}

void frmManualRecord::ShowStorage()
{
    InRoutine("Manual Record CalcStorage", [&] {
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
            ShowStorage();
        }
    });
}

void frmManualRecord::CommandOk_Click()
{
    Trap(m_s.log, "Manual Record CommandOk_Click", [this] { TakeRequest(); });
}

void frmManualRecord::TakeRequest()
{
    InRoutine("Manual Record CommandOk_Click", [&] {
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
