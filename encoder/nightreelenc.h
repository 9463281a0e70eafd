/*
 * nightreelenc: the MP3 encoder library of Nightreel 2000, which the conversion queue loads.
 *
 * Turns the PCM file that the recording task captured (the `.WAV.TMP`) into an MP3 file or
 * into a RIFF WAVE file that holds MP3 data, in small steps that each return within about
 * 20 ms, so that the scheduler can drive it from a timer on its user-interface thread.
 * Built on libmp3lame; plain C linkage, no Qt. The scheduler loads it with QLibrary from its
 * private library folder (beside the program in a build) and resolves the four entry points by
 * name; the NightreelEnc*Fn types below are their exact signatures.
 *
 * The library keeps the state of ONE running conversion; it is not thread-safe and is meant
 * to be called from one thread. Every entry point returns a signed 32-bit code: 0 is success,
 * any other value is one of the NIGHTREELENC_ERR_* codes below.
 *
 * Order of calls:
 *
 *     StartEncodeMp3 ── 0 ──> EncodeNextBuffer (any number of times, also none)
 *                              ... until it sets *finished to 1 ...
 *                         ──> FinishEncodeMp3 ── 0 ──> (idle: a new StartEncodeMp3 may follow)
 *
 *   - After a non-zero result of EncodeNextBuffer or FinishEncodeMp3 the conversion is
 *     failed: its files and the encoder stay as they are until Mp3ConvertErrorCleanUp, and
 *     every other call returns NIGHTREELENC_ERR_OUT_OF_ORDER until then.
 *   - A non-zero result of StartEncodeMp3 leaves the library idle with nothing open and the
 *     destination not created (it is created last); Mp3ConvertErrorCleanUp afterwards is
 *     harmless.
 *   - Mp3ConvertErrorCleanUp may be called at any time: it closes both files without
 *     completing the destination, frees the encoder and makes the library idle. The caller
 *     deletes the files.
 *   - FinishEncodeMp3 is valid after any number of EncodeNextBuffer calls, also none: a
 *     conversion stopped early leaves a playable file holding what was encoded so far.
 *
 * Encoder settings: constant bit rate, bit rate and sample rate from the destination record
 * (nAvgBytesPerSec * 8 / 1000 kbit/s, nSamplesPerSec Hz; lame resamples when the source rate
 * differs), joint stereo for nChannels 2 and mono for nChannels 1 (lame mixes the source's
 * channels to fit), lame's algorithm quality NIGHTREELENC_LAME_QUALITY, set explicitly (3:
 * what libmp3lame 3.100 takes when none is set, and what its command line takes by default;
 * pass `-q 3` to `lame` all the same when comparing), no Xing/Info (VBR) frame, no ID3 tags
 * of lame's own. The same samples give the same frames as
 * `lame -b KBPS -q 3 -m j -t --noreplaygain` (`-m m` for mono).
 */
#ifndef NIGHTREELENC_H
#define NIGHTREELENC_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define NIGHTREELENC_API __attribute__((visibility("default")))

/* ---------------------------------------------------------------------------------------
 * Return codes. 0 is success; the rest are shown to the user only as numbers ("Error Code:
 * n" in the event log). They lie apart from the recording task's codes (1000 and up).
 * ------------------------------------------------------------------------------------- */
#define NIGHTREELENC_OK 0
/* StartEncodeMp3: the source file could not be opened for reading (missing, no access, a
 * null path). */
#define NIGHTREELENC_ERR_OPEN_SOURCE 2001
/* StartEncodeMp3: a format that can't be converted: the source record is not 8- or 16-bit
 * PCM of 1 or 2 channels with a matching nBlockAlign; the destination record is not MPEG
 * Layer-3 (wFormatTag 85) of 1 or 2 channels at a rate and bit rate that MPEG audio has, or
 * its cbSize exceeds NIGHTREELENC_MAX_EXTRA_BYTES; or the source file is not a RIFF WAVE with
 * a `fmt ` chunk before its `data` chunk, or its `fmt ` disagrees with the source record
 * (format tag, channels, rate, block align, bits). */
#define NIGHTREELENC_ERR_BAD_FORMAT 2002
/* StartEncodeMp3: the destination could not be created (no folder, no access, a null
 * path, or it is the source file itself). */
#define NIGHTREELENC_ERR_CREATE_DESTINATION 2003
/* StartEncodeMp3: lame refused to set up for the formats (or memory ran out);
 * EncodeNextBuffer, FinishEncodeMp3: lame failed while encoding or flushing. */
#define NIGHTREELENC_ERR_ENCODER 2004
/* EncodeNextBuffer, and StartEncodeMp3 while reading the source's chunk headers: reading
 * the source failed (an I/O error). A source that is shorter than its header says is not an
 * error: its real data is converted. */
#define NIGHTREELENC_ERR_READ 2005
/* EncodeNextBuffer, FinishEncodeMp3: writing or closing the destination failed, the disk
 * being full (ENOSPC) included. */
