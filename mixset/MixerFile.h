#pragma once

#include "MixerState.h"

#include <optional>
#include <string>
#include <string_view>

// The text of a profile file; the format is described in mixset.h.
std::string FormatMixerProfile(const MixerState& state);

// Nothing when the text is not a well-formed profile of this version.
std::optional<MixerState> ParseMixerProfile(std::string_view text);
