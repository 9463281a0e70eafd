#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <memory>

class QSocketNotifier;

// The buttons of a game controller: a way to start, pause and stop a recording from across
// the room. Without a controller nothing is ever reported, and nothing is said about it.
class Joystick : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    // A button went down; buttons are numbered from 1. Releases are not reported.
    void ButtonPressed(int button);
};

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
