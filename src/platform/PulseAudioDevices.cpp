#include "platform/PulseAudioDevices.h"

#include <pulse/pulseaudio.h>

namespace {

struct Query {
    pa_mainloop* loop = nullptr;
    int sources = 0;
    bool done = false;
};

void OnSource(pa_context*, const pa_source_info* info, int eol, void* userdata)
{
    auto* query = static_cast<Query*>(userdata);
    if (eol != 0) {
        query->done = true;
        return;
    }
    if (info)
        ++query->sources;
}

void OnState(pa_context* context, void* userdata)
{
    auto* query = static_cast<Query*>(userdata);
    switch (pa_context_get_state(context)) {
    case PA_CONTEXT_READY:
        pa_operation_unref(pa_context_get_source_info_list(context, OnSource, query));
        break;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        query->done = true;
        break;
    default:
        break;
    }
}

} // namespace

int PulseAudioDevices::CountCaptureSources()
{
    Query query;
    query.loop = pa_mainloop_new();
    if (!query.loop)
        return 0;
    pa_context* context =
        pa_context_new(pa_mainloop_get_api(query.loop), "Nightreel 2000 device count");
    // No server means no device: never start one just to count.
    if (context && pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0) {
        pa_context_set_state_callback(context, OnState, &query);
        while (!query.done && pa_mainloop_iterate(query.loop, 1, nullptr) >= 0) {
        }
        pa_context_disconnect(context);
    }
    if (context)
        pa_context_unref(context);
    pa_mainloop_free(query.loop);
    return query.sources;
}
