// The entry points of libmixset; what each one promises is in mixset.h.
#include "mixset.h"

#include "MixerControl.h"
#include "MixerFile.h"
#include "PulseSession.h"

#include <cmath>
#include <cstdio>
#include <new>
#include <pulse/introspect.h>

namespace {

constexpr std::chrono::milliseconds Timeout{MIXSET_TIMEOUT_MS};

// Nothing may escape through the C boundary; running out of memory is all that can throw.
template <typename Body> int Guarded(int onFailure, Body body)
{
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return onFailure;
    }
}

// The file's whole content, or nothing when it cannot be read.
std::optional<std::string> ReadFile(const char* path)
{
    std::FILE* file = path ? std::fopen(path, "rb") : nullptr;
    if (!file)
        return std::nullopt;
    std::string text;
    char buffer[4096];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file))
        text.append(buffer, count);
    const bool failed = std::ferror(file);
    std::fclose(file);
    if (failed)
        return std::nullopt;
    return text;
}

bool WriteFile(const char* path, const std::string& text)
{
    std::FILE* file = path ? std::fopen(path, "wb") : nullptr;
    if (!file)
        return false;
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && written;
}

} // namespace

extern "C" int LoadMixerFile(const char* path)
{
    return Guarded(MIXSET_ERR_OPERATION_FAILED, [path] {
        // The file is read and checked whole first, so that a bad one changes nothing.
        const std::optional<std::string> text = ReadFile(path);
        if (!text)
            return int(MIXSET_ERR_FILE_UNREADABLE);
        const std::optional<MixerState> profile = ParseMixerProfile(*text);
        if (!profile)
            return int(MIXSET_ERR_FILE_MALFORMED);
        PulseSession session(Timeout);
        if (const int result = session.Connect(); result != MIXSET_OK)
            return result;
        return ApplyMixerState(session, *profile);
    });
}

extern "C" int SaveMixerFile(const char* path)
{
    return Guarded(MIXSET_ERR_OPERATION_FAILED, [path] {
        PulseSession session(Timeout);
        MixerState state;
        int result = session.Connect();
        if (result == MIXSET_OK)
            result = ReadMixerState(session, state);
        if (result != MIXSET_OK)
            return result;
        return WriteFile(path, FormatMixerProfile(state)) ? int(MIXSET_OK)
                                                          : int(MIXSET_ERR_WRITE_FAILED);
    });
}

extern "C" int GetMasterVolume(void)
{
    return Guarded(-1, [] {
        PulseSession session(Timeout);
        MixerState::Device sink;
        if (session.Connect() != MIXSET_OK ||
            ReadSink(session, "@DEFAULT_SINK@", sink) != MIXSET_OK)
            return -1;
        // One channel stands for all: the balance is not read.
        return int(std::lround(sink.Volume.values[0] * 100.0 / PA_VOLUME_NORM));
    });
}

extern "C" int SetMasterVolume(int percent)
{
    return Guarded(0, [percent] {
        PulseSession session(Timeout);
        MixerState::Device sink;
        if (session.Connect() != MIXSET_OK ||
            ReadSink(session, "@DEFAULT_SINK@", sink) != MIXSET_OK)
            return 0;
        const int clamped = percent < 0 ? 0 : percent > 100 ? 100 : percent;
        const auto value = pa_volume_t(std::lround(clamped * double(PA_VOLUME_NORM) / 100.0));
        pa_cvolume volume;
        pa_cvolume_set(&volume, sink.Volume.channels, value);
        // By the name read, not the default's alias: the default may change in between.
        const int result = session.Call([&](pa_context* c, pa_context_success_cb_t done,
                                            void* data) {
            return pa_context_set_sink_volume_by_name(c, sink.Name.c_str(), &volume, done, data);
        });
        return result == MIXSET_OK ? 1 : 0;
    });
}
