#include "shell/frmMain.h"

#include "common/AutomationDate.h"
#include "common/MessageBox.h"
#include "common/ProgramFiles.h"
#include "common/Twips.h"
#include "diagnostics/Trap.h"
#include "diagnostics/frmElog.h"
#include "diagnostics/frmErrors.h"
#include "options/frmOptions.h"
#include "options/frmSelectRecordDirectory.h"
#include "platform/DesktopNotifications.h"
#include "platform/Joystick.h"
#include "platform/ProcessLauncher.h"
#include "player/MediaPlayerAvailable.h"
#include "player/PlayPanels.h"
#include "player/PlayerChoice.h"
#include "recording/ManualRecordCommands.h"
#include "scheduling/DiskForecast.h"
#include "scheduling/frmDiskStatus.h"
#include "shell/AppContext.h"
#include "shell/Icons.h"
#include "shell/ProgramListGrid.h"
#include "shell/RecordingsListGrid.h"
#include "shell/frmAbout.h"
#include "shell/frmRecordingStatus.h"
#include "sideactions/LaunchMixer.h"
#include "sideactions/ViewHtmlFile.h"
#include "sideactions/frmMixerProfiles.h"
#include "store/GridColumns.h"
#include "store/RecordsetModel.h"
#include "tray/SysTrayIcon.h"
#include "tray/clsSysTrayMgr.h"
#include "tray/frmSysTray.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QSessionManager>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

namespace {

const QString kSettings = QStringLiteral("Settings");

void SetIfChanged(QLabel* label, const QString& text)
{
    if (label->text() != text)
        label->setText(text);
}

QUrl ManualUrl(const QString& anchor)
{
    const QString manual = ProgramFiles::OfRunningProgram().Manual();
    QUrl url = QUrl::fromLocalFile(QFileInfo::exists(manual) ? manual : QString());
    if (!anchor.isEmpty())
        url.setFragment(anchor);
    return url;
}

} // namespace

frmMain::frmMain(AppContext& ctx, bool startHidden, QWidget* parent, const SysTrayWrapper& wrapTray)
    : QMainWindow(parent)
    , m_ctx(ctx)
    , m_controller(ctx)
    , m_startHidden(startHidden)
{
    ui.Setup(this);
    m_controller.Form_Load();
    GetFormRegSettings();
    for (const char* key : {"Edit", "Remove", "Clone", "Enable"})
        ui.Action(QStringLiteral("ToolbarPrograms.") + key)->setEnabled(false);
    BindGrids();
    CreateTray(wrapTray);
    ConnectCommands();
    ConnectTray();
    ConnectDiskStatus();
    ConnectOptions();
    m_programList = new ProgramListGrid(m_ctx, *this);
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { m_closingBySystem = true; });
}

frmMain::~frmMain() = default;

void frmMain::BindGrids()
{
    m_programsModel =
        new RecordsetModel(m_ctx.database.DataPrograms, GridColumns::Programs(), this);
    m_recordingsModel =
        new RecordsetModel(m_ctx.database.DataRecordings, GridColumns::Recordings(), this);
    ui.DBGridPrograms->setModel(m_programsModel);
    ui.DBGridRecordings->setModel(m_recordingsModel);
    const auto width = [this](QTableView* grid, int column, const char* name, int twips) {
        grid->setColumnWidth(column, Twips::ToPixels(SettingTwips(name, twips)));
    };
    width(ui.DBGridPrograms, 0, "ProgColDescr_Width", 3000);
    width(ui.DBGridPrograms, 1, "ProgColStartTime_Width", 1000);
    width(ui.DBGridPrograms, 2, "ProgColEndTime_Width", 1000);
    width(ui.DBGridRecordings, 0, "RecColDescr_Width", 3400);
    width(ui.DBGridRecordings, 1, "RecColDateTime_Width", 1800);
    connect(m_programsModel, &RecordsetModel::RowsChanged, this,
            &frmMain::UpdateProgramsButtonsAndMenus);
    connect(m_recordingsModel, &RecordsetModel::RowsChanged, this,
            &frmMain::UpdateRecordingsButtonsAndMenus);
    connect(ui.DBGridPrograms->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &frmMain::DBGridPrograms_HeadClick);
    connect(ui.DBGridRecordings->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &frmMain::DBGridRecordings_HeadClick);
}

