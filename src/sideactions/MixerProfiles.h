#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class EventLog;
class MessageBoxPresenter;
class Mixer;

// The store of mixer profiles: one file per profile in a folder of its own, named by the
// profile's name (trimmed of blanks) with the extension ".mxr". There is no index; the set
// of profiles is what the folder holds at the time. What a file holds is the mixer library's
// business alone.
class MixerProfiles {
public:
    MixerProfiles(EventLog& log, Mixer& mixer, const QString& folder);

    QString Folder() const { return m_folder; }
    QString PathOf(const QString& name) const;
    // The names of the profile files, sorted by name as a folder listing shows them. A file
    // of no length is listed too; it goes when it is first activated.
    QStringList Names() const;

    // The one way a profile is applied, by the user and before and after a recording. A
    // profile that is not there (or empty, and then deleted) is no error: a program may name
    // one that was removed since. The library's refusal is logged; a library that can't be
    // loaded throws, marked with the routine's name.
    void ActivateMixerProfile(const QString& name);

    // Deletes a profile's file; one that is already gone counts as removed. A file that
    // stays is a RuntimeError.
    void RemoveFile(const QString& name);

    enum class SaveOutcome {
        // The name was refused, or the user kept the existing profile: the form stays.
        Kept,
        // A new profile was written: the name joins the list.
        Added,
        // An existing profile was written over: the list already has it.
        Overwritten,
        // The library failed and this was logged; the form closes all the same.
        Failed,
    };
    // Saves the present mixer under the name typed (trimmed), asking before it replaces a
    // profile; each refusal is told to the user through messageBox. A folder or file that
    // can't be written throws, marked with the routine's name.
    SaveOutcome SaveMixerProfile(const QString& typed, MessageBoxPresenter& messageBox);

private:
    EventLog& m_log;
    Mixer& m_mixer;
    QString m_folder;

    Q_DECLARE_TR_FUNCTIONS(MixerProfiles)
};
