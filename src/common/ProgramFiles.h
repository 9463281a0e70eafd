#pragma once

#include <QString>

// Where the program's own pieces lie: the recording task, the private libraries (encoder and
// mixer), the manual, the catalogues of translated texts and the desktop entry. They are found from
// the folder of the executable, never from PATH or the system's library path, so that a program
// always runs with the pieces of its own build. Two layouts:
// - installed: each piece in its folder of the installation, at a path relative to the
//   program that the build fixes from the install dirs (so any prefix or DESTDIR works);
// - a build folder: everything beside the program.
// An installation is recognised by the task's private folder beside the bin folder.
class ProgramFiles {
public:
    // The pieces that go with the program in programFolder.
    explicit ProgramFiles(const QString& programFolder);
    // The pieces of the running program.
    static ProgramFiles OfRunningProgram();

    bool Installed() const { return m_installed; }
    QString TaskProgram() const;
    // The folder of libnightreelenc.so and libmixset.so.
    QString LibraryFolder() const;
    QString Manual() const;
    // The folder of the nightreel_LANGUAGE.qm catalogues.
    QString TranslationFolder() const;
    QString DesktopEntry() const;

private:
    QString Under(const char* relativeFolder, const QString& name) const;

    QString m_programFolder;
    bool m_installed;
};
