#include "options/frmOptions.h"

#include "common/AutomationDate.h"
#include "common/MessageBox.h"
#include "common/TextHelpers.h"
#include "diagnostics/Trap.h"
#include "diagnostics/clsError.h"
#include "formats/FormatStore.h"
#include "formats/frmRecordFormat.h"
#include "gui/FormPlacement.h"
#include "gui/UpDown.h"
#include "options/AutostartEntry.h"
#include "options/RecordingInputBox.h"
#include "options/frmSelectRecordDirectory.h"
#include "store/Options.h"
#include "store/RegKeys.h"
#include "tray/SysTrayIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QTabWidget>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace {

const QString kSection = QStringLiteral("Settings");
const QString kEnhancedPlayer = QStringLiteral("Nightreel Enhanced Player");
const QString kClassicPlayer = QStringLiteral("Nightreel Classic Player");
const QString kDefaultPlayer = QStringLiteral("Desktop Default");
// Offset of the dialog from the main form's corner.
constexpr int kOffsetTwips = 600;

QString TwoDigits(int value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

// The box's text as a number, as the checks compare it.
double Number(const QLineEdit* box)
{
    return Text::Val(box->text());
}

bool Within(double value, int min, int max)
{
    return value >= min && value <= max;
}

qint16 Int16(double value)
{
    return qint16(Text::RoundHalfEven(value));
}

// The common clamp of the duration boxes: within min..max, written with two digits.
void ClampDuration(QLineEdit* box, int max)
{
    box->setText(TwoDigits(int(qBound(qint64(0), Text::RoundHalfEven(Number(box)), qint64(max)))));
}

QLabel* SunkenLabel(const char* name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setFrameShape(QFrame::Panel);
    label->setFrameShadow(QFrame::Sunken);
    label->setMinimumWidth(260);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

template <typename T> T* Named(T* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

// A label tied to its field, for mnemonics and screen readers.
QLabel* LabelFor(const QString& text, QWidget* field)
{
    auto* label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

// A label, a limited box with its arrows, and a label after it, on one line.
QHBoxLayout* BoxLine(QWidget* before, QLineEdit* box, UpDown* upDown, const QString& after)
{
    auto* line = new QHBoxLayout;
    if (before)
        line->addWidget(before);
    line->addWidget(box);
    line->addWidget(upDown);
    if (!after.isEmpty())
        line->addWidget(new QLabel(after));
    line->addStretch();
    return line;
}

} // namespace

frmOptions::frmOptions(const OptionsFormServices& services, bool mediaPlayerAvailable,
                       QWidget* owner)
    : QDialog(owner)
    , m_s(services)
{
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(tr("Options"));
    SSTab1 = Named(new QTabWidget(this), QStringLiteral("SSTab1"));
    SSTab1->addTab(BuildRecordTab(), tr("Record"));
    SSTab1->addTab(BuildPlayTab(), tr("Play"));
    SSTab1->addTab(BuildStartupTab(), tr("Startup"));
    SSTab1->addTab(BuildDiskTab(), tr("Disk"));
    SSTab1->addTab(BuildAdvancedTab(), tr("Advanced"));

    cmdOK = Named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("cmdOK"));
    cmdCancel = Named(new QPushButton(tr("&Cancel"), this), QStringLiteral("cmdCancel"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSTab1);
    layout->addLayout(buttons);

    FormLoad(mediaPlayerAvailable);
    FormPlacement::PlaceAtMainForm(this, owner, kOffsetTwips);
}

QLineEdit* frmOptions::LimitedBox(const char* boxName, const char* upDownName, int min, int max,
                                  UpDown*& upDown)
{
    auto* box = Named(new QLineEdit, QLatin1String(boxName));
    // Digits only; the limits are checked where the rules say, not while typing.
    box->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,5}")), box));
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 8);
    box->setAlignment(Qt::AlignRight);
    upDown = Named(new UpDown(box, min, max), QLatin1String(upDownName));
    return box;
}

QWidget* frmOptions::BuildRecordTab()
{
    auto* frame = Named(new QWidget, QStringLiteral("frameRecord"));
    auto* layout = new QVBoxLayout(frame);

    auto* folder = new QGroupBox(tr("Default Recording &Folder"));
    lblRecordingFolder = SunkenLabel("lblRecordingFolder", folder);
    btnChangeRecordingFolder =
        Named(new QPushButton(tr("C&hange...")), QStringLiteral("btnChangeRecordingFolder"));
    auto* folderLine = new QHBoxLayout(folder);
    folderLine->addWidget(lblRecordingFolder, 1);
    folderLine->addWidget(btnChangeRecordingFolder);
    connect(btnChangeRecordingFolder, &QPushButton::clicked, this,
            &frmOptions::btnChangeRecordingFolder_Click);
    layout->addWidget(folder);
    frameRecordingInput = new RecordingInputBox(m_s.audioDevices);
    layout->addWidget(frameRecordingInput);

    auto* format = new QGroupBox(tr("Default Recording Format"));
    LabelCompressionFormat = SunkenLabel("LabelCompressionFormat", format);
    CommandChangeDefautWfx =
        Named(new QPushButton(tr("&Modify")), QStringLiteral("CommandChangeDefautWfx"));
    auto* formatLine = new QHBoxLayout(format);
    formatLine->addWidget(LabelCompressionFormat, 1);
    formatLine->addWidget(CommandChangeDefautWfx);
    connect(CommandChangeDefautWfx, &QPushButton::clicked, this,
            &frmOptions::CommandChangeDefautWfx_Click);
    layout->addWidget(format);

    auto* duration = new QGroupBox(tr("Default Manual Recording Duration"));
    TextDurationHours =
        LimitedBox("TextDurationHours", "UpDownDurationHours", 0, 23, UpDownDurationHours);
    TextDurationMinutes =
        LimitedBox("TextDurationMinutes", "UpDownDurationMinutes", 0, 59, UpDownDurationMinutes);
    TextDurationSeconds =
        LimitedBox("TextDurationSeconds", "UpDownDurationSeconds", 0, 59, UpDownDurationSeconds);
    auto* durationLine = new QHBoxLayout(duration);
    durationLine->addLayout(
        BoxLine(nullptr, TextDurationHours, UpDownDurationHours, QStringLiteral("hours")));
    durationLine->addLayout(
        BoxLine(nullptr, TextDurationMinutes, UpDownDurationMinutes, QStringLiteral("minutes")));
    durationLine->addLayout(
        BoxLine(nullptr, TextDurationSeconds, UpDownDurationSeconds, QStringLiteral("seconds")));
    layout->addWidget(duration);

    chkConfirmLongRecordings = Named(new QCheckBox(tr("Co&nfirm when recordings longer than")),
                                     QStringLiteral("chkConfirmLongRecordings"));
    txtLongRecordingHours = LimitedBox("txtLongRecordingHours", "updnConfirmLongRecordings", 1, 23,
                                       updnConfirmLongRecordings);
    layout->addLayout(BoxLine(chkConfirmLongRecordings, txtLongRecordingHours,
                              updnConfirmLongRecordings, tr("hours are programmed")));
    chkConfirmStopManualRecording = Named(new QCheckBox(tr("Confirm &stop of manual recordings")),
                                          QStringLiteral("chkConfirmStopManualRecording"));
    layout->addWidget(chkConfirmStopManualRecording);
    txtPaddingSeconds = LimitedBox("txtPaddingSeconds", "updnPaddingSeconds", 0,
                                   Options::MaxPaddingSeconds, updnPaddingSeconds);
    auto* paddingLabel = new QLabel(tr("Start &programmed recordings"));
    paddingLabel->setBuddy(txtPaddingSeconds);
    layout->addLayout(BoxLine(paddingLabel, txtPaddingSeconds, updnPaddingSeconds,
                              tr("seconds early and end them as many seconds late")));
    layout->addStretch();
    return frame;
}

QWidget* frmOptions::BuildPlayTab()
{
    auto* frame = Named(new QWidget, QStringLiteral("framePlay"));
    auto* layout = new QVBoxLayout(frame);
    auto* players = new QGridLayout;
    ComboWavPlayer = Named(new QComboBox, QStringLiteral("ComboWavPlayer"));
    ComboMP3Player = Named(new QComboBox, QStringLiteral("ComboMP3Player"));
    players->addWidget(LabelFor(tr("WAV files"), ComboWavPlayer), 0, 0);
    players->addWidget(ComboWavPlayer, 0, 1);
    players->addWidget(LabelFor(tr("MP3 files"), ComboMP3Player), 1, 0);
    players->addWidget(ComboMP3Player, 1, 1);
    players->setColumnStretch(2, 1);
    layout->addLayout(players);

    auto* steps = new QGroupBox(tr("C&ustomize play forward/reverse buttons"));
    auto* grid = new QGridLayout(steps);
    for (int i = 0; i < 6; ++i) {
        const QString n = QString::number(i);
        auto* label =
            Named(new QLabel(tr("Button %1").arg(i + 1)), QStringLiteral("lblFwdRev") + n);
        const QByteArray box = ("txtFwdRev" + n).toLatin1();
        const QByteArray arrows = ("UpDown1" + n).toLatin1();
        txtFwdRev[i] = LimitedBox(box.constData(), arrows.constData(), 1, 59, UpDown1[i]);
        comboMinSec[i] = Named(new QComboBox, QStringLiteral("comboMinSec") + n);
        comboMinSec[i]->addItems({tr("Seconds"), tr("Minutes")});
        label->setBuddy(txtFwdRev[i]);
        const int row = i % 3;
        const int column = i / 3 * 5;
        grid->addWidget(label, row, column);
        grid->addWidget(txtFwdRev[i], row, column + 1);
        grid->addWidget(UpDown1[i], row, column + 2);
        grid->addWidget(comboMinSec[i], row, column + 3);
    }
    grid->setColumnMinimumWidth(4, 16);
    layout->addWidget(steps);
    chkShowActualTimeInPlayer = Named(new QCheckBox(tr("&Show actual record time in player")),
                                      QStringLiteral("chkShowActualTimeInPlayer"));
    layout->addWidget(chkShowActualTimeInPlayer);
    layout->addStretch();
    return frame;
}

QWidget* frmOptions::BuildStartupTab()
{
    auto* frame = Named(new QWidget, QStringLiteral("frameStartup"));
    auto* layout = new QVBoxLayout(frame);
    chkStartupFolder = Named(new QCheckBox(tr("Run Nightreel 2000 when the desktop &starts")),
                             QStringLiteral("chkStartupFolder"));
    layout->addWidget(chkStartupFolder);
    auto* mode = new QGroupBox(tr("Desktop Startup Mode"));
    optNormalStartupMode =
        Named(new QRadioButton(tr("&Normal")), QStringLiteral("optNormalStartupMode"));
    optHiddenStartupMode =
        Named(new QRadioButton(tr("&Hidden")), QStringLiteral("optHiddenStartupMode"));
    auto* modeLayout = new QVBoxLayout(mode);
    modeLayout->addWidget(optNormalStartupMode);
    modeLayout->addWidget(optHiddenStartupMode);
    layout->addWidget(mode);
    chkShowSplashScreen =
        Named(new QCheckBox(tr("Sho&w Splash Screen")), QStringLiteral("chkShowSplashScreen"));
    layout->addWidget(chkShowSplashScreen);
    layout->addStretch();
    return frame;
}

QWidget* frmOptions::BuildDiskTab()
{
    auto* frame = Named(new QWidget, QStringLiteral("frameDisk"));
    auto* layout = new QVBoxLayout(frame);
    txtWarnRecMegsLeft =
        LimitedBox("txtWarnRecMegsLeft", "updnWarnRecMegsLeft", 10, 20000, updnWarnRecMegsLeft);
    txtStopRecMegsLeft =
        LimitedBox("txtStopRecMegsLeft", "updnStopRecMegsLeft", 5, 20000, updnStopRecMegsLeft);
    auto* limits = new QGridLayout;
    limits->addWidget(LabelFor(tr("Warn when disk has"), txtWarnRecMegsLeft), 0, 0);
    limits->addWidget(txtWarnRecMegsLeft, 0, 1);
    limits->addWidget(updnWarnRecMegsLeft, 0, 2);
    limits->addWidget(new QLabel(tr("Megabytes left")), 0, 3);
    limits->addWidget(LabelFor(tr("Stop recording when disk has"), txtStopRecMegsLeft), 1, 0);
    limits->addWidget(txtStopRecMegsLeft, 1, 1);
    limits->addWidget(updnStopRecMegsLeft, 1, 2);
    limits->addWidget(new QLabel(tr("Megabytes left")), 1, 3);
    limits->setColumnStretch(4, 1);
    layout->addLayout(limits);

    chkPurgeOldRecordings = Named(new QCheckBox(tr("R&emove recordings older than")),
                                  QStringLiteral("chkPurgeOldRecordings"));
    chkPurgeOldRecordings->setToolTip(
        tr("Removes only recordings that are in the recordings list, with their CUE "
           "sheets, and takes them off the list. Other files in the recording folder "
           "are never removed."));
    txtPurgeDays = LimitedBox("txtPurgeDays", "updnPurgeDays", 3, 999, updnPurgeDays);
    layout->addLayout(
        BoxLine(chkPurgeOldRecordings, txtPurgeDays, updnPurgeDays, QStringLiteral("days")));
    dtpkrPurgeTime = Named(new QTimeEdit, QStringLiteral("dtpkrPurgeTime"));
    dtpkrPurgeTime->setDisplayFormat(QStringLiteral("h:mm:ss AP"));
    auto* purgeTimeLabel = new QLabel(tr("Per&form purging daily at"));
    purgeTimeLabel->setBuddy(dtpkrPurgeTime);
    auto* timeLine = new QHBoxLayout;
    timeLine->addSpacing(20);
    timeLine->addWidget(purgeTimeLabel);
    timeLine->addWidget(dtpkrPurgeTime);
    timeLine->addStretch();
    layout->addLayout(timeLine);
    auto* note =
        new QLabel(tr("NOTE: Purging is done only in the current default recording folder."));
    note->setWordWrap(true);
    layout->addWidget(note);
    layout->addStretch();
    return frame;
}

QWidget* frmOptions::BuildAdvancedTab()
{
    auto* frame = Named(new QWidget, QStringLiteral("frameAdvanced"));
    auto* layout = new QVBoxLayout(frame);
    chkAllowJoystickActivation = Named(new QCheckBox(tr("Allow &joystick activation")),
                                       QStringLiteral("chkAllowJoystickActivation"));
    chkRemoveExpiredPrograms = Named(new QCheckBox(tr("A&utomatically remove expired programs")),
                                     QStringLiteral("chkRemoveExpiredPrograms"));
    chkShowRecordingTimeInTaskBar =
        Named(new QCheckBox(tr("Show elapsed recording time in the desktop task &bar")),
              QStringLiteral("chkShowRecordingTimeInTaskBar"));
    // For a machine left alone: no sleep while a recording is due, and a warning in the log
    // when the input stays silent.
    chkKeepAwakeForRecordings = Named(new QCheckBox(tr("&Keep the computer awake for recordings")),
                                      QStringLiteral("chkKeepAwakeForRecordings"));
    chkSilenceAlarm = Named(new QCheckBox(tr("&Warn when a recording is silent")),
                            QStringLiteral("chkSilenceAlarm"));
    chkShowDesktopNotifications = Named(new QCheckBox(tr("Show desktop &notifications")),
                                        QStringLiteral("chkShowDesktopNotifications"));
    chkShowDesktopNotifications->setToolTip(
        tr("A failed recording, a silent input, a full disk or a failed conversion "
           "is also announced on the desktop."));
    for (QCheckBox* box :
         {chkAllowJoystickActivation, chkRemoveExpiredPrograms, chkShowRecordingTimeInTaskBar,
          chkKeepAwakeForRecordings, chkSilenceAlarm, chkShowDesktopNotifications})
        layout->addWidget(box);
    comboDefaultRecordFileNameFormat =
        Named(new QComboBox, QStringLiteral("comboDefaultRecordFileNameFormat"));
    comboDefaultRecordFileNameFormat->addItems({QStringLiteral("MMDDYY_hhmmss"),
                                                QStringLiteral("YYMMDD_hhmmss"),
                                                QStringLiteral("DDMMYY_hhmmss")});
    auto* nameLine = new QHBoxLayout;
    nameLine->addWidget(
        LabelFor(tr("Default recording file name format:"), comboDefaultRecordFileNameFormat));
    nameLine->addWidget(comboDefaultRecordFileNameFormat);
    nameLine->addStretch();
    layout->addLayout(nameLine);

    auto* mixer = new QGroupBox(tr("&Mixer Control"));
    lblMixerControl = SunkenLabel("lblMixerControl", mixer);
    btnSelectMixer = Named(new QPushButton(tr("Se&lect...")), QStringLiteral("btnSelectMixer"));
    btnDefaultMixer = Named(new QPushButton(tr("&default")), QStringLiteral("btnDefaultMixer"));
    auto* mixerLine = new QHBoxLayout(mixer);
    mixerLine->addWidget(lblMixerControl, 1);
    mixerLine->addWidget(btnSelectMixer);
    mixerLine->addWidget(btnDefaultMixer);
    connect(btnSelectMixer, &QPushButton::clicked, this, &frmOptions::btnSelectMixer_Click);
    connect(btnDefaultMixer, &QPushButton::clicked, this, &frmOptions::btnDefaultMixer_Click);
    layout->addWidget(mixer);
    layout->addStretch();
    return frame;
}

void frmOptions::FormLoad(bool mediaPlayerAvailable)
{
    Trap(m_s.log, "Options Form_Load", [&] {
        const Options& o = m_s.options;
        m_workingMixerPath = o.MixerFilePath;
        m_workingRecordingFolder = o.DefaultRecordingDirectory;
        m_workingFormat.CopyFrom(m_s.defaultFormat);
        ShowRecordingFolder();
        LabelCompressionFormat->setText(m_workingFormat.TextCompressionMethod);

        // The duration is read from the store once more and clamped, so that a value
        // outside the limits shows as the nearest one the dialog will store.
        const auto duration = [this](QLineEdit* box, const char* key, int value, int max) {
            box->setText(
                m_s.registry.GetSetting(kSection, QLatin1String(key), QString::number(value)));
            ClampDuration(box, max);
        };
        duration(TextDurationHours, "DefaultManualRecordingDurationHours",
                 o.DefaultManualRecordingDurationHours, 23);
        duration(TextDurationMinutes, "DefaultManualRecordingDurationMinutes",
                 o.DefaultManualRecordingDurationMinutes, 59);
        duration(TextDurationSeconds, "DefaultManualRecordingDurationSeconds",
                 o.DefaultManualRecordingDurationSeconds, 59);
        chkConfirmLongRecordings->setChecked(o.ConfirmLongRecordings);
        txtLongRecordingHours->setText(TwoDigits(o.LongRecordingHours));
        chkConfirmStopManualRecording->setChecked(o.ConfirmStopManualRecording);
        frameRecordingInput->SetInputName(o.RecordingInput);
        txtPaddingSeconds->setText(QString::number(o.PaddingSeconds));

        if (mediaPlayerAvailable) {
            ComboWavPlayer->addItem(kEnhancedPlayer);
            ComboMP3Player->addItem(kEnhancedPlayer);
        }
        ComboWavPlayer->addItems({kClassicPlayer, kDefaultPlayer});
        ComboMP3Player->addItem(kDefaultPlayer);
        ComboWavPlayer->setCurrentIndex(qMax(0, ComboWavPlayer->findText(o.WavPlayer)));
        ComboMP3Player->setCurrentIndex(qMax(0, ComboMP3Player->findText(o.Mp3Player)));
        for (int i = 0; i < 6; ++i) {
            txtFwdRev[i]->setText(TwoDigits(o.PlayStepSizes[i].Value));
            comboMinSec[i]->setCurrentIndex(o.PlayStepSizes[i].Minute ? 1 : 0);
        }
        chkShowActualTimeInPlayer->setChecked(o.ShowActualTimeInPlayer);

        optHiddenStartupMode->setChecked(o.HiddenWindowStatupMode);
        optNormalStartupMode->setChecked(!o.HiddenWindowStatupMode);
        if (!SysTrayIcon::Available()) {
            optHiddenStartupMode->setEnabled(false);
            optHiddenStartupMode->setToolTip(SysTrayIcon::MissingNote());
        }
        chkShowSplashScreen->setChecked(o.ShowSplashScreen);

        txtWarnRecMegsLeft->setText(QString::number(o.WarnRecMegsLeft));
        txtStopRecMegsLeft->setText(QString::number(o.StopRecMegsLeft));
        chkPurgeOldRecordings->setChecked(o.PurgeRecordings);
        txtPurgeDays->setText(QString::number(o.PurgeDays));
        dtpkrPurgeTime->setTime(AutomationDate::ToDateTime(o.PurgeTime).time());

        chkAllowJoystickActivation->setChecked(o.AllowJoystickActivation);
        chkRemoveExpiredPrograms->setChecked(o.RemoveExpiredPrograms);
        chkShowRecordingTimeInTaskBar->setChecked(o.ShowRecordingTimeInTaskBar);
        chkKeepAwakeForRecordings->setChecked(o.KeepAwakeForRecordings);
        chkSilenceAlarm->setChecked(o.SilenceAlarm);
        chkShowDesktopNotifications->setChecked(o.ShowDesktopNotifications);
        comboDefaultRecordFileNameFormat->setCurrentIndex(o.DefaultRecordFileNameFormat);
        lblMixerControl->setText(m_workingMixerPath);

        for (QLineEdit* box :
             {txtPaddingSeconds, txtPurgeDays, txtStopRecMegsLeft, txtWarnRecMegsLeft,
              TextDurationHours, TextDurationMinutes, TextDurationSeconds})
            box->installEventFilter(this);
        SetMixerButtonsState();
        // A desktop without an autostart folder has nothing to offer here.
        chkStartupFolder->setVisible(!AutostartEntry::Folder().isEmpty());
        chkStartupFolder->setChecked(AutostartEntry::Exists());
    });
}

bool frmOptions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut)
        ClampOnLostFocus(static_cast<QLineEdit*>(watched));
    return QDialog::eventFilter(watched, event);
}

