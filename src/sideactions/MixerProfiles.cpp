#include "sideactions/MixerProfiles.h"

#include "common/FileHelpers.h"
#include "common/MessageBox.h"
#include "common/PathHelpers.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "platform/Mixer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

MixerProfiles::MixerProfiles(EventLog& log, Mixer& mixer, const QString& folder)
    : m_log(log)
    , m_mixer(mixer)
    , m_folder(folder)
{
}

QString MixerProfiles::PathOf(const QString& name) const
{
    return m_folder + u'/' + Text::Trim(name) + QStringLiteral(".mxr");
}

QStringList MixerProfiles::Names() const
{
    QStringList names;
    const QFileInfoList files = QDir(m_folder).entryInfoList({QStringLiteral("*.mxr")}, QDir::Files,
                                                             QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& file : files)
        names << file.completeBaseName();
    return names;
}

void MixerProfiles::ActivateMixerProfile(const QString& name)
{
    InRoutine("Activate Mixer Profile", [&] {
        const QString path = PathOf(name);
        if (!FileExistsOrClear(path))
            return;
        const int result = m_mixer.LoadMixerFile(path);
        if (result != 0)
            m_log.LogEvent(EventWarning, tr("Error activating mixer profile"),
                           tr("Error number = ") + QString::number(result));
    });
}

void MixerProfiles::RemoveFile(const QString& name)
{
    QFile file(PathOf(name));
    if (file.exists() && !file.remove())
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           tr("Path/File access error: ") + file.errorString());
}

MixerProfiles::SaveOutcome MixerProfiles::SaveMixerProfile(const QString& typed,
                                                           MessageBoxPresenter& messageBox)
{
    SaveOutcome outcome = SaveOutcome::Kept;
    InRoutine("Save Mixer profile", [&] {
        if (!QDir().mkpath(m_folder))
            throw RuntimeError(ErrorNumber::PathFileAccess,
                               tr("Path/File access error: ") + m_folder);
        if (InvalidFilenameCharacters(typed)) {
            messageBox.Show(tr("Invalid profile name"),
                            tr("The mixer profile name cannot contain any of the "
                               "following characters:\r\n\\ / : * ? \" < > | "),
                            MsgIcon::Exclamation, MsgButtons::Ok);
            return;
        }
        if (Text::Trim(typed).isEmpty()) {
            messageBox.Show(tr("Invalid profile name"),
                            tr("The mixer profile name cannot be blank"), MsgIcon::Exclamation,
                            MsgButtons::Ok);
            return;
        }
        const QString path = PathOf(typed);
        bool overwrite = false;
        if (FileExistsOrClear(path)) {
            if (messageBox.Show(tr("Overwrite profile"),
                                tr("Are you sure you want to overwrite existing "
                                   "profile with same name?"),
                                MsgIcon::Question, MsgButtons::YesNo) != MsgResult::Yes)
                return;
            if (!QFile::remove(path))
                throw RuntimeError(ErrorNumber::PathFileAccess,
                                   tr("Path/File access error: ") + path);
            overwrite = true;
        }
        const int result = m_mixer.SaveMixerFile(path);
        if (result != 0) {
            // A part of the file may stay behind; the next save of the name replaces it.
            m_log.LogEvent(EventWarning, tr("Error saving mixer profile"),
                           tr("Error number = ") + QString::number(result));
            outcome = SaveOutcome::Failed;
            return;
        }
        outcome = overwrite ? SaveOutcome::Overwritten : SaveOutcome::Added;
    });
    return outcome;
}
