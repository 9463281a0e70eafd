#include "shell/ModuleStart.h"

#include "common/TextHelpers.h"
#include "control/CallMessageBox.h"
#include "formats/FileRowPreview.h"
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
int Inspect(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    SetApplicationNames();
    WidgetMessageBox messageBox;
    // Inspecting a file records nothing: no bus, no alarm.
    SystemSeams seams{QDBusConnection(QString()), QDBusConnection(QString())};
    AppContext ctx(seams.With(messageBox), AppFolders::ForCurrentUser());
    QTextStream out(stdout);
    return InspectFile(ctx.log, QString::fromLocal8Bit(argv[2]), out);
}

} // namespace

int Main(int argc, char* argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--inspect") == 0)
        return Inspect(argc, argv);
    QApplication app(argc, argv);
    SetApplicationNames();
    QApplication::setQuitOnLastWindowClosed(false);
    // One optional word: "1" starts hidden in the tray, "2" allows a second instance.
    const QString word = argc > 1 ? Text::Trim(QString::fromLocal8Bit(argv[1])) : QString();

    WidgetMessageBox messageBox;
    const AppFolders folders = AppFolders::ForCurrentUser();
    InstanceLock instanceLock(folders.runtimeFolder);
    if (const auto exitStatus = instanceLock.RefuseWindowStart(word, messageBox))
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
    frmMain main(ctx, word == QStringLiteral("1"));
    splash.reset();
    main.show();
    return app.exec();
}

} // namespace ModuleStart