// Leaving a limited box replaces a number beyond its limits by the limit it breaks; the
// lower limit is tested first. Nothing is said.
void frmOptions::ClampOnLostFocus(QLineEdit* box)
{
    const auto clamp = [box](int min, int max) {
        if (Number(box) < min)
            box->setText(QString::number(min));
        if (Number(box) > max)
            box->setText(QString::number(max));
    };
    if (box == txtPurgeDays)
        Trap(m_s.log, "Options txtPurgeDays_LostFocus", [&] { clamp(3, 999); });
    else if (box == txtStopRecMegsLeft)
        Trap(m_s.log, "Options txtStopRecMegsLeft_LostFocus", [&] { clamp(5, 20000); });
    else if (box == txtWarnRecMegsLeft)
        Trap(m_s.log, "Options txtWarnRecMegsLeft_LostFocus", [&] { clamp(10, 20000); });
    else if (box == txtPaddingSeconds)
        Trap(m_s.log, "Options txtPaddingSeconds_LostFocus",
             [&] { clamp(0, Options::MaxPaddingSeconds); });
    else if (box == TextDurationHours)
        ClampDuration(box, 23);
    else if (box == TextDurationMinutes || box == TextDurationSeconds)
        ClampDuration(box, 59);
}

void frmOptions::ShowRecordingFolder()
{
    lblRecordingFolder->setText(m_workingRecordingFolder.isEmpty() ? tr("(none)")
                                                                   : m_workingRecordingFolder);
}

