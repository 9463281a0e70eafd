#include "platform/PulseInputLevel.h"

#include <cmath>
#include <pulse/pulseaudio.h>

namespace {

// The server reports the peak of each block of this many per second.
constexpr uint32_t PeaksPerSecond = 25;

} // namespace

PulseInputLevel::PulseInputLevel(const QString& inputName)
    : m_device(inputName.toUtf8())
{
    m_mainloop = pa_threaded_mainloop_new();
    if (!m_mainloop)
        return;
    m_context = pa_context_new(pa_threaded_mainloop_get_api(m_mainloop), "Nightreel 2000 meter");
    if (!m_context)
        return;
    pa_context_set_state_callback(m_context, &PulseInputLevel::OnContextState, this);
    // No server means no level: never start one for a meter.
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return;
    pa_threaded_mainloop_start(m_mainloop);
}

PulseInputLevel::~PulseInputLevel()
{
    if (m_mainloop)
        pa_threaded_mainloop_stop(m_mainloop);
    if (m_stream) {
        pa_stream_disconnect(m_stream);
        pa_stream_unref(m_stream);
    }
    if (m_context) {
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
    }
    if (m_mainloop)
        pa_threaded_mainloop_free(m_mainloop);
}

void PulseInputLevel::OnContextState(pa_context* context, void* self)
{
    auto* l = static_cast<PulseInputLevel*>(self);
    if (pa_context_get_state(context) != PA_CONTEXT_READY || l->m_stream)
        return;
    const pa_sample_spec sampleSpec{
        .format = PA_SAMPLE_FLOAT32NE, .rate = PeaksPerSecond, .channels = 1};
    l->m_stream = pa_stream_new(context, "Input level", &sampleSpec, nullptr);
    if (!l->m_stream)
        return;
    pa_stream_set_read_callback(l->m_stream, &PulseInputLevel::OnRead, l);
    pa_buffer_attr attr{};
    attr.maxlength = uint32_t(-1);
    attr.fragsize = sizeof(float);
    const char* device = l->m_device.isEmpty() ? nullptr : l->m_device.constData();
    pa_stream_connect_record(
        l->m_stream, device, &attr,
        pa_stream_flags_t(PA_STREAM_PEAK_DETECT | PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE));
}

void PulseInputLevel::OnRead(pa_stream* stream, size_t, void* self)
{
    auto* l = static_cast<PulseInputLevel*>(self);
    const void* data = nullptr;
    size_t bytes = 0;
    while (pa_stream_readable_size(stream) > 0 && pa_stream_peek(stream, &data, &bytes) >= 0 &&
           bytes > 0) {
        if (data) {
            const auto* samples = static_cast<const float*>(data);
            for (size_t i = 0; i < bytes / sizeof(float); ++i) {
                float seen = l->m_peak.load();
                const float sample = std::fabs(samples[i]);
                while (sample > seen && !l->m_peak.compare_exchange_weak(seen, sample)) {
                }
            }
        }
        pa_stream_drop(stream);
    }
}