// The icon is in the notification area from the load to the unload; its manager follows
// every change of the mode flags and of the error state from here on.
void frmMain::CreateTray(const SysTrayWrapper& wrapTray)
{
    m_sysTray = std::make_unique<frmSysTray>();
    std::unique_ptr<cSysTray> icon = m_sysTray->MakeIcon(m_ctx.log, this);
    if (wrapTray)
        icon = wrapTray(std::move(icon));
    m_sysTrayMgr =
        std::make_unique<clsSysTrayMgr>(m_ctx.log, m_ctx.appStatus, m_ctx.error, std::move(icon));
    for (QAction* action : m_sysTray->mnuSystemTray()->actions()) {
        if (!action->isSeparator())
            ui.actions.insert(action->objectName(), action);
    }
}

// The tray menu's commands are those of the window. "&Disk Status" has no handler here:
// ConnectDiskStatus connects it with the window's own entries by its name.
void frmMain::ConnectTray()
{
    const frmSysTray& tray = *m_sysTray;
    connect(&tray, &frmSysTray::RestoreRequested, this, &frmMain::RestoreFromTray);
    connect(tray.mnuRestore, &QAction::triggered, this, &frmMain::RestoreFromTray);
    connect(tray.mnuSystrayAbout, &QAction::triggered, this,
            [this] { frmAbout(m_ctx, this).exec(); });
    connect(tray.mnuSystrayStopRecording, &QAction::triggered, this, &frmMain::StopCommand);
    connect(tray.mnuSystrayPauseRecording, &QAction::triggered, this,
            [this] { PauseCommand(QStringLiteral("T")); });
    connect(tray.mnuSystraySuspend, &QAction::triggered, this, [this] {
        m_ctx.appStatus.HandleSuspendMenuClickEvent(m_ctx.messageBox);
        UpdateModeDisplay();
    });
    connect(tray.mnuExit, &QAction::triggered, this, &QWidget::close);
    connect(m_sysTrayMgr.get(), &clsSysTrayMgr::PausedBlink, this, &frmMain::ShowPausedBlink);
    connect(&m_ctx.recorder, &Recorder::RecordingStarted, m_sysTrayMgr.get(),
            &clsSysTrayMgr::StartTimer);
}

void frmMain::ApplyTrayMenu(const ModeDisplay& d)
{
    const frmSysTray& tray = *m_sysTray;
    tray.mnuSystrayPauseRecording->setEnabled(d.pauseEnabled);
    tray.mnuSystrayPauseRecording->setText(d.trayPauseCaption);
    tray.mnuSystrayDiskStatus->setEnabled(d.diskStatusEnabled);
    tray.mnuSystrayStopRecording->setEnabled(d.stopEnabled);
    const QString stopCaption = u'&' + d.stopCaption;
    if (tray.mnuSystrayStopRecording->text() != stopCaption)
        tray.mnuSystrayStopRecording->setText(stopCaption);
    tray.mnuSystraySuspend->setChecked(m_ctx.appStatus.Suspended());
}

// The mode panel of a paused recording blinks with the tray icon.
void frmMain::ShowPausedBlink(bool on)
{
    SetIfChanged(ui.ModeStatus, on ? tr("RECORDING PAUSED") : QString());
    ui.ModeStatusPicture->setPixmap(QPixmap());
    statusBar()->update();
}

