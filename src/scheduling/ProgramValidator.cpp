#include "scheduling/ProgramValidator.h"

#include "common/Clock.h"
#include "common/PathHelpers.h"
#include "common/TextHelpers.h"
#include "scheduling/StreamAddress.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

const QString kForbiddenList = QStringLiteral("\\ / : * ? \" < > | ");

std::optional<ProgramCheckMessage> Refused(const QString& title, const QString& text,
                                           const QString& focusControl = QString())
{
    return ProgramCheckMessage{title, text, focusControl};
}

} // namespace

ProgramValidator::ProgramValidator(AppDatabase& database, const Clock& clock,
                                   const Options& options)
    : m_database(database)
    , m_clock(clock)
    , m_options(options)
{
}

std::optional<ProgramCheckMessage>
ProgramValidator::FirstFailedCheck(const ProgramCheckValues& v) const
{
    ProgramEditor::ConflictQuery when = v.schedule;
    when.paddingSeconds = m_options.PaddingSeconds;
    if (!when.oneTime && std::none_of(when.days.begin(), when.days.end(), [](bool d) { return d; }))
        return Refused(tr("No days selected"), tr("At least one day needs to be selected."));
    if (v.userFilename) {
        if (InvalidFilenameCharacters(v.filenameUser))
            return Refused(tr("Invalid Filename"),
                           tr("The filename cannot contain any of the following "
                              "characters:\n") +
                               kForbiddenList);
        if (UserFilenameBase(v.filenameUser).isEmpty())
            return Refused(tr("Invalid Filename"), tr("Invalid Filename"));
    } else {
        if (v.prefixChecked && InvalidFilenameCharacters(v.prefix))
            return Refused(tr("Invalid Filename Prefix"),
                           tr("The filename prefix cannot contain any of the "
                              "following characters:\n") +
                               kForbiddenList);
        if (v.suffixChecked && InvalidFilenameCharacters(v.suffix))
            return Refused(tr("Invalid Filename Suffix"),
                           tr("The filename suffix cannot contain any of the "
                              "following characters:\n") +
                               kForbiddenList);
    }
    if (Text::Trim(v.description).isEmpty())
        return Refused(tr("Program description required"),
                       tr("Please enter a program description."),
                       QStringLiteral("TextProgramDescription"));
    // Edits too: a one-time program whose time has passed can't be saved until moved.
    if (when.oneTime && when.oneTimeDay + when.startTime < m_clock.Now())
        return Refused(tr("Invalid date and time"),
                       tr("The scheduled date and time must be later than the "
                          "current time."));
    if (v.streamSource) {
        const QString problem = StreamAddress::Problem(v.streamUrl);
        if (!problem.isEmpty())
            return Refused(tr("Invalid stream address"), problem, QStringLiteral("txtStreamUrl"));
    }
    // Only an enabled program is refused for a conflict; a disabled one may be saved in
    // conflict and enabled later without a test.
    QString other;
    if (ProgramEditor::ProgramingConflict(m_database, when, other) && v.enabled)
        return Refused(tr("Schedule Conflict"),
                       tr("There is a scheduling conflict with another program. "
                          "Please modify the recording time or remove/disable the "
                          "conflicting program.\n\nConflicting Program "
                          "Description: ") +
                           other);
    return std::nullopt;
}

std::optional<ProgramCheckMessage> ProgramValidator::LongRecordingQuestion(qint32 seconds) const
{
    if (!m_options.ConfirmLongRecordings || seconds <= qint32(m_options.LongRecordingHours) * 3600)
        return std::nullopt;
    return ProgramCheckMessage{tr("Long Recording Confirmation"),
                               tr("A recording longer than ") +
                                   QString::number(m_options.LongRecordingHours) +
                                   tr(" hours is programmed.  Save this programming? "),
                               QString()};
}
