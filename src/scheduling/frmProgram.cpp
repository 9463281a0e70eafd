#include "scheduling/frmProgram.h"

#include "common/AutomationDate.h"
#include "common/MessageBox.h"
#include "common/TextHelpers.h"
#include "diagnostics/Trap.h"
#include "formats/clsRecordingFormat.h"
#include "formats/frmRecordFormat.h"
#include "gui/FormPlacement.h"
#include "platform/WaylandSession.h"
#include "scheduling/ProgramValidator.h"
#include "scheduling/frmLaunchProgramInfo.h"
#include "sideactions/StreamingPlayer.h"
#include "sideactions/ViewHtmlFile.h"
#include "store/Options.h"

#include <QDir>
#include <algorithm>

namespace {

// The arrows beside a delay box step the number in the box within 0..120.
void ConnectUpDown(QLineEdit* box, QToolButton* up, QToolButton* down)
{
    for (auto [arrow, step] : {std::pair{up, 1}, std::pair{down, -1}})
        QObject::connect(arrow, &QToolButton::clicked, box, [box, step] {
            const qint64 value = Text::RoundHalfEven(Text::Val(Text::Trim(box->text())));
            box->setText(QString::number(std::clamp<qint64>(value + step, 0, 120)));
        });
}

QDate DateOf(double date)
{
    return AutomationDate::ToDateTime(date).date();
}

QTime TimeOf(double time)
{
    return AutomationDate::ToDateTime(AutomationDate::TimePart(time)).time();
}

void SetEnabled(std::initializer_list<QWidget*> controls, bool enabled)
{
    for (QWidget* control : controls)
        control->setEnabled(enabled);
}

double TimeValue(const QTimeEdit* picker)
{
    const QTime t = picker->time();
    return AutomationDate::FromTime(t.hour(), t.minute(), t.second());
}

} // namespace

frmProgram::frmProgram(const ProgramFormServices& services, QWidget* owner)
    : QDialog(owner)
    , m_services(services)
{
    setupUi(this);
    // Control arrays keep the names they have always had, an index in parentheses, which a
    // layout file can't give.
    OptionOneTimeOrDaily = {OptionOneTimeOrDaily_0, OptionOneTimeOrDaily_1};
    CheckDaysOfWeek = {CheckDaysOfWeek_0, CheckDaysOfWeek_1, CheckDaysOfWeek_2, CheckDaysOfWeek_3,
                       CheckDaysOfWeek_4, CheckDaysOfWeek_5, CheckDaysOfWeek_6};
    optCloseStreamingPlayer = {optCloseStreamingPlayer_0, optCloseStreamingPlayer_1,
                               optCloseStreamingPlayer_2};
    const auto indexNames = [](const auto& controls, const char* name) {
        for (size_t i = 0; i < controls.size(); ++i)
            controls[i]->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i));
    };
    indexNames(OptionOneTimeOrDaily, "OptionOneTimeOrDaily");
    indexNames(CheckDaysOfWeek, "CheckDaysOfWeek");
    indexNames(optCloseStreamingPlayer, "optCloseStreamingPlayer");

    // What CheckEnabled switches: the controls on the tabs and in their two frames, not the
    // parts of compound controls (the source chooser, the pickers, the arrows).
    for (QWidget* parent :
         std::initializer_list<QWidget*>{frameGeneral, frameFrequency, frameFile, frameExternalApp,
                                         frameInternet, frameCloseStreamingPlayer, frameMixer})
        m_controls += parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    m_controls << CommandOk << CommandCancel;

    // The locale's short date, always with four digits of the year.
    QString dateFormat = QLocale().dateFormat(QLocale::ShortFormat);
    if (!dateFormat.contains(QStringLiteral("yyyy")))
        dateFormat.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    dtpkrOnceDate->setDisplayFormat(dateFormat);
    frameSource->SetTaskProgram(m_services.taskProgram);
    frameSource->ListInputs(m_services.audioDevices);
    if (IsWaylandSession())
        frameCloseStreamingPlayer->setToolTip(StreamingPlayer::WaylandNote());

    ConnectControls();
    Form_Load();
}