void frmMain::ConnectCommands()
{
    const auto on = [this](const QString& name, auto slot) {
        connect(ui.Action(name), &QAction::triggered, this, slot);
    };
    on(QStringLiteral("mnuFileHide"), [this] { HideToTray(); });
    on(QStringLiteral("mnuFileSuspend"), [this] {
        m_ctx.appStatus.HandleSuspendMenuClickEvent(m_ctx.messageBox);
        UpdateModeDisplay();
    });
    on(QStringLiteral("mnuFileExit"), [this] { close(); });
    on(QStringLiteral("mnuViewPrograms"), [this] { ui.SSTab1->setCurrentIndex(0); });
    on(QStringLiteral("mnuViewRecordings"), [this] { ui.SSTab1->setCurrentIndex(1); });
    on(QStringLiteral("mnuCompactDb"), [this] { m_controller.mnuCompactDb_Click(); });
    on(QStringLiteral("mnuRestoreOriginalDb"),
       [this] { m_controller.mnuRestoreOriginalDb_Click(); });
    on(QStringLiteral("mnuHelpContents"), [this] { ShowHelp(QString()); });
    on(QStringLiteral("mnuHelpSearch"), [this] { ShowHelp(QStringLiteral("index")); });
    // The maker's page is a web page: it goes to the browser, as the links of programs do.
    on(QStringLiteral("mnuHelpHomePage"), [this] {
        Trap(m_ctx.log, "mnuHelpHomePage_Click", [&] {
            ViewHtmlFile(m_ctx.messageBox, m_ctx.launcher, m_ctx.folders.runtimeFolder,
                         ManualUrl(QStringLiteral("contact")).toString());
        });
    });
    on(QStringLiteral("ToolbarMain.Help"), [this] { ShowHelp(QString()); });
    on(QStringLiteral("ToolbarMain.Error"), [this] { ToolbarError_Click(); });
    on(QStringLiteral("mnuErrors"), [this] {
        frmErrors(m_ctx.error, m_ctx.database, m_ctx.registry, m_ctx.messageBox, this).exec();
    });
    on(QStringLiteral("mnuViewErrorLog"), [this] {
        frmElog(m_ctx.database, m_ctx.error, m_ctx.registry, m_ctx.messageBox, this).exec();
    });
    on(QStringLiteral("mnuHelpAbout"), [this] { frmAbout(m_ctx, this).exec(); });
    connect(ui.SSTab1, &QTabWidget::currentChanged, this, &frmMain::SSTab1_Click);
    connect(&m_ctx.appStatus, &clsAppStatus::Update, this, &frmMain::UpdateModeDisplay);
    connect(&m_ctx.error, &clsError::IndicationUpdated, this, &frmMain::ApplyErrorIndication);
    // Queued: the click arrives from the bus, and the log opens as a dialog of its own.
    connect(&m_ctx.desktopNotifications, &DesktopNotifications::EventLogRequested, this,
            &frmMain::ShowEventLogFromNotification, Qt::QueuedConnection);
    connect(&m_controller, &MainFormController::ListsReplaced, this, [this] {
        UpdateProgramsButtonsAndMenus();
        UpdateRecordingsButtonsAndMenus();
    });
    ConnectRecordingCommands();
    ConnectRecorder();
    ConnectMixer();
    ConnectManualRecording();
    ConnectPlayers();
}

// The mixer application for adjusting by hand, and the profiles.
void frmMain::ConnectMixer()
{
    for (const char* name : {"mnuToolsMixer", "ToolbarMain.Mixer"})
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, this,
                [this] { LaunchMixer(m_ctx.log, m_ctx.launcher, m_ctx.options.MixerFilePath); });
    connect(ui.Action(QStringLiteral("mnuMixerProfiles")), &QAction::triggered, this, [this] {
        frmMixerProfiles(m_ctx.mixerProfiles, m_ctx.log, m_ctx.messageBox, this).exec();
    });
}

// The disk forecast, from the menu, the tool bar and the tray menu.
void frmMain::ConnectDiskStatus()
{
    for (const char* name : {"mnuViewDiskStatus", "ToolbarMain.DiskStatus", "mnuSystrayDiskStatus"})
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, this, [this] {
            const DiskForecast forecast(m_ctx.clock, m_ctx.scheduler);
            frmDiskStatus(m_ctx.log, m_ctx.registry, m_ctx.options, m_ctx.error, m_ctx.diskSpace,
                          forecast, this)
                .exec();
        });
}

void frmMain::ConnectOptions()
{
    connect(ui.Action(QStringLiteral("mnuViewOptions")), &QAction::triggered, this, [this] {
        const OptionsFormServices services{m_ctx.log,
                                           m_ctx.registry,
                                           m_ctx.options,
                                           m_ctx.error,
                                           m_ctx.messageBox,
                                           m_ctx.WfxDefault,
                                           m_ctx.defaultFormats,
                                           [this] { UpdateStatusBarPlus(); },
                                           QCoreApplication::applicationDirPath(),
                                           m_ctx.audioDevices};
        frmOptions(services, MediaPlayerAvailable(), this).exec();
        UpdateModeDisplay();
    });
}

