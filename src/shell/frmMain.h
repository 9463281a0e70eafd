#pragma once

#include "diagnostics/clsError.h"
#include "recording/StatusBarPlus.h"
#include "shell/MainFormController.h"
#include "shell/frmMainUi.h"

#include <QMainWindow>
#include <functional>
#include <memory>

class AppContext;
class RecordsetModel;
class ProgramListGrid;
class RecordingsListGrid;
class frmRecordingStatus;
class frmSysTray;
class ManualRecordCommands;
class PlayerChoice;
class PlayPanels;
class clsSysTrayMgr;
class cSysTray;
struct ModeDisplay;

// The main window: the two lists, the commands, the mode display and the status bar. It
// lives for the whole run; hiding it to the tray does not end the program, closing it does.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    // What the tray manager's icon goes through on its way to the desktop: nothing in the
    // program; a test puts a counter there.
    using SysTrayWrapper = std::function<std::unique_ptr<cSysTray>(std::unique_ptr<cSysTray>)>;

    frmMain(AppContext& ctx, bool startHidden, QWidget* parent = nullptr,
            const SysTrayWrapper& wrapTray = {});
    ~frmMain() override;

    // The first activation: database, schedule, heartbeat, and the application made ready.
    void FirstActivate();
    void UpdateModeDisplay();
    // Runs a round of the status bar and its disk guard now, as after a change of a list.
    void UpdateStatusBarPlus();
    void UpdateProgramsButtonsAndMenus();
    void UpdateRecordingsButtonsAndMenus();
    // Where the desktop has no notification area, the window is minimised instead.
    void HideToTray();
    void RestoreFromTray();
    void ShowEventLogFromNotification();
    // The small window that puts the elapsed time of a recording on the task bar.
    void ShowRecordingStatusForm();

    MainFormController& Controller() { return m_controller; }
    // The tray icon's manager, from the load to the unload.
    clsSysTrayMgr* SysTrayMgr() { return m_sysTrayMgr.get(); }
    frmSysTray& SysTray() { return *m_sysTray; }
    // Which player plays a recording, and the panels it opens.
    PlayerChoice& Players() { return *m_playerChoice; }
    PlayPanels& Panels() { return *m_playPanels; }
    frmMainUi ui;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ConnectCommands();
    void ConnectRecordingCommands();
    void ConnectRecorder();
    // The stop and the pause of the tool bar, the menus and the tray, each under its trap.
    void StopCommand();
    void PauseCommand(const QString& command);
    void ConnectMixer();
    void ConnectDiskStatus();
    void ConnectOptions();
    void ConnectManualRecording();
    void ConnectPlayers();
    void ShowStatusBar(const StatusBarPlus::Update& update);
    void CreateTray(const SysTrayWrapper& wrapTray);
    void ConnectTray();
    void ApplyTrayMenu(const ModeDisplay& d);
    void ShowPausedBlink(bool on);
    void BindGrids();
    void GetFormRegSettings();
    void SaveFormRegSettings();
    void SSTab1_Click(int tab);
    void DBGridPrograms_HeadClick(int column);
    void DBGridRecordings_HeadClick(int column);
    void ToolbarError_Click();
    void ApplyErrorIndication(const ErrorIndication& indication);
    void ShowHelp(const QString& anchor);
    int SettingTwips(const char* name, int defaultTwips) const;

    AppContext& m_ctx;
    MainFormController m_controller;
    RecordsetModel* m_programsModel = nullptr;
    RecordsetModel* m_recordingsModel = nullptr;
    // The menu outlives the manager, whose icon shows it.
    std::unique_ptr<frmSysTray> m_sysTray;
    std::unique_ptr<clsSysTrayMgr> m_sysTrayMgr;
    std::unique_ptr<frmRecordingStatus> m_recordingStatusForm;
    bool m_firstActivation = true;
    bool m_startHidden = false;
    bool m_closingBySystem = false;
    bool m_programsSortAscending = false;
    bool m_recordingsSortAscending = false;
    // The program commands and the ways into them from menus, toolbar and grid.
    ProgramListGrid* m_programList = nullptr;
    // The recordings grid as its commands see it; ConnectRecordingCommands wires the actions.
    RecordingsListGrid* m_recordingsList = nullptr;
    // The dialog, the quick start and the recording keys and joystick buttons.
    ManualRecordCommands* m_manualRecording = nullptr;
    std::unique_ptr<PlayPanels> m_playPanels;
    std::unique_ptr<PlayerChoice> m_playerChoice;
};
