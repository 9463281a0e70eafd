#include "shell/MainFormController.h"

#include "common/FileHelpers.h"
#include "common/MessageBox.h"
#include "common/TextHelpers.h"
#include "diagnostics/Trap.h"
#include "platform/AudioDevices.h"
#include "platform/OpenFiles.h"
#include "scheduling/ModuleUtility.h"
#include "shell/AppContext.h"
#include "taskcontract/RecParms.h"

#include <QDir>
#include <QFile>

MainFormController::MainFormController(AppContext& ctx, QObject* parent)
    : QObject(parent)
    , m_ctx(ctx)
{
}

void MainFormController::Form_Load()
{
    // Each step carries on after a failure of the one before: the options above all.
    m_ctx.appStatus.SetReady(false);
    TrapEach(
        m_ctx.log, "Main Form Load", [&] { InitializeVariables(); },
        [&] { m_ctx.options.GetOptions(m_ctx.registry); },
        // A crashed run may have left its parameter file.
        [&] { QFile::remove(m_ctx.recorder.ParameterFile()); });
}

void MainFormController::InitializeVariables()
{
    m_ctx.scheduler.next = NextProgram();
    if (m_ctx.audioDevices.CaptureSources().isEmpty())
        m_ctx.error.SetNoAudioRecordDevice(true);
}

void MainFormController::InitializeForFirstActivation(const FolderChooser& chooser)
{
    // Each step carries on after a failure of the one before: above all the heartbeat
    // must start, or nothing would ever be recorded.
    TrapEach(
        m_ctx.log, "Main Form Load", [&] { m_ctx.InitializeDatabase(); },
        [&] { CheckDefaultRecordingDirectory(chooser); },
        [&] { m_ctx.defaultFormats.GetWfxDefault(m_ctx.WfxDefault); },
        [&] { m_ctx.scheduler.ScheduleNextRecording(); },
        [&] { m_ctx.recorder.CheckMissedRecordings(); }, [&] { m_ctx.recorder.Start(); });
}

void MainFormController::FinishFirstActivation(const std::function<void()>& UpdateStatusBarPlus)
{
    // Whatever fails before, the program ends up ready: the heartbeat idles until then.
    TrapEach(
        m_ctx.log, "Main Form Load", UpdateStatusBarPlus,
        [&] { m_ctx.scheduler.OfferRemovalOfExpiredPrograms(); },
        [&] { m_ctx.appStatus.SetReady(true); });
}

void MainFormController::CheckDefaultRecordingDirectory(const FolderChooser& chooser)
{
    QString folder = Text::Trim(m_ctx.registry.GetSetting(
        QStringLiteral("Settings"), QStringLiteral("DefaultRecordingDirectory"), QString()));
    if (folder.isEmpty() || !QDir(folder).exists()) {
        const MsgResult answer = m_ctx.messageBox.Show(
            tr("Recording Folder Needed"),
            tr("Nightreel 2000 requires a valid recording folder for recording to "
               "occur.  Select Recording folder?"),
            MsgIcon::None, MsgButtons::YesNo);
        folder.clear();
        if (answer == MsgResult::Yes) {
            folder = chooser(QDir::homePath() + QStringLiteral("/recordings"));
            if (!folder.isEmpty())
                m_ctx.registry.SaveSetting(QStringLiteral("Settings"),
                                           QStringLiteral("DefaultRecordingDirectory"), folder);
        }
    }
    const bool invalid = folder.isEmpty() || !QDir(folder).exists();
    m_ctx.error.SetInvalidRecordingDirectory(invalid);
    if (invalid)
        folder.clear();
    m_ctx.options.DefaultRecordingDirectory = folder;
    if (!invalid)
        RemoveTemporaryRecordings(folder);
}

void MainFormController::RemoveTemporaryRecordings(const QString& folder)
{
    // What an earlier run left behind when it ended during a recording or conversion.
    if (folder.size() <= 1)
        return;
    const QDir dir(folder);
    const auto files = [&dir](const QString& pattern) {
        QStringList paths;
        for (const QString& name : dir.entryList({pattern}, QDir::Files | QDir::Hidden))
            paths << dir.filePath(name);
        return paths;
    };
    // An incomplete MP3 goes: its capture is converted again. A second instance must leave
    // alone what the first one writes.
    OpenFiles::RemoveUnlessInUse(files(QStringLiteral("*.MP3.TMP")));
    for (const QString& kept : m_ctx.recorder.ResumeConversions(files(QStringLiteral("*.WAV.TMP"))))
        m_ctx.recordingsList.AddFileToRecordingsList(kept);
}

bool MainFormController::QueryUnload(bool closedBySystem)
{
    if (m_ctx.appStatus.Recording()) {
        m_ctx.messageBox.Show(tr("Recording in progress"),
                              tr("Can not exit while recording. Please stop the "
                                 "recording or wait for it complete."),
                              MsgIcon::Exclamation, MsgButtons::Ok);
        return false;
    }
    if (m_ctx.appStatus.Converting()) {
        m_ctx.messageBox.Show(tr("Converting to MP3"),
                              tr("Can not exit while converting to MP3. Please stop "
                                 "the conversion or wait for it complete."),
                              MsgIcon::Exclamation, MsgButtons::Ok);
        return false;
    }
    if (closedBySystem)
        return true;
    int programs = 0;
    Trap(m_ctx.log, "QueryUnload",
         [&] { programs = RecordsetCount(m_ctx.database.DataPrograms.recordset()); });
    const QString text = programs >= 1
                             ? tr("You have scheduled recordings. No recording will occur "
                                  "if you exit. Are you sure you want to exit?")
                             : tr("Are you sure you want to exit?");
    return m_ctx.messageBox.Show(tr("Exit"), text, MsgIcon::Question, MsgButtons::YesNo) ==
           MsgResult::Yes;
}

void MainFormController::Form_Unload()
{
    m_ctx.recorder.Stop();
    m_ctx.database.CloseAll();
    QFile::remove(m_ctx.recorder.ParameterFile());
}

void MainFormController::mnuCompactDb_Click()
{
    m_ctx.appStatus.SetMaintenance(true);
    m_ctx.database.CompactDatabase();
    m_ctx.database.CheckDatabaseMissing();
    m_ctx.scheduler.ScheduleNextRecording();
    m_ctx.appStatus.SetMaintenance(false);
    emit ListsReplaced();
}

void MainFormController::mnuRestoreOriginalDb_Click()
{
    const bool proceed =
        !FileExistsOrClear(m_ctx.database.DatabaseFile()) ||
        m_ctx.messageBox.Show(tr("Restore Original Database"),
                              tr("All scheduled programs, recording list, and error "
                                 "log will be cleared. Proceed?"),
                              MsgIcon::None, MsgButtons::YesNo) == MsgResult::Yes;
    if (proceed) {
        m_ctx.appStatus.SetMaintenance(true);
        m_ctx.RestoreOriginalDatabase();
    }
    // These run after a refused question too.
    m_ctx.database.CheckDatabaseMissing();
    emit ListsReplaced();
    // The new Info row holds the format in force, not that of the empty file; the program
    // leaves maintenance also when that row can't be written.
    TrapEach(
        m_ctx.log, "mnuRestoreOriginalDb_Click",
        [&] { m_ctx.defaultFormats.SaveDefaultFormatInfo(m_ctx.WfxDefault); },
        [&] {
            m_ctx.scheduler.ScheduleNextRecording();
            m_ctx.appStatus.SetMaintenance(false);
        });
}
