#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

// Which files other processes hold open. Linux lets a file be deleted while a process writes
// it, where the old platform refused; code that deletes leftovers by pattern asks here first
// so that it never takes the file a recording task (of this or another instance) is writing.
namespace OpenFiles {

// Those of `paths` that some other process of this user has open, as given in `paths`.
// Processes whose descriptors can't be read (other users') are not seen. Empty where the
// platform has no /proc.
QSet<QString> HeldByOtherProcesses(const QStringList& paths);

// Deletes each of `paths` unless it is one of `keep` (under any name) or another process
// holds it open; failures are ignored, as a clean-up of leftovers ignores them.
void RemoveUnlessInUse(const QStringList& paths, const QStringList& keep = {});

} // namespace OpenFiles
