// The MP3 encoder library: one conversion at a time from the task's PCM wave file to an MP3
// file or a wave file holding MP3 data, in steps of about 20 ms. See nightreelenc.h for the
// contract; this file holds no Qt.
#include "nightreelenc.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <lame/lame.h>
#include <new>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

// Room left at the front of a wave result for its header while the frames are written,
// when the source does not tell the texts. Any size works (the frames are moved behind the
// real header at the end); this one holds the header of usual texts.
constexpr uint64_t WaveHeaderRoom = 1024;
// The source is read in blocks of this size.
constexpr size_t ReadBlockBytes = 64 * 1024;
// Frames are moved in blocks of this size when a wave result is completed.
constexpr size_t MoveBlockBytes = 1024 * 1024;

enum class Phase { Idle, Encoding, SourceDone, Failed };

struct Conversion {
    Phase phase = Phase::Idle;
    int source = -1;
    int destination = -1;
    lame_global_flags* lame = nullptr;

    // The source: the data chunk, in whole sample frames.
    uint16_t channels = 0;
    uint16_t bitsPerSample = 0;
    uint16_t blockAlign = 0;
    uint32_t inRate = 0;
    uint64_t dataStart = 0;
    uint64_t totalFrames = 0;
    uint64_t framesRead = 0;
    std::vector<unsigned char> readBuffer;
    size_t readPos = 0;
    size_t readLength = 0;
    uint64_t readOffset = 0; // file offset of the next block

    // The destination.
    bool asWave = false;
    uint32_t outRate = 0;
    std::vector<unsigned char> record; // 18 + cbSize bytes
    int frameSamples = 1152;
    uint64_t outStart = 0; // where the frames start in the file while encoding
    // The source's ISFT and INAM chunks (header and padded text) in bytes, 0 when absent:
    // the same texts come to FinishEncodeMp3, so the header's size is known from the start.
    uint64_t softwareChunk = 0;
    uint64_t titleChunk = 0;
    uint64_t outBytes = 0; // frame bytes written

    std::vector<short> pcm;
    std::vector<unsigned char> mp3;
};

Conversion g;

uint16_t Le16(const unsigned char* p)
{
    return uint16_t(p[0] | p[1] << 8);
}

uint32_t Le32(const unsigned char* p)
{
    return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

void PutLe32(std::string& out, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        out += char((value >> (8 * i)) & 0xff);
}

// Reads exactly length bytes at offset unless the file ends first; the count read, -1 on
// an I/O error.
ssize_t ReadAt(int fd, void* data, size_t length, uint64_t offset)
{
    size_t done = 0;
    while (done < length) {
        const ssize_t got =
            pread(fd, static_cast<char*>(data) + done, length - done, off_t(offset + done));
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return -1;
        }
        if (got == 0)
            break;
        done += size_t(got);
    }
    return ssize_t(done);
}