// Record on the toolbar and in the menu opens the dialog. The recording keys work wherever
// the focus is in the window's lists and tabs, and the joystick's buttons at any time.
void frmMain::ConnectManualRecording()
{
    m_manualRecording = new ManualRecordCommands(
        ManualRecordServices{m_ctx.log, m_ctx.registry, m_ctx.options, m_ctx.messageBox,
                             m_ctx.appStatus, m_ctx.manualRequest, m_ctx.WfxDefault,
                             m_ctx.recorder.TaskProgram()},
        m_ctx.recorder, this);
    for (const char* name : {"ToolbarMain.Record", "mnuManualRecording"})
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, m_manualRecording,
                &ManualRecordCommands::ToolbarRecord);
    connect(ui.Action(QStringLiteral("mnuQuickStart")), &QAction::triggered, m_manualRecording,
            &ManualRecordCommands::QuickStart);
    for (QWidget* keySensitive :
         {static_cast<QWidget*>(ui.DBGridPrograms), static_cast<QWidget*>(ui.DBGridRecordings),
          static_cast<QWidget*>(ui.SSTab1)})
        keySensitive->installEventFilter(m_manualRecording);
    connect(&m_ctx.joystick, &Joystick::ButtonPressed, m_manualRecording,
            &ManualRecordCommands::JoystickButtonPress);
}

// The players: the choice is settled once the options are read, and the recent recording
// plays from the tool bar and the menu; the recordings grid plays through Players().
void frmMain::ConnectPlayers()
{
    m_playPanels =
        std::make_unique<PlayPanels>(m_ctx.log, m_ctx.options, m_ctx.appStatus, m_ctx.mixer, this);
    m_playerChoice = std::make_unique<PlayerChoice>(
        m_ctx.log, m_ctx.registry, m_ctx.options, m_ctx.messageBox, *m_playPanels,
        [this](const QString& file) { return m_ctx.launcher.OpenWithDefaultProgram(file); });
    m_playerChoice->CheckMediaPlayerControl();
    // A step of the load of its own: the commands below are connected whatever it does.
    Trap(m_ctx.log, "Main Form Load", [&] { m_playerChoice->GetPlayerSetting(); });
    for (const char* name : {"ToolbarMain.Play", "mnuPlayRecent"})
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, this, [this] {
            m_playerChoice->ToolbarPlay();
            UpdateModeDisplay();
        });
}

// The window observes the recorder and forwards the user's commands to it.
void frmMain::ConnectRecorder()
{
    Recorder& recorder = m_ctx.recorder;
    connect(&recorder, &Recorder::StatusBarUpdated, this, &frmMain::ShowStatusBar);
    // The context runs the purge before this: the window shows what it left.
    connect(&recorder, &Recorder::PurgeDue, this, [this] {
        UpdateRecordingsButtonsAndMenus();
        UpdateStatusBarPlus();
    });
    connect(&recorder, &Recorder::UpdateModeDisplay, this, &frmMain::UpdateModeDisplay);
    connect(&recorder, &Recorder::UpdateRecordingsButtonsAndMenus, this,
            &frmMain::UpdateRecordingsButtonsAndMenus);
    connect(&recorder, &Recorder::ShowRecordingStatusForm, this, &frmMain::ShowRecordingStatusForm);
    connect(&recorder, &Recorder::UnloadRecordingStatusForm, this,
            [this] { m_recordingStatusForm.reset(); });
    connect(&recorder, &Recorder::MinimizeToTray, this, &frmMain::HideToTray);
    for (const char* name : {"ToolbarMain.Stop", "mnuStopCurrentRecording"})
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, this,
                &frmMain::StopCommand);
    for (const char* name : {"ToolbarMain.Pause", "mnuPauseRecording"})
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, this,
                [this] { PauseCommand(QStringLiteral("T")); });
    connect(ui.Action(QStringLiteral("mnuPauseOnly")), &QAction::triggered, this,
            [this] { PauseCommand(QStringLiteral("P")); });
    connect(ui.Action(QStringLiteral("mnuResume")), &QAction::triggered, this,
            [this] { PauseCommand(QStringLiteral("R")); });
}

