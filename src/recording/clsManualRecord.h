#pragma once

#include "formats/clsRecordingFormat.h"

#include <QString>

// The one manual request: what the manual recording dialog leaves behind for the start of
// the recording. It outlives the dialog; a quick start whose checks failed starts with
// whatever the last request left here.
struct clsManualRecord {
    clsRecordingFormat Format;
    qint32 DurationSeconds = 0;
    // As typed.
    QString Description;
    // The dialog ended with a valid request.
    bool Requested = false;
    // The user's file name without extension; empty for the default name of date and time.
    QString Filename;
    // An internet stream to record instead of the sound server's input; empty for the input.
    QString StreamUrl;
};
