#include "sideactions/Volume.h"

#include "common/RuntimeError.h"
#include "platform/Mixer.h"

#include <algorithm>

namespace Volume {

int GetVolume(Mixer& mixer)
{
    return InRoutine("GetVolume", [&] {
        const int read = mixer.GetVolume();
        return read < 0 ? -1 : std::min(read, 100);
    });
}

bool SetVolume(Mixer& mixer, int Percent)
{
    return InRoutine("SetVolume", [&] { return mixer.SetVolume(std::clamp(Percent, 0, 100)); });
}

} // namespace Volume
