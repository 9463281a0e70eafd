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
#include "scheduling/SourceChooser.h"
#include "scheduling/frmLaunchProgramInfo.h"
#include "sideactions/StreamingPlayer.h"
#include "sideactions/ViewHtmlFile.h"
#include "store/Options.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimeEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

// The arrows beside a delay box: they step the number in the box within 0..120.
QWidget* MakeUpDown(QLineEdit* buddy)
{
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto arrow = [&](Qt::ArrowType type, int step) {
        auto* button = new QToolButton;
        button->setArrowType(type);
        button->setFixedSize(16, 11);
        button->setAutoRepeat(true);
        QObject::connect(button, &QToolButton::clicked, buddy, [buddy, step] {
            const qint64 value = Text::RoundHalfEven(Text::Val(Text::Trim(buddy->text())));
            buddy->setText(QString::number(std::clamp<qint64>(value + step, 0, 120)));
        });
        layout->addWidget(button);
    };
    arrow(Qt::UpArrow, 1);
    arrow(Qt::DownArrow, -1);
    return box;
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

template <typename T> T* frmProgram::Named(T* widget, const char* name)
{
    widget->setObjectName(QString::fromLatin1(name));
    m_controls.append(widget);
    return widget;
}

frmProgram::frmProgram(const ProgramFormServices& services, QWidget* owner)
    : QDialog(owner)
    , m_services(services)
{
    setObjectName(QStringLiteral("frmProgram"));
    setWindowTitle(tr("Program"));

    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    const auto page = [this](const char* name, const QString& title) {
        auto* frame = new QWidget;
        frame->setObjectName(QString::fromLatin1(name));
        SSTab1->addTab(frame, title);
        return frame;
    };
    frameGeneral = page("frameGeneral", tr("&General"));
    frameFile = page("frameFile", tr("&File"));
    frameExternalApp = page("frameExternalApp", tr("&External App"));
    frameInternet = page("frameInternet", tr("&Internet"));
    frameMixer = page("frameMixer", tr("&Mixer"));
    BuildGeneralTab(frameGeneral);
    BuildFileTab(frameFile);
    BuildExternalAppTab(frameExternalApp);
    BuildInternetTab(frameInternet);
    BuildMixerTab(frameMixer);

    CommandOk = Named(new QPushButton(tr("&OK")), "CommandOk");
    CommandOk->setDefault(true);
    CommandCancel = Named(new QPushButton(tr("&Cancel")), "CommandCancel");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandOk);
    buttons->addWidget(CommandCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSTab1, 1);
    layout->addLayout(buttons);

    connect(CommandOk, &QPushButton::clicked, this, &frmProgram::CommandOk_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &frmProgram::CommandCancel_Click);
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmProgram::SSTab1_Click);

    Form_Load();
}

