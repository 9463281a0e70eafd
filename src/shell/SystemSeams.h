#pragma once

#include "common/Clock.h"
#include "platform/AudioDevices.h"
#include "platform/DesktopNotifications.h"
#include "platform/DetachedProcessLauncher.h"
#include "platform/DiskSpace.h"
#include "platform/FreedesktopNotifications.h"
#include "platform/Joystick.h"
#include "platform/LinuxJoystick.h"
#include "platform/LogindSleepInhibitor.h"
#include "platform/Mixer.h"
#include "platform/MixsetMixer.h"
#include "platform/NetworkConnections.h"
#include "platform/NetworkManagerConnections.h"
#include "platform/ProcessLauncher.h"
#include "platform/PulseAudioDevices.h"
#include "platform/SleepInhibitor.h"
#include "platform/StorageDiskSpace.h"
#include "platform/WindowList.h"
#include "platform/XcbWindowList.h"
#include "shell/AppContext.h"

#include <QCoreApplication>
#include <QDBusConnection>

// The seams as the program runs them: the system's clock and the operating system's pieces.
// Only the message boxes differ between the window and the run without one.
struct SystemSeams {
    // The machine's sleep and wake alarm are kept on the system bus, the alarm through the
    // wake helper; the desktop's notifications on the session bus. A run that records nothing
    // passes buses that are not connected.
    explicit SystemSeams(const QDBusConnection& sleepBus = QDBusConnection::systemBus(),
                         const QDBusConnection& sessionBus = QDBusConnection::sessionBus())
        : sleepInhibitor(sleepBus, QString())
        , notifications(sessionBus)
    {
    }

    Seams With(MessageBoxPresenter& messageBox)
    {
        return Seams{clock,   messageBox, launcher,       audioDevices, diskSpace,    mixer,
                     windows, network,    sleepInhibitor, joystick,     notifications};
    }

    SystemClock clock;
    DetachedProcessLauncher launcher;
    PulseAudioDevices audioDevices;
    StorageDiskSpace diskSpace;
    MixsetMixer mixer;
    XcbWindowList windows;
    NetworkManagerConnections network;
    LogindSleepInhibitor sleepInhibitor;
    LinuxJoystick joystick;
    FreedesktopNotifications notifications;
};

// The names under which the settings and the data folder are found.
inline void SetApplicationNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Larkmoor Systems"));
    QCoreApplication::setApplicationName(QStringLiteral("Nightreel"));
    QCoreApplication::setApplicationVersion(QStringLiteral("%1.%2.%3")
                                                .arg(NIGHTREEL_VERSION_MAJOR)
                                                .arg(NIGHTREEL_VERSION_MINOR)
                                                .arg(NIGHTREEL_VERSION_REV));
}
