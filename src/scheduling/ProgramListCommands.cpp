#include "scheduling/ProgramListCommands.h"

#include "common/Clock.h"
#include "common/MessageBox.h"
#include "common/RuntimeError.h"
#include "scheduling/Scheduler.h"
#include "store/AppDatabase.h"

#include <QCoreApplication>

ProgramListCommands::ProgramListCommands(const ProgramListServices& services, ProgramListView& view)
    : m_services(services)
    , m_view(view)
{
}

bool ProgramListCommands::HasCurrentRow() const
{
    return m_view.CurrentBookmark() != -1;
}

bool ProgramListCommands::FindRowToWorkOn()
{
    Recordset& rs = m_services.database.DataPrograms.recordset();
    if (HasCurrentRow()) {
        rs.SetBookmark(m_view.CurrentBookmark());
        return true;
    }
    const QList<qint64> selected = m_view.SelBookmarks();
    if (selected.isEmpty())
        return false;
    rs.SetBookmark(selected.first());
    m_view.SetCurrentBookmark(selected.first());
    return true;
}

ProgramFormValues ProgramListCommands::ReadCurrentRow()
{
    return ProgramEditor::ReadProgramRow(m_services.mixerFolder,
                                         m_services.database.DataPrograms.recordset());
}

void ProgramListCommands::RemoveAllSelBookmarks()
{
    for (const qint64 bookmark : m_view.SelBookmarks())
        m_view.RemoveSelBookmark(bookmark);
}

void ProgramListCommands::AddNewProgram()
{
    InRoutine("AddNewProgram", [&] {
        ProgramFormValues initial = ProgramEditor::NewProgramValues(m_services.clock.Now());
        initial.FormFormat.CopyFrom(m_services.defaultFormat);
        initial.FormCompressionMethod = initial.FormFormat.TextCompressionMethod;
        ProgramFormValues result;
        if (m_view.ShowProgramForm(initial, false, 0, result)) {
            const qint32 id = ProgramEditor::UpdateDbFromProgramForm(
                m_services.database.DataPrograms, result, ProgramEditor::UpdateMode::AddNew);
            RemoveAllSelBookmarks();
            m_view.SetCurrentBookmark(id);
            m_services.scheduler.ScheduleNextRecording();
        }
    });
    m_view.UpdateProgramsButtonsAndMenus();
}

void ProgramListCommands::CopyProgram()
{
    InRoutine("CopyProgram", [&] {
        if (!FindRowToWorkOn())
            return;
        const ProgramFormValues initial = ReadCurrentRow();
        ProgramFormValues result;
        if (m_view.ShowProgramForm(initial, false, 0, result)) {
            const qint32 id = ProgramEditor::UpdateDbFromProgramForm(
                m_services.database.DataPrograms, result, ProgramEditor::UpdateMode::AddNew);
            m_view.SetCurrentBookmark(id);
            m_services.scheduler.ScheduleNextRecording();
        }
        // Unlike an added program, a clone clears the selection even when it was cancelled.
        RemoveAllSelBookmarks();
    });
    m_view.UpdateProgramsButtonsAndMenus();
}

void ProgramListCommands::EditProgram()
{
    InRoutine("EditProgram", [&] {
        if (!FindRowToWorkOn())
            return;
        Recordset& rs = m_services.database.DataPrograms.recordset();
        const ProgramFormValues initial = ReadCurrentRow();
        const qint32 id = rs.Value(QStringLiteral("ID")).toInt();
        ProgramFormValues result;
        if (m_view.ShowProgramForm(initial, true, id, result)) {
            // The dialog's events may have moved the list: edit the row that was opened.
            m_services.database.DataPrograms.recordset().SetBookmark(id);
            ProgramEditor::UpdateDbFromProgramForm(m_services.database.DataPrograms, result,
                                                   ProgramEditor::UpdateMode::Edit);
            m_view.SetCurrentBookmark(id);
            m_services.scheduler.ScheduleNextRecording();
        }
    });
    m_view.UpdateProgramsButtonsAndMenus();
}

void ProgramListCommands::RemovePrograms()
{
    InRoutine("RemovePrograms", [&] {
        Recordset& rs = m_services.database.DataPrograms.recordset();
        // The row under the cursor always counts, selected or not.
        if (HasCurrentRow())
            m_view.AddSelBookmark(m_view.CurrentBookmark());
        const QList<qint64> selected = m_view.SelBookmarks();
        if (selected.isEmpty())
            return;
        if (m_services.messageBox.Show(tr("Remove Programs"),
                                       tr("Are you sure you want to remove the selected programs."),
                                       MsgIcon::None, MsgButtons::YesNo) != MsgResult::Yes)
            return;
        for (const qint64 bookmark : selected) {
            rs.SetBookmark(bookmark);
            rs.Delete();
        }
        if (!rs.IsEOF())
            rs.MoveNext();
        if (rs.IsEOF() && rs.RecordCount() > 0)
            rs.MovePrevious();
        RemoveAllSelBookmarks();
        if (!rs.IsEOF() && !rs.IsBOF())
            m_view.SetCurrentBookmark(rs.Bookmark());
        m_services.scheduler.ScheduleNextRecording();
        m_view.UpdateProgramsButtonsAndMenus();
    });
}

void ProgramListCommands::ToggleProgramEnables()
{
    InRoutine("ToggleProgramEnables", [&] {
        Recordset& rs = m_services.database.DataPrograms.recordset();
        const qint64 current = m_view.CurrentBookmark();
        if (current != -1)
            m_view.AddSelBookmark(current);
        const QList<qint64> selected = m_view.SelBookmarks();
        if (selected.isEmpty())
            return;

        bool enable = false;
        if (selected.size() == 1 && current != -1) {
            rs.SetBookmark(current);
            const bool enabled = Field::ToBool(rs.Value(QStringLiteral("Enabled")));
            const QString question =
                enabled ? tr("Are you sure you want to disable the selected program?")
                        : tr("Are you sure you want to enable the selected program?");
            // The question has no title of its own: the box carries the program's name.
            if (m_services.messageBox.Show(tr("Nightreel 2000"), question, MsgIcon::None,
                                           MsgButtons::YesNo) != MsgResult::Yes)
                return;
            enable = !enabled;
        } else {
            const int choice = m_view.ShowEnableDisablePrograms();
            if (choice != 0 && choice != 1)
                return;
            enable = choice == 0;
        }

        // No conflict test: enabling may bring overlapping programs into force, and the
        // search then decides by the order of the rows.
        for (const qint64 bookmark : selected) {
            rs.SetBookmark(bookmark);
            rs.Edit();
            rs.SetValue(QStringLiteral("Enabled"), Field::FromBool(enable));
            rs.SetValue(QStringLiteral("DescriptionText"),
                        ProgramEditor::DescriptionText(
                            rs.Value(QStringLiteral("Description")).toString(), enable));
            rs.Update();
        }
        if (current != -1) {
            rs.SetBookmark(current);
            m_view.SetCurrentBookmark(current);
        }
        m_services.scheduler.ScheduleNextRecording();
    });
}

void ProgramListCommands::SelectAll()
{
    InRoutine("mnuProgramsSelectAll_Click", [&] {
        Recordset rs = m_services.database.DataPrograms.recordset().Clone();
        if (rs.RecordCount() < 1)
            return;
        for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext())
            m_view.AddSelBookmark(rs.Bookmark());
    });
}

void ProgramListCommands::DblClick(bool onRow)
{
    if (onRow)
        EditProgram();
}