void frmProgram::BuildGeneralTab(QWidget* page)
{
    TextProgramDescription = Named(new QLineEdit, "TextProgramDescription");
    auto* lblDescription = Named(new QLabel(tr("Description")), "lblDescription");
    lblDescription->setBuddy(TextProgramDescription);
    CheckEnabled = Named(new QCheckBox(tr("Ena&bled")), "CheckEnabled");
    CheckEnabled->setChecked(true);

    frameFrequency = Named(new QGroupBox(tr("Fre&quency")), "frameFrequency");
    OptionOneTimeOrDaily[0] = Named(new QRadioButton(tr("One &Time")), "OptionOneTimeOrDaily(0)");
    OptionOneTimeOrDaily[1] = Named(new QRadioButton(tr("Dai&ly")), "OptionOneTimeOrDaily(1)");
    OptionOneTimeOrDaily[0]->setChecked(true);
    dtpkrOnceDate = Named(new QDateEdit, "dtpkrOnceDate");
    dtpkrOnceDate->setCalendarPopup(true);
    // The locale's short date, always with four digits of the year.
    QString dateFormat = QLocale().dateFormat(QLocale::ShortFormat);
    if (!dateFormat.contains(QStringLiteral("yyyy")))
        dateFormat.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    dtpkrOnceDate->setDisplayFormat(dateFormat);
    const QString dayCaptions[] = {tr("&Sun"), tr("Mo&n"), tr("T&ue"), tr("&Wed"),
                                   tr("T&hu"), tr("F&ri"), tr("S&at")};
    auto* days = new QHBoxLayout;
    for (int d = 0; d < 7; ++d) {
        const QByteArray name = "CheckDaysOfWeek(" + QByteArray::number(d) + ')';
        CheckDaysOfWeek[d] = Named(new QCheckBox(dayCaptions[d]), name.constData());
        days->addWidget(CheckDaysOfWeek[d]);
    }
    days->addStretch();
    auto* frequency = new QGridLayout(frameFrequency);
    frequency->addWidget(OptionOneTimeOrDaily[0], 0, 0);
    frequency->addWidget(dtpkrOnceDate, 0, 1, Qt::AlignLeft);
    frequency->addWidget(OptionOneTimeOrDaily[1], 1, 0);
    frequency->addLayout(days, 1, 1);
    frequency->setColumnStretch(1, 1);

    dtpkrStartTime = Named(new QTimeEdit, "dtpkrStartTime");
    dtpkrEndTime = Named(new QTimeEdit, "dtpkrEndTime");
    for (QTimeEdit* picker : {dtpkrStartTime, dtpkrEndTime})
        picker->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    auto* lblStart = Named(new QLabel(tr("Start Time")), "lblStartTime");
    auto* lblEnd = Named(new QLabel(tr("End Time")), "lblEndTime");
    lblStart->setBuddy(dtpkrStartTime);
    lblEnd->setBuddy(dtpkrEndTime);
    auto* lblDuration = Named(new QLabel(tr("Duration:")), "LabelDuration");
    LabelDurationData = Named(new QLabel, "LabelDurationData");
    auto* lblDisk = Named(new QLabel(tr("Disk Storage: ")), "LabelDiskSpace");
    LabelDiskSpaceData = Named(new QLabel, "LabelDiskSpaceData");

    auto* lblFormat = Named(new QLabel(tr("Recording Format")), "LabelRecordingFormat");
    TextCompressionMethod = Named(new QLineEdit, "TextCompressionMethod");
    TextCompressionMethod->setReadOnly(true);
    lblFormat->setBuddy(TextCompressionMethod);
    ChangeComprMethodButton = Named(new QPushButton(tr("Modif&y")), "ChangeComprMethodButton");

    auto* grid = new QGridLayout(page);
    grid->addWidget(lblDescription, 0, 0);
    grid->addWidget(TextProgramDescription, 0, 1, 1, 3);
    grid->addWidget(CheckEnabled, 0, 4);
    grid->addWidget(frameFrequency, 1, 0, 1, 5);
    grid->addWidget(lblStart, 2, 0);
    grid->addWidget(dtpkrStartTime, 2, 1);
    grid->addWidget(lblDuration, 2, 2);
    grid->addWidget(LabelDurationData, 2, 3, 1, 2);
    grid->addWidget(lblEnd, 3, 0);
    grid->addWidget(dtpkrEndTime, 3, 1);
    grid->addWidget(lblDisk, 3, 2);
    grid->addWidget(LabelDiskSpaceData, 3, 3, 1, 2);
    grid->addWidget(lblFormat, 4, 0);
    grid->addWidget(TextCompressionMethod, 4, 1, 1, 3);
    grid->addWidget(ChangeComprMethodButton, 4, 4);
    frameSource = Named(new SourceChooser(m_services.taskProgram), "frameSource");
    grid->addWidget(frameSource, 5, 0, 1, 5);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(6, 1);

    connect(OptionOneTimeOrDaily[0], &QRadioButton::clicked, this,
            &frmProgram::OptionOneTimeOrDaily_Click);
    connect(OptionOneTimeOrDaily[1], &QRadioButton::clicked, this,
            &frmProgram::OptionOneTimeOrDaily_Click);
    connect(CheckEnabled, &QCheckBox::clicked, this, &frmProgram::CheckEnabled_Click);
    connect(dtpkrStartTime, &QTimeEdit::timeChanged, this, &frmProgram::CalcTimeDuration);
    connect(dtpkrEndTime, &QTimeEdit::timeChanged, this, &frmProgram::CalcTimeDuration);
    connect(ChangeComprMethodButton, &QPushButton::clicked, this,
            &frmProgram::ChangeComprMethodButton_Click);
}

