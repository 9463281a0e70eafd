#include "MixerControl.h"

#include "mixset.h"

#include <pulse/introspect.h>

namespace {

// Where sinks and sources differ; everything else is done the same way for both.
struct DeviceCalls {
    pa_operation* (*SetPort)(pa_context*, const char*, const char*, pa_context_success_cb_t, void*);
    pa_operation* (*SetVolume)(pa_context*, const char*, const pa_cvolume*, pa_context_success_cb_t,
                               void*);
    pa_operation* (*SetMute)(pa_context*, const char*, int, pa_context_success_cb_t, void*);
    pa_operation* (*SetDefault)(pa_context*, const char*, pa_context_success_cb_t, void*);
};
constexpr DeviceCalls SinkCalls{pa_context_set_sink_port_by_name,
                                pa_context_set_sink_volume_by_name,
                                pa_context_set_sink_mute_by_name, pa_context_set_default_sink};
constexpr DeviceCalls SourceCalls{
    pa_context_set_source_port_by_name, pa_context_set_source_volume_by_name,
    pa_context_set_source_mute_by_name, pa_context_set_default_source};

// The answer to a list query: what came, and whether the server refused.
template <typename Item> struct Listing {
    std::vector<Item> Items;
    bool Refused = false;
};

template <typename Info> void OnDevice(pa_context*, const Info* info, int eol, void* data)
{
    auto* listing = static_cast<Listing<MixerState::Device>*>(data);
    if (eol < 0)
        listing->Refused = true;
    if (eol != 0 || !info)
        return;
    MixerState::Device device;
    device.Name = info->name;
    device.ChannelMap = info->channel_map;
    device.Volume = info->volume;
    device.Mute = info->mute != 0;
    if (info->active_port)
        device.Port = info->active_port->name;
    listing->Items.push_back(std::move(device));
}

void OnCard(pa_context*, const pa_card_info* info, int eol, void* data)
{
    auto* listing = static_cast<Listing<MixerState::Card>*>(data);
    if (eol < 0)
        listing->Refused = true;
    if (eol != 0 || !info)
        return;
    listing->Items.push_back(
        {info->name, info->active_profile2 ? info->active_profile2->name : std::string()});
}

struct ServerDefaults {
    bool Answered = false; // no answer is a refusal
    std::string Sink;
    std::string Source;
};

void OnServer(pa_context*, const pa_server_info* info, void* data)
{
    if (!info)
        return;
    auto* defaults = static_cast<ServerDefaults*>(data);
    defaults->Answered = true;
    defaults->Sink = info->default_sink_name ? info->default_sink_name : "";
    defaults->Source = info->default_source_name ? info->default_source_name : "";
}

template <typename Item>
int Query(PulseSession& session, pa_operation* operation, const Listing<Item>& listing)
{
    const int result = session.Wait(operation);
    if (result != MIXSET_OK)
        return result;
    return listing.Refused ? MIXSET_ERR_OPERATION_FAILED : MIXSET_OK;
}

template <typename Item> const Item* Find(const std::vector<Item>& items, const std::string& name)
{
    for (const Item& item : items) {
        if (item.Name == name)
            return &item;
    }
    return nullptr;
}

// A device of the profile that the server has now.
struct PresentDevice {
    const MixerState::Device& Saved;
    const MixerState::Device& Live;
    const DeviceCalls& Calls;
};

} // namespace

int ReadMixerState(PulseSession& session, MixerState& state)
{
    pa_context* context = session.Context();
    ServerDefaults defaults;
    Listing<MixerState::Card> cards;
    Listing<MixerState::Device> sinks;
    Listing<MixerState::Device> sources;
    int result = session.Wait(pa_context_get_server_info(context, OnServer, &defaults));
    if (result == MIXSET_OK && !defaults.Answered)
        result = MIXSET_ERR_OPERATION_FAILED;
    if (result == MIXSET_OK)
        result = Query(session, pa_context_get_card_info_list(context, OnCard, &cards), cards);
    if (result == MIXSET_OK)
        result = Query(
            session, pa_context_get_sink_info_list(context, OnDevice<pa_sink_info>, &sinks), sinks);
    if (result == MIXSET_OK)
        result = Query(session,
                       pa_context_get_source_info_list(context, OnDevice<pa_source_info>, &sources),
                       sources);
    if (result != MIXSET_OK)
        return result;
    state.Cards = std::move(cards.Items);
    state.Sinks = std::move(sinks.Items);
    state.Sources = std::move(sources.Items);
    state.DefaultSink = defaults.Sink;
    state.DefaultSource = defaults.Source;
    return MIXSET_OK;
}