void frmProgram::ConnectControls()
{
    connect(OptionOneTimeOrDaily[0], &QRadioButton::clicked, this,
            &frmProgram::OptionOneTimeOrDaily_Click);
    connect(OptionOneTimeOrDaily[1], &QRadioButton::clicked, this,
            &frmProgram::OptionOneTimeOrDaily_Click);
    connect(CheckEnabled, &QCheckBox::clicked, this, &frmProgram::CheckEnabled_Click);
    connect(dtpkrStartTime, &QTimeEdit::timeChanged, this, &frmProgram::CalcTimeDuration);
    connect(dtpkrEndTime, &QTimeEdit::timeChanged, this, &frmProgram::CalcTimeDuration);
    connect(ChangeComprMethodButton, &QPushButton::clicked, this,
            &frmProgram::ChangeComprMethodButton_Click);

    for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{
             optDefaultFilename, optUserFilename, chkPrefix, chkSuffix})
        connect(button, &QAbstractButton::clicked, this, &frmProgram::DoFilenameEnables);

    connect(chkLaunchPrior, &QCheckBox::clicked, this, &frmProgram::DoLaunchPriorEnables);
    connect(chkLaunchAfter, &QCheckBox::clicked, this, &frmProgram::DoLaunchAfterEnables);
    connect(chkLaunchAfterOnlyIfOk, &QCheckBox::clicked, this, &frmProgram::DoLaunchAfterEnables);
    connect(btnInfo, &QPushButton::clicked, this, &frmProgram::btnInfo_Click);
    ConnectUpDown(txtLaunchPriorDelay, updnLaunchPriorDelayUp, updnLaunchPriorDelayDown);

    connect(chkLaunchLink, &QCheckBox::clicked, this, &frmProgram::DoLaunchLinkEnables);
    for (QRadioButton* option : optCloseStreamingPlayer)
        connect(option, &QRadioButton::clicked, this, &frmProgram::DoLaunchLinkEnables);
    connect(btnTestUrl, &QPushButton::clicked, this, &frmProgram::btnTestUrl_Click);
    ConnectUpDown(txtLaunchLinkDelay, updnLaunchLinkDelayUp, updnLaunchLinkDelayDown);

    connect(CommandOk, &QPushButton::clicked, this, &frmProgram::CommandOk_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &frmProgram::CommandCancel_Click);
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmProgram::SSTab1_Click);
}

void frmProgram::Form_Load()
{
    Trap(m_services.log, "Program Form Load", [&] {
        FormPlacement::PlaceAtMainForm(this, parentWidget(), 100);
        switch (m_services.options.DefaultRecordFileNameFormat) {
        case 1:
            optDefaultFilename->setText(tr("YYMM&DD_hhmmss"));
            break;
        case 2:
            optDefaultFilename->setText(tr("&DDMMYY_hhmmss"));
            break;
        default:
            optDefaultFilename->setText(tr("MM&DDYY_hhmmss"));
            break;
        }
        MixerListsFilled = false;
        FormatChanged = false;
        m_programFormOk = false;
        ApplyFrequencyRule();
        for (QTimeEdit* picker : {dtpkrStartTime, dtpkrEndTime}) {
            const QTime t = picker->time();
            picker->setTime(QTime(t.hour(), t.minute(), 0));
        }
        CalcTimeDuration();
    });
}

