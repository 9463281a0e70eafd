#pragma once

#include "taskcontract/RecParms.h"

#include <cstdio>

// The recording on disk: a RIFF WAVE of fmt, fact, LIST INFO (software, title, date) and
// data, or for an .MP3 output the bare MP3 stream. The header's sizes are brought up to date
// on request, so that a task that is killed leaves a file that plays up to that point.
class WaveFile {
public:
    ~WaveFile();

    // 0, or the task error code of the step that failed.
    int Create(const RecParms& parms, bool bareMp3);
    int Append(const void* bytes, size_t length);
    void AddFrames(quint32 frames) { m_frames += frames; }
    int UpdateHeader();
    // Puts another format of the same size into the format chunk: a kept broadcast's own,
    // known only once its first frame is there. A bare MP3 has no header to change.
    int RewriteFormat(const WaveFormatRecord& format);
    int Close();
    bool IsOpen() const { return m_file != nullptr; }
    quint64 DataBytes() const { return m_dataBytes; }

private:
    bool WriteChunkHeader(const char* id, quint32 size);
    bool WriteTextChunk(const char* id, const QString& text);
    bool Write(const void* bytes, size_t length);
    bool WriteAt(long offset, quint32 value);

    FILE* m_file = nullptr;
    bool m_bareMp3 = false;
    long m_formatAt = 0;
    quint32 m_formatSize = 0;
    long m_riffSizeAt = 0;
    long m_factAt = 0;
    long m_dataSizeAt = 0;
    long m_dataStart = 0;
    quint64 m_dataBytes = 0;
    quint32 m_frames = 0;
};
