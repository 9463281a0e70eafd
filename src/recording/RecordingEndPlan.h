#pragma once

#include <QString>

struct clsRecordingStatus;

// What the end of a recording is to do with its file and its side actions.
struct RecordingEndPlan {
    enum class File {
        // The recording failed: its file goes.
        Discard,
        // The capture goes to the conversion queue, which lists the MP3.
        Convert,
        // The file is listed as the recording.
        List,
        // Nothing was written: the recording failed, and that is logged.
        NoData,
    };
    enum class Player { Leave, NoDisplayToCloseOn, CloseNewWindows, CloseByTitle };

    File file = File::Discard;
    // A program's occurrence is over; a manual recording has none.
    bool cancelProgram = false;
    Player player = Player::Leave;
    bool hangUp = false;
    bool applyMixerProfileAfter = false;
};

// Files smaller than this hold no recording.
constexpr float kLeastRecordingMbytes = 0.001f;

// Decides the end of the recording that status describes, from the size of its file.
RecordingEndPlan PlanRecordingEnd(const clsRecordingStatus& status, float sizeMbytes,
                                  bool hasDisplay);
