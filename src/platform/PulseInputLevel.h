#pragma once

#include "platform/AudioDevices.h"

#include <QByteArray>
#include <atomic>

struct pa_context;
struct pa_stream;
struct pa_threaded_mainloop;

// A peak-detecting capture stream of its own on the session's sound server, on a thread of
// the server library. The peak since the last look is handed over through an atomic.
class PulseInputLevel : public InputLevel {
public:
    // An empty name is the server's default input.
    explicit PulseInputLevel(const QString& inputName);
    ~PulseInputLevel() override;
    PulseInputLevel(const PulseInputLevel&) = delete;
    PulseInputLevel& operator=(const PulseInputLevel&) = delete;

    float TakePeak() override { return m_peak.exchange(0.0f); }

private:
    static void OnContextState(pa_context* context, void* self);
    static void OnRead(pa_stream* stream, size_t, void* self);

    pa_threaded_mainloop* m_mainloop = nullptr;
    pa_context* m_context = nullptr;
    pa_stream* m_stream = nullptr;
    const QByteArray m_device;
    std::atomic<float> m_peak{0.0f};
};
