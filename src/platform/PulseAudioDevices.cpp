#include "platform/PulseAudioDevices.h"

#include "platform/PulseInputLevel.h"

#include <pulse/pulseaudio.h>

namespace {

struct Query {
    QList<CaptureSource> sources;
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
        query->sources.append(
            {QString::fromUtf8(info->name), QString::fromUtf8(info->description)});
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

QList<CaptureSource> PulseAudioDevices::CaptureSources()
{
    Query query;
    pa_mainloop* loop = pa_mainloop_new();
    if (!loop)
        return {};
    pa_context* context = pa_context_new(pa_mainloop_get_api(loop), "Nightreel 2000 inputs");
    // No server means no device: never start one just to list them.
    if (context && pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0) {
        pa_context_set_state_callback(context, OnState, &query);
        while (!query.done && pa_mainloop_iterate(loop, 1, nullptr) >= 0) {
        }
        pa_context_disconnect(context);
    }
    if (context)
        pa_context_unref(context);
    pa_mainloop_free(loop);
    return query.sources;
}

std::unique_ptr<InputLevel> PulseAudioDevices::ListenToInput(const QString& name)
{
    return std::make_unique<PulseInputLevel>(name);
}
