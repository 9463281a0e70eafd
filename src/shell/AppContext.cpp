#include "shell/AppContext.h"

#include "common/Clock.h"

AppContext::AppContext(const Seams& seams, const AppFolders& appFolders)
    : clock(seams.clock)
    , messageBox(seams.messageBox)
    , launcher(seams.launcher)
    , audioDevices(seams.audioDevices)
    , folders(appFolders)
    , log(*this)
    , registry(*this)
    , database(*this)
    , scheduler(*this)
    , defaultFormats(log, registry, options, database.DataInfo)
{
}

double AppContext::Now() const
{
    return clock.Now();
}