void frmProgram::FillProgramForm(const ProgramFormValues& v)
{
    m_programFormat.CopyFrom(v.FormFormat);
    m_formFormat.CopyFrom(v.FormFormat);
    TextCompressionMethod->setText(v.FormCompressionMethod);
    TextProgramDescription->setText(v.FormDescription);
    CheckEnabled->setChecked(v.FormEnabled);
    frameSource->SetStreamUrl(v.FormStreamUrl);
    frameSource->SetInputName(v.FormInputName);
    CheckEnabled_Click();
    dtpkrStartTime->setTime(TimeOf(v.FormStartTime));
    dtpkrEndTime->setTime(TimeOf(v.FormEndTime));
    dtpkrOnceDate->setDate(DateOf(v.FormOneTimeDay));
    // Selecting an option clicks it only when that changes the selection.
    QRadioButton* option = OptionOneTimeOrDaily[v.FormFrequency == 0 ? 0 : 1];
    if (!option->isChecked()) {
        option->setChecked(true);
        OptionOneTimeOrDaily_Click();
    }
    for (int d = 0; d < 7; ++d)
        CheckDaysOfWeek[d]->setChecked(v.FormDays[d]);

    if (!Text::Trim(v.FormFilenameUser).isEmpty()) {
        optUserFilename->setChecked(true);
        txtUserFilename->setText(v.FormFilenameUser);
        chkPrefix->setChecked(false);
        chkSuffix->setChecked(false);
        txtPrefix->clear();
        txtSuffix->clear();
    } else {
        optDefaultFilename->setChecked(true);
        chkPrefix->setChecked(!Text::Trim(v.FormFilenamePrefix).isEmpty());
        txtPrefix->setText(v.FormFilenamePrefix);
        chkSuffix->setChecked(!Text::Trim(v.FormFilenameSuffix).isEmpty());
        txtSuffix->setText(v.FormFilenameSuffix);
        txtUserFilename->clear();
    }
    DoFilenameEnables();

    const bool prior = !v.FormLaunchAppPrior.isEmpty();
    chkLaunchPrior->setChecked(prior);
    txtLaunchPrior->setText(v.FormLaunchAppPrior);
    txtLaunchPriorDelay->setText(prior ? QString::number(v.FormLaunchAppDelay)
                                       : QStringLiteral("0"));
    DoLaunchPriorEnables();
    chkLaunchAfter->setChecked(!v.FormLaunchAppAfter.isEmpty());
    txtLaunchAfter->setText(v.FormLaunchAppAfter);
    chkLaunchAfterOnlyIfOk->setChecked(v.FormLaunchAfterOnlyIfOk);
    DoLaunchAfterEnables();

    if (v.FormInternetLink.isEmpty()) {
        chkLaunchLink->setChecked(false);
        txtLaunchLink->clear();
        txtLaunchLinkDelay->setText(QStringLiteral("0"));
        chkHangUp->setChecked(false);
        txtStreamingPlayerWindowTitle->clear();
    } else {
        chkLaunchLink->setChecked(true);
        txtLaunchLink->setText(v.FormInternetLink);
        txtLaunchLinkDelay->setText(QString::number(v.FormInternetLinkDelay));
        chkHangUp->setChecked(v.FormHangupInternetConnection);
    }
    if (v.FormStreamingPlayerClose == ProgramEditor::DoNotClose) {
        optCloseStreamingPlayer[2]->setChecked(true);
    } else if (v.FormStreamingPlayerClose.isEmpty()) {
        optCloseStreamingPlayer[0]->setChecked(true);
    } else {
        optCloseStreamingPlayer[1]->setChecked(true);
        txtStreamingPlayerWindowTitle->setText(v.FormStreamingPlayerClose);
    }
    DoLaunchLinkEnables();

    // Without a profile to show, the lists are filled when their tab is first chosen.
    if (!v.FormMixerProfileBefore.isEmpty() || !v.FormMixerProfileAfter.isEmpty()) {
        FillMixerListBoxes();
        SelectProfile(lstMixerProfilePrior, v.FormMixerProfileBefore);
        SelectProfile(lstMixerProfileAfter, v.FormMixerProfileAfter);
    }
}

void frmProgram::SelectProfile(QListWidget* list, const QString& name)
{
    if (name.isEmpty())
        return;
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->text().compare(name, Qt::CaseInsensitive) == 0) {
            list->setCurrentRow(i);
            return;
        }
    }
}

QString frmProgram::ProfileOf(const QListWidget* list)
{
    const QListWidgetItem* item = list->currentItem();
    const QString text = item ? Text::Trim(item->text()) : QString();
    if (text == ProgramEditor::NoneSelected() || text == ProgramEditor::NoneAvailable())
        return QString();
    return text;
}

void frmProgram::CalcTimeDuration()
{
    DurationSeconds =
        ProgramEditor::DurationSeconds(TimeValue(dtpkrStartTime), TimeValue(dtpkrEndTime));
    DurationHours = qint16(DurationSeconds / 3600);
    DurationMinutes = qint16(DurationSeconds % 3600 / 60);
    DurationSecondsPart = qint16(DurationSeconds % 60);
    LabelDurationData->setText(ProgramEditor::DurationText(DurationSeconds));
    LabelDiskSpaceData->setText(
        ProgramEditor::DiskSpaceText(m_formFormat.CalcStorageMbytesSng(DurationSeconds)));
}

void frmProgram::ApplyFrequencyRule()
{
    const bool oneTime = OptionOneTimeOrDaily[0]->isChecked();
    dtpkrOnceDate->setEnabled(oneTime);
    for (QCheckBox* day : CheckDaysOfWeek)
        day->setEnabled(!oneTime);
}

void frmProgram::OptionOneTimeOrDaily_Click()
{
    Trap(m_services.log, "OptionOneTimeOrDaily_Click", [&] {
        ApplyFrequencyRule();
        DoFilenameEnables();
    });
}

