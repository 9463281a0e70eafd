#include "shell/frmMainUi.h"

#include "shell/Icons.h"

#include <QAction>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

struct RecordingKey {
    const char* action;
    QKeyCombination key;
};

constexpr RecordingKey kRecordingKeys[] = {{"mnuQuickStart", Qt::CTRL | Qt::Key_R},
                                           {"mnuStopCurrentRecording", Qt::CTRL | Qt::Key_S},
                                           {"mnuPauseRecording", Qt::CTRL | Qt::Key_T},
                                           {"mnuPauseOnly", Qt::CTRL | Qt::Key_P},
                                           {"mnuResume", Qt::CTRL | Qt::Key_U}};

} // namespace

void frmMainUi::Setup(QMainWindow* window)
{
    window->setObjectName(QStringLiteral("frmMain"));
    window->setWindowTitle(tr("Nightreel 2000"));
    window->setWindowIcon(Icons::Application());
    SetupMenus(window);
    SetupToolbars(window);

    SSTab1 = new QTabWidget(window);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    DBGridPrograms = new QTableView;
    DBGridRecordings = new QTableView;
    SSTab1->addTab(Page(ToolbarPrograms, DBGridPrograms, "DBGridPrograms"), tr("&Programming"));
    SSTab1->addTab(Page(ToolbarRecordings, DBGridRecordings, "DBGridRecordings"),
                   tr("&Recordings"));
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

void frmMainUi::ShowRecordingKeys(bool shown)
{
    for (const RecordingKey& key : kRecordingKeys)
        Action(QString::fromLatin1(key.action))
            ->setShortcut(shown ? QKeySequence(key.key) : QKeySequence());
}

void frmMainUi::SetupMenus(QMainWindow* window)
{
    QMenuBar* bar = window->menuBar();
    const auto menu = [bar](const char* name, const QString& caption) {
        QMenu* m = bar->addMenu(caption);
        m->setObjectName(QString::fromLatin1(name));
        return m;
    };
    mnuFile = menu("mnuFile", tr("&File"));
    AddAction(mnuFile, "mnuFileHide", tr("&Hide Window"));
    AddAction(mnuFile, "mnuFileSuspend", tr("&Suspend Nightreel 2000"))->setCheckable(true);
    AddAction(mnuFile, "mnuFileExit", tr("E&xit Nightreel 2000"))
        ->setShortcut(Qt::CTRL | Qt::Key_Q);

    mnuView = menu("mnuView", tr("&View"));
    AddAction(mnuView, "mnuViewPrograms", tr("&Programs"))->setCheckable(true);
    AddAction(mnuView, "mnuViewRecordings", tr("&Recordings"))->setCheckable(true);
    AddAction(mnuView, "mnuViewDiskStatus", tr("&Disk Status"));
    AddAction(mnuView, "mnuErrors", tr("&Errors/Warnings"));
    AddAction(mnuView, "mnuViewErrorLog", tr("Error &Log"));
    AddAction(mnuView, "mnuViewOptions", tr("&Options"));

    mnuPrograms = menu("mnuPrograms", tr("Pro&gramming"));
    AddAction(mnuPrograms, "mnuAddNew", tr("&Add New"));
    AddAction(mnuPrograms, "mnuEdit", tr("&Edit"));
    AddAction(mnuPrograms, "mnuRemovePrograms", tr("&Remove"))->setShortcut(QKeySequence::Delete);
    AddAction(mnuPrograms, "mnuCloneProgram", tr("&Clone"));
    AddAction(mnuPrograms, "mnuProgramEnable", tr("E&nable/Disable"));
    AddAction(mnuPrograms, "mnuProgramsSelectAll", tr("Se&lect All"));

    mnuRecordings = menu("mnuRecordings", tr("Re&cordings"));
    AddAction(mnuRecordings, "mnuRecordingsPlay", tr("&Play "));
    AddAction(mnuRecordings, "mnuRecordingsRemove", tr("&Delete from Disk"))
        ->setShortcut(QKeySequence::Delete);
    AddAction(mnuRecordings, "mnuDetails", tr("De&tails"));
    AddAction(mnuRecordings, "mnuRecordingsExplore", tr("&Explore"));
    AddAction(mnuRecordings, "mnuRecordingsCopyFilename", tr("&Copy Filename to Clipboard"));
    mnuManageRecordingList = mnuRecordings->addMenu(tr("&Add Recordings to List"));
    mnuManageRecordingList->setObjectName(QStringLiteral("mnuManageRecordingList"));
    AddAction(mnuManageRecordingList, "mnuAddFileToList", tr("Add &File to List"));
    AddAction(mnuManageRecordingList, "mnuAddFolderToList", tr("Add F&older to List"));
    AddAction(mnuRecordings, "mnuRecordingsRemoveFromList", tr("Re&move from List"));
    AddAction(mnuRecordings, "mnuClearList", tr("Clea&r List"));
    AddAction(mnuRecordings, "mnuLoadList", tr("&Load List"));
    AddAction(mnuRecordings, "mnuSaveList", tr("Sa&ve List"));
    AddAction(mnuRecordings, "mnuRecordingsSelectAll", tr("&Select All"));

    // The recording keys work in the window's lists and tabs (and can be turned off in the
    // options); the menu shows them while they are on, and they act here only while the menu
    // is open.
    mnuRecording = menu("mnuRecording", tr("Rec&ording"));
    AddAction(mnuRecording, "mnuManualRecording", tr("&Start Manual Recording"));
    AddAction(mnuRecording, "mnuQuickStart", tr("&Quick Start"));
    AddAction(mnuRecording, "mnuStopCurrentRecording", tr("S&top Current Recording"));
    AddAction(mnuRecording, "mnuPauseRecording", tr("Pa&use Recording"));
    AddAction(mnuRecording, "mnuPauseOnly", tr("&Pause"));
    AddAction(mnuRecording, "mnuResume", tr("&Resume"));
    for (const RecordingKey& key : kRecordingKeys)
        Action(QString::fromLatin1(key.action))->setShortcutContext(Qt::WidgetShortcut);
    ShowRecordingKeys(true);

    mnuTools = menu("mnuTools", tr("&Tools"));
    AddAction(mnuTools, "mnuToolsMixer", tr("&Mixer"));
    AddAction(mnuTools, "mnuMixerProfiles", tr("Mixer Pro&files"));
    AddAction(mnuTools, "mnuPlayRecent", tr("&Play Most Recent Recording"));
    mnuToolsAdvanced = mnuTools->addMenu(tr("&Advanced"));
    mnuToolsAdvanced->setObjectName(QStringLiteral("mnuToolsAdvanced"));
    AddAction(mnuToolsAdvanced, "mnuCompactDb", tr("&Compact Database"));
    AddAction(mnuToolsAdvanced, "mnuRestoreOriginalDb", tr("&Restore Original Database"));

    mnuHelp = menu("mnuHelp", tr("&Help"));
    AddAction(mnuHelp, "mnuHelpContents", tr("&Contents"))->setShortcut(QKeySequence::HelpContents);
    AddAction(mnuHelp, "mnuHelpSearch", tr("&Search For Help On..."));
    AddAction(mnuHelp, "mnuHelpHomePage", tr("Larkmoor Systems &Home Page"));
    AddAction(mnuHelp, "mnuHelpAbout", tr("&About Nightreel 2000"));
}

void frmMainUi::SetupToolbars(QMainWindow* window)
{
    ToolbarMain = window->addToolBar(tr("Main"));
    ToolbarMain->setObjectName(QStringLiteral("ToolbarMain"));
    ToolbarMain->setMovable(false);
    AddButton(ToolbarMain, QStringLiteral("Stop"), tr("Stop"), Icons::Named("stop"));
    AddButton(ToolbarMain, QStringLiteral("Record"), tr("Start Manual Record"),
              Icons::Named("record"));
    AddButton(ToolbarMain, QStringLiteral("Play"), tr("Play Most Recent Recording"),
              Icons::Named("play"));
    AddButton(ToolbarMain, QStringLiteral("Pause"), tr("Pause"), Icons::Named("pause1"))
        ->setCheckable(true);
    AddButton(ToolbarMain, QStringLiteral("Mixer"), tr("Mixer"), Icons::Named("mixer"));
    AddButton(ToolbarMain, QStringLiteral("DiskStatus"), tr("Disk Status"), Icons::Named("disk"));
    AddButton(ToolbarMain, QStringLiteral("Help"), tr("Help"), Icons::Named("help"));
    AddButton(ToolbarMain, QStringLiteral("Error"), tr("Error Has Occurred! Please check the log."),
              Icons::Named("error"));

    ToolbarPrograms = new QToolBar;
    ToolbarPrograms->setObjectName(QStringLiteral("ToolbarPrograms"));
    AddButton(ToolbarPrograms, QStringLiteral("Add"), tr("Add New Program"), Icons::Named("add"));
    AddButton(ToolbarPrograms, QStringLiteral("Edit"), tr("Edit Program"), Icons::Named("edit"));
    AddButton(ToolbarPrograms, QStringLiteral("Remove"), tr("Remove Programs"),
              Icons::Named("remove"));
    AddButton(ToolbarPrograms, QStringLiteral("Clone"), tr("Clone Program"), Icons::Named("clone"));
    AddButton(ToolbarPrograms, QStringLiteral("Enable"), tr("Enable/Disable Programs"),
              Icons::Named("enable"));

    ToolbarRecordings = new QToolBar;
    ToolbarRecordings->setObjectName(QStringLiteral("ToolbarRecordings"));
    AddButton(ToolbarRecordings, QStringLiteral("Play"), tr("Play"), Icons::Named("play"));
    AddButton(ToolbarRecordings, QStringLiteral("Delete"), tr("Delete from Disk"),
              Icons::Named("remove"));
    AddButton(ToolbarRecordings, QStringLiteral("Details"), tr("Details"), Icons::Named("details"));
    AddButton(ToolbarRecordings, QStringLiteral("add_to_list"), tr("Add Recordings to List"),
              Icons::Named("add"));
    AddButton(ToolbarRecordings, QStringLiteral("remove_from_list"), tr("Remove from List"),
              Icons::Named("clear"));
    AddButton(ToolbarRecordings, QStringLiteral("clear_list"), tr("Clear List"),
              Icons::Named("clear"));
    AddButton(ToolbarRecordings, QStringLiteral("load_list"), tr("Load List"),
              Icons::Named("open"));
    AddButton(ToolbarRecordings, QStringLiteral("save_list"), tr("Save List"),
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
    ModeStatus = panel("ModeStatus", tr("Nightreel is Currently Stopped"), 2);
    DiskStatus = panel("DiskStatus", tr("Disk Percent Full"), 2);
    DateStatus = panel("DateStatus", tr("Today's Date"), 1);
    TimeStatus = panel("TimeStatus", tr("Current Time"), 1);
}