void frmOptions::btnChangeRecordingFolder_Click()
{
    Trap(m_s.log, "Options btnChangeRecordingFolder_Click", [&] {
        const bool usable =
            !m_workingRecordingFolder.isEmpty() && QDir(m_workingRecordingFolder).exists();
        const QString proposed =
            usable ? m_workingRecordingFolder : QDir::homePath() + QStringLiteral("/recordings");
        const QString chosen =
            frmSelectRecordDirectory::Choose(m_s.log, m_s.messageBox, this, proposed);
        if (Text::Trim(chosen).isEmpty())
            return;
        m_workingRecordingFolder = chosen;
        ShowRecordingFolder();
    });
}

void frmOptions::CommandChangeDefautWfx_Click()
{
    Trap(m_s.log, "Options CommandChangeDefautWfx_Click", [&] {
        if (!ChangeFormat(m_s.log, m_workingFormat, this))
            return;
        m_formatChanged = true;
        LabelCompressionFormat->setText(m_workingFormat.TextCompressionMethod);
    });
}

void frmOptions::btnSelectMixer_Click()
{
    Trap(m_s.log, "Options btnSelectMixerControl_Click", [&] {
        // Only files that exist can be chosen.
        const QString file = Text::Trim(QFileDialog::getOpenFileName(this));
        if (!file.isEmpty()) {
            m_workingMixerPath = file;
            lblMixerControl->setText(file);
        }
        SetMixerButtonsState();
    });
}

