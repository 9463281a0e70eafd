#pragma once

#include "MixerState.h"
#include "PulseSession.h"

// Reads the whole mixer state from a connected session into state. A MixsetResult.
int ReadMixerState(PulseSession& session, MixerState& state);

// Reads one sink by name ("@DEFAULT_SINK@" for the default one) into sink; a sink that is
// not there gives MIXSET_ERR_OPERATION_FAILED. A MixsetResult.
int ReadSink(PulseSession& session, const char* name, MixerState::Device& sink);

// Puts a profile back, in the order and by the rules described in mixset.h. A MixsetResult.
int ApplyMixerState(PulseSession& session, const MixerState& profile);
