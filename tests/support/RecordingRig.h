#pragma once

#include "Programs.h"
#include "PulseFixture.h"
#include "TestContext.h"
#include "taskcontract/RecParms.h"

#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

// One row of Recordings, read from the file.
struct RecordingRow {
    QString title;
    QString file;
    double start;
    double end;
    float size;
    QString compression;
};

// The end-to-end rig: the program's own recorder over a fresh context, with the real
// recording task capturing from the test's own sound server (a 1 kHz tone playing into it),
// a recording folder, a clock the test runs, and readers of what a recording leaves behind
// (files, rows, log). The heartbeat is ticked by hand, so that a recording of a few seconds
// takes only those seconds.
class RecordingRig {
public:
    // With opened false the database stays closed, for a test whose main window opens it.
    explicit RecordingRig(bool opened = true);

    // The test's own sound server with the tone playing; "" when it runs, otherwise why
    // recordings can't be made here (the caller skips).
    static QString StartSound(std::unique_ptr<PulseFixture>& pulse);
    static QString TaskProgram();
    // A moment of Monday 1 June 2026, or of a day after it.
    static double At(const QString& time, int addDays = 0)
    {
        return Programs::At(2026, 6, 1, time) + addDays;
    }

    AppContext& ctx() { return *tc.ctx; }
    Recorder& recorder() { return tc.ctx->recorder; }

    // A row of Programs in 16-bit mono PCM, as the editor writes it (mixer profiles empty);
    // the list is read again. Returns its ID.
    qint64 AddProgram(const QVariantHash& row);
    // A three-second weekly program at 10:00:10 on Mondays with the given side actions.
    qint64 AddProgramAt10(const QVariantHash& sideActions);
    // Runs the clock at real speed from `from`, ticking the heartbeat, until a recording has
    // started and ended; atStart is called once when it has started. False at the limit.
    bool Run(double from, const std::function<void()>& atStart = {}, int limitMs = 25000);
    // Starts a manual recording of `seconds` at `from` in the manual format (16-bit mono
    // 22.05 kHz in an opened rig, unless the test set another); the clock stands at `from`.
    void StartManual(double from, double seconds, const QString& description = "Manual");
    // Waits until no recording runs.
    bool WaitUntilStopped(int ms = 15000);

    QList<RecordingRow> Recordings() const;
    QList<LogEntry> Log() const { return tc.LogEntries(); }
    // The details of the log's entries with that message, oldest first.
    QStringList Logged(const QString& message) const;
    QStringList LoggedMessages() const { return MessagesOf(Log()); }
    QStringList Files(const QStringList& filter = {}) const;

    TestContext tc;
    QString folder;
    // Starts the heartbeat asked for, and what the task was given at the start of the last run.
    int starts = 0;
    std::optional<RecParms> parmsAtStart;
};
