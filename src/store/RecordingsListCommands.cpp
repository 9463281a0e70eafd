#include "store/RecordingsListCommands.h"

#include "common/FileHelpers.h"
#include "common/MessageBox.h"
#include "diagnostics/Trap.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/RecordingsList.h"

#include <QCoreApplication>
#include <QFileInfo>

RecordingsListCommands::RecordingsListCommands(AppDatabase& database, RecordingsList& list,
                                               EventLog& log, MessageBoxPresenter& messageBox,
                                               const Options& options, RecordingsListView& view)
    : m_database(database)
    , m_list(list)
    , m_log(log)
    , m_messageBox(messageBox)
    , m_options(options)
    , m_view(view)
{
}

bool RecordingsListCommands::RecordingCommandRow(Recordset& rs) const
{
    const qint64 row = m_view.CommandRow();
    if (row < 0)
        return false;
    rs = m_database.DataRecordings.recordset().Clone();
    rs.SetBookmark(row);
    return true;
}

void RecordingsListCommands::AfterRecordingsChange()
{
    m_view.UpdateRecordingsButtonsAndMenus();
    m_view.UpdateStatusBarPlus();
}

void RecordingsListCommands::RecordingsPlay()
{
    Trap(m_log, "RecordingsPlay", [&] {
        Recordset rs;
        if (!RecordingCommandRow(rs))
            return;
        const QString file = rs.Value(QStringLiteral("File")).toString();
        if (FileExistsOrClear(file))
            m_view.PlayRecording(file, rs.Value(QStringLiteral("Title")).toString(),
                                 rs.Value(QStringLiteral("StartTime")).toDouble());
        else
            m_messageBox.Show(tr("Recording file not found"),
                              tr("This recording was not found on disk.  The disk file may have "
                                 "deleted or moved.  If this file was on removable media verify "
                                 "that the recording is on the media. It is also possible that "
                                 "the disk drive letters may have been changed by the operating "
                                 "system after system reboot."),
                              MsgIcon::Exclamation, MsgButtons::Ok);
    });
}

void RecordingsListCommands::ShowRecordingDetails()
{
    Trap(m_log, "ShowRecordingDetails", [&] {
        Recordset rs;
        if (RecordingCommandRow(rs))
            m_view.ShowRecordingDetails(rs);
    });
}

void RecordingsListCommands::ExploreRecording()
{
    Trap(m_log, "ExploreRecording", [&] {
        Recordset rs;
        if (RecordingCommandRow(rs))
            m_view.OpenFolder(QFileInfo(rs.Value(QStringLiteral("File")).toString()).path());
    });
}

void RecordingsListCommands::CopyRecordingFilename()
{
    Trap(m_log, "CopyRecordingFilename", [&] {
        Recordset rs;
        if (RecordingCommandRow(rs))
            m_view.CopyToClipboard(rs.Value(QStringLiteral("File")).toString());
    });
}

void RecordingsListCommands::AddFileToList()
{
    Trap(m_log, "mnuAddFileToList_Click", [&] {
        const QString file =
            m_view.AskForFile(tr("WAV and MP3 files (*.wav *.mp3 *.WAV *.MP3);;WAV files (*.wav "
                                 "*.WAV);;MP3 files (*.mp3 *.MP3)"));
        if (!file.isEmpty())
            m_list.AddFileToRecordingsList(file);
    });
    AfterRecordingsChange();
}

void RecordingsListCommands::AddFolderToList()
{
    Trap(m_log, "mnuAddFolderToList_Click", [&] {
        const QString folder = m_view.AskForFolder(m_options.DefaultRecordingDirectory);
        if (!folder.isEmpty())
            m_list.AddFolderToRecordingsList(folder);
    });
    AfterRecordingsChange();
}

QList<qint64> RecordingsListCommands::AgreedSelection(const QString& title, const QString& text,
                                                      MsgIcon icon)
{
    const QList<qint64> rows = m_view.SelectedRows();
    if (rows.isEmpty() || m_messageBox.Show(title, text, icon, MsgButtons::YesNo) != MsgResult::Yes)
        return {};
    return rows;
}

void RecordingsListCommands::RemoveSelectedRecordingsFromList()
{
    Trap(m_log, "RemoveSelectedRecordingsFromList", [&] {
        const QList<qint64> rows =
            AgreedSelection(tr("Remove Selected Recordings From List"),
                            tr("The selected recordings will be removed from the recording "
                               "list.  The recordings will not be deleted from disk. Proceed?"),
                            MsgIcon::None);
        if (rows.isEmpty())
            return;
        m_list.RemoveFromList(rows);
        m_view.ClearSelection();
    });
    AfterRecordingsChange();
}

void RecordingsListCommands::DeleteSelectedRecordingsFromDisk()
{
    Trap(m_log, "DeleteSelectedRecordingsFromDisk", [&] {
        const QList<qint64> rows =
            AgreedSelection(tr("Remove Recordings From Disk"),
                            tr("This will remove recordings PERMANENTLY from disk. "
                               "Are you sure you want to delete the selected "
                               "recordings?"),
                            MsgIcon::Question);
        if (rows.isEmpty())
            return;
        m_list.DeleteFromDisk(rows);
        m_view.ClearSelection();
        // The recent recording may have been among them: its play button follows.
        m_view.UpdateModeDisplay();
    });
    AfterRecordingsChange();
}

void RecordingsListCommands::ClearRecordingsList()
{
    Trap(m_log, "ClearRecordingsList", [&] {
        if (m_messageBox.Show(tr("Clear Recordings List"),
                              tr("All recordings will be removed from the recording list.  The "
                                 "recordings will not be deleted from disk. Proceed?"),
                              MsgIcon::None, MsgButtons::YesNo) != MsgResult::Yes)
            return;
        m_list.ClearRecordingsList();
    });
    AfterRecordingsChange();
}

void RecordingsListCommands::LoadList()
{
    m_view.ShowLoadList();
    AfterRecordingsChange();
}

void RecordingsListCommands::SaveList()
{
    m_view.ShowSaveList();
}

void RecordingsListCommands::SelectAll()
{
    m_view.SelectAll();
}
