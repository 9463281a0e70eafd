#pragma once

/*
 * libmixset: saves the whole state of the sound server's mixer to a profile file and puts it
 * back, and reads and sets the master volume. Plain C linkage, so that the program can load
 * it at run time (from its own folder) and resolve the entry points by name.
 *
 * Every entry point opens its own connection to the PulseAudio server (PipeWire's pulse
 * server does as well), never starts a server, and gives up when connecting or any single
 * operation takes longer than MIXSET_TIMEOUT_MS. Nothing is held between calls. Calls are
 * synchronous; none of them is meant to run on two threads at once.
 *
 * Paths are the file system's bytes, zero-ended (what QFile::encodeName gives).
 *
 * The profile file
 * ----------------
 * Text, one item per line, lines ended by LF, fields separated by exactly one blank:
 *
 *   nightreel-mixer-profile 1
 *   card <card> <active profile>
 *   sink <name> <channel map> <active port> <mute> <volume> ...
 *   source <name> <channel map> <active port> <mute> <volume> ...
 *   default-sink <name>
 *   default-source <name>
 *
 * The first line names the format and its version; a file with another first line is
 * malformed. The other lines may come in any order and any number; saving writes the cards,
 * the sinks, the sources (monitors included) and the two defaults, in that order.
 *
 * - <channel map>: the server's text of the map, positions joined by commas
 *   ("front-left,front-right"); one <volume> follows for each position, in that order.
 * - <volume>: the raw volume of that channel, a decimal 0 (silence) to 2147483647, 65536
 *   being 100 % (the server's normal volume).
 * - <mute>: 0 or 1.
 * - <active port> of a source is the input that is recorded (microphone, line in...).
 * - Names, profiles and ports may hold any byte: each byte below 0x21 or above 0x7E, and
 *   '%', is written as '%' and two hex digits ("[In] Mic" -> "[In]%20Mic"). A field that
 *   is "-" alone stands for none (a device without ports, no default); a name that is one
 *   hyphen is written "%2D".
 *
 * Loading puts the state back in this order: the cards' profiles (which may create or remove
 * sinks and sources), then the active ports, the volumes, the mutes, and the default sink and
 * source, waiting for each operation. A device of the file whose channel map differs from
 * the device's present map gets its volumes remapped by position (a stereo profile onto a
 * device with the channels swapped keeps left as left). Cards, sinks, sources and defaults
 * of the file that the server does not have now (a headset unplugged since) are skipped and
 * do not count as an error: devices come and go on a desktop, and the profile is meant to
 * restore what can be restored. The file is read and checked whole before anything is
 * changed, so an unreadable or malformed file changes nothing.
 */

#ifdef __cplusplus
extern "C" {
#endif

#if defined(MIXSET_BUILDING)
#define MIXSET_EXPORT __attribute__((visibility("default")))
#else
#define MIXSET_EXPORT
#endif

/* How long connecting, and then each single operation, may take before a call gives up. */
#define MIXSET_TIMEOUT_MS 3000

/* What LoadMixerFile and SaveMixerFile return. */
enum MixsetResult {
    MIXSET_OK = 0,
    /* No server to talk to: none is running, it refused the connection, or it did not
       answer within the time-out while connecting. Nothing was changed or written. */
    MIXSET_ERR_NO_SERVER = 1,
    /* The profile file is missing or cannot be read. Nothing was changed. */
    MIXSET_ERR_FILE_UNREADABLE = 2,
    /* The profile file is not a profile of this format and version, or has a bad line.
       Nothing was changed. */
    MIXSET_ERR_FILE_MALFORMED = 3,
    /* The server refused an operation (a port or card profile that the device does not
       offer) or a query of its state. Loading goes on with the rest of the profile and
       reports the first refusal; saving writes nothing. */
    MIXSET_ERR_OPERATION_FAILED = 4,
    /* The server stopped answering (time-out) or the connection broke after connecting.
       Loading stops where it was; saving writes nothing. */
    MIXSET_ERR_NO_ANSWER = 5,
    /* The profile file could not be created or written in full. A part of it may remain. */
    MIXSET_ERR_WRITE_FAILED = 6
};

/* Sets the mixer from the profile at path. Returns a MixsetResult. */
MIXSET_EXPORT int LoadMixerFile(const char* path);

/* Writes the present state of the mixer to the profile at path, creating or truncating it
   (only once that state has been read). Returns a MixsetResult. */
MIXSET_EXPORT int SaveMixerFile(const char* path);

/* The master volume (the default sink's first channel) in per cent of the normal volume,
   rounded to whole, or -1 when there is no server or no default sink. Above 100 when the
   sink is amplified. */
MIXSET_EXPORT int GetMasterVolume(void);

/* Sets every channel of the default sink to percent of the normal volume, the value clamped
   to 0..100 first. Returns 1 when set, 0 on any failure (nothing is changed then). */
MIXSET_EXPORT int SetMasterVolume(int percent);

#ifdef __cplusplus
}
#endif
