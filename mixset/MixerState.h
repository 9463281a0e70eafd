#pragma once

#include <pulse/channelmap.h>
#include <pulse/volume.h>
#include <string>
#include <vector>

// The whole state of the mixer, as read from the server or from a profile file. An empty
// text stands for none (no active profile, no port, no default).
struct MixerState {
    struct Card {
        std::string Name;
        std::string Profile;
    };
    // A sink or a source.
    struct Device {
        std::string Name;
        pa_channel_map ChannelMap{};
        pa_cvolume Volume{}; // one raw value per channel of ChannelMap
        bool Mute = false;
        std::string Port;
    };

    std::vector<Card> Cards;
    std::vector<Device> Sinks;
    std::vector<Device> Sources;
    std::string DefaultSink;
    std::string DefaultSource;
};
