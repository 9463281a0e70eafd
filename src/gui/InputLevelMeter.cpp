#include "gui/InputLevelMeter.h"

#include <atomic>
#include <cmath>
#include <pulse/pulseaudio.h>

namespace {

// The meter spans this many decibels below full scale.
constexpr double FloorDb = -60.0;
// The server reports the peak of each block of this many per second.
constexpr uint32_t PeaksPerSecond = 25;

} // namespace

// A peak-detecting capture stream of its own, on a thread of the server library. The peak
// since the meter last looked is handed over through an atomic.
struct InputLevelMeter::Listener {
    pa_threaded_mainloop* mainloop = nullptr;
    pa_context* context = nullptr;
    pa_stream* stream = nullptr;
    QByteArray device;
    std::atomic<float> peak{0.0f};

    explicit Listener(const QString& inputName)
        : device(inputName.toUtf8())
    {
        mainloop = pa_threaded_mainloop_new();
        if (!mainloop)
            return;
        context = pa_context_new(pa_threaded_mainloop_get_api(mainloop), "Nightreel 2000 meter");
        if (!context)
            return;
        pa_context_set_state_callback(context, &Listener::OnContextState, this);
        // No server means no level: never start one for a meter.
        if (pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
            return;
        pa_threaded_mainloop_start(mainloop);
    }

    ~Listener()
    {
        if (mainloop)
            pa_threaded_mainloop_stop(mainloop);
        if (stream) {
            pa_stream_disconnect(stream);
            pa_stream_unref(stream);
        }
        if (context) {
            pa_context_disconnect(context);
            pa_context_unref(context);
        }
        if (mainloop)
            pa_threaded_mainloop_free(mainloop);
    }

    static void OnContextState(pa_context* context, void* self)
    {
        auto* l = static_cast<Listener*>(self);
        if (pa_context_get_state(context) != PA_CONTEXT_READY || l->stream)
            return;
        const pa_sample_spec sampleSpec{PA_SAMPLE_FLOAT32NE, 1, PeaksPerSecond};
        l->stream = pa_stream_new(context, "Input level", &sampleSpec, nullptr);
        if (!l->stream)
            return;
        pa_stream_set_read_callback(l->stream, &Listener::OnRead, l);
        pa_buffer_attr attr{};
        attr.maxlength = uint32_t(-1);
        attr.fragsize = sizeof(float);
        const char* device = l->device.isEmpty() ? nullptr : l->device.constData();
        pa_stream_connect_record(l->stream, device, &attr,
                                 pa_stream_flags_t(PA_STREAM_PEAK_DETECT |
                                                   PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE));
    }

    static void OnRead(pa_stream* stream, size_t, void* self)
    {
        auto* l = static_cast<Listener*>(self);
        const void* data = nullptr;
        size_t bytes = 0;
        while (pa_stream_readable_size(stream) > 0 && pa_stream_peek(stream, &data, &bytes) >= 0 &&
               bytes > 0) {
            if (data) {
                const auto* samples = static_cast<const float*>(data);
                for (size_t i = 0; i < bytes / sizeof(float); ++i) {
                    float seen = l->peak.load();
                    const float sample = std::fabs(samples[i]);
                    while (sample > seen && !l->peak.compare_exchange_weak(seen, sample)) {
                    }
                }
            }
            pa_stream_drop(stream);
        }
    }
};

InputLevelMeter::InputLevelMeter(QWidget* parent)
    : QProgressBar(parent)
{
    setRange(0, int(-FloorDb));
    setValue(0);
    setTextVisible(false);
    setAccessibleName(tr("Input level"));
    m_refresh.setInterval(1000 / 10);
    connect(&m_refresh, &QTimer::timeout, this, &InputLevelMeter::ShowPeak);
}

InputLevelMeter::~InputLevelMeter() = default;

void InputLevelMeter::SetInputName(const QString& name)
{
    m_inputName = name;
    if (m_listener)
        Listen();
}

void InputLevelMeter::showEvent(QShowEvent* event)
{
    QProgressBar::showEvent(event);
    Listen();
}

void InputLevelMeter::hideEvent(QHideEvent* event)
{
    m_refresh.stop();
    m_listener.reset();
    setValue(0);
    QProgressBar::hideEvent(event);
}

void InputLevelMeter::Listen()
{
    m_listener.reset();
    m_listener = std::make_unique<Listener>(m_inputName);
    m_refresh.start();
}

void InputLevelMeter::ShowPeak()
{
    const float peak = m_listener ? m_listener->peak.exchange(0.0f) : 0.0f;
    const double db = peak > 0.0f ? 20.0 * std::log10(double(peak)) : FloorDb;
    setValue(int(std::lround(qBound(FloorDb, db, 0.0) - FloorDb)));
}
