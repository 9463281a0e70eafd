#include "shell/AppContext.h"

#include "common/Clock.h"

AppContext::AppContext(const Seams& seams, const AppFolders& appFolders)
    : clock(seams.clock)
    , messageBox(seams.messageBox)
    , launcher(seams.launcher)
    , audioDevices(seams.audioDevices)
    , diskSpace(seams.diskSpace)
    , windows(seams.windows)
    , network(seams.network)
    , folders(appFolders)
    , log(database, error, clock)
    , registry(log)
    , database(folders, log, error, messageBox)
    , scheduler(*this)
    , ProgramFormat(*this)
    , ProgramFormFormat(*this)
    , WfxDefault(*this)
    , recorder(*this, RecorderServices{log, clock, options, registry, appStatus, error, database,
                                       scheduler, messageBox, launcher, diskSpace, windows, network,
                                       folders.runtimeFolder})
{
}

double AppContext::Now() const
{
    return clock.Now();
}