void frmOptions::btnDefaultMixer_Click()
{
    Trap(m_s.log, "Options btnDefaultMixer_Click", [&] {
        const MsgResult answer = m_s.messageBox.Show(
            tr("Default Mixer"),
            tr("The mixer control will be changed to the sound server's volume control. "
               "Proceed?"),
            MsgIcon::Question, MsgButtons::YesNo);
        if (answer == MsgResult::Yes) {
            m_workingMixerPath = Options::DefaultMixerFilePath;
            lblMixerControl->setText(m_workingMixerPath);
        }
        SetMixerButtonsState();
    });
}

void frmOptions::SetMixerButtonsState()
{
    btnDefaultMixer->setEnabled(Text::Trim(m_workingMixerPath) != Options::DefaultMixerFilePath);
}

void frmOptions::SavePlayFwdRevSettings()
{
    InRoutine("SavePlayFwdRevSettings", [&] {
        for (int i = 0; i < 6; ++i) {
            m_s.options.PlayStepSizes[i] = {comboMinSec[i]->currentText() == tr("Minutes"),
                                            int(Text::RoundHalfEven(Number(txtFwdRev[i])))};
        }
        m_s.options.SaveCurrentStepSizeSettings(m_s.registry);
    });
}

void frmOptions::cmdOK_Click()
{
    // Each part needs the one before, and a failure leaves the dialog open; but the default
    // format and the step sizes may each fail to be saved without holding up the rest.
    const auto step = [this](auto&& body) {
        return Trap(m_s.log, "Options cmdOK_Click", body);
    };
    bool folderValid = false;
    if (!step([&] { folderValid = TakeFolderAndDiskLimits(); }) || !folderValid)
        return;
    if (m_formatChanged)
        step([&] { m_s.formatStore.SaveDefaultFormatInfo(m_s.defaultFormat); });
    step([&] { SavePlayFwdRevSettings(); });
    step([&] { TakeTheRest(); });
}

