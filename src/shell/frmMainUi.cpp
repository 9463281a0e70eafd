#include "shell/frmMainUi.h"

#include "shell/Icons.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

void frmMainUi::Setup(QMainWindow* window)
{
    window->setObjectName(QStringLiteral("frmMain"));
    window->setWindowTitle(QStringLiteral("Nightreel 2000"));
    window->setWindowIcon(Icons::Application());
    SetupMenus(window);
    SetupToolbars(window);

    SSTab1 = new QTabWidget(window);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    DBGridPrograms = new QTableView;
    DBGridRecordings = new QTableView;
    SSTab1->addTab(Page(ToolbarPrograms, DBGridPrograms, "DBGridPrograms"),
                   QStringLiteral("&Programming"));
    SSTab1->addTab(Page(ToolbarRecordings, DBGridRecordings, "DBGridRecordings"),
                   QStringLiteral("&Recordings"));
    window->setCentralWidget(SSTab1);
    // Delete acts on the list that has the focus.
    for (auto [grid, name] : {std::pair{DBGridPrograms, "mnuRemovePrograms"},
                              std::pair{DBGridRecordings, "mnuRecordingsRemove"}}) {
        QAction* remove = Action(QString::fromLatin1(name));
        remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        grid->addAction(remove);
    }
    SetupStatusBar(window);
}

QAction* frmMainUi::Action(const QString& name) const
{
    return actions.value(name);
}

QAction* frmMainUi::AddAction(QMenu* menu, const char* name, const QString& caption)
{
    QAction* action = menu->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    actions.insert(action->objectName(), action);
    return action;
}

QAction* frmMainUi::AddButton(QToolBar* bar, const QString& key, const QString& toolTip,
                              const QIcon& icon)
{
    QAction* action = bar->addAction(icon, toolTip);
    action->setToolTip(toolTip);
    action->setObjectName(bar->objectName() + u'.' + key);
    actions.insert(action->objectName(), action);
    return action;
}

