#pragma once

#include <QString>

// The sound server's mixer as the system uses it: the whole mixer saved to a profile file
// and put back, and the master volume. The profile calls return the mixer library's error
// numbers, 0 for success, which the system only reports.
class Mixer {
public:
    virtual ~Mixer() = default;
    // Sets the mixer from the profile file at path.
    virtual int LoadMixerFile(const QString& path) = 0;
    // Writes the present mixer to the profile file at path, creating or replacing it.
    virtual int SaveMixerFile(const QString& path) = 0;
    // The default sink's first channel in per cent of the normal volume, above 100 when the
    // sink is amplified; -1 without a server or a default sink.
    virtual int GetVolume() = 0;
    // Every channel of the default sink to percent (clamped to 0..100); false when nothing
    // was set.
    virtual bool SetVolume(int percent) = 0;
};
