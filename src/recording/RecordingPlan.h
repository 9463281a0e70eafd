#pragma once

#include "formats/clsRecordingFormat.h"
#include "recording/RecordingFileName.h"
#include "recording/clsConvertToMP3Request.h"
#include "recording/clsRecordingStatus.h"
#include "store/ProgramRow.h"
#include "taskcontract/RecParms.h"

#include <QString>
#include <memory>
#include <optional>
#include <variant>

// What is asked to be recorded: a program's row, or the user's manual recording.
struct RecordingRequest {
    // -1 for a manual recording.
    qint32 ProgramId = -1;
    double StartTime = 0.0;
    double EndTime = 0.0;
    // The program's row; empty when the program is gone.
    std::optional<ProgramRow> Program;
    // The program's format, or the one the user chose for a manual recording.
    clsRecordingFormat Format;
    // A manual recording's description, file name and stream.
    QString Description;
    QString UserFileName;
    QString StreamUrl;
};

// What the start of a recording takes from the options and the machine.
struct RecordingSettings {
    QString Folder;
    // The sound server's source of a recording whose program names none.
    QString RecordingInput;
    qint16 FileNameFormat = 0;
    qint16 StopRecMegsLeft = 0;
    double FreeMbytes = 0.0;
    // An MP3 conversion is running, and its PCM file takes space too.
    bool Converting = false;
    qint16 SilenceThresholdDb = -60;
    // 0 when the silence alarm is off.
    qint32 SilenceSeconds = 0;
    QString SoftwareName;
};

// A recording to start: the status it runs under, the parameters for the task and, for a
// recording to be converted, the request the conversion queue takes at its end.
struct RecordingPlan {
    clsRecordingStatus Status;
    clsRecordingFormat Format;
    RecParms Parms;
    std::shared_ptr<clsConvertToMP3Request> Conversion;
    // The name the recording would have had, when a file of that name is kept; else empty.
    QString WantedFileName;
};

// Why a recording is not started, and what the user is shown (no box when Title is empty).
struct RecordingRefusal {
    enum class Reason { ProgramGone, NoRecordingFolder, NotEnoughSpace };
    Reason Why;
    QString Title;
    QString Text;
};

// Throws when a program's row holds a NULL where the start needs a value; before anything
// of the row is taken, its format included.
void RequireStartValues(const ProgramRow& row);

// What to record, or why not.
using PlannedRecording = std::variant<RecordingPlan, RecordingRefusal>;

// Decides a recording's start from the request, the settings and the present time: names,
// capture format, conversion and space.
PlannedRecording PlanRecording(const RecordingRequest& request, const RecordingSettings& settings,
                               double now, const FileExists& exists);

// The recording folder with its closing separator, as the plan names files in it.
QString RecordingFolder(const QString& folder);
