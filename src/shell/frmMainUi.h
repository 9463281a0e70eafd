#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>

class QAction;
class QIcon;
class QLabel;
class QMainWindow;
class QMenu;
class QTabWidget;
class QTableView;
class QToolBar;
class QWidget;

// The widgets of the main window: menus, the three tool bars, the two pages with their
// grids, and the four panels of the status bar. Control names are the object names.
struct frmMainUi {
    void Setup(QMainWindow* window);

    // Menu entries and toolbar buttons by the names the system gives them: "mnuFileExit",
    // and "ToolbarMain.Stop" for the button keyed "Stop" of ToolbarMain.
    QAction* Action(const QString& name) const;
    // The recording keys beside their menu entries, or none while the keys are turned off.
    void ShowRecordingKeys(bool shown);

    QHash<QString, QAction*> actions;
    QMenu* mnuFile = nullptr;
    QMenu* mnuView = nullptr;
    QMenu* mnuPrograms = nullptr;
    QMenu* mnuRecordings = nullptr;
    QMenu* mnuManageRecordingList = nullptr;
    QMenu* mnuRecording = nullptr;
    QMenu* mnuTools = nullptr;
    QMenu* mnuToolsAdvanced = nullptr;
    QMenu* mnuHelp = nullptr;
    QToolBar* ToolbarMain = nullptr;
    QToolBar* ToolbarPrograms = nullptr;
    QToolBar* ToolbarRecordings = nullptr;
    QTabWidget* SSTab1 = nullptr;
    QTableView* DBGridPrograms = nullptr;
    QTableView* DBGridRecordings = nullptr;
    QLabel* ModeStatusPicture = nullptr;
    QLabel* ModeStatus = nullptr;
    QLabel* DiskStatus = nullptr;
    QLabel* DateStatus = nullptr;
    QLabel* TimeStatus = nullptr;

private:
    QAction* AddAction(QMenu* menu, const char* name, const QString& caption);
    QAction* AddButton(QToolBar* bar, const QString& key, const QString& toolTip,
                       const QIcon& icon);
    void SetupMenus(QMainWindow* window);
    void SetupToolbars(QMainWindow* window);
    QWidget* Page(QToolBar* bar, QTableView* grid, const char* gridName);
    void SetupStatusBar(QMainWindow* window);

    Q_DECLARE_TR_FUNCTIONS(frmMainUi)
};