void frmProgram::CheckEnabled_Click()
{
    Trap(m_services.log, "Program Form CheckEnabled_Click", [&] {
        // A disabled program can only be enabled, saved or left. Re-enabling does not
        // re-apply the four rules of the dependants; their next click puts them right.
        const bool on = CheckEnabled->isChecked();
        for (QWidget* control : std::as_const(m_controls))
            control->setEnabled(on);
        if (on)
            ApplyFrequencyRule();
        CommandOk->setEnabled(true);
        CommandCancel->setEnabled(true);
        CheckEnabled->setEnabled(true);
    });
}

void frmProgram::DoFilenameEnables()
{
    const bool byDefault = optDefaultFilename->isChecked();
    chkPrefix->setEnabled(byDefault);
    chkSuffix->setEnabled(byDefault);
    txtPrefix->setEnabled(byDefault && chkPrefix->isChecked());
    txtSuffix->setEnabled(byDefault && chkSuffix->isChecked());
    txtUserFilename->setEnabled(!byDefault);
}

void frmProgram::DoLaunchPriorEnables()
{
    SetEnabled({txtLaunchPrior, txtLaunchPriorDelay, updnLaunchPriorDelay, lblLaunchPriorDelay},
               chkLaunchPrior->isChecked());
}

void frmProgram::DoLaunchAfterEnables()
{
    SetEnabled({txtLaunchAfter, chkLaunchAfterOnlyIfOk}, chkLaunchAfter->isChecked());
}

void frmProgram::DoLaunchLinkEnables()
{
    const bool on = chkLaunchLink->isChecked();
    SetEnabled({txtLaunchLink, btnTestUrl, txtLaunchLinkDelay, updnLaunchLinkDelay,
                frameCloseStreamingPlayer, chkHangUp, optCloseStreamingPlayer[0],
                optCloseStreamingPlayer[1], optCloseStreamingPlayer[2], lblLaunchLinkDelay},
               on);
    txtStreamingPlayerWindowTitle->setEnabled(on && optCloseStreamingPlayer[1]->isChecked());
}

void frmProgram::FillMixerListBoxes()
{
    lstMixerProfilePrior->clear();
    lstMixerProfileAfter->clear();
    const QDir folder(m_services.mixerFolder);
    const QStringList files =
        folder.exists() ? folder.entryList({QStringLiteral("*.mxr")}, QDir::Files, QDir::Name)
                        : QStringList();
    for (QListWidget* list : {lstMixerProfilePrior, lstMixerProfileAfter}) {
        if (files.isEmpty()) {
            list->addItem(ProgramEditor::NoneAvailable());
        } else {
            list->addItem(ProgramEditor::NoneSelected());
            for (const QString& file : files)
                list->addItem(QFileInfo(file).completeBaseName());
        }
        list->setCurrentRow(0);
    }
    MixerListsFilled = true;
}

void frmProgram::SSTab1_Click(int tab)
{
    if (tab == 4 && !MixerListsFilled)
        FillMixerListBoxes();
}

void frmProgram::ChangeComprMethodButton_Click()
{
    Trap(m_services.log, "Program Form ChangeComprMethodButton_Click", [&] {
        // A later cancelled change loses an earlier accepted one; that is intended.
        FormatChanged = ChangeFormat(m_services.log, m_formFormat, this);
        if (FormatChanged) {
            TextCompressionMethod->setText(m_formFormat.TextCompressionMethod);
            CalcTimeDuration();
        }
    });
}

void frmProgram::btnTestUrl_Click()
{
    Trap(m_services.log, "Program Form btnTestUrl_Click", [&] {
        ViewHtmlFile(m_services.messageBox, m_services.launcher, m_services.runtimeFolder,
                     Text::Trim(txtLaunchLink->text()));
    });
}

void frmProgram::btnInfo_Click()
{
    frmLaunchProgramInfo info(this);
    info.exec();
}

ProgramCheckValues frmProgram::CheckValues() const
{
    ProgramCheckValues v;
    ProgramEditor::ConflictQuery& when = v.schedule;
    when.oneTime = OptionOneTimeOrDaily[0]->isChecked();
    when.oneTimeDay = AutomationDate::FromDate(dtpkrOnceDate->date());
    when.startTime = TimeValue(dtpkrStartTime);
    when.endTime = TimeValue(dtpkrEndTime);
    for (int d = 0; d < 7; ++d)
        when.days[d] = CheckDaysOfWeek[d]->isChecked();
    when.editingExisting = EditingExisting;
    when.editProgramId = EditProgramId;
    v.enabled = CheckEnabled->isChecked();
    v.description = TextProgramDescription->text();
    v.userFilename = optUserFilename->isChecked();
    v.filenameUser = txtUserFilename->text();
    v.prefixChecked = chkPrefix->isChecked();
    v.prefix = txtPrefix->text();
    v.suffixChecked = chkSuffix->isChecked();
    v.suffix = txtSuffix->text();
    v.streamSource = frameSource->StreamChosen();
    v.streamUrl = frameSource->StreamUrl();
    return v;
}