void frmMainUi::SetupMenus(QMainWindow* window)
{
    QMenuBar* bar = window->menuBar();
    const auto menu = [bar](const char* name, const QString& caption) {
        QMenu* m = bar->addMenu(caption);
        m->setObjectName(QString::fromLatin1(name));
        return m;
    };
    mnuFile = menu("mnuFile", QStringLiteral("&File"));
    AddAction(mnuFile, "mnuFileHide", QStringLiteral("&Hide Window"));
    AddAction(mnuFile, "mnuFileSuspend", QStringLiteral("&Suspend Nightreel 2000"))
        ->setCheckable(true);
    AddAction(mnuFile, "mnuFileExit", QStringLiteral("E&xit Nightreel 2000"))
        ->setShortcut(Qt::CTRL | Qt::Key_Q);

    mnuView = menu("mnuView", QStringLiteral("&View"));
    AddAction(mnuView, "mnuViewPrograms", QStringLiteral("&Programs"))->setCheckable(true);
    AddAction(mnuView, "mnuViewRecordings", QStringLiteral("&Recordings"))->setCheckable(true);
    AddAction(mnuView, "mnuViewDiskStatus", QStringLiteral("&Disk Status"));
    AddAction(mnuView, "mnuErrors", QStringLiteral("&Errors/Warnings"));
    AddAction(mnuView, "mnuViewErrorLog", QStringLiteral("Error &Log"));
    AddAction(mnuView, "mnuViewOptions", QStringLiteral("&Options"));

    mnuPrograms = menu("mnuPrograms", QStringLiteral("Pro&gramming"));
    AddAction(mnuPrograms, "mnuAddNew", QStringLiteral("&Add New"));
    AddAction(mnuPrograms, "mnuEdit", QStringLiteral("&Edit"));
    AddAction(mnuPrograms, "mnuRemovePrograms", QStringLiteral("&Remove"))
        ->setShortcut(QKeySequence::Delete);
    AddAction(mnuPrograms, "mnuCloneProgram", QStringLiteral("&Clone"));
    AddAction(mnuPrograms, "mnuProgramEnable", QStringLiteral("E&nable/Disable"));
    AddAction(mnuPrograms, "mnuProgramsSelectAll", QStringLiteral("Se&lect All"));

    mnuRecordings = menu("mnuRecordings", QStringLiteral("Re&cordings"));
    AddAction(mnuRecordings, "mnuRecordingsPlay", QStringLiteral("&Play "));
    AddAction(mnuRecordings, "mnuRecordingsRemove", QStringLiteral("&Delete from Disk"))
        ->setShortcut(QKeySequence::Delete);
    AddAction(mnuRecordings, "mnuDetails", QStringLiteral("De&tails"));
    AddAction(mnuRecordings, "mnuRecordingsExplore", QStringLiteral("&Explore"));
    AddAction(mnuRecordings, "mnuRecordingsCopyFilename",
              QStringLiteral("&Copy Filename to Clipboard"));
    mnuManageRecordingList = mnuRecordings->addMenu(QStringLiteral("&Add Recordings to List"));
    mnuManageRecordingList->setObjectName(QStringLiteral("mnuManageRecordingList"));
    AddAction(mnuManageRecordingList, "mnuAddFileToList", QStringLiteral("Add &File to List"));
    AddAction(mnuManageRecordingList, "mnuAddFolderToList", QStringLiteral("Add F&older to List"));
    AddAction(mnuRecordings, "mnuRecordingsRemoveFromList", QStringLiteral("Re&move from List"));
    AddAction(mnuRecordings, "mnuClearList", QStringLiteral("Clea&r List"));
    AddAction(mnuRecordings, "mnuLoadList", QStringLiteral("&Load List"));
    AddAction(mnuRecordings, "mnuSaveList", QStringLiteral("Sa&ve List"));
    AddAction(mnuRecordings, "mnuRecordingsSelectAll", QStringLiteral("&Select All"));

    // The recording keys work in the window's lists and tabs (and can be turned off in the
    // options); the menu shows them, and they act here only while the menu is open.
    mnuRecording = menu("mnuRecording", QStringLiteral("Rec&ording"));
    AddAction(mnuRecording, "mnuManualRecording", QStringLiteral("&Start Manual Recording"));
    const auto keyed = [this](const char* name, const QString& caption, QKeyCombination key) {
        QAction* action = AddAction(mnuRecording, name, caption);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
    };
    keyed("mnuQuickStart", QStringLiteral("&Quick Start"), Qt::CTRL | Qt::Key_R);
    keyed("mnuStopCurrentRecording", QStringLiteral("S&top Current Recording"),
          Qt::CTRL | Qt::Key_S);
    keyed("mnuPauseRecording", QStringLiteral("Pa&use Recording"), Qt::CTRL | Qt::Key_T);
    keyed("mnuPauseOnly", QStringLiteral("&Pause"), Qt::CTRL | Qt::Key_P);
    keyed("mnuResume", QStringLiteral("&Resume"), Qt::CTRL | Qt::Key_U);

    mnuTools = menu("mnuTools", QStringLiteral("&Tools"));
    AddAction(mnuTools, "mnuToolsMixer", QStringLiteral("&Mixer"));
    AddAction(mnuTools, "mnuMixerProfiles", QStringLiteral("Mixer Pro&files"));
    AddAction(mnuTools, "mnuPlayRecent", QStringLiteral("&Play Most Recent Recording"));
    mnuToolsAdvanced = mnuTools->addMenu(QStringLiteral("&Advanced"));
    mnuToolsAdvanced->setObjectName(QStringLiteral("mnuToolsAdvanced"));
    AddAction(mnuToolsAdvanced, "mnuCompactDb", QStringLiteral("&Compact Database"));
    AddAction(mnuToolsAdvanced, "mnuRestoreOriginalDb",
              QStringLiteral("&Restore Original Database"));

    mnuHelp = menu("mnuHelp", QStringLiteral("&Help"));
    AddAction(mnuHelp, "mnuHelpContents", QStringLiteral("&Contents"))
        ->setShortcut(QKeySequence::HelpContents);
    AddAction(mnuHelp, "mnuHelpSearch", QStringLiteral("&Search For Help On..."));
    AddAction(mnuHelp, "mnuHelpHomePage", QStringLiteral("Larkmoor Systems &Home Page"));
    AddAction(mnuHelp, "mnuHelpAbout", QStringLiteral("&About Nightreel 2000"));
}

