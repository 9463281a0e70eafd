#include "recording/EncoderLibrary.h"

#include "common/ProgramFiles.h"

#include <QCoreApplication>

EncoderLibrary::EncoderLibrary()
    : m_folder(ProgramFiles::OfRunningProgram().LibraryFolder())
{
}

bool EncoderLibrary::Load()
{
    if (m_start && m_step && m_finish && m_cleanUp)
        return true;
    // Only this one file, never one of the same name elsewhere on the library path.
    m_library.setFileName(m_folder + QStringLiteral("/libnightreelenc.so"));
    if (!m_library.load()) {
        m_error = m_library.errorString();
        return false;
    }
    m_start = reinterpret_cast<NightreelEncStartEncodeMp3Fn>(m_library.resolve("StartEncodeMp3"));
    m_step =
        reinterpret_cast<NightreelEncEncodeNextBufferFn>(m_library.resolve("EncodeNextBuffer"));
    m_finish =
        reinterpret_cast<NightreelEncFinishEncodeMp3Fn>(m_library.resolve("FinishEncodeMp3"));
    m_cleanUp = reinterpret_cast<NightreelEncMp3ConvertErrorCleanUpFn>(
        m_library.resolve("Mp3ConvertErrorCleanUp"));
    if (m_start && m_step && m_finish && m_cleanUp)
        return true;
    m_error = tr("%1 lacks an entry point").arg(m_library.fileName());
    m_start = nullptr;
    return false;
}

int32_t EncoderLibrary::StartEncodeMp3(const char* source, const char* destination,
                                       const NightreelWaveFormat* sourceFormat,
                                       const NightreelWaveFormat* destinationFormat,
                                       int32_t asWaveFile)
{
    if (!Load())
        return LibraryMissing;
    return m_start(source, destination, sourceFormat, destinationFormat, asWaveFile);
}

int32_t EncoderLibrary::EncodeNextBuffer(int32_t* percent, int32_t* finished)
{
    return Load() ? m_step(percent, finished) : LibraryMissing;
}

int32_t EncoderLibrary::FinishEncodeMp3(const char* software, const char* date, const char* title)
{
    return Load() ? m_finish(software, date, title) : LibraryMissing;
}

int32_t EncoderLibrary::Mp3ConvertErrorCleanUp()
{
    return Load() ? m_cleanUp() : LibraryMissing;
}
