#include "shell/ModuleStart.h"

#include "common/RuntimeError.h"
#include "common/Translations.h"
#include "control/CallMessageBox.h"
#include "formats/FileRowPreview.h"
#include "shell/CommandLine.h"
#include "shell/InstanceLock.h"
#include "shell/SystemSeams.h"
#include "shell/WidgetMessageBox.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

#include <QApplication>
#include <QTextStream>

namespace ModuleStart {
namespace {

// "--inspect FILE": what the recordings list would show of the file; no window, no lock.
int Inspect(int argc, char* argv[], const QString& file)
{
    QCoreApplication app(argc, argv);
    SetApplicationNames();
    Translations::Install();
    // Inspecting a file reads it alone: no database, no bus.
    QTextStream out(stdout);
    try {
        return InspectFile(file, out);
    } catch (const RuntimeError& e) {
        QTextStream(stderr) << file << ": " << e.Text() << '\n';
        return 1;
    }
}

} // namespace

int Main(int argc, char* argv[], const CommandLine& line)
{
    if (!line.inspectFile.isEmpty())
        return Inspect(argc, argv, line.inspectFile);
    QApplication app(argc, argv);
    SetApplicationNames();
    Translations::Install();
    QApplication::setQuitOnLastWindowClosed(false);

    WidgetMessageBox messageBox;
    const AppFolders folders = AppFolders::ForCurrentUser();
    InstanceLock instanceLock(folders.runtimeFolder);
    if (const auto exitStatus =
            instanceLock.RefuseWindowStart(line.allowSecondInstance, messageBox))
        return *exitStatus;

    folders.InstallDatabaseOnFirstRun();
    SystemSeams seams;
    seams.joystick.Watch(QStringLiteral("/dev/input"));
    CallMessageBox callBox(messageBox);
    AppContext ctx(seams.With(callBox), folders);
    ControlService control(ctx.ForControl(callBox));
    control.Register(QDBusConnection::sessionBus());
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
