#include "store/AppDatabase.h"

#include "common/FileHelpers.h"
#include "common/MessageBox.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "diagnostics/clsError.h"
#include "store/GridColumns.h"

#include <QCoreApplication>
#include <QFile>

namespace {

const char kInitializeControls[] = "InitializeControls";

struct AddedColumn {
    const char* name;
    const char* type;
};

// Columns that newer versions added to Programs; older files get them at start-up.
constexpr AddedColumn kAddedProgramColumns[] = {
    {"Flags", "INTEGER"},
    {"FilenamePrefix", "TEXT"},
    {"FilenameSuffix", "TEXT"},
    {"FilenameUser", "TEXT"},
    {"InternetLink", "TEXT"},
    {"InternetLinkDelay", "INTEGER"},
    {"LaunchAppPrior", "TEXT"},
    {"LaunchAppDelay", "INTEGER"},
    {"LaunchAppAfter", "TEXT"},
    {"MixerProfileBefore", "TEXT"},
    {"MixerProfileAfter", "TEXT"},
    {"StreamingPlayerClose", "TEXT"},
    // An internet stream recorded instead of the sound server's input; empty or NULL for
    // the input.
    {"StreamUrl", "TEXT"},
    // The sound server's source by name; empty or NULL for the setting RecordingInput.
    {"InputName", "TEXT"},
    {"HangupInternetConnection", "INTEGER"},
    {"LaunchAfterOnlyIfOk", "INTEGER"},
};

template <typename... Steps> void EachStepSilently(Steps&&... steps)
{
    auto silently = [](auto&& step) {
        try {
            step();
        } catch (const std::exception&) {
        }
    };
    (silently(steps), ...);
}

} // namespace

AppDatabase::AppDatabase(const AppFolders& folders, EventLog& log, clsError& error,
                         MessageBoxPresenter& messageBox)
    : DataPrograms(db)
    , DataRecordings(db)
    , DataInfo(db)
    , DataElog(db)
    , m_folders(folders)
    , m_log(log)
    , m_error(error)
    , m_messageBox(messageBox)
{
}

QString AppDatabase::DatabaseFile() const
{
    return m_folders.DatabaseFile();
}

void AppDatabase::InitializeControls()
{
    TrapEach(
        m_log, kInitializeControls, [&] { db.Open(DatabaseFile()); },
        [&] { UpgradeProgramsTable(); }, [&] { OpenRecordsets(); },
        [&] { DataPrograms.SetRecordset(rsPrograms); },
        [&] { DataRecordings.SetRecordset(rsRecordings); }, [&] { DataInfo.SetRecordset(rsInfo); },
        [&] { DataPrograms.Refresh(); }, [&] { DataRecordings.Refresh(); },
        [&] { DataInfo.Refresh(); }, [&] { SortDbgrids(); });
}

void AppDatabase::UpgradeProgramsTable()
{
    // Each column on its own: one that can't be added is reported and the next is tried.
    for (const AddedColumn& column : kAddedProgramColumns) {
        Trap(m_log, kInitializeControls, [&] {
            const QString name = QString::fromLatin1(column.name);
            if (!db.TableHasColumn(QStringLiteral("Programs"), name))
                db.Execute(QStringLiteral("ALTER TABLE [Programs] ADD COLUMN [%1] %2")
                               .arg(name, QString::fromLatin1(column.type)));
        });
    }
}

void AppDatabase::OpenRecordsets()
{
    rsPrograms = Recordset::Open(db, QStringLiteral("Programs"));
    rsRecordings = Recordset::Open(db, QStringLiteral("Recordings"));
    rsInfo = Recordset::Open(db, QStringLiteral("Info"));
    rsEventLog = Recordset::Open(db, QStringLiteral("EventLog"));
}

void AppDatabase::SortDbgrids()
{
    DataPrograms.SetRecordSource(GridColumns::SortStatement(
        QStringLiteral("Programs"),
        GridColumns::DataFieldOf(GridColumns::Programs(), QStringLiteral("Description")), true));
    DataPrograms.Refresh();
    DataRecordings.SetRecordSource(GridColumns::SortStatement(
        QStringLiteral("Recordings"),
        GridColumns::DataFieldOf(GridColumns::Recordings(), QStringLiteral("Date/Time")), false));
    DataRecordings.Refresh();
}

void AppDatabase::CloseRecordsetsAndDatabase()
{
    rsPrograms.Close();
    rsRecordings.Close();
    rsInfo.Close();
    rsEventLog.Close();
    db.Close();
}

void AppDatabase::UnloadElog()
{
    DataElog.Unbind();
    m_elogBound = false;
}

void AppDatabase::CheckDatabaseMissing()
{
    m_error.SetDatabaseMissing(!FileExistsOrClear(DatabaseFile()));
}

void AppDatabase::CloseAll()
{
    UnloadElog();
    CloseRecordsetsAndDatabase();
}

Recordset& AppDatabase::ElogRecordset()
{
    if (!m_elogBound) {
        m_error.ElogViewed();
        DataElog.SetRecordset(rsEventLog);
        DataElog.SetRecordSource(GridColumns::SortStatement(
            QStringLiteral("EventLog"),
            GridColumns::DataFieldOf(GridColumns::EventLog(), QStringLiteral("Date/Time")), false));
        DataElog.Refresh();
        m_elogBound = true;
    }
    return DataElog.recordset();
}

void AppDatabase::CompactDatabase()
{
    try {
        CloseRecordsetsAndDatabase();
        UnloadElog();
        const QString target = m_folders.TempDatabaseFile();
        if (QFile::exists(target) && !QFile::remove(target))
            throw RuntimeError(ErrorNumber::PathFileAccess, tr("Path/File access error"));
        {
            Database source;
            source.Open(DatabaseFile());
            source.CompactInto(target);
        }
        if (!QFile::remove(DatabaseFile()) || !QFile::rename(target, DatabaseFile()))
            throw RuntimeError(ErrorNumber::PathFileAccess, tr("Path/File access error"));
        db.Open(DatabaseFile());
        OpenRecordsets();
        DataPrograms.SetRecordset(rsPrograms);
        DataInfo.SetRecordset(rsInfo);
        DataRecordings.SetRecordset(rsRecordings);
    } catch (const RuntimeError& error) {
        m_messageBox.Show(tr("Nightreel 2000 Error"),
                          tr("Compact Database failed.  The following error occurred: ") +
                              error.Text(),
                          MsgIcon::Exclamation, MsgButtons::Ok);
    }
}

void AppDatabase::RestoreOriginalDatabase()
{
    EachStepSilently(
        [&] { m_error.ElogViewed(); },
        [&] {
            CloseRecordsetsAndDatabase();
            UnloadElog();
        },
        [&] { QFile::remove(DatabaseFile()); },
        [&] {
            QFile::copy(QStringLiteral(":/original.db"), DatabaseFile());
            // A copy out of the program's resources comes read-only.
            QFile::setPermissions(DatabaseFile(), QFile::ReadOwner | QFile::WriteOwner);
        },
        [&] { db.Open(DatabaseFile()); }, [&] { OpenRecordsets(); },
        [&] { DataPrograms.SetRecordset(rsPrograms); }, [&] { DataInfo.SetRecordset(rsInfo); },
        [&] { DataRecordings.SetRecordset(rsRecordings); });
}