void frmMain::StopCommand()
{
    Trap(m_ctx.log, "StopCommand",
         [this] { m_ctx.recorder.StopCommand(m_ctx.options.ConfirmStopManualRecording); });
}

void frmMain::PauseCommand(const QString& command)
{
    Trap(m_ctx.log, "PauseCommand", [&] { m_ctx.recorder.PauseCommand(command); });
}

void frmMain::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (m_firstActivation)
        QTimer::singleShot(0, this, &frmMain::FirstActivate);
}

void frmMain::FirstActivate()
{
    if (!m_firstActivation)
        return;
    m_firstActivation = false;
    m_controller.InitializeForFirstActivation([this](const QString& proposed) {
        return frmSelectRecordDirectory::Choose(m_ctx.log, m_ctx.messageBox, this, proposed);
    });
    SSTab1_Click(ui.SSTab1->currentIndex());
    m_controller.FinishFirstActivation([this] { UpdateStatusBarPlus(); });
    UpdateModeDisplay();
    ApplyErrorIndication(m_ctx.error.Indication());
    UpdateProgramsButtonsAndMenus();
    UpdateRecordingsButtonsAndMenus();
    if (!SysTrayIcon::Available())
        m_ctx.log.LogEvent(EventInformation, tr("No notification area"),
                           SysTrayIcon::MissingNote());
    if (m_startHidden || m_ctx.options.HiddenWindowStatupMode)
        HideToTray();
}

void frmMain::SSTab1_Click(int tab)
{
    ui.Action(QStringLiteral("mnuViewPrograms"))->setChecked(tab == 0);
    ui.Action(QStringLiteral("mnuViewRecordings"))->setChecked(tab == 1);
    // The menu bar holds the commands of the page on view, and only those.
    ui.mnuPrograms->menuAction()->setVisible(tab == 0);
    ui.mnuRecordings->menuAction()->setVisible(tab == 1);
}

void frmMain::UpdateModeDisplay()
{
    // The tray first: it follows the flags on its own, but a condition that came before
    // its creation (no capture device at the load) reaches it only here.
    ModeDisplay::Extra extra;
    if (m_sysTrayMgr) {
        m_sysTrayMgr->Update();
        extra.blinkOn = m_sysTrayMgr->BlinkOn();
    }
    extra.recentRecordingExists = !m_ctx.options.RecentRecordingFilename.isEmpty() &&
                                  QFileInfo(m_ctx.options.RecentRecordingFilename).isFile();
    const ModeDisplay d = m_ctx.recorder.Mode(extra);
    ui.ShowRecordingKeys(!m_ctx.options.DisableKeyboardActivatedRecording);
    const auto action = [this](const QString& name) {
        return ui.Action(name);
    };

    action(QStringLiteral("ToolbarMain.Play"))->setEnabled(d.playEnabled);
    action(QStringLiteral("mnuPlayRecent"))->setEnabled(d.playEnabled);
    action(QStringLiteral("ToolbarMain.Record"))->setEnabled(d.recordEnabled);
    action(QStringLiteral("mnuManualRecording"))->setEnabled(d.recordEnabled);
    action(QStringLiteral("mnuQuickStart"))->setEnabled(d.recordEnabled);
    action(QStringLiteral("mnuPauseOnly"))->setEnabled(d.pauseEnabled);
    action(QStringLiteral("mnuResume"))->setEnabled(d.pauseEnabled);
    QAction* pause = action(QStringLiteral("ToolbarMain.Pause"));
    pause->setEnabled(d.pauseEnabled);
    pause->setChecked(d.pausePressed);
    pause->setIcon(Icons::Named(d.pauseImage));
    if (d.pauseEnabled)
        pause->setToolTip(d.pauseToolTip);
    QAction* pauseMenu = action(QStringLiteral("mnuPauseRecording"));
    pauseMenu->setEnabled(d.pauseEnabled);
    pauseMenu->setText(d.pauseMenuCaption);
    action(QStringLiteral("ToolbarMain.DiskStatus"))->setEnabled(d.diskStatusEnabled);
    action(QStringLiteral("mnuViewDiskStatus"))->setEnabled(d.diskStatusEnabled);
    for (const QString& name :
         {QStringLiteral("mnuStopCurrentRecording"), QStringLiteral("ToolbarMain.Stop")}) {
        QAction* stop = action(name);
        stop->setEnabled(d.stopEnabled);
        if (stop->toolTip() != d.stopCaption)
            stop->setToolTip(d.stopCaption);
    }
    action(QStringLiteral("mnuFileSuspend"))->setChecked(m_ctx.appStatus.Suspended());
    ApplyTrayMenu(d);

    if (windowTitle() != d.title)
        setWindowTitle(d.title);
    if (ui.ModeStatus->text() != d.panelText) {
        ui.ModeStatus->setText(d.panelText);
        ui.ModeStatusPicture->setPixmap(d.panelText == QStringLiteral("RECORDING")
                                            ? Icons::Named("recording").pixmap(16, 16)
                                            : QPixmap());
    }
    ui.ModeStatus->setToolTip(d.panelToolTip);
}