bool frmOptions::TakeFolderAndDiskLimits()
{
    Options& o = m_s.options;
    // First, so that it is kept even when the folder check below fails.
    o.HiddenWindowStatupMode = optHiddenStartupMode->isChecked();
    o.SaveStartupMode(m_s.registry);

    if (m_workingRecordingFolder.isEmpty() || !QDir(m_workingRecordingFolder).exists()) {
        m_s.messageBox.Show(tr("Invalid option"),
                            tr("Recordings directory does not exist or could not be created"),
                            MsgIcon::Exclamation, MsgButtons::Ok);
        return false;
    }
    o.DefaultRecordingDirectory = m_workingRecordingFolder;
    m_s.error.SetInvalidRecordingDirectory(false);

    // The two disk limits go together: one out of range drops both.
    const double warn = Number(txtWarnRecMegsLeft);
    const double stop = Number(txtStopRecMegsLeft);
    if (Within(warn, 10, 20000) && Within(stop, 5, 20000)) {
        o.StopRecMegsLeft = Int16(stop);
        o.WarnRecMegsLeft = qMax(Int16(warn), o.StopRecMegsLeft);
    }
    if (m_formatChanged)
        m_s.defaultFormat.CopyFrom(m_workingFormat);
    o.ConfirmStopManualRecording = chkConfirmStopManualRecording->isChecked();
    o.RecordingInput = frameRecordingInput->InputName();
    return true;
}

