#pragma once

#include <QString>

// The folder tests behind the recording folder forms.
namespace FolderPaths {

// The typed text as a full path: relative to the process's current folder, "." and ".."
// resolved, a closing separator kept. False for a text that names no path at all (empty
// or only blanks).
bool FullPathName(const QString& text, QString& fullPath);

// Whether a listing of the path finds anything. With a closing separator that is the
// folder itself; without one the last part is taken as the start of a name, so "/srv/rec"
// counts as found when any entry of /srv begins with "rec". Intended: the form has always
// accepted such a prefix.
bool FolderListingFinds(const QString& path);

// Creates every missing level of the path, from the root down. Levels that can't be made
// are passed over and the result is true all the same (intended: the callers' own folder
// tests catch a folder that is still missing).
bool CreateFolderPath(const QString& path);

// The path with a closing separator.
QString WithClosingSeparator(const QString& path);

} // namespace FolderPaths