void frmMain::UpdateStatusBarPlus()
{
    m_ctx.recorder.UpdateStatusBarPlus();
}

void frmMain::ShowStatusBar(const StatusBarPlus::Update& u)
{
    if (!u.modeToolTip.isEmpty())
        ui.ModeStatus->setToolTip(u.modeToolTip);
    if (m_ctx.appStatus.Converting())
        SetIfChanged(ui.ModeStatus, u.modeText);
    if (m_ctx.appStatus.Recording() && m_recordingStatusForm) {
        if (m_ctx.options.ShowRecordingTimeInTaskBar)
            m_recordingStatusForm->setWindowTitle(m_ctx.recorder.ElapsedText());
        else
            m_recordingStatusForm.reset();
    }
    SetIfChanged(ui.DiskStatus, u.diskText);
    ui.DiskStatus->setToolTip(u.diskToolTip);
    const double now = m_ctx.Now();
    SetIfChanged(ui.DateStatus,
                 QLocale().toString(AutomationDate::ToDateTime(now).date(), QLocale::ShortFormat));
    SetIfChanged(ui.TimeStatus, Options::TimeText(AutomationDate::TimePart(now)));
}

void frmMain::ShowRecordingStatusForm()
{
    if (!m_ctx.options.ShowRecordingTimeInTaskBar)
        return;
    m_recordingStatusForm = std::make_unique<frmRecordingStatus>();
    m_recordingStatusForm->setWindowTitle(m_ctx.recorder.ElapsedText());
    m_recordingStatusForm->showMinimized();
}

void frmMain::UpdateProgramsButtonsAndMenus()
{
    if (!m_ctx.appStatus.Ready())
        return;
    const bool rows = m_programsModel->rowCount() > 0;
    for (const char* name :
         {"ToolbarPrograms.Edit", "ToolbarPrograms.Remove", "ToolbarPrograms.Clone",
          "ToolbarPrograms.Enable", "mnuEdit", "mnuRemovePrograms", "mnuCloneProgram",
          "mnuProgramEnable", "mnuProgramsSelectAll"})
        ui.Action(QString::fromLatin1(name))->setEnabled(rows);
}

void frmMain::UpdateRecordingsButtonsAndMenus()
{
    if (!m_ctx.appStatus.Ready())
        return;
    const bool rows = m_recordingsModel->rowCount() > 0;
    for (const char* name :
         {"ToolbarRecordings.Play", "ToolbarRecordings.Delete", "ToolbarRecordings.Details",
          "ToolbarRecordings.remove_from_list", "ToolbarRecordings.clear_list",
          "ToolbarRecordings.save_list", "mnuRecordingsPlay", "mnuRecordingsRemove", "mnuDetails",
          "mnuRecordingsExplore", "mnuRecordingsCopyFilename", "mnuRecordingsRemoveFromList",
          "mnuClearList", "mnuSaveList", "mnuRecordingsSelectAll"})
        ui.Action(QString::fromLatin1(name))->setEnabled(rows);
}