void frmProgram::BuildFileTab(QWidget* page)
{
    optDefaultFilename = Named(new QRadioButton, "optDefaultFilename");
    optDefaultFilename->setChecked(true);
    chkPrefix = Named(new QCheckBox(tr("&Prefix")), "chkPrefix");
    txtPrefix = Named(new QLineEdit, "txtPrefix");
    chkSuffix = Named(new QCheckBox(tr("&Suffix")), "chkSuffix");
    txtSuffix = Named(new QLineEdit, "txtSuffix");
    optUserFilename = Named(new QRadioButton(tr("&User")), "optUserFilename");
    txtUserFilename = Named(new QLineEdit, "txtUserFilename");

    auto* grid = new QGridLayout(page);
    grid->addWidget(optDefaultFilename, 0, 0, 1, 3);
    grid->addWidget(chkPrefix, 1, 1);
    grid->addWidget(txtPrefix, 1, 2);
    grid->addWidget(chkSuffix, 2, 1);
    grid->addWidget(txtSuffix, 2, 2);
    grid->addWidget(optUserFilename, 3, 0, 1, 2);
    grid->addWidget(txtUserFilename, 3, 2);
    grid->setColumnMinimumWidth(0, 20);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(4, 1);

    for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{
             optDefaultFilename, optUserFilename, chkPrefix, chkSuffix})
        connect(button, &QAbstractButton::clicked, this, &frmProgram::DoFilenameEnables);
}

void frmProgram::BuildExternalAppTab(QWidget* page)
{
    chkLaunchPrior =
        Named(new QCheckBox(tr("Launch external program &prior to recording")), "chkLaunchPrior");
    txtLaunchPrior = Named(new QLineEdit, "txtLaunchPrior");
    lblLaunchPriorDelay =
        Named(new QLabel(tr("Number of seconds to launch program p&rior to recording")),
              "lblLaunchPriorDelay");
    txtLaunchPriorDelay = Named(new QLineEdit(QStringLiteral("0")), "txtLaunchPriorDelay");
    txtLaunchPriorDelay->setMaximumWidth(50);
    lblLaunchPriorDelay->setBuddy(txtLaunchPriorDelay);
    updnLaunchPriorDelay = Named(MakeUpDown(txtLaunchPriorDelay), "updnLaunchPriorDelay");
    chkLaunchAfter = Named(new QCheckBox(tr("Launch external program when recording comp&letes")),
                           "chkLaunchAfter");
    txtLaunchAfter = Named(new QLineEdit, "txtLaunchAfter");
    chkLaunchAfterOnlyIfOk =
        Named(new QCheckBox(tr("Launch only if &successful recording")), "chkLaunchAfterOnlyIfOk");
    btnInfo = Named(new QPushButton(QStringLiteral("Info...")), "btnInfo");

    auto* delay = new QHBoxLayout;
    delay->addWidget(lblLaunchPriorDelay);
    delay->addWidget(txtLaunchPriorDelay);
    delay->addWidget(updnLaunchPriorDelay);
    delay->addStretch();
    auto* grid = new QGridLayout(page);
    grid->addWidget(chkLaunchPrior, 0, 0, 1, 2);
    grid->addWidget(txtLaunchPrior, 1, 1);
    grid->addLayout(delay, 2, 1);
    grid->addWidget(chkLaunchAfter, 3, 0, 1, 2);
    grid->addWidget(txtLaunchAfter, 4, 1);
    grid->addWidget(chkLaunchAfterOnlyIfOk, 5, 1);
    grid->addWidget(btnInfo, 6, 1, Qt::AlignRight);
    grid->setColumnMinimumWidth(0, 20);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(7, 1);

    connect(chkLaunchPrior, &QCheckBox::clicked, this, &frmProgram::DoLaunchPriorEnables);
    connect(chkLaunchAfter, &QCheckBox::clicked, this, &frmProgram::DoLaunchAfterEnables);
    connect(chkLaunchAfterOnlyIfOk, &QCheckBox::clicked, this, &frmProgram::DoLaunchAfterEnables);
    connect(btnInfo, &QPushButton::clicked, this, &frmProgram::btnInfo_Click);
}