#define NIGHTREELENC_ERR_WRITE 2006
/* Any entry point called in the wrong state: EncodeNextBuffer or FinishEncodeMp3 with no
 * conversion started; StartEncodeMp3 while a conversion runs or a failed one has not been
 * cleaned up; EncodeNextBuffer after it has reported the source finished; anything but
 * Mp3ConvertErrorCleanUp after a failure. The running conversion is left as it was. */
#define NIGHTREELENC_ERR_OUT_OF_ORDER 2007

/* lame's quality setting used (0 best .. 9 fastest); see the top of this file. */
#define NIGHTREELENC_LAME_QUALITY 3
/* EncodeNextBuffer encodes whole frames until this much time has passed in the call. */
#define NIGHTREELENC_STEP_MILLISECONDS 20
/* Bytes left at the end of a plain MP3 result for the ID3v1 tag (see FinishEncodeMp3). */
#define NIGHTREELENC_TAG_BYTES 128
/* The most extra bytes after a destination record that are accepted (and copied). */
#define NIGHTREELENC_MAX_EXTRA_BYTES 256

/* Format tags. */
#define NIGHTREELENC_WAVE_FORMAT_PCM 1
#define NIGHTREELENC_WAVE_FORMAT_MPEGLAYER3 85

/* ---------------------------------------------------------------------------------------
 * The format record: WAVEFORMATEX, 18 bytes, packed, little-endian, as it lies in a wave
 * file's `fmt ` chunk and in `mwfx` of clsRecordingFormat; cbSize extra bytes follow it
 * directly in memory.
 * ------------------------------------------------------------------------------------- */
#pragma pack(push, 1)
typedef struct NightreelWaveFormat {
    /* offset 0: 1 PCM, 85 MPEG Layer-3 */
    uint16_t wFormatTag;
    /* 2: 1 mono, 2 stereo */
    uint16_t nChannels;
    /* 4: sample frames per second */
    uint32_t nSamplesPerSec;
    /* 8: PCM: nBlockAlign * nSamplesPerSec; MP3: bit rate / 8 (16000 for 128 kbit/s) */
    uint32_t nAvgBytesPerSec;
    /* 12: PCM: bytes of one sample frame, nChannels * nBitsPerSample / 8; MP3: 1 */
    uint16_t nBlockAlign;
    /* 14: PCM: 8 (unsigned samples) or 16 (signed); MP3: 0 */
    uint16_t nBitsPerSample;
    /* 16: count of the extra bytes that follow the record: PCM 0, MP3 12 */
    uint16_t cbSize;
} NightreelWaveFormat;

/* The MP3 form (MPEGLAYER3WAVEFORMAT): the record and its 12 extra bytes, 30 bytes in all,
 * as the codec catalogue (src/formats/CodecCatalogue.cpp, Mp3Record) writes them. The
 * library reads only the 18-byte record from it; the whole block (18 + cbSize bytes) is
 * copied unchanged into the `fmt ` chunk of a wave result. */
typedef struct NightreelMp3WaveFormat {
    /* 0: wFormatTag 85, nBlockAlign 1, nBitsPerSample 0, cbSize 12 */
    NightreelWaveFormat wfx;
    /* 18: 1, MPEGLAYER3_ID_MPEG */
    uint16_t wID;
    /* 20: 2, MPEGLAYER3_FLAG_PADDING_OFF. Copied, not obeyed: lame pads frames the ISO way,
     * as it must to keep 128 kbit/s at 44.1 kHz. */
    uint32_t fdwFlags;
    /* 24: bytes of one frame without padding: samples per frame (1152 at 32 kHz and up, 576
     * below) / 8 * bit rate / nSamplesPerSec, cut to an integer; 417 at 128 kbit/s, 44.1 kHz */
    uint16_t nBlockSize;
    /* 26: 1 */
    uint16_t nFramesPerBlock;
    /* 28: 1393 (samples) */
    uint16_t nCodecDelay;
} NightreelMp3WaveFormat;
#pragma pack(pop)

#ifdef __cplusplus
static_assert(sizeof(NightreelWaveFormat) == 18, "WAVEFORMATEX is 18 bytes");
static_assert(sizeof(NightreelMp3WaveFormat) == 30, "MPEGLAYER3WAVEFORMAT is 30 bytes");
#else
_Static_assert(sizeof(NightreelWaveFormat) == 18, "WAVEFORMATEX is 18 bytes");
_Static_assert(sizeof(NightreelMp3WaveFormat) == 30, "MPEGLAYER3WAVEFORMAT is 30 bytes");
#endif

/* ---------------------------------------------------------------------------------------
 * Entry points. Strings are 8-bit, NUL-terminated: paths in the file system's encoding
 * (QFile::encodeName), texts written into the file byte for byte (the project's wave reader
 * decodes them as UTF-8, like the recording task's texts).
 * ------------------------------------------------------------------------------------- */

