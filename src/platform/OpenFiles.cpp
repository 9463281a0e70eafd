#include "platform/OpenFiles.h"

#include <QFile>
#include <QHash>
#include <cstdlib>
#include <dirent.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using FileId = QPair<dev_t, ino_t>;

bool Identify(const QString& path, FileId& id)
{
    struct stat st {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return false;
    id = {st.st_dev, st.st_ino};
    return true;
}

} // namespace

namespace OpenFiles {

QSet<QString> HeldByOtherProcesses(const QStringList& paths)
{
    // Compared by device and inode: the descriptors' link texts may name the file through
    // another path (a symbolic link, a bind mount) than the caller does.
    QHash<FileId, QString> wanted;
    for (const QString& path : paths) {
        FileId id;
        if (Identify(path, id))
            wanted.insert(id, path);
    }
    QSet<QString> held;
    if (wanted.isEmpty())
        return held;

    const pid_t self = ::getpid();
    DIR* proc = ::opendir("/proc");
    if (!proc)
        return held;
    while (const dirent* process = ::readdir(proc)) {
        char* end = nullptr;
        const long pid = std::strtol(process->d_name, &end, 10);
        if (pid <= 0 || *end != '\0' || pid == self)
            continue;
        const std::string fdFolder = std::string("/proc/") + process->d_name + "/fd";
        DIR* fds = ::opendir(fdFolder.c_str());
        if (!fds)
            continue;
        while (const dirent* fd = ::readdir(fds)) {
            if (fd->d_name[0] == '.')
                continue;
            struct stat st {};
            // stat follows the descriptor's link to the open file itself, deleted or not.
            if (::stat((fdFolder + '/' + fd->d_name).c_str(), &st) != 0)
                continue;
            const auto it = wanted.constFind({st.st_dev, st.st_ino});
            if (it != wanted.constEnd())
                held.insert(it.value());
        }
        ::closedir(fds);
    }
    ::closedir(proc);
    return held;
}

void RemoveUnlessInUse(const QStringList& paths, const QStringList& keep)
{
    QSet<FileId> kept;
    for (const QString& path : keep) {
        FileId id;
        if (!path.isEmpty() && Identify(path, id))
            kept.insert(id);
    }
    const QSet<QString> held = HeldByOtherProcesses(paths);
    for (const QString& path : paths) {
        FileId id;
        if (held.contains(path) || (Identify(path, id) && kept.contains(id)))
            continue;
        QFile::remove(path);
    }
}

} // namespace OpenFiles
