#pragma once

// Small real file systems for the tests that fill one: a tmpfs mounted inside the test's own
// user and mount namespaces, so that no privilege is needed (the test's user is root in
// there, for mounting only: files keep their real owner) and nothing shows outside the test.
#include <QDir>
#include <QFile>
#include <QString>
#include <fcntl.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

namespace SmallFileSystem {

inline bool WriteProcFile(const char* path, const std::string& text)
{
    const int fd = ::open(path, O_WRONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::write(fd, text.data(), text.size()) == ssize_t(text.size());
    ::close(fd);
    return ok;
}

// Moves the process into namespaces of its own. The kernel allows that only while the
// process has one thread, so a test file calls it from a static initializer, before main.
inline bool EnterOwnMountNamespace()
{
    const std::string uid = std::to_string(::geteuid());
    const std::string gid = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    WriteProcFile("/proc/self/setgroups", "deny");
    if (!WriteProcFile("/proc/self/uid_map", "0 " + uid + " 1") ||
        !WriteProcFile("/proc/self/gid_map", "0 " + gid + " 1"))
        return false;
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// Mounts a tmpfs of `kilobytes` at `folder`, which is made; false where that can't be done.
inline bool Mount(const QString& folder, int kilobytes)
{
    QDir().mkpath(folder);
    const std::string size = "size=" + std::to_string(kilobytes) + "k";
    return ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", MS_NOSUID | MS_NODEV,
                   size.c_str()) == 0;
}

inline void Unmount(const QString& folder)
{
    ::umount2(QFile::encodeName(folder).constData(), MNT_DETACH);
}

} // namespace SmallFileSystem