void frmOptions::TakeTheRest()
{
    Options& o = m_s.options;
    o.ShowActualTimeInPlayer = chkShowActualTimeInPlayer->isChecked();
    o.ShowSplashScreen = chkShowSplashScreen->isChecked();
    o.WavPlayer = ComboWavPlayer->currentText();
    o.Mp3Player = ComboMP3Player->currentText();
    o.RemoveExpiredPrograms = chkRemoveExpiredPrograms->isChecked();
    o.ShowRecordingTimeInTaskBar = chkShowRecordingTimeInTaskBar->isChecked();
    o.KeepAwakeForRecordings = chkKeepAwakeForRecordings->isChecked();
    o.SilenceAlarm = chkSilenceAlarm->isChecked();
    o.ShowDesktopNotifications = chkShowDesktopNotifications->isChecked();
    o.MixerFilePath = m_workingMixerPath;
    o.AllowJoystickActivation = chkAllowJoystickActivation->isChecked();
    o.DefaultRecordFileNameFormat =
        qint16(qMax(0, comboDefaultRecordFileNameFormat->currentIndex()));
    // Enter may press OK while a duration box still has the focus: the clamp that
    // leaving the box would have done is done here.
    ClampDuration(TextDurationHours, 23);
    ClampDuration(TextDurationMinutes, 59);
    ClampDuration(TextDurationSeconds, 59);
    o.DefaultManualRecordingDurationHours = Int16(Number(TextDurationHours));
    o.DefaultManualRecordingDurationMinutes = Int16(Number(TextDurationMinutes));
    o.DefaultManualRecordingDurationSeconds = Int16(Number(TextDurationSeconds));

    // A group with a value out of range keeps what it had.
    const double longHours = Number(txtLongRecordingHours);
    if (Within(longHours, 1, 23)) {
        o.LongRecordingHours = Int16(longHours);
        o.ConfirmLongRecordings = chkConfirmLongRecordings->isChecked();
    }
    const double padding = Number(txtPaddingSeconds);
    if (Within(padding, 0, Options::MaxPaddingSeconds))
        o.PaddingSeconds = Int16(padding);
    const double purgeDays = Number(txtPurgeDays);
    if (Within(purgeDays, 3, 999)) {
        o.PurgeDays = Int16(purgeDays);
        o.PurgeRecordings = chkPurgeOldRecordings->isChecked();
        const QTime t = dtpkrPurgeTime->time();
        o.PurgeTime = AutomationDate::FromTime(t.hour(), t.minute(), t.second());
    }
    o.SaveOptions(m_s.registry);

    AutostartEntry::Set(chkStartupFolder->isChecked(), m_s.programFolder);
    if (m_s.updateStatusBarPlus)
        m_s.updateStatusBarPlus();
    accept();
}