bool frmProgram::CommandOkChecks()
{
    const ProgramValidator validator(m_services.database, m_services.clock, m_services.options);
    if (const auto failed = validator.FirstFailedCheck(CheckValues())) {
        m_services.messageBox.Show(failed->title, failed->text, MsgIcon::Exclamation,
                                   MsgButtons::Ok);
        auto* focus =
            failed->focusControl.isEmpty() ? nullptr : findChild<QWidget*>(failed->focusControl);
        if (focus && focus->isEnabled())
            focus->setFocus();
        return false;
    }
    // The size limit is the recording format's own check; it tells the user itself.
    if (CheckFor2GbLimit(m_services.messageBox, m_formFormat, DurationSeconds))
        return false;
    const auto question = validator.LongRecordingQuestion(DurationSeconds);
    return !question || m_services.messageBox.Show(question->title, question->text, MsgIcon::None,
                                                   MsgButtons::YesNo) == MsgResult::Yes;
}

void frmProgram::CopyFormValues()
{
    ProgramFormValues v;
    v.FormEnabled = CheckEnabled->isChecked();
    v.FormDescription = TextProgramDescription->text();
    v.FormCompressionMethod = TextCompressionMethod->text();
    v.FormStartTime = TimeValue(dtpkrStartTime);
    v.FormEndTime = TimeValue(dtpkrEndTime);
    v.FormFrequency = OptionOneTimeOrDaily[0]->isChecked() ? 0 : 1;
    v.FormOneTimeDay = AutomationDate::FromDate(dtpkrOnceDate->date());
    for (int d = 0; d < 7; ++d)
        v.FormDays[d] = CheckDaysOfWeek[d]->isChecked();

    if (optUserFilename->isChecked()) {
        v.FormFilenameUser = Text::Trim(txtUserFilename->text());
    } else {
        if (chkPrefix->isChecked())
            v.FormFilenamePrefix = txtPrefix->text();
        if (chkSuffix->isChecked())
            v.FormFilenameSuffix = txtSuffix->text();
    }
    if (chkLaunchPrior->isChecked()) {
        v.FormLaunchAppPrior = Text::Trim(txtLaunchPrior->text());
        v.FormLaunchAppDelay = ProgramEditor::DelayFromText(txtLaunchPriorDelay->text());
    }
    if (chkLaunchAfter->isChecked()) {
        v.FormLaunchAppAfter = Text::Trim(txtLaunchAfter->text());
        v.FormLaunchAfterOnlyIfOk = chkLaunchAfterOnlyIfOk->isChecked();
    }
    // Without the link nothing of the player's closing is kept, not even "do not close".
    if (chkLaunchLink->isChecked()) {
        v.FormInternetLink = Text::Trim(txtLaunchLink->text());
        v.FormInternetLinkDelay = ProgramEditor::DelayFromText(txtLaunchLinkDelay->text());
        v.FormHangupInternetConnection = chkHangUp->isChecked();
        if (optCloseStreamingPlayer[1]->isChecked())
            v.FormStreamingPlayerClose = txtStreamingPlayerWindowTitle->text();
        else if (optCloseStreamingPlayer[2]->isChecked())
            v.FormStreamingPlayerClose = ProgramEditor::DoNotClose;
    }
    v.FormMixerProfileBefore = ProfileOf(lstMixerProfilePrior);
    v.FormMixerProfileAfter = ProfileOf(lstMixerProfileAfter);
    v.FormStreamUrl = frameSource->StreamUrl();
    v.FormInputName = frameSource->InputName();
    m_values = v;
}

void frmProgram::CommandOk_Click()
{
    Trap(m_services.log, "Program Form CommandOk_Click", [&] {
        if (!CommandOkChecks())
            return;
        CopyFormValues();
        // A change the user cancelled after accepting one keeps the program's old format.
        m_values.FormFormat.CopyFrom(FormatChanged ? m_formFormat : m_programFormat);
        m_programFormOk = true;
        accept();
    });
}

void frmProgram::CommandCancel_Click()
{
    reject();
}