int ReadSink(PulseSession& session, const char* name, MixerState::Device& sink)
{
    Listing<MixerState::Device> sinks;
    const int result = Query(
        session,
        pa_context_get_sink_info_by_name(session.Context(), name, OnDevice<pa_sink_info>, &sinks),
        sinks);
    if (result != MIXSET_OK)
        return result;
    if (sinks.Items.empty())
        return MIXSET_ERR_OPERATION_FAILED;
    sink = sinks.Items.front();
    return MIXSET_OK;
}

int ApplyMixerState(PulseSession& session, const MixerState& profile)
{
    MixerState live;
    if (const int result = ReadMixerState(session, live); result != MIXSET_OK)
        return result;

    int outcome = MIXSET_OK;
    // A refused operation is remembered and the rest of the profile still goes on; a server
    // that stopped answering ends the load.
    const auto run = [&](const PulseSession::SuccessStarter& start) {
        const int result = session.Call(start);
        if (outcome == MIXSET_OK)
            outcome = result;
        return result != MIXSET_ERR_NO_ANSWER;
    };

    // The cards' profiles come first: they decide which sinks and sources exist.
    bool cardsChanged = false;
    for (const MixerState::Card& card : profile.Cards) {
        const MixerState::Card* now = Find(live.Cards, card.Name);
        if (!now || card.Profile.empty() || now->Profile == card.Profile)
            continue;
        cardsChanged = true;
        if (!run([&](pa_context* c, pa_context_success_cb_t done, void* data) {
                return pa_context_set_card_profile_by_name(c, card.Name.c_str(),
                                                           card.Profile.c_str(), done, data);
            }))
            return outcome;
    }
    if (cardsChanged) {
        if (const int result = ReadMixerState(session, live); result != MIXSET_OK)
            return outcome == MIXSET_OK ? result : outcome;
    }

    std::vector<PresentDevice> devices;
    for (const MixerState::Device& saved : profile.Sinks) {
        if (const MixerState::Device* now = Find(live.Sinks, saved.Name))
            devices.push_back({saved, *now, SinkCalls});
    }
    for (const MixerState::Device& saved : profile.Sources) {
        if (const MixerState::Device* now = Find(live.Sources, saved.Name))
            devices.push_back({saved, *now, SourceCalls});
    }

    // The port before the volume: a port may bring a volume of its own with it.
    for (const PresentDevice& device : devices) {
        if (device.Saved.Port.empty() || device.Saved.Port == device.Live.Port)
            continue;
        if (!run([&](pa_context* c, pa_context_success_cb_t done, void* data) {
                return device.Calls.SetPort(c, device.Saved.Name.c_str(), device.Saved.Port.c_str(),
                                            done, data);
            }))
            return outcome;
    }
    for (const PresentDevice& device : devices) {
        pa_cvolume volume = device.Saved.Volume;
        if (!pa_channel_map_equal(&device.Saved.ChannelMap, &device.Live.ChannelMap))
            pa_cvolume_remap(&volume, &device.Saved.ChannelMap, &device.Live.ChannelMap);
        if (!run([&](pa_context* c, pa_context_success_cb_t done, void* data) {
                return device.Calls.SetVolume(c, device.Saved.Name.c_str(), &volume, done, data);
            }))
            return outcome;
    }
    for (const PresentDevice& device : devices) {
        if (!run([&](pa_context* c, pa_context_success_cb_t done, void* data) {
                return device.Calls.SetMute(c, device.Saved.Name.c_str(), device.Saved.Mute, done,
                                            data);
            }))
            return outcome;
    }

    const auto setDefault = [&](const std::string& name, const std::vector<MixerState::Device>& now,
                                const DeviceCalls& calls) {
        if (name.empty() || !Find(now, name))
            return true;
        return run([&](pa_context* c, pa_context_success_cb_t done, void* data) {
            return calls.SetDefault(c, name.c_str(), done, data);
        });
    };
    if (setDefault(profile.DefaultSink, live.Sinks, SinkCalls))
        setDefault(profile.DefaultSource, live.Sources, SourceCalls);
    return outcome;
}