void frmProgram::BuildInternetTab(QWidget* page)
{
    chkLaunchLink =
        Named(new QCheckBox(tr("Launch Internet lin&k prior to recording")), "chkLaunchLink");
    txtLaunchLink = Named(new QLineEdit, "txtLaunchLink");
    btnTestUrl = Named(new QPushButton(tr("&Test")), "btnTestUrl");
    lblLaunchLinkDelay =
        Named(new QLabel(tr("Number of seconds to launch Internet link prior to recording")),
              "lblLaunchLinkDelay");
    txtLaunchLinkDelay = Named(new QLineEdit(QStringLiteral("0")), "txtLaunchLinkDelay");
    txtLaunchLinkDelay->setMaximumWidth(50);
    lblLaunchLinkDelay->setBuddy(txtLaunchLinkDelay);
    updnLaunchLinkDelay = Named(MakeUpDown(txtLaunchLinkDelay), "updnLaunchLinkDelay");
    frameCloseStreamingPlayer =
        Named(new QGroupBox(tr("Close streaming player when done recording")),
              "frameCloseStreamingPlayer");
    const QString options[] = {tr("&Let Nightreel attempt to determine the streaming player"),
                               tr("Enter &Window title (or part of) "),
                               tr("Do &not close streaming player")};
    for (int i = 0; i < 3; ++i) {
        const QByteArray name = "optCloseStreamingPlayer(" + QByteArray::number(i) + ')';
        optCloseStreamingPlayer[i] = Named(new QRadioButton(options[i]), name.constData());
        connect(optCloseStreamingPlayer[i], &QRadioButton::clicked, this,
                &frmProgram::DoLaunchLinkEnables);
    }
    optCloseStreamingPlayer[0]->setChecked(true);
    txtStreamingPlayerWindowTitle = Named(new QLineEdit, "txtStreamingPlayerWindowTitle");
    if (IsWaylandSession())
        frameCloseStreamingPlayer->setToolTip(StreamingPlayer::WaylandNote());
    chkHangUp =
        Named(new QCheckBox(tr("&Hang up dial up connection when done recording")), "chkHangUp");

    auto* close = new QGridLayout(frameCloseStreamingPlayer);
    close->addWidget(optCloseStreamingPlayer[0], 0, 0, 1, 2);
    close->addWidget(optCloseStreamingPlayer[1], 1, 0);
    close->addWidget(txtStreamingPlayerWindowTitle, 1, 1);
    close->addWidget(optCloseStreamingPlayer[2], 2, 0, 1, 2);
    close->setColumnStretch(1, 1);

    auto* link = new QHBoxLayout;
    link->addWidget(txtLaunchLink, 1);
    link->addWidget(btnTestUrl);
    auto* delay = new QHBoxLayout;
    delay->addWidget(lblLaunchLinkDelay);
    delay->addWidget(txtLaunchLinkDelay);
    delay->addWidget(updnLaunchLinkDelay);
    delay->addStretch();
    auto* grid = new QGridLayout(page);
    grid->addWidget(chkLaunchLink, 0, 0, 1, 2);
    grid->addLayout(link, 1, 1);
    grid->addLayout(delay, 2, 1);
    grid->addWidget(frameCloseStreamingPlayer, 3, 1);
    grid->addWidget(chkHangUp, 4, 1);
    grid->setColumnMinimumWidth(0, 20);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);

    connect(chkLaunchLink, &QCheckBox::clicked, this, &frmProgram::DoLaunchLinkEnables);
    connect(btnTestUrl, &QPushButton::clicked, this, &frmProgram::btnTestUrl_Click);
}

void frmProgram::BuildMixerTab(QWidget* page)
{
    auto* lblPrior =
        Named(new QLabel(tr("Activate mixer profile prior to recording")), "lblMixerProfilePrior");
    lstMixerProfilePrior = Named(new QListWidget, "lstMixerProfilePrior");
    auto* lblAfter = Named(new QLabel(tr("Activate mixer profile when recording completes")),
                           "lblMixerProfileAfter");
    lstMixerProfileAfter = Named(new QListWidget, "lstMixerProfileAfter");
    lblPrior->setBuddy(lstMixerProfilePrior);
    lblAfter->setBuddy(lstMixerProfileAfter);
    auto* lblHint =
        Named(new QLabel(tr("Mixer profiles can be created in the Tools menu.")), "lblMixerHint");

    auto* grid = new QGridLayout(page);
    grid->addWidget(lblPrior, 0, 0);
    grid->addWidget(lblAfter, 0, 1);
    grid->addWidget(lstMixerProfilePrior, 1, 0);
    grid->addWidget(lstMixerProfileAfter, 1, 1);
    grid->addWidget(lblHint, 2, 0, 1, 2);
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
    ViewHtmlFile(m_services.log, m_services.messageBox, m_services.launcher,
                 m_services.runtimeFolder, Text::Trim(txtLaunchLink->text()));
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
