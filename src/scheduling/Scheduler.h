#pragma once

#include "scheduling/ProgramOccurrence.h"

#include <QObject>
#include <QString>
#include <optional>

class AppDatabase;
class Clock;
class EventLog;
class MessageBoxPresenter;
class Options;

// The least time by which a stream is opened before its start.
constexpr int StreamOpenLeadSeconds = 10;

// The one occurrence due next, as the last search left it. The heartbeat only compares the
// clock with these.
struct NextProgram {
    bool NextProgramFound = false;
    qint32 NextProgramId = 0;
    QString NextProgramDescription;
    double NextProgramStart = 0.0;
    double NextProgramEnd = 0.0;
    QString NextInternetLink;
    qint16 NextInternetLinkDelay = 0;
    QString NextLaunchAppPrior;
    qint16 NextLaunchAppDelay = 0;
    QString NextMixerProfileBefore;
    QString NextMixerProfileAfter;
    QString NextStreamingPlayerClose;
    bool NextHangupInternetConnection = false;
    double NextLinkLaunchTime;
    double NextAppLaunchTime;
    QString NextStreamUrl;

    NextProgram();

    // When the recording is begun: at the start, but a stream ahead of it, at the link's
    // time and at least ten seconds early, so that it is connected and buffered and its
    // file begins at the due second.
    double RecordingOpenTime() const;
};

// Works out which occurrence of which program is due next. There is no table of future
// occurrences: every change of the program list, every recording and every jump of the
// clock asks anew.
class Scheduler : public QObject {
    Q_OBJECT
public:
    Scheduler(const Clock& clock, AppDatabase& database, EventLog& log,
              MessageBoxPresenter& messageBox, const Options& options);

    // Scans every row of the program list, in the order of the programs grid, for the
    // occurrence with the earliest start whose end lies after the reference date. An
    // occurrence already running beats every later one; of equal starts the earlier row
    // wins. With readOnly false, lapsed cancellations of weekly programs are cleared.
    // Nothing when no program has an occurrence to come. With onlyProgram, the other rows
    // are passed over. A row that fails to read ends the search with what it found so far;
    // the failure is logged here, so that every caller goes on with that result.
    std::optional<ProgramOccurrence>
    DetermineNextProgramToSchedule(bool readOnly, double referenceDate,
                                   std::optional<qint32> onlyProgram = std::nullopt);
    // Takes the occurrence due next into next. Its one failure, a damaged row, is the
    // search's and reported there, so the caller's steps after it always run.
    void ScheduleNextRecording();
    // Throws, marked with the routine's name, as does CancelRecording.
    void OfferRemovalOfExpiredPrograms();
    // Marks the program's occurrence that ends at the recording's scheduled end as dealt
    // with, or removes a one-time program when expired programs are to be removed.
    void CancelRecording(qint32 programId, double recordingEndTime);

    NextProgram next;

signals:
    // Rows were removed from the program list: its buttons and menus follow.
    void ProgramListChanged();

private:
    // Widens the occurrence by the padding option, for the heartbeat's start and stop.
    void Pad(const ProgramOccurrence& found, NextProgram& n);

    const Clock& m_clock;
    AppDatabase& m_database;
    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    const Options& m_options;
};
