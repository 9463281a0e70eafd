#pragma once

#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

// The recorder left alone for days: the real recorder of a test context, driven tick by tick
// under a simulated clock in the time zone Europe/Berlin, with fifty programs, edits of the
// list, the clock set forward and back by an hour and both summer-time changes, and the
// stand-in task in place of capture.
//
// What is due comes from a plain walk over the days and the programs' weekdays and times,
// and a small model of the recorder's rules decides how often each occurrence is to start;
// what started is what reached the task. Neither asks the scheduler.

// A stretch of whole days of simulated time, from midnight of firstDay. Between two
// stretches the clock moves forward at once, as after a machine that was off.
struct SoakStretch {
    QDate firstDay;
    int days = 1;
};

// The recorder stopped (as at the program's exit) or the computer asleep, from a local time
// for some hours: no tick comes in between.
struct SoakOutage {
    QDateTime from;
    int hours = 1;
    bool asleep = false;
};

struct SoakReport {
    int occurrencesDue = 0;
    // Due occurrences that reached the task exactly once.
    int startedOnce = 0;
    // Occurrences that started fewer or more times than the rules give, and starts that
    // match no occurrence.
    int missed = 0;
    int startedTwice = 0;
    // Occurrences due while the recorder was stopped or the computer slept that the event
    // log does not name exactly once as missed (or as started late, for one still running).
    int missedUnreported = 0;
    qint64 rssGrowthKb = 0;
    double wallSeconds = 0.0;
    qint64 ticks = 0;
    // Rows of the recordings list at the end: the list is what grows by right.
    int recordingsRows = 0;
    // One line per occurrence that the rules make fall or start again, with the reason.
    QStringList ruleCases;
    // One line per difference between the rules and what reached the task.
    QStringList faults;
    // The rows of the event log at the end: an unattended run should leave none.
    QStringList logged;
    // Starts that reached the task, by "program|yyyy-MM-dd HH:mm" of the occurrence's start.
    QHash<QString, int> starts;
};

struct SoakOptions {
    QString taskProgram;
    QList<SoakStretch> stretches;
    QList<SoakOutage> outages;
    // Empties the recordings list at the end of each day, as the user's "Clear List", so
    // that what the memory figure shows is not the list's rightful growth.
    bool clearListDaily = false;
    // If set, hears one line per simulated day.
    std::function<void(const QString&)> progress;
};

// Runs the stretches one after the other on one recorder.
SoakReport RunSoak(const SoakOptions& options);