void frmMain::DBGridPrograms_HeadClick(int column)
{
    Trap(m_ctx.log, "DBGridPrograms_HeadClick", [&] {
        // Only the description sorts; its order is also the search's order between programs
        // that start at the same moment.
        const QString field = m_programsModel->Columns().value(column).dataField;
        if (field != QStringLiteral("DescriptionText"))
            return;
        const bool ascending = !m_programsSortAscending;
        m_programsSortAscending = ascending;
        m_ctx.database.DataPrograms.SetRecordSource(
            GridColumns::SortStatement(QStringLiteral("Programs"), field, ascending));
        m_ctx.database.DataPrograms.Refresh();
    });
}

void frmMain::DBGridRecordings_HeadClick(int column)
{
    Trap(m_ctx.log, "DBGridRecordings_HeadClick", [&] {
        const bool ascending = !m_recordingsSortAscending;
        m_recordingsSortAscending = ascending;
        m_ctx.database.DataRecordings.SetRecordSource(GridColumns::SortStatement(
            QStringLiteral("Recordings"), m_recordingsModel->Columns().value(column).dataField,
            ascending));
        m_ctx.database.DataRecordings.Refresh();
    });
}

void frmMain::ConnectRecordingCommands()
{
    m_recordingsList = new RecordingsListGrid(m_ctx, *this);
    RecordingsListCommands* commands = &m_recordingsList->Commands();
    const auto on = [this, commands](const char* name, void (RecordingsListCommands::*command)()) {
        connect(ui.Action(QString::fromLatin1(name)), &QAction::triggered, this,
                [commands, command] { (commands->*command)(); });
    };
    on("mnuRecordingsPlay", &RecordingsListCommands::RecordingsPlay);
    on("ToolbarRecordings.Play", &RecordingsListCommands::RecordingsPlay);
    on("mnuRecordingsRemove", &RecordingsListCommands::DeleteSelectedRecordingsFromDisk);
    on("ToolbarRecordings.Delete", &RecordingsListCommands::DeleteSelectedRecordingsFromDisk);
    on("mnuDetails", &RecordingsListCommands::ShowRecordingDetails);
    on("ToolbarRecordings.Details", &RecordingsListCommands::ShowRecordingDetails);
    on("mnuRecordingsExplore", &RecordingsListCommands::ExploreRecording);
    on("mnuRecordingsCopyFilename", &RecordingsListCommands::CopyRecordingFilename);
    on("mnuAddFileToList", &RecordingsListCommands::AddFileToList);
    on("mnuAddFolderToList", &RecordingsListCommands::AddFolderToList);
    on("mnuRecordingsRemoveFromList", &RecordingsListCommands::RemoveSelectedRecordingsFromList);
    on("ToolbarRecordings.remove_from_list",
       &RecordingsListCommands::RemoveSelectedRecordingsFromList);
    on("mnuClearList", &RecordingsListCommands::ClearRecordingsList);
    on("ToolbarRecordings.clear_list", &RecordingsListCommands::ClearRecordingsList);
    on("mnuLoadList", &RecordingsListCommands::LoadList);
    on("ToolbarRecordings.load_list", &RecordingsListCommands::LoadList);
    on("mnuSaveList", &RecordingsListCommands::SaveList);
    on("ToolbarRecordings.save_list", &RecordingsListCommands::SaveList);
    on("mnuRecordingsSelectAll", &RecordingsListCommands::SelectAll);
    connect(ui.Action(QStringLiteral("ToolbarRecordings.add_to_list")), &QAction::triggered, this,
            [this] { ui.mnuManageRecordingList->popup(QCursor::pos()); });
    connect(ui.DBGridRecordings, &QTableView::doubleClicked, this,
            [commands] { commands->RecordingsPlay(); });
}

void frmMain::ApplyErrorIndication(const ErrorIndication& indication)
{
    QAction* button = ui.Action(QStringLiteral("ToolbarMain.Error"));
    button->setToolTip(indication.toolTip);
    button->setVisible(indication.buttonVisible);
    ui.Action(QStringLiteral("mnuErrors"))->setEnabled(indication.errorsMenuEnabled);
    UpdateModeDisplay();
}

