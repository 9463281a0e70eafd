#pragma once

#include "RecordingLauncher.h"
#include "StoreParts.h"
#include "TestDiskSpace.h"
#include "common/RuntimeError.h"
#include "platform/AudioDevices.h"
#include "platform/DesktopNotifications.h"
#include "platform/LinuxJoystick.h"
#include "platform/LogindSleepInhibitor.h"
#include "platform/MixsetMixer.h"
#include "platform/NetworkManagerConnections.h"
#include "platform/XcbWindowList.h"
#include "shell/AppContext.h"

#include <memory>

// A sound system with the capture sources the test says (one unless it says otherwise), all
// of them silent, or one that fails to answer.
class FakeAudioDevices : public AudioDevices {
public:
    QList<CaptureSource> CaptureSources() override
    {
        if (fails)
            throw RuntimeError(ErrorNumber::PathFileAccess, "the sound system did not answer");
        return sources;
    }
    std::unique_ptr<InputLevel> ListenToInput(const QString&) override
    {
        struct Silence : InputLevel {
            float TakePeak() override { return 0.0f; }
        };
        return std::make_unique<Silence>();
    }
    QList<CaptureSource> sources{{"fake.monitor", "Monitor of the fake output"}};
    bool fails = false;
};

// A fresh application context over a temporary folder: its own data and runtime folders,
// its own settings file, the empty database in place, and the test seams.
class TestContext : public TestFolder {
public:
    // The desktop's notifications go nowhere unless the test gives its own.
    explicit TestContext(DesktopNotifications* notifications = nullptr);

    // Opens the database as the first activation does.
    void OpenDatabase() { ctx->InitializeDatabase(); }
    // Ends the program and starts it again over the same folders and settings.
    void Restart();

    RecordingLauncher launcher;
    FakeAudioDevices audioDevices;
    TestDiskSpace diskSpace;
    // The real mixer library of this build, talking to whatever server the test points at.
    MixsetMixer mixer{QStringLiteral(NIGHTREEL_MIXSET_DIR)};
    // The real desktop: the tests that use them make their own display and system bus.
    XcbWindowList windows;
    NetworkManagerConnections network;
    // logind on the test's own system bus when it has one (DBUS_SYSTEM_BUS_ADDRESS), else
    // none; the wake alarm is the empty file WakeAlarmFile().
    QString WakeAlarmFile() const { return Root() + "/wakealarm"; }
    LogindSleepInhibitor sleepInhibitor;
    // The real reader, over the folder JoystickFolder(): a test puts a pipe named js0 there
    // and writes the driver's events into it.
    LinuxJoystick joystick;
    QString JoystickFolder() const { return Root() + "/input"; }
    NoDesktopNotifications noNotifications;
    std::unique_ptr<AppContext> ctx;

private:
    void MakeContext();

    DesktopNotifications* m_notifications = nullptr;
};
