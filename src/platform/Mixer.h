#pragma once

#include <QLibrary>
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

// The mixer library, loaded by name from a folder (the program's library folder when none is
// given) at its first use, so that a program without it runs until a mixer is needed. A
// library that can't be loaded, or lacks an entry point, is a RuntimeError of the call.
class MixsetMixer : public Mixer {
public:
    explicit MixsetMixer(const QString& folder = QString());

    int LoadMixerFile(const QString& path) override;
    int SaveMixerFile(const QString& path) override;
    int GetVolume() override;
    bool SetVolume(int percent) override;

private:
    void Resolve();

    QString m_folder;
    QLibrary m_library;
    int (*m_load)(const char*) = nullptr;
    int (*m_save)(const char*) = nullptr;
    int (*m_getMaster)() = nullptr;
    int (*m_setMaster)(int) = nullptr;
};
