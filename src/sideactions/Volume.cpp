#include "sideactions/Volume.h"

#include "diagnostics/Trap.h"
#include "platform/Mixer.h"

#include <algorithm>

namespace Volume {

int GetVolume(EventLog& log, Mixer& mixer)
{
    int percent = -1;
    Trap(log, "GetVolume", [&] {
        const int read = mixer.GetVolume();
        percent = read < 0 ? -1 : std::min(read, 100);
    });
    return percent;
}

bool SetVolume(EventLog& log, Mixer& mixer, int Percent)
{
    bool set = false;
    Trap(log, "SetVolume", [&] { set = mixer.SetVolume(std::clamp(Percent, 0, 100)); });
    return set;
}

} // namespace Volume
