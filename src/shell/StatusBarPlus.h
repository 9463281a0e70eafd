#pragma once

#include <QString>

class AppContext;

// The live figures of the status bar and the guard against a full disk.
namespace StatusBarPlus {

struct DiskSpaceMb {
    double used = 0.0;
    double free = 0.0;
    double total = 0.0;
    float usedPercent = 0.0f;
};

// The figures of the file system that holds the folder; zeros for a folder text of under
// three characters.
DiskSpaceMb GetRecDirDiskSpaceMb(const QString& folder);
// A total under one megabyte counts as full.
DiskSpaceMb FromBytes(qint64 totalBytes, qint64 freeBytes);

// "hh:mm:ss", "mm:ss" or "ss" since the recording began.
QString ElapsedText(const AppContext& ctx);
// "5 minutes elapsed, 25 minutes remaining"; both from the clock, so a pause counts.
QString ElapsedRemainingText(const AppContext& ctx);

struct Update {
    // Set when the mode panel's tip or text is to change.
    QString modeToolTip;
    QString modeText;
    QString diskText;
    QString diskToolTip;
    // The disk guard asks for the recording to stop.
    bool postStop = false;
};

// One round of the status bar: disk figures, both disk conditions and their log entries,
// and the stop request while recording on a nearly full disk.
Update Run(AppContext& ctx, const QString& convertingText);
// The same with the disk figures given.
Update Run(AppContext& ctx, const QString& convertingText, const DiskSpaceMb& disk);

} // namespace StatusBarPlus
