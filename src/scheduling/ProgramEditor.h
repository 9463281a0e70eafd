#pragma once

#include "formats/clsRecordingFormat.h"
#include "store/ProgramRow.h"

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>
#include <array>

class AppDatabase;
class DataControl;
class Recordset;

// One program as the program editor holds it: what FillProgramFormFromDb puts into the
// editor and what CommandOk hands back to UpdateDbFromProgramForm. Members carry the names
// of the columns they go to, with the prefix Form.
struct ProgramFormValues {
    bool FormEnabled = true;
    QString FormDescription;
    QString FormCompressionMethod;
    double FormStartTime = 0.0; // time of day
    double FormEndTime = 0.0;   // time of day
    qint16 FormFrequency = 0;   // 0 one time, otherwise weekly
    double FormOneTimeDay = 0.0;
    std::array<bool, 7> FormDays{}; // index 0 is Sunday
    QString FormFilenameUser;
    QString FormFilenamePrefix;
    QString FormFilenameSuffix;
    QString FormLaunchAppPrior;
    qint16 FormLaunchAppDelay = 0;
    QString FormLaunchAppAfter;
    bool FormLaunchAfterOnlyIfOk = false;
    QString FormInternetLink;
    qint16 FormInternetLinkDelay = 0;
    bool FormHangupInternetConnection = false;
    // "" lets the system find the player, "DO_NOT_CLOSE" leaves it open, anything else is
    // (part of) the title of the window to close.
    QString FormStreamingPlayerClose;
    QString FormMixerProfileBefore;
    QString FormMixerProfileAfter;
    // The internet stream the program records; empty for the sound server's input.
    QString FormStreamUrl;
    // The sound server's source by name; empty for the options' choice.
    QString FormInputName;
    // The program's recording format, written with the row.
    clsRecordingFormat FormFormat;
};

namespace ProgramEditor {

using StreamingPlayerClose::DoNotClose;
// The mixer profile lists' entries that name no profile.
inline QString NoneSelected()
{
    return QCoreApplication::translate("ProgramEditor", "(none selected)");
}
inline QString NoneAvailable()
{
    return QCoreApplication::translate("ProgramEditor", "(none available)");
}
inline QString DisabledMark()
{
    return QCoreApplication::translate("ProgramEditor", "   **DISABLED** ");
}

// A delay typed as text: its numeric value ("abc" is 0), rounded half to even to 16 bits
// and clamped to 0..120. A value beyond 16 bits fails with an overflow.
qint16 DelayFromText(const QString& text);

// Seconds from start to end (times of day); an end before the start lies on the next day.
qint32 DurationSeconds(double startTime, double endTime);
// "4 hours 0 min 0 sec"
QString DurationText(qint32 seconds);
// Ten Mbytes and more in Mbytes, less in Kbytes, one decimal either way.
QString DiskSpaceText(float mbytes);

// What the grid shows as the description: a disabled program is marked after its first
// 25 characters.
QString DescriptionText(const QString& description, bool enabled);

// A new program's values: one hour long, starting at the next whole hour from now (which
// lies between 0 and 1 hour ahead), one time, enabled, with the default file name.
ProgramFormValues NewProgramValues(double now);

// The values of the row that rs is on, read with the rules for old rows (NULL columns)
// and for mixer profiles whose file is gone from mixerFolder (they count as none).
// FormCompressionMethod is the text stored in the row, FormFormat the format read from it.
ProgramFormValues ReadProgramRow(const QString& mixerFolder, Recordset& rs);

// What the editor's values are tested against for a conflict.
struct ConflictQuery {
    bool oneTime = true;
    double oneTimeDay = 0.0;
    double startTime = 0.0;
    double endTime = 0.0;
    std::array<bool, 7> days{};
    bool editingExisting = false;
    qint32 editProgramId = 0;
    // Scheduled recordings start this early and end this late, so every program's window
    // is widened by it at both ends before the overlap test.
    qint16 paddingSeconds = 0;
};

// True when an enabled program other than the one being edited overlaps the query; the
// first such program's Description is given back.
bool ProgramingConflict(AppDatabase& database, const ConflictQuery& query, QString& description);

enum class UpdateMode { AddNew, Edit };

// Writes the values into a new row, or into the current row of the programs list;
// afterwards the list is requeried and stands on that row. Returns its ID. Failures are
// left to the caller's trap.
qint32 UpdateDbFromProgramForm(DataControl& programs, const ProgramFormValues& values,
                               UpdateMode mode);

} // namespace ProgramEditor
