#include "shell/ModuleStart.h"

#include "common/Clock.h"
#include "common/ProcessLauncher.h"
#include "formats/FileRowPreview.h"
#include "platform/AudioDevices.h"
#include "platform/DiskSpace.h"
#include "platform/Joystick.h"
#include "platform/Mixer.h"
#include "platform/NetworkConnections.h"
#include "platform/SleepInhibitor.h"
#include "platform/WindowList.h"
#include "shell/AppContext.h"
#include "shell/CommandLine.h"
#include "shell/WidgetMessageBox.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

#include <QApplication>
#include <QLockFile>
#include <QTextStream>

namespace ModuleStart {
namespace {

void ShowAlreadyRunning(MessageBoxPresenter& messageBox)
{
    messageBox.Show(QStringLiteral("Nightreel 2000 already running"),
                    QStringLiteral("Nightreel 2000 is already loaded. To restore window, "
                                   "double-click on system tray Nightreel 2000 icon. "
                                   "If the icon is not present, end the application with the "
                                   "system monitor or by logging out and in again."),
                    MsgIcon::Exclamation, MsgButtons::Ok);
}

void SetApplicationNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Larkmoor Systems"));
    QCoreApplication::setApplicationName(QStringLiteral("Nightreel"));
    QCoreApplication::setApplicationVersion(QStringLiteral("%1.%2.%3")
                                                .arg(NIGHTREEL_VERSION_MAJOR)
                                                .arg(NIGHTREEL_VERSION_MINOR)
                                                .arg(NIGHTREEL_VERSION_REV));
}

// "--inspect FILE": what the recordings list would show of the file; no window, no lock.
int Inspect(int argc, char* argv[], const QString& file)
{
    QCoreApplication app(argc, argv);
    SetApplicationNames();
    SystemClock clock;
    WidgetMessageBox messageBox;
    DetachedProcessLauncher launcher;
    PulseAudioDevices audioDevices;
    StorageDiskSpace diskSpace;
    MixsetMixer mixer;
    XcbWindowList windows;
    NetworkManagerConnections network;
    // Inspecting a file records nothing: no bus, no alarm.
    LogindSleepInhibitor sleepInhibitor{QDBusConnection(QString()), QString()};
    LinuxJoystick joystick;
    AppContext ctx(Seams{clock, messageBox, launcher, audioDevices, diskSpace, mixer, windows,
                         network, sleepInhibitor, joystick},
                   AppFolders::ForCurrentUser());
    QTextStream out(stdout);
    return InspectFile(ctx.log, file, out);
}

} // namespace

int Main(int argc, char* argv[], const CommandLine& line)
{
    if (!line.inspectFile.isEmpty())
        return Inspect(argc, argv, line.inspectFile);
    QApplication app(argc, argv);
    SetApplicationNames();
    QApplication::setQuitOnLastWindowClosed(false);

    SystemClock clock;
    WidgetMessageBox messageBox;
    DetachedProcessLauncher launcher;
    PulseAudioDevices audioDevices;
    StorageDiskSpace diskSpace;
    MixsetMixer mixer;
    XcbWindowList windows;
    NetworkManagerConnections network;
    LogindSleepInhibitor sleepInhibitor{QDBusConnection::systemBus(),
                                        QStringLiteral("/sys/class/rtc/rtc0/wakealarm")};
    const AppFolders folders = AppFolders::ForCurrentUser();

    QLockFile instanceLock(folders.runtimeFolder + QStringLiteral("/nightreel.lock"));
    instanceLock.setStaleLockTime(0);
    if (!instanceLock.tryLock(0) && !line.allowSecondInstance) {
        ShowAlreadyRunning(messageBox);
        return 0;
    }

    folders.InstallDatabaseOnFirstRun();
    LinuxJoystick joystick;
    joystick.Watch(QStringLiteral("/dev/input"));
    AppContext ctx(Seams{clock, messageBox, launcher, audioDevices, diskSpace, mixer, windows,
                         network, sleepInhibitor, joystick},
                   folders);
    bool showSplash = true;
    Options::GetBlnOption(ctx.registry, QStringLiteral("HiddenWindowStatupMode"),
                          ctx.options.HiddenWindowStatupMode, false);
    Options::GetBlnOption(ctx.registry, QStringLiteral("ShowSplashScreen"), showSplash, true);
    std::unique_ptr<frmSplash> splash;
    if (showSplash) {
        splash = std::make_unique<frmSplash>();
        splash->show();
        splash->repaint();
        QCoreApplication::processEvents();
    }
    frmMain main(ctx, line.startHidden);
    splash.reset();
    main.show();
    return app.exec();
}

} // namespace ModuleStart
