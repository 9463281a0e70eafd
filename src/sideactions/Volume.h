#pragma once

class Mixer;

// The master volume (the default sink), as the classic player panel reads and sets it. Each
// call asks the sound server afresh; nothing is held between calls.
namespace Volume {

// In per cent, 0 to 100: a sink amplified above its normal volume reads as 100, the top of
// the scale the callers show. -1 without a server or a default sink; a mixer library that
// can't be loaded throws, marked with the routine's name, as in SetVolume.
int GetVolume(Mixer& mixer);

// Every channel to Percent, clamped to 0..100 first; true when set, and nothing changed
// when false.
bool SetVolume(Mixer& mixer, int Percent);

} // namespace Volume
