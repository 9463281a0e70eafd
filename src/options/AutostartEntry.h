#pragma once

#include <QString>

// Starting the program with the desktop session: an entry "nightreel.desktop" in the
// desktop's autostart folder ($XDG_CONFIG_HOME/autostart). The entry is a copy of the one
// the build or the installation puts with the program, which names the program by its full
// path. A zero-length entry counts as absent.
namespace AutostartEntry {

// The autostart folder with a closing separator; empty when the desktop has none.
QString Folder();
// The entry in that folder; empty when the folder is unknown.
QString Path();
// Whether the entry is there; a zero-length one is removed.
bool Exists();
// The entry that goes with the program in programFolder (see ProgramFiles); empty when it
// isn't there.
QString Source(const QString& programFolder);
// Puts the entry in place (when it isn't there yet) or removes it. Failures are ignored:
// the options dialog shows the truth the next time it opens.
void Set(bool on, const QString& programFolder);

} // namespace AutostartEntry
