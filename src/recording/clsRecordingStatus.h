#pragma once

#include <QString>

// The recording in progress: plain fields, filled by the start of a recording and read
// until its end.
struct clsRecordingStatus {
    double StartTime = 0.0;
    double EndTime = 0.0;
    QString Description;
    QString RecordingFile;
    QString FinalFile;
    qint32 DurationSeconds = 0;
    QString CompressionText;
    bool Failed = false;
    // The task could not write on; what it wrote is kept as the recording.
    bool WriteFailed = false;
    // -1 for a manual recording.
    qint32 ProgramId = -1;
    bool ConvertToMP3 = false;
    QString LaunchAppAfter;
    bool LaunchAfterOnlyIfOk = false;
    bool StopRequested = false;
    QString InternetLink;
    QString MixerProfileBefore;
    QString MixerProfileAfter;
    bool HangupInternetConnection = false;
    // "DO_NOT_CLOSE" is a reserved value.
    QString StreamingPlayerClose;
    bool NextProgramScheduled = false;
    // The internet stream recorded instead of the sound server's input; empty for the input.
    QString StreamUrl;
    // The sound server's source by name; empty for its default input.
    QString InputName;
};