void frmMainUi::SetupToolbars(QMainWindow* window)
{
    ToolbarMain = window->addToolBar(QStringLiteral("Main"));
    ToolbarMain->setObjectName(QStringLiteral("ToolbarMain"));
    ToolbarMain->setMovable(false);
    AddButton(ToolbarMain, QStringLiteral("Stop"), QStringLiteral("Stop"), Icons::Named("stop"));
    AddButton(ToolbarMain, QStringLiteral("Record"), QStringLiteral("Start Manual Record"),
              Icons::Named("record"));
    AddButton(ToolbarMain, QStringLiteral("Play"), QStringLiteral("Play Most Recent Recording"),
              Icons::Named("play"));
    AddButton(ToolbarMain, QStringLiteral("Pause"), QStringLiteral("Pause"), Icons::Named("pause1"))
        ->setCheckable(true);
    AddButton(ToolbarMain, QStringLiteral("Mixer"), QStringLiteral("Mixer"), Icons::Named("mixer"));
    AddButton(ToolbarMain, QStringLiteral("DiskStatus"), QStringLiteral("Disk Status"),
              Icons::Named("disk"));
    AddButton(ToolbarMain, QStringLiteral("Help"), QStringLiteral("Help"), Icons::Named("help"));
    AddButton(ToolbarMain, QStringLiteral("Error"),
              QStringLiteral("Error Has Occurred! Please check the log."), Icons::Named("error"));

    ToolbarPrograms = new QToolBar;
    ToolbarPrograms->setObjectName(QStringLiteral("ToolbarPrograms"));
    AddButton(ToolbarPrograms, QStringLiteral("Add"), QStringLiteral("Add New Program"),
              Icons::Named("add"));
    AddButton(ToolbarPrograms, QStringLiteral("Edit"), QStringLiteral("Edit Program"),
              Icons::Named("edit"));
    AddButton(ToolbarPrograms, QStringLiteral("Remove"), QStringLiteral("Remove Programs"),
              Icons::Named("remove"));
    AddButton(ToolbarPrograms, QStringLiteral("Clone"), QStringLiteral("Clone Program"),
              Icons::Named("clone"));
    AddButton(ToolbarPrograms, QStringLiteral("Enable"), QStringLiteral("Enable/Disable Programs"),
              Icons::Named("enable"));

    ToolbarRecordings = new QToolBar;
    ToolbarRecordings->setObjectName(QStringLiteral("ToolbarRecordings"));
    AddButton(ToolbarRecordings, QStringLiteral("Play"), QStringLiteral("Play"),
              Icons::Named("play"));
    AddButton(ToolbarRecordings, QStringLiteral("Delete"), QStringLiteral("Delete from Disk"),
              Icons::Named("remove"));
    AddButton(ToolbarRecordings, QStringLiteral("Details"), QStringLiteral("Details"),
              Icons::Named("details"));
    AddButton(ToolbarRecordings, QStringLiteral("add_to_list"),
              QStringLiteral("Add Recordings to List"), Icons::Named("add"));
    AddButton(ToolbarRecordings, QStringLiteral("remove_from_list"),
              QStringLiteral("Remove from List"), Icons::Named("clear"));
    AddButton(ToolbarRecordings, QStringLiteral("clear_list"), QStringLiteral("Clear List"),
              Icons::Named("clear"));
    AddButton(ToolbarRecordings, QStringLiteral("load_list"), QStringLiteral("Load List"),
              Icons::Named("open"));
    AddButton(ToolbarRecordings, QStringLiteral("save_list"), QStringLiteral("Save List"),
              Icons::Named("save"));
}

QWidget* frmMainUi::Page(QToolBar* bar, QTableView* grid, const char* gridName)
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(bar);
    layout->addWidget(grid);
    grid->setObjectName(QString::fromLatin1(gridName));
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 6);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->horizontalHeader()->setSectionsClickable(true);
    return page;
}

void frmMainUi::SetupStatusBar(QMainWindow* window)
{
    QStatusBar* bar = window->statusBar();
    bar->setObjectName(QStringLiteral("sbStatusBar"));
    const auto panel = [bar](const char* name, const QString& toolTip, int stretch) {
        auto* label = new QLabel;
        label->setObjectName(QString::fromLatin1(name));
        label->setToolTip(toolTip);
        bar->addWidget(label, stretch);
        return label;
    };
    ModeStatusPicture = new QLabel;
    ModeStatusPicture->setObjectName(QStringLiteral("ModeStatusPicture"));
    bar->addWidget(ModeStatusPicture);
    ModeStatus = panel("ModeStatus", QStringLiteral("Nightreel is Currently Stopped"), 2);
    DiskStatus = panel("DiskStatus", QStringLiteral("Disk Percent Full"), 2);
    DateStatus = panel("DateStatus", QStringLiteral("Today's Date"), 1);
    TimeStatus = panel("TimeStatus", QStringLiteral("Current Time"), 1);
}
