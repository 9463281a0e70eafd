#pragma once

#include "platform/Mixer.h"

#include <QLibrary>

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
