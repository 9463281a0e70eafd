#include "shell/InstanceLock.h"

#include "common/MessageBox.h"

#include <QCoreApplication>
#include <QFile>

namespace {

// A holder that can't be read (gone meanwhile, another user's) counts as a window: that
// keeps the message the desktop program always gave.
bool RunsHeadless(qint64 pid)
{
    QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!cmdline.open(QIODevice::ReadOnly))
        return false;
    return cmdline.readAll().split('\0').contains(QByteArrayLiteral("--headless"));
}

} // namespace

InstanceLock::InstanceLock(const QString& runtimeFolder)
    : m_lock(runtimeFolder + QStringLiteral("/nightreel.lock"))
{
    // A lock whose process is gone is taken over at once; a live one never goes stale.
    m_lock.setStaleLockTime(0);
}

InstanceLock::Holder InstanceLock::TryLock()
{
    if (m_lock.tryLock(0))
        return Holder::None;
    qint64 pid = 0;
    QString host;
    QString application;
    if (m_lock.getLockInfo(&pid, &host, &application) && RunsHeadless(pid))
        return Holder::Headless;
    return Holder::Window;
}

std::optional<int> InstanceLock::RefuseWindowStart(bool allowSecondWindow,
                                                   MessageBoxPresenter& messageBox)
{
    switch (TryLock()) {
    case Holder::Headless:
        messageBox.Show(tr("Nightreel 2000"), AlreadyRunningText(), MsgIcon::Exclamation,
                        MsgButtons::Ok);
        return 1;
    case Holder::Window:
        if (allowSecondWindow)
            return std::nullopt;
        messageBox.Show(tr("Nightreel 2000 already running"),
                        tr("Nightreel 2000 is already loaded. To restore window, "
                           "double-click on system tray Nightreel 2000 icon. "
                           "If the icon is not present, end the application with "
                           "the system monitor or by logging out and in again."),
                        MsgIcon::Exclamation, MsgButtons::Ok);
        return 0;
    case Holder::None:
        break;
    }
    return std::nullopt;
}
