#pragma once

#include "platform/Joystick.h"

#include <QByteArray>
#include <QFileSystemWatcher>
#include <memory>

class QSocketNotifier;

// The Linux joystick interface: the first device named js* in a device folder (in the
// program, /dev/input), read without blocking as it reports. A controller plugged in later
// is opened when it appears in the folder; one pulled out is let go without a word.
class LinuxJoystick : public Joystick {
    Q_OBJECT
public:
    explicit LinuxJoystick(QObject* parent = nullptr);
    ~LinuxJoystick() override;

    // Opens the first device of the folder that can be read, and watches the folder for one
    // if none can.
    void Watch(const QString& deviceFolder);
    bool IsOpen() const { return m_fd >= 0; }

private:
    void OpenFirstDevice();
    void ReadEvents();
    void Close();

    QString m_folder;
    QFileSystemWatcher m_watcher;
    int m_fd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    // The start of an event whose other bytes have not arrived yet.
    QByteArray m_partial;
};