/*
 * Opens the source, sets up the encoder and creates the destination; returns at once.
 *
 * source             path of the PCM file (SourceFile, `*.WAV.TMP`): a RIFF WAVE whose chunks
 *                    are walked (`fmt `, `fact`, LIST `INFO`... in any order, `fmt ` before
 *                    `data`). The data converted is the `data` chunk's size as its header
 *                    gives it or what the file really holds after the chunk's start,
 *                    whichever is smaller, in whole sample frames: the header of a task that
 *                    was killed may be stale. The RIFF size is not used.
 * destination        path of the result (DestinationFile); created, or emptied if it exists,
 *                    once the source and the encoder are ready.
 * sourceFormat       the source's record (mwfx of SourceFormat): 8- or 16-bit PCM, 1 or 2
 *                    channels; extra bytes are not read.
 * destinationFormat  the result's record with its extra bytes (mwfx of DestinationFormat,
 *                    normally a NightreelMp3WaveFormat); 18 + cbSize bytes are read.
 * asWaveFile         0: a plain MP3 file; any other value (1 when SaveMP3FileExtension is
 *                    False): a RIFF WAVE file holding the MP3 data (layout at
 *                    FinishEncodeMp3).
 *
 * Errors: OPEN_SOURCE, READ, BAD_FORMAT, ENCODER, CREATE_DESTINATION, OUT_OF_ORDER.
 */
NIGHTREELENC_API int32_t StartEncodeMp3(const char* source, const char* destination,
                                        const NightreelWaveFormat* sourceFormat,
                                        const NightreelWaveFormat* destinationFormat,
                                        int32_t asWaveFile);

/*
 * Encodes the next part of the source: whole MP3 frames' worth of samples (1152 sample
 * frames at 32 kHz and up, 576 below) one after the other until NIGHTREELENC_STEP_MILLISECONDS
 * have passed in this call or the source is used up, and writes what lame produced.
 *
 * percent   out: the share of the source's data bytes read so far, 0 to 100. May be null.
 * finished  in/out: the caller passes 0; set to exactly 1 by the call that uses up the
 *           source, and left alone by every other call. May be null. After that call the
 *           next is FinishEncodeMp3 (another EncodeNextBuffer returns OUT_OF_ORDER).
 *
 * Errors: READ, WRITE, ENCODER, OUT_OF_ORDER.
 */
NIGHTREELENC_API int32_t EncodeNextBuffer(int32_t* percent, int32_t* finished);

/*
 * Flushes the encoder, writes its last frames, completes the destination and closes both
 * files. Valid after any number of EncodeNextBuffer calls (also none, and before the source
 * is used up: the result then holds what was read so far).
 *
 * Each text arrives with one blank added at its end (SoftwareName + " ", ...); that one
 * blank, and no other character, is removed. A null text counts as empty.
 *
 * software  the software name, written to the `ISFT` chunk of a wave result.
 * date      the start as text; accepted and not written: the wave-wrapped layout that Part
 *           4.4 reads has no date chunk (its reader takes the times from the file's date and
 *           `fact`), and a plain MP3 gets its tag from the scheduler.
 * title     the description, written to the `INAM` chunk of a wave result.
 *
 * Plain MP3 result: the MP3 frames only (no Xing/Info frame, no ID3v2), then
 * NIGHTREELENC_TAG_BYTES zero bytes reserved for the ID3v1 tag that the scheduler's
 * WriteId3Tag writes over the last 128 bytes of the file.
 *
 * Wave result: RIFF form `WAVE` holding these direct chunks, in this order and nothing else:
 *   `ISFT`  the software text and a NUL (the size counts the NUL; the reader takes the data
 *           less its last byte), a pad byte when the size is odd;
 *   `INAM`  the title, likewise;
 *   `fmt `  the destination record with its extra bytes, 18 + cbSize bytes (+ pad);
 *   `fact`  4 bytes: the sample frames of the source that were encoded (counted at the
 *           destination's rate if lame resampled);
 *   `data`  the MP3 frames (+ a pad byte when odd).
 * The frames are written during the steps behind room left for the header (so the file is
 * no valid wave file before this call). The room is the header that the source's own `ISFT`
 * and `INAM` texts (in its LIST `INFO` chunk, as the recording task writes them) give: when
 * the texts passed here are as long, the frames are already in place and finishing writes
 * only the header, however long the recording. Otherwise (other texts, a source without
 * them) the frames are moved once to just behind the header: one read and write of the MP3
 * data, in place.
 *
 * Errors: WRITE, ENCODER, OUT_OF_ORDER.
 */
NIGHTREELENC_API int32_t FinishEncodeMp3(const char* software, const char* date, const char* title);

/*
 * Closes whatever is open, frees the encoder and makes the library idle, in any state. The
 * files are not deleted (the caller does that). Always returns 0; the result is not used.
 */
NIGHTREELENC_API int32_t Mp3ConvertErrorCleanUp(void);

/* The signatures, for QLibrary::resolve / dlsym. */
typedef int32_t (*NightreelEncStartEncodeMp3Fn)(const char*, const char*,
                                                const NightreelWaveFormat*,
                                                const NightreelWaveFormat*, int32_t);
typedef int32_t (*NightreelEncEncodeNextBufferFn)(int32_t*, int32_t*);
typedef int32_t (*NightreelEncFinishEncodeMp3Fn)(const char*, const char*, const char*);
typedef int32_t (*NightreelEncMp3ConvertErrorCleanUpFn)(void);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* NIGHTREELENC_H */
