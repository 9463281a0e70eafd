#pragma once

#include "platform/DiskSpace.h"

#include <QCoreApplication>
#include <QString>

class Clock;
class EventLog;
class Options;
class clsAppStatus;
class clsConvertToMP3Request;
class clsError;
class ConversionQueue;
struct clsRecordingStatus;

// The live figures of the status bar and the guard against a full disk, run on every tick
// of the heartbeat and after changes of the lists.
class StatusBarPlus {
public:
    StatusBarPlus(Clock& clock, EventLog& log, const Options& options,
                  const clsAppStatus& appStatus, clsError& error,
                  const clsRecordingStatus& recordingStatus, ConversionQueue& conversion,
                  DiskSpace& diskSpace);

    struct Update {
        // Set when the mode panel's tip or text is to change.
        QString modeToolTip;
        QString modeText;
        QString diskText;
        QString diskToolTip;
        // The disk guard asks for the recording to stop; the stop request posts only once.
        bool postStop = false;
    };

    // One round: disk figures, the disk conditions and their log entries, and the stop asked
    // for while recording on a nearly full disk. `pendingConversion` is the request that the
    // recording in progress will queue, if it is to be converted: its MP3 must fit as well.
    // The guard measures the file systems of the files being written (the live recording,
    // the running conversion's result), which the options may have moved away from; each
    // condition is logged once per recording and once per conversion.
    Update Run(const QString& convertingText, const clsConvertToMP3Request* pendingConversion);

    // "hh:mm:ss", "mm:ss" or "ss" since the recording began.
    QString ElapsedText() const;
    // "5 minutes elapsed, 25 minutes remaining"; both from the clock, so a pause counts.
    QString ElapsedRemainingText() const;

private:
    // True when the recording stop is to be posted: logs it the first time for this recording.
    bool GuardRecording(const DiskSpaceMb& disk, const clsConvertToMP3Request* pendingConversion);
    void GuardConversion(const DiskSpaceMb& disk);

    Clock& m_clock;
    EventLog& m_log;
    const Options& m_options;
    const clsAppStatus& m_appStatus;
    clsError& m_error;
    const clsRecordingStatus& m_recordingStatus;
    ConversionQueue& m_conversion;
    DiskSpace& m_diskSpace;
    // The recording (its file and start) and the conversion (its result) already logged as
    // stopped for space: a stop that takes its time must not fill the log's 1000 rows.
    QString m_recordingLogged;
    QString m_conversionLogged;
    // The disk panel's texts, made anew only when its figures change.
    DiskSpaceMb m_shownDisk;
    QString m_diskText;
    QString m_diskToolTip;

    Q_DECLARE_TR_FUNCTIONS(StatusBarPlus)
};
