#include "platform/MixsetMixer.h"

#include "common/ProgramFiles.h"
#include "common/RuntimeError.h"

#include <QFile>

namespace {

// The run time's number for a library that can't be loaded or called.
constexpr int ErrorLoadingLibrary = 48;

template <typename Function> Function EntryPoint(QLibrary& library, const char* name)
{
    auto function = reinterpret_cast<Function>(library.resolve(name));
    if (!function)
        throw RuntimeError(ErrorLoadingLibrary,
                           QStringLiteral("Error in loading library: ") + library.errorString());
    return function;
}

} // namespace

MixsetMixer::MixsetMixer(const QString& folder)
    : m_folder(folder)
{
}

void MixsetMixer::Resolve()
{
    if (m_load)
        return;
    // Never the system's search path: the library of this very build is the one that
    // matches the profiles it wrote.
    const QString folder =
        m_folder.isEmpty() ? ProgramFiles::OfRunningProgram().LibraryFolder() : m_folder;
    m_library.setFileName(folder + QStringLiteral("/mixset"));
    if (!m_library.load())
        throw RuntimeError(ErrorLoadingLibrary,
                           QStringLiteral("Error in loading library: ") + m_library.errorString());
    m_save = EntryPoint<int (*)(const char*)>(m_library, "SaveMixerFile");
    m_getMaster = EntryPoint<int (*)()>(m_library, "GetMasterVolume");
    m_setMaster = EntryPoint<int (*)(int)>(m_library, "SetMasterVolume");
    // Last: it marks the library as resolved.
    m_load = EntryPoint<int (*)(const char*)>(m_library, "LoadMixerFile");
}

int MixsetMixer::LoadMixerFile(const QString& path)
{
    Resolve();
    return m_load(QFile::encodeName(path).constData());
}

int MixsetMixer::SaveMixerFile(const QString& path)
{
    Resolve();
    return m_save(QFile::encodeName(path).constData());
}

int MixsetMixer::GetVolume()
{
    Resolve();
    return m_getMaster();
}

bool MixsetMixer::SetVolume(int percent)
{
    Resolve();
    return m_setMaster(percent) != 0;
}
