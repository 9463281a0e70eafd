#include "shell/AppContext.h"

#include "common/Clock.h"
#include "diagnostics/Trap.h"

#include <QCoreApplication>

AppContext::AppContext(const Seams& seams, const AppFolders& appFolders)
    : clock(seams.clock)
    , messageBox(boxes)
    , launcher(seams.launcher)
    , audioDevices(seams.audioDevices)
    , diskSpace(seams.diskSpace)
    , mixer(seams.mixer)
    , windows(seams.windows)
    , network(seams.network)
    , folders(appFolders)
    , database(folders, messageBox)
    , log(database, error, clock)
    , boxes(seams.messageBox, log)
    , scheduler(clock, database, log, messageBox, options)
    , mixerProfiles(log, mixer, folders.dataFolder + QStringLiteral("/mixer"))
    , defaultFormats(registry, options, database.DataInfo)
    , recorder(RecorderServices{{log, clock, options, registry, appStatus, database, scheduler,
                                 messageBox, launcher, diskSpace, mixerProfiles, windows, network,
                                 seams.hasDisplay},
                                error,
                                folders.runtimeFolder,
                                folders.dataFolder,
                                seams.sleepInhibitor,
                                manualRequest})
    , recordingsList(database, log, options, clock, [this] { return recorder.FilesBeingWritten(); })
    , savedLists(database, recordingsList, folders.dataFolder)
    , joystick(seams.joystick)
    , desktopNotifications(seams.notifications)
    , recorderNotifications(log, options, appStatus, error, recorder, desktopNotifications)
{
    // The settings and the database report upward; their troubles are the log's and the
    // error state's.
    QObject::connect(&registry, &RegKeys::SaveFailed, &registry,
                     [this](const QString& section, const QString& name, const QString& value) {
                         log.LogEvent(EventError,
                                      QCoreApplication::translate(
                                          "RegKeys", "Error saving setting in registry."),
                                      section + u' ' + name + u' ' + value);
                     });
    QObject::connect(&database, &AppDatabase::ElogViewed, &error, &clsError::ElogViewed);
    QObject::connect(&database, &AppDatabase::DatabaseMissingChecked, &error,
                     &clsError::SetDatabaseMissing);
    // The purge is part of the recorder's run, with a window or without; a window that is
    // there shows the list afterwards.
    QObject::connect(&recorder, &Recorder::PurgeDue, &recorder, [this] { recordingsList.Purge(); });
}

void AppContext::InitializeDatabase()
{
    ReportEach(log, "InitializeControls", database.InitializeControls());
}

void AppContext::RestoreOriginalDatabase()
{
    ReportEach(log, "RestoreOriginalDatabase", database.RestoreOriginalDatabase());
}

double AppContext::Now() const
{
    return clock.Now();
}

ProgramListServices AppContext::ForProgramList()
{
    return {log, database, scheduler, messageBox, clock, WfxDefault, mixerProfiles.Folder()};
}

ProgramFormServices AppContext::ForProgramForm()
{
    return {log,
            options,
            registry,
            messageBox,
            launcher,
            database,
            clock,
            folders.runtimeFolder,
            mixerProfiles.Folder(),
            recorder.TaskProgram(),
            audioDevices};
}

ControlServices AppContext::ForControl(CallMessageBox& callBox)
{
    return {recorder,
            manualRequest,
            scheduler,
            database,
            log,
            error,
            appStatus,
            options,
            clock,
            WfxDefault,
            recordingsList,
            callBox,
            mixerProfiles.Folder()};
}
