#include "WaveFile.h"

#include "taskcontract/TaskErrors.h"

#include <QtEndian>
#include <unistd.h>

WaveFile::~WaveFile()
{
    if (m_file)
        std::fclose(m_file);
}

bool WaveFile::Write(const void* bytes, size_t length)
{
    return std::fwrite(bytes, 1, length, m_file) == length;
}

bool WaveFile::WriteChunkHeader(const char* id, quint32 size)
{
    char header[8];
    std::memcpy(header, id, 4);
    qToLittleEndian<quint32>(size, header + 4);
    return Write(header, sizeof header);
}

bool WaveFile::WriteTextChunk(const char* id, const QString& text)
{
    // The size counts the terminating byte; an odd size is followed by a pad byte.
    QByteArray bytes = text.toLocal8Bit();
    bytes.append('\0');
    const quint32 size = quint32(bytes.size());
    if (size % 2)
        bytes.append('\0');
    return WriteChunkHeader(id, size) && Write(bytes.constData(), size_t(bytes.size()));
}

bool WaveFile::WriteAt(long offset, quint32 value)
{
    char bytes[4];
    qToLittleEndian<quint32>(value, bytes);
    return std::fseek(m_file, offset, SEEK_SET) == 0 && Write(bytes, 4);
}

int WaveFile::Create(const RecParms& parms, bool bareMp3)
{
    m_bareMp3 = bareMp3;
    m_file = std::fopen(parms.outputPath.toLocal8Bit().constData(), "wb");
    if (!m_file)
        return TaskError::CreateFileFailed;
    // Every write goes to disk at once; a buffer would only add a copy and a second write.
    std::setvbuf(m_file, nullptr, _IONBF, 0);
    if (bareMp3)
        return 0;

    if (!WriteChunkHeader("RIFF", 0) || !Write("WAVE", 4))
        return TaskError::RiffChunkFailed;
    m_riffSizeAt = 4;

    QByteArray format = parms.format.Encode();
    const quint32 formatSize = quint32(format.size());
    if (formatSize % 2)
        format.append('\0');
    if (!WriteChunkHeader("fmt ", formatSize))
        return TaskError::FormatChunkFailed;
    m_formatAt = std::ftell(m_file);
    m_formatSize = formatSize;
    if (!Write(format.constData(), size_t(format.size())))
        return TaskError::FormatDataFailed;

    if (!WriteChunkHeader("fact", 4))
        return TaskError::FactChunkFailed;
    m_factAt = std::ftell(m_file);
    if (!Write("\0\0\0\0", 4))
        return TaskError::FactDataFailed;

    const auto textSize = [](const QString& text) {
        const quint32 size = quint32(text.toLocal8Bit().size() + 1);
        return 8 + size + size % 2;
    };
    const quint32 listSize =
        4 + textSize(parms.softwareName) + textSize(parms.description) + textSize(parms.startText);
    if (!WriteChunkHeader("LIST", listSize) || !Write("INFO", 4))
        return TaskError::ListChunkFailed;
    if (!WriteTextChunk("ISFT", parms.softwareName))
        return TaskError::SoftwareTextFailed;
    if (!WriteTextChunk("INAM", parms.description))
        return TaskError::SubjectNameTextFailed;
    if (!WriteTextChunk("ICRD", parms.startText))
        return TaskError::SubjectDateTextFailed;

    if (!WriteChunkHeader("data", 0))
        return TaskError::DataChunkFailed;
    m_dataStart = std::ftell(m_file);
    m_dataSizeAt = m_dataStart - 4;
    return UpdateHeader() == 0 ? 0 : TaskError::DataChunkFailed;
}

int WaveFile::Append(const void* bytes, size_t length)
{
    // Unbuffered, so what was captured is on disk within a fragment. A write cut short
    // (a full disk) is taken back, so that the file ends where its header says.
    if (!Write(bytes, length)) {
        if (ftruncate(fileno(m_file), off_t(m_dataStart + m_dataBytes)) == 0)
            std::fseek(m_file, 0, SEEK_END);
        return TaskError::WriteFailed;
    }
    m_dataBytes += length;
    return 0;
}

int WaveFile::UpdateHeader()
{
    if (m_bareMp3)
        return std::fflush(m_file) == 0 ? 0 : TaskError::FlushFailed;
    const quint32 dataSize = quint32(m_dataBytes);
    const quint32 riffSize = quint32(m_dataStart - 8) + dataSize + dataSize % 2;
    const bool ok = WriteAt(m_riffSizeAt, riffSize) && WriteAt(m_factAt, m_frames) &&
                    WriteAt(m_dataSizeAt, dataSize) && std::fseek(m_file, 0, SEEK_END) == 0 &&
                    std::fflush(m_file) == 0;
    return ok ? 0 : TaskError::FlushFailed;
}

int WaveFile::RewriteFormat(const WaveFormatRecord& format)
{
    const QByteArray bytes = format.Encode();
    if (m_bareMp3 || !m_file || quint32(bytes.size()) != m_formatSize)
        return 0;
    const bool ok = std::fseek(m_file, m_formatAt, SEEK_SET) == 0 &&
                    Write(bytes.constData(), size_t(bytes.size())) &&
                    std::fseek(m_file, 0, SEEK_END) == 0;
    return ok ? 0 : TaskError::FormatDataFailed;
}

int WaveFile::Close()
{
    if (!m_file)
        return 0;
    int code = 0;
    if (m_bareMp3) {
        // Room for the tag that the scheduler writes over the last 128 bytes afterwards.
        char tag[128] = {'T', 'A', 'G'};
        tag[127] = char(255);
        if (!Write(tag, sizeof tag))
            code = TaskError::CloseFileFailed;
    } else {
        if (m_dataBytes % 2 && !Write("\0", 1))
            code = TaskError::CloseFileFailed;
        if (UpdateHeader() != 0)
            code = TaskError::CloseFileFailed;
    }
    if (std::fclose(m_file) != 0)
        code = TaskError::CloseFileFailed;
    m_file = nullptr;
    return code;
}
