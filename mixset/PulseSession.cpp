#include "PulseSession.h"

#include "mixset.h"

PulseSession::PulseSession(std::chrono::milliseconds timeout)
    : m_timeout(timeout)
    , m_loop(pa_mainloop_new())
{
    if (m_loop)
        m_context = pa_context_new(pa_mainloop_get_api(m_loop), "Nightreel mixer profiles");
}

PulseSession::~PulseSession()
{
    if (m_context) {
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
    }
    if (m_loop)
        pa_mainloop_free(m_loop);
}

int PulseSession::Connect()
{
    // Starting a server of our own would only hide that the user's sound system is down.
    if (!m_context || pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return MIXSET_ERR_NO_SERVER;
    RunUntil([this] {
        const pa_context_state_t state = pa_context_get_state(m_context);
        return state == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state);
    });
    return pa_context_get_state(m_context) == PA_CONTEXT_READY ? MIXSET_OK : MIXSET_ERR_NO_SERVER;
}

int PulseSession::Wait(pa_operation* operation)
{
    if (!operation) {
        return PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context)) ? MIXSET_ERR_OPERATION_FAILED
                                                                   : MIXSET_ERR_NO_ANSWER;
    }
    RunUntil([operation] { return pa_operation_get_state(operation) != PA_OPERATION_RUNNING; });
    const pa_operation_state_t state = pa_operation_get_state(operation);
    // Cancelled, its callback is never called: the caller's result variable may go away.
    if (state == PA_OPERATION_RUNNING)
        pa_operation_cancel(operation);
    pa_operation_unref(operation);
    // A lost connection cancels every operation under way.
    return state == PA_OPERATION_DONE ? MIXSET_OK : MIXSET_ERR_NO_ANSWER;
}

int PulseSession::Call(const SuccessStarter& start)
{
    int success = 0;
    const int result = Wait(start(m_context, &PulseSession::OnSuccess, &success));
    if (result != MIXSET_OK)
        return result;
    return success ? MIXSET_OK : MIXSET_ERR_OPERATION_FAILED;
}

void PulseSession::RunUntil(const std::function<bool()>& done)
{
    using namespace std::chrono;
    const auto deadline = steady_clock::now() + m_timeout;
    while (!done()) {
        const auto left = duration_cast<microseconds>(deadline - steady_clock::now()).count();
        if (left <= 0)
            return;
        if (pa_mainloop_prepare(m_loop, int(left)) < 0 || pa_mainloop_poll(m_loop) < 0 ||
            pa_mainloop_dispatch(m_loop) < 0)
            return;
    }
}

void PulseSession::OnSuccess(pa_context*, int success, void* result)
{
    *static_cast<int*>(result) = success;
}
