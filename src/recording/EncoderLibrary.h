#pragma once

#include "nightreelenc.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QString>

// The MP3 encoder library (libnightreelenc.so), loaded at run time from the program's private
// library folder (ProgramFiles) and called through the four entry points its header describes.
// Loading happens on the first use; a library that is missing or lacks an entry point answers every
// call with LibraryMissing, which the caller treats like any other failure code.
class EncoderLibrary {
public:
    // Apart from the library's own codes (2001 to 2007).
    static constexpr int32_t LibraryMissing = 2000;

    EncoderLibrary();
    EncoderLibrary(const EncoderLibrary&) = delete;
    EncoderLibrary& operator=(const EncoderLibrary&) = delete;

    // Where the library is looked for; the program's library folder unless a test or a benchmark
    // points at the build's. Takes effect before the first load.
    void SetFolder(const QString& folder) { m_folder = folder; }
    QString Folder() const { return m_folder; }

    // True once the library and all four entry points are there; ErrorString says why not.
    bool Load();
    QString ErrorString() const { return m_error; }

    // The entry points with the library's own types, so that a caller can pass exactly what
    // the contract allows (null texts included).
    int32_t StartEncodeMp3(const char* source, const char* destination,
                           const NightreelWaveFormat* sourceFormat,
                           const NightreelWaveFormat* destinationFormat, int32_t asWaveFile);
    int32_t EncodeNextBuffer(int32_t* percent, int32_t* finished);
    int32_t FinishEncodeMp3(const char* software, const char* date, const char* title);
    int32_t Mp3ConvertErrorCleanUp();

private:
    QString m_folder;
    QString m_error;
    QLibrary m_library;
    NightreelEncStartEncodeMp3Fn m_start = nullptr;
    NightreelEncEncodeNextBufferFn m_step = nullptr;
    NightreelEncFinishEncodeMp3Fn m_finish = nullptr;
    NightreelEncMp3ConvertErrorCleanUpFn m_cleanUp = nullptr;

    Q_DECLARE_TR_FUNCTIONS(EncoderLibrary)
};
