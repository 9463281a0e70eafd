#include "control/ProgramRequestView.h"

#include "control/ProgramRequest.h"
#include "scheduling/ProgramValidator.h"

ProgramRequestView::ProgramRequestView(const Services& services, qint64 bookmark,
                                       const QVariantMap& changes)
    : m_s(services)
    , m_current(bookmark)
    , m_changes(changes)
{
}

void ProgramRequestView::AddSelBookmark(qint64 bookmark)
{
    if (!m_selected.contains(bookmark))
        m_selected.append(bookmark);
}

bool ProgramRequestView::ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                                         qint32 editProgramId, ProgramFormValues& result)
{
    result = initial;
    if (const auto error = ProgramRequest::Apply(m_changes, result)) {
        m_refusal = CallMessageBox::Refusal{QStringLiteral("Invalid Argument"), *error};
        return false;
    }
    // The editor's OK, in its order: its checks, the format's size limit, the question
    // about a long recording, which a request answers Yes only by saying so ("confirmed").
    const ProgramValidator validator(m_s.database, m_s.clock, m_s.options);
    if (const auto failed = validator.FirstFailedCheck(
            ProgramRequest::CheckValues(result, editingExisting, editProgramId))) {
        m_refusal = CallMessageBox::Refusal{failed->title, failed->text};
        return false;
    }
    const qint32 seconds = ProgramEditor::DurationSeconds(result.FormStartTime, result.FormEndTime);
    // The size limit tells its refusal through the box, which the call captures.
    if (CheckFor2GbLimit(m_s.messageBox, result.FormFormat, seconds))
        return false;
    const auto question = validator.LongRecordingQuestion(seconds);
    if (question && !m_changes.value(QStringLiteral("confirmed")).toBool()) {
        m_refusal = CallMessageBox::Refusal{question->title, question->text};
        return false;
    }
    return true;
}
