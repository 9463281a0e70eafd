#pragma once

#include <chrono>
#include <functional>
#include <pulse/context.h>
#include <pulse/mainloop.h>
#include <pulse/operation.h>

// One blocking connection to the sound server. Every wait is bounded: a server that hangs
// (stopped, swapped out, deadlocked) must not hang the recording that loads a profile.
class PulseSession {
public:
    explicit PulseSession(std::chrono::milliseconds timeout);
    ~PulseSession();
    PulseSession(const PulseSession&) = delete;
    PulseSession& operator=(const PulseSession&) = delete;

    // A MixsetResult: MIXSET_OK or MIXSET_ERR_NO_SERVER. Never starts a server.
    int Connect();

    // Waits for an operation that was just started (null when starting it failed) and
    // drops it. A MixsetResult: MIXSET_OK, MIXSET_ERR_OPERATION_FAILED or
    // MIXSET_ERR_NO_ANSWER.
    int Wait(pa_operation* operation);

    // Starts an operation that reports success or failure, with the callback and the
    // data it is handed, and waits for it; a refusal gives MIXSET_ERR_OPERATION_FAILED.
    using SuccessStarter =
        std::function<pa_operation*(pa_context*, pa_context_success_cb_t, void*)>;
    int Call(const SuccessStarter& start);

    pa_context* Context() const { return m_context; }

private:
    // Runs the loop until done() is true, the time-out has passed or the loop breaks.
    void RunUntil(const std::function<bool()>& done);

    static void OnSuccess(pa_context*, int success, void* result);

    std::chrono::milliseconds m_timeout;
    pa_mainloop* m_loop = nullptr;
    pa_context* m_context = nullptr;
};
