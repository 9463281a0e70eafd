#pragma once

#include "scheduling/ProgramEditor.h"

#include <QCoreApplication>
#include <QString>
#include <optional>

class AppDatabase;
class Clock;
class Options;

// What the program editor's controls hold when OK is pressed, as its checks read them.
struct ProgramCheckValues {
    // When the program runs, and which row is being edited: an edit never conflicts with
    // the row it edits.
    ProgramEditor::ConflictQuery schedule;
    bool enabled = true;
    QString description;
    // The user's own file name instead of the default one made of the date and time.
    bool userFilename = false;
    QString filenameUser;
    bool prefixChecked = false;
    QString prefix;
    bool suffixChecked = false;
    QString suffix;
    // The internet stream the program records; empty for the sound server's input.
    bool streamSource = false;
    QString streamUrl;
};

// What a check tells the user, and where the editor puts them back.
struct ProgramCheckMessage {
    QString title;
    QString text;
    // The object name of the control that takes the focus; empty for none.
    QString focusControl;
};

// The rules a program must pass before the editor saves it. The editor asks, in this
// order: FirstFailedCheck, the recording format's size limit, LongRecordingQuestion.
class ProgramValidator {
public:
    ProgramValidator(AppDatabase& database, const Clock& clock, const Options& options);

    // The first rule the values break, in the editor's order: the days of a weekly
    // program, the file name, its prefix and suffix, the description, a one-time start in
    // the past, the stream's address, a conflict with another enabled program. Nothing when
    // all hold.
    std::optional<ProgramCheckMessage> FirstFailedCheck(const ProgramCheckValues& values) const;
    // The Yes/No question before a recording longer than the options allow is saved;
    // nothing when none is due.
    std::optional<ProgramCheckMessage> LongRecordingQuestion(qint32 durationSeconds) const;

private:
    AppDatabase& m_database;
    const Clock& m_clock;
    const Options& m_options;

    Q_DECLARE_TR_FUNCTIONS(ProgramValidator)
};