bool WriteAt(int fd, const void* data, size_t length, uint64_t offset)
{
    size_t done = 0;
    while (done < length) {
        const ssize_t put =
            pwrite(fd, static_cast<const char*>(data) + done, length - done, off_t(offset + done));
        if (put < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (put == 0)
            return false;
        done += size_t(put);
    }
    return true;
}

void CloseFd(int& fd)
{
    if (fd >= 0)
        close(fd);
    fd = -1;
}

void Release()
{
    CloseFd(g.source);
    CloseFd(g.destination);
    if (g.lame)
        lame_close(g.lame);
    g = Conversion();
}

int32_t Fail(int32_t code)
{
    g.phase = Phase::Failed;
    return code;
}

// MPEG audio's bit rates: MPEG 1 (32 kHz and up) and MPEG 2 and 2.5 (below).
bool ValidBitRate(uint32_t rate, uint32_t kbps)
{
    static const uint32_t mpeg1[] = {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    static const uint32_t mpeg2[] = {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
    if (rate >= 32000)
        return std::find(std::begin(mpeg1), std::end(mpeg1), kbps) != std::end(mpeg1);
    return std::find(std::begin(mpeg2), std::end(mpeg2), kbps) != std::end(mpeg2);
}

bool ValidMp3Rate(uint32_t rate)
{
    static const uint32_t rates[] = {8000, 11025, 12000, 16000, 22050, 24000, 32000, 44100, 48000};
    return std::find(std::begin(rates), std::end(rates), rate) != std::end(rates);
}

bool ValidPcm(const NightreelWaveFormat& f)
{
    return f.wFormatTag == NIGHTREELENC_WAVE_FORMAT_PCM && (f.nChannels == 1 || f.nChannels == 2) &&
           (f.nBitsPerSample == 8 || f.nBitsPerSample == 16) && f.nSamplesPerSec > 0 &&
           f.nBlockAlign == f.nChannels * f.nBitsPerSample / 8;
}

bool ValidMp3(const NightreelWaveFormat& f)
{
    return f.wFormatTag == NIGHTREELENC_WAVE_FORMAT_MPEGLAYER3 &&
           (f.nChannels == 1 || f.nChannels == 2) && ValidMp3Rate(f.nSamplesPerSec) &&
           uint64_t(f.nAvgBytesPerSec) * 8 % 1000 == 0 &&
           ValidBitRate(f.nSamplesPerSec, f.nAvgBytesPerSec * 8 / 1000) &&
           f.cbSize <= NIGHTREELENC_MAX_EXTRA_BYTES;
}

// The ISFT and INAM chunks of the source's LIST INFO chunk at `pos`, by their sizes.
void ReadInfoSizes(uint64_t pos, uint32_t size)
{
    unsigned char type[4];
    if (ReadAt(g.source, type, sizeof type, pos + 8) != 4 || std::memcmp(type, "INFO", 4) != 0)
        return;
    const uint64_t end = pos + 8 + size;
    for (uint64_t at = pos + 12; at + 8 <= end;) {
        unsigned char chunk[8];
        if (ReadAt(g.source, chunk, sizeof chunk, at) != 8)
            return;
        const uint32_t textSize = Le32(chunk + 4);
        const uint64_t whole = 8 + uint64_t(textSize) + (textSize & 1);
        if (std::memcmp(chunk, "ISFT", 4) == 0)
            g.softwareChunk = whole;
        else if (std::memcmp(chunk, "INAM", 4) == 0)
            g.titleChunk = whole;
        at += whole;
    }
}

// Where the frames of a wave result start: behind the header that the source's texts
// give, so that finishing moves nothing; behind a fixed room when the source has none.
uint64_t WaveFramesStart()
{
    if (g.softwareChunk == 0 || g.titleChunk == 0)
        return WaveHeaderRoom;
    const uint64_t record = g.record.size() + (g.record.size() & 1);
    // RIFF form, ISFT, INAM, fmt, fact with its count, and the data chunk's header.
    return 12 + g.softwareChunk + g.titleChunk + 8 + record + 12 + 8;
}

// Walks the source's chunks from the form on: `fmt ` must agree with the record, `data`
// gives the data, the smaller of its header's size and what the file holds.
int32_t OpenSourceData(const NightreelWaveFormat& expected)
{
    struct stat st = {};
    if (fstat(g.source, &st) != 0)
        return NIGHTREELENC_ERR_READ;
    const uint64_t fileSize = uint64_t(st.st_size);
    unsigned char head[12];
    const ssize_t got = ReadAt(g.source, head, sizeof head, 0);
    if (got < 0)
        return NIGHTREELENC_ERR_READ;
    if (got < 12 || std::memcmp(head, "RIFF", 4) != 0 || std::memcmp(head + 8, "WAVE", 4) != 0)
        return NIGHTREELENC_ERR_BAD_FORMAT;

    bool fmtSeen = false;
    uint64_t pos = 12;
    while (pos + 8 <= fileSize) {
        unsigned char chunk[8];
        const ssize_t n = ReadAt(g.source, chunk, sizeof chunk, pos);
        if (n < 0)
            return NIGHTREELENC_ERR_READ;
        if (n < 8)
            break;
        const uint32_t size = Le32(chunk + 4);
        if (std::memcmp(chunk, "fmt ", 4) == 0) {
            unsigned char fmt[16];
            if (size < sizeof fmt)
                return NIGHTREELENC_ERR_BAD_FORMAT;
            const ssize_t f = ReadAt(g.source, fmt, sizeof fmt, pos + 8);
            if (f < 0)
                return NIGHTREELENC_ERR_READ;
            if (f < ssize_t(sizeof fmt))
                return NIGHTREELENC_ERR_BAD_FORMAT;
            if (Le16(fmt) != expected.wFormatTag || Le16(fmt + 2) != expected.nChannels ||
                Le32(fmt + 4) != expected.nSamplesPerSec ||
                Le16(fmt + 12) != expected.nBlockAlign || Le16(fmt + 14) != expected.nBitsPerSample)
                return NIGHTREELENC_ERR_BAD_FORMAT;
            fmtSeen = true;
        } else if (std::memcmp(chunk, "LIST", 4) == 0) {
            ReadInfoSizes(pos, size);
        } else if (std::memcmp(chunk, "data", 4) == 0) {
            if (!fmtSeen)
                return NIGHTREELENC_ERR_BAD_FORMAT;
            g.dataStart = pos + 8;
            const uint64_t held = fileSize - g.dataStart;
            g.totalFrames = std::min<uint64_t>(size, held) / expected.nBlockAlign;
            return NIGHTREELENC_OK;
        }
        pos += 8 + uint64_t(size) + (size & 1);
    }
    return NIGHTREELENC_ERR_BAD_FORMAT;
}

int32_t SetUpEncoder(const NightreelWaveFormat& in, const NightreelWaveFormat& out)
{
    g.lame = lame_init();
    if (!g.lame)
        return NIGHTREELENC_ERR_ENCODER;
    const int kbps = int(out.nAvgBytesPerSec * 8 / 1000);
    lame_set_num_channels(g.lame, in.nChannels);
    lame_set_in_samplerate(g.lame, int(in.nSamplesPerSec));
    lame_set_out_samplerate(g.lame, int(out.nSamplesPerSec));
    lame_set_brate(g.lame, kbps);
    lame_set_VBR(g.lame, vbr_off);
    lame_set_mode(g.lame, out.nChannels == 1 ? MONO : JOINT_STEREO);
    lame_set_quality(g.lame, NIGHTREELENC_LAME_QUALITY);
    // No Xing/Info frame: it would mislead the readers. No tags of lame's own: the scheduler
    // writes the ID3v1 tag into the room left at the end.
    lame_set_bWriteVbrTag(g.lame, 0);
    lame_set_write_id3tag_automatic(g.lame, 0);
    if (lame_init_params(g.lame) < 0 || lame_get_brate(g.lame) != kbps ||
        lame_get_out_samplerate(g.lame) != int(out.nSamplesPerSec))
        return NIGHTREELENC_ERR_ENCODER;
    g.frameSamples = lame_get_framesize(g.lame);
    if (g.frameSamples <= 0)
        return NIGHTREELENC_ERR_ENCODER;
    return NIGHTREELENC_OK;
}

int32_t Start(const char* source, const char* destination, const NightreelWaveFormat* in,
              const NightreelWaveFormat* out, int32_t asWaveFile)
{
    if (g.phase != Phase::Idle)
        return NIGHTREELENC_ERR_OUT_OF_ORDER;
    if (!in || !out || !ValidPcm(*in) || !ValidMp3(*out))
        return NIGHTREELENC_ERR_BAD_FORMAT;
    if (!source)
        return NIGHTREELENC_ERR_OPEN_SOURCE;
    if (!destination)
        return NIGHTREELENC_ERR_CREATE_DESTINATION;

    g.channels = in->nChannels;
    g.bitsPerSample = in->nBitsPerSample;
    g.blockAlign = in->nBlockAlign;
    g.inRate = in->nSamplesPerSec;
    g.outRate = out->nSamplesPerSec;
    g.asWave = asWaveFile != 0;
    const auto* recordBytes = reinterpret_cast<const unsigned char*>(out);
    g.record.assign(recordBytes, recordBytes + sizeof(NightreelWaveFormat) + out->cbSize);

    g.source = open(source, O_RDONLY | O_CLOEXEC);
    if (g.source < 0)
        return NIGHTREELENC_ERR_OPEN_SOURCE;
    if (const int32_t code = OpenSourceData(*in))
        return code;
    g.readOffset = g.dataStart;
    g.readBuffer.resize(ReadBlockBytes);

    if (const int32_t code = SetUpEncoder(*in, *out))
        return code;

    // Emptying the destination must not destroy the source.
    struct stat sourceStat = {};
    struct stat destinationStat = {};
    if (stat(destination, &destinationStat) == 0 && fstat(g.source, &sourceStat) == 0 &&
        sourceStat.st_dev == destinationStat.st_dev && sourceStat.st_ino == destinationStat.st_ino)
        return NIGHTREELENC_ERR_CREATE_DESTINATION;
    g.destination = open(destination, O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (g.destination < 0)
        return NIGHTREELENC_ERR_CREATE_DESTINATION;
    g.outStart = g.asWave ? WaveFramesStart() : 0;
    g.pcm.resize(size_t(g.frameSamples) * g.channels);
    g.phase = Phase::Encoding;
    return NIGHTREELENC_OK;
}

// Makes at least `need` bytes of the source's data available in the read buffer unless the
// data ends first; false on an I/O error.
bool Fill(size_t need)
{
    if (g.readLength - g.readPos >= need)
        return true;
    std::memmove(g.readBuffer.data(), g.readBuffer.data() + g.readPos, g.readLength - g.readPos);
    g.readLength -= g.readPos;
    g.readPos = 0;
    const uint64_t dataEnd = g.dataStart + g.totalFrames * g.blockAlign;
    const size_t room = g.readBuffer.size() - g.readLength;
    const size_t want = size_t(std::min<uint64_t>(room, dataEnd - g.readOffset));
    if (want == 0)
        return true;
    const ssize_t got = ReadAt(g.source, g.readBuffer.data() + g.readLength, want, g.readOffset);
    if (got < 0)
        return false;
    g.readLength += size_t(got);
    g.readOffset += uint64_t(got);
    if (size_t(got) < want) {
        // The file got shorter since the start: what it holds now is all there is.
        const uint64_t available = (g.readOffset - g.dataStart) / g.blockAlign;
        g.totalFrames = std::min(g.totalFrames, available);
    }
    return true;
}

// Room in g.mp3 for one more call of lame, as lame asks: 1.25 * samples + 7200.
unsigned char* Mp3Room(size_t samples, int& capacity)
{
    const size_t room = samples * 5 / 4 + 7200;
    const size_t used = g.mp3.size();
    g.mp3.resize(used + room);
    capacity = int(room);
    return g.mp3.data() + used;
}

void Mp3Used(int capacity, int produced)
{
    g.mp3.resize(g.mp3.size() - size_t(capacity) + size_t(produced));
}

bool WriteMp3()
{
    if (g.mp3.empty())
        return true;
    if (!WriteAt(g.destination, g.mp3.data(), g.mp3.size(), g.outStart + g.outBytes))
        return false;
    g.outBytes += g.mp3.size();
    g.mp3.clear();
    return true;
}

int32_t Step(int32_t* percent, int32_t* finished)
{
    if (g.phase != Phase::Encoding)
        return NIGHTREELENC_ERR_OUT_OF_ORDER;
    const auto deadline = Clock::now() + std::chrono::milliseconds(NIGHTREELENC_STEP_MILLISECONDS);
    g.mp3.clear();
    while (g.framesRead < g.totalFrames) {
        const size_t frames =
            size_t(std::min<uint64_t>(g.frameSamples, g.totalFrames - g.framesRead));
        if (!Fill(frames * g.blockAlign))
            return Fail(NIGHTREELENC_ERR_READ);
        const size_t have = std::min(frames, (g.readLength - g.readPos) / g.blockAlign);
        if (have == 0)
            break; // the file was cut short; totalFrames has been lowered by Fill
        const unsigned char* bytes = g.readBuffer.data() + g.readPos;
        const size_t samples = have * g.channels;
        if (g.bitsPerSample == 16) {
            if constexpr (std::endian::native == std::endian::little) {
                std::memcpy(g.pcm.data(), bytes, samples * 2);
            } else {
                for (size_t i = 0; i < samples; ++i)
                    g.pcm[i] = short(Le16(bytes + 2 * i));
            }
        } else {
            for (size_t i = 0; i < samples; ++i)
                g.pcm[i] = short((int(bytes[i]) - 128) * 256);
        }
        g.readPos += have * g.blockAlign;
        g.framesRead += have;

        int capacity = 0;
        unsigned char* room = Mp3Room(have, capacity);
        const int produced =
            g.channels == 2
                ? lame_encode_buffer_interleaved(g.lame, g.pcm.data(), int(have), room, capacity)
                : lame_encode_buffer(g.lame, g.pcm.data(), g.pcm.data(), int(have), room, capacity);
        if (produced < 0)
            return Fail(NIGHTREELENC_ERR_ENCODER);
        Mp3Used(capacity, produced);
        if (Clock::now() >= deadline)
            break;
    }
    if (!WriteMp3())
        return Fail(NIGHTREELENC_ERR_WRITE);

    const uint64_t total = g.totalFrames * g.blockAlign;
    const uint64_t done = g.framesRead * g.blockAlign;
    if (percent)
        *percent = total == 0 ? 100 : int32_t(std::min<uint64_t>(100, done * 100 / total));
    if (g.framesRead >= g.totalFrames) {
        if (finished)
            *finished = 1;
        g.phase = Phase::SourceDone;
    }
    return NIGHTREELENC_OK;
}

// A text as it arrived, less the one blank that the caller added.
std::string Text(const char* text)
{
    std::string s = text ? text : "";
    if (!s.empty() && s.back() == ' ')
        s.pop_back();
    return s;
}

void PutTextChunk(std::string& out, const char* id, const std::string& text)
{
    const uint32_t size = uint32_t(text.size() + 1);
    out.append(id, 4);
    PutLe32(out, size);
    out += text;
    out += '\0';
    if (size & 1)
        out += '\0';
}

// Moves `length` bytes of the destination from `from` to `to`, in place.
bool Move(uint64_t from, uint64_t to, uint64_t length)
{
    if (from == to || length == 0)
        return true;
    std::vector<unsigned char> block(size_t(std::min<uint64_t>(MoveBlockBytes, length)));
    if (to < from) {
        for (uint64_t done = 0; done < length;) {
            const size_t n = size_t(std::min<uint64_t>(block.size(), length - done));
            if (ReadAt(g.destination, block.data(), n, from + done) != ssize_t(n) ||
                !WriteAt(g.destination, block.data(), n, to + done))
                return false;
            done += n;
        }
    } else {
        for (uint64_t left = length; left > 0;) {
            const size_t n = size_t(std::min<uint64_t>(block.size(), left));
            left -= n;
            if (ReadAt(g.destination, block.data(), n, from + left) != ssize_t(n) ||
                !WriteAt(g.destination, block.data(), n, to + left))
                return false;
        }
    }
    return true;
}

// The wave result: header chunks, then the frames moved to just behind them.
bool CompleteWave(const std::string& software, const std::string& title)
{
    // fact counts sample frames at the format's rate, which is the source's unless lame
    // resampled.
    uint64_t frames = g.framesRead;
    if (g.inRate != g.outRate)
        frames = (g.framesRead * g.outRate + g.inRate / 2) / g.inRate;
    const uint64_t dataBytes = g.outBytes;

    std::string header;
    header += "RIFF";
    PutLe32(header, 0); // filled below
    header += "WAVE";
    PutTextChunk(header, "ISFT", software);
    PutTextChunk(header, "INAM", title);
    header += "fmt ";
    PutLe32(header, uint32_t(g.record.size()));
    header.append(reinterpret_cast<const char*>(g.record.data()), g.record.size());
    if (g.record.size() & 1)
        header += '\0';
    header += "fact";
    PutLe32(header, 4);
    PutLe32(header, uint32_t(std::min<uint64_t>(frames, UINT32_MAX)));
    header += "data";
    PutLe32(header, uint32_t(std::min<uint64_t>(dataBytes, UINT32_MAX)));
    const uint64_t riff = header.size() - 8 + dataBytes + (dataBytes & 1);
    const uint32_t riffSize = uint32_t(std::min<uint64_t>(riff, UINT32_MAX));
    for (int i = 0; i < 4; ++i)
        header[4 + i] = char((riffSize >> (8 * i)) & 0xff);

    const uint64_t dataStart = header.size();
    if (!Move(g.outStart, dataStart, dataBytes))
        return false;
    if (!WriteAt(g.destination, header.data(), header.size(), 0))
        return false;
    uint64_t end = dataStart + dataBytes;
    if (dataBytes & 1) {
        if (!WriteAt(g.destination, "", 1, end))
            return false;
        ++end;
    }
    // The frames moved towards the front leave their old tail behind.
    if (dataStart < g.outStart && ftruncate(g.destination, off_t(end)) != 0)
        return false;
    return true;
}

int32_t Finish(const char* software, const char* /*date*/, const char* title)
{
    if (g.phase != Phase::Encoding && g.phase != Phase::SourceDone)
        return NIGHTREELENC_ERR_OUT_OF_ORDER;
    g.mp3.clear();
    int capacity = 0;
    unsigned char* room = Mp3Room(size_t(g.frameSamples) * 2, capacity);
    const int produced = lame_encode_flush(g.lame, room, capacity);
    if (produced < 0)
        return Fail(NIGHTREELENC_ERR_ENCODER);
    Mp3Used(capacity, produced);
    if (!WriteMp3())
        return Fail(NIGHTREELENC_ERR_WRITE);

    if (g.asWave) {
        if (!CompleteWave(Text(software), Text(title)))
            return Fail(NIGHTREELENC_ERR_WRITE);
    } else {
        const unsigned char tag[NIGHTREELENC_TAG_BYTES] = {};
        if (!WriteAt(g.destination, tag, sizeof tag, g.outBytes))
            return Fail(NIGHTREELENC_ERR_WRITE);
    }
    const int closed = close(g.destination);
    g.destination = -1;
    if (closed != 0)
        return Fail(NIGHTREELENC_ERR_WRITE);
    Release();
    return NIGHTREELENC_OK;
}

} // namespace

extern "C" {

NIGHTREELENC_API int32_t StartEncodeMp3(const char* source, const char* destination,
                                        const NightreelWaveFormat* sourceFormat,
                                        const NightreelWaveFormat* destinationFormat,
                                        int32_t asWaveFile)
{
    if (g.phase != Phase::Idle)
        return NIGHTREELENC_ERR_OUT_OF_ORDER;
    int32_t code;
    try {
        code = Start(source, destination, sourceFormat, destinationFormat, asWaveFile);
    } catch (...) {
        code = NIGHTREELENC_ERR_ENCODER;
    }
    // A failed start leaves nothing open.
    if (code != NIGHTREELENC_OK)
        Release();
    return code;
}

NIGHTREELENC_API int32_t EncodeNextBuffer(int32_t* percent, int32_t* finished)
{
    try {
        return Step(percent, finished);
    } catch (...) {
        return Fail(NIGHTREELENC_ERR_ENCODER);
    }
}

NIGHTREELENC_API int32_t FinishEncodeMp3(const char* software, const char* date, const char* title)
{
    try {
        return Finish(software, date, title);
    } catch (...) {
        return Fail(NIGHTREELENC_ERR_ENCODER);
    }
}

NIGHTREELENC_API int32_t Mp3ConvertErrorCleanUp(void)
{
    Release();
    return NIGHTREELENC_OK;
}

} // extern "C"
