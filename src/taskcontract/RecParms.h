#pragma once

#include "taskcontract/WaveFormatRecord.h"

#include <QString>
#include <optional>

// The parameter file of one recording: what the task is to record, where to, and in which
// format. The scheduler writes it before each start into the folder of its channel; the task
// reads it once from there.
struct RecParms {
    static constexpr const char* FileName = "RECPARMS.TMP";
    // The path of the parameter file in that folder.
    static QString PathIn(const QString& folder);

    QString softwareName;
    QString description;
    // The start as the locale's date-and-time text; the task copies it into the file as is.
    QString startText;
    QString outputPath;
    qint32 lengthSeconds = 0;
    // The format the task captures in, 11025 Hz 8-bit mono PCM unless set.
    WaveFormatRecord format{WaveFormatRecord::TagPcm, 1, 11025, 11025, 1, 8, 0, {}};
    // The silence alarm, in two lines after the format's extra bytes that are written only
    // when it is on; a file without them (as older schedulers wrote) has no alarm, so the
    // task never sends such a scheduler a message that it does not know.
    qint32 silenceThresholdDb = -60;
    qint32 silenceSeconds = 0;
    // An internet stream to record instead of the sound server's input, in three lines after
    // the silence alarm's (which are then always written): the address, the due start as
    // milliseconds since 1970 UTC on the task's clock (0 for at once), and the final file's
    // path, which the titles sheet names when the recording is converted afterwards.
    QString streamUrl;
    qint64 dueStartMsecs = 0;
    QString finalPath;
    // The sound server's source to record from by its name, in one line after the stream's
    // (which are then always written, the address empty); empty for the server's default.
    QString inputName;

    // Deletes any old file and writes this one; throws RuntimeError on failure.
    void Write(const QString& path) const;

    // Each line trimmed of blanks, numbers in their print form; nothing when the file can't
    // be read or does not hold a whole parameter set.
    static std::optional<RecParms> Read(const QString& path, bool* couldOpen = nullptr);
};
