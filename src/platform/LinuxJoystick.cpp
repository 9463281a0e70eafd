#include "platform/LinuxJoystick.h"

#include <QDir>
#include <QSocketNotifier>
#include <cerrno>
#include <fcntl.h>
#include <linux/joystick.h>
#include <unistd.h>

LinuxJoystick::LinuxJoystick(QObject* parent)
    : Joystick(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!IsOpen())
            OpenFirstDevice();
    });
}

LinuxJoystick::~LinuxJoystick()
{
    Close();
}

void LinuxJoystick::Watch(const QString& deviceFolder)
{
    if (!m_folder.isEmpty())
        m_watcher.removePath(m_folder);
    m_folder = deviceFolder;
    if (QFileInfo(m_folder).isDir())
        m_watcher.addPath(m_folder);
    if (!IsOpen())
        OpenFirstDevice();
}

void LinuxJoystick::OpenFirstDevice()
{
    // Device nodes (and the pipes that stand in for them) are "system" entries.
    const QStringList names = QDir(m_folder).entryList(
        {QStringLiteral("js*")}, QDir::System | QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        const QByteArray path = QFile::encodeName(m_folder + u'/' + name);
        const int fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0)
            continue;
        m_fd = fd;
        m_partial.clear();
        m_notifier = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &LinuxJoystick::ReadEvents);
        return;
    }
}

void LinuxJoystick::ReadEvents()
{
    char buffer[64 * sizeof(js_event)];
    for (;;) {
        const ssize_t n = ::read(m_fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            break;
        if (n <= 0) {
            // Unplugged (or the writer of a pipe went away): wait for the next device.
            Close();
            return;
        }
        m_partial.append(buffer, n);
    }
    const qsizetype whole = m_partial.size() / qsizetype(sizeof(js_event));
    for (qsizetype i = 0; i < whole; ++i) {
        js_event event;
        std::memcpy(&event, m_partial.constData() + i * sizeof(js_event), sizeof event);
        // The driver opens with the state of every button flagged as initial: no presses.
        if (event.type == JS_EVENT_BUTTON && event.value != 0)
            emit ButtonPressed(event.number + 1);
    }
    m_partial.remove(0, whole * qsizetype(sizeof(js_event)));
}

void LinuxJoystick::Close()
{
    m_notifier.reset();
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
    m_partial.clear();
}