void frmMain::ToolbarError_Click()
{
    if (m_ctx.error.AnyCurrentErrorsOrWarnings())
        frmErrors(m_ctx.error, m_ctx.database, m_ctx.registry, m_ctx.messageBox, this).exec();
    else
        frmElog(m_ctx.database, m_ctx.error, m_ctx.registry, m_ctx.messageBox, this).exec();
}

void frmMain::ShowHelp(const QString& anchor)
{
    QDesktopServices::openUrl(ManualUrl(anchor));
}

void frmMain::HideToTray()
{
    if (!SysTrayIcon::Available()) {
        showMinimized();
        return;
    }
    hide();
    m_sysTray->mnuRestore->setEnabled(true);
}

// A click on one of the program's desktop notifications: the window comes forward with the
// event log open, unless a dialog is already waiting for the user there.
void frmMain::ShowEventLogFromNotification()
{
    RestoreFromTray();
    if (!QApplication::activeModalWidget())
        ui.Action(QStringLiteral("mnuViewErrorLog"))->trigger();
}

void frmMain::RestoreFromTray()
{
    if (isMinimized() || isMaximized())
        showNormal();
    if (isHidden())
        show();
    raise();
    activateWindow();
    m_sysTray->mnuRestore->setEnabled(false);
}

void frmMain::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    // The form never stays minimised where there is a tray: minimising means hiding to it.
    if (event->type() == QEvent::WindowStateChange && isMinimized() && SysTrayIcon::Available()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        QTimer::singleShot(0, this, &frmMain::HideToTray);
    }
}

void frmMain::closeEvent(QCloseEvent* event)
{
    if (!m_controller.QueryUnload(m_closingBySystem)) {
        m_closingBySystem = false;
        event->ignore();
        return;
    }
    if (!isMinimized() && !isMaximized())
        SaveFormRegSettings();
    m_controller.Form_Unload();
    // Releasing the manager takes the icon out of the notification area.
    m_sysTrayMgr.reset();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget != this)
            widget->close();
    }
    event->accept();
    QCoreApplication::quit();
}

int frmMain::SettingTwips(const char* name, int defaultTwips) const
{
    bool ok = false;
    const int value =
        m_ctx.registry
            .GetSetting(kSettings, QString::fromLatin1(name), QString::number(defaultTwips))
            .trimmed()
            .toInt(&ok);
    return ok && value > 0 ? value : defaultTwips;
}

void frmMain::GetFormRegSettings()
{
    const int width = Twips::ToPixels(SettingTwips("MainWidth", 7370));
    const int height = Twips::ToPixels(SettingTwips("MainHeight", 5170));
    resize(width, height);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    bool leftOk = false, topOk = false;
    const int left = m_ctx.registry.GetSetting(kSettings, QStringLiteral("MainLeft"), QString())
                         .trimmed()
                         .toInt(&leftOk);
    const int top = m_ctx.registry.GetSetting(kSettings, QStringLiteral("MainTop"), QString())
                        .trimmed()
                        .toInt(&topOk);
    if (leftOk && topOk)
        move(Twips::ToPixels(left), Twips::ToPixels(top));
    else
        move(screen.center() - QPoint(width / 2, height / 2));
}

void frmMain::SaveFormRegSettings()
{
    const auto save = [this](const char* name, int pixels) {
        m_ctx.registry.SaveSetting(kSettings, QString::fromLatin1(name),
                                   QString::number(Twips::FromPixels(pixels)));
    };
    save("MainLeft", x());
    save("MainTop", y());
    save("MainWidth", width());
    save("MainHeight", height());
    save("ProgColDescr_Width", ui.DBGridPrograms->columnWidth(0));
    save("ProgColStartTime_Width", ui.DBGridPrograms->columnWidth(1));
    save("ProgColEndTime_Width", ui.DBGridPrograms->columnWidth(2));
    save("RecColDescr_Width", ui.DBGridRecordings->columnWidth(0));
    save("RecColDateTime_Width", ui.DBGridRecordings->columnWidth(1));
}
