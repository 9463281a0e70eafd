#include "shell/HeadlessStart.h"

#include "common/Translations.h"
#include "control/CallMessageBox.h"
#include "diagnostics/JournalLog.h"
#include "diagnostics/LoggedMessageBox.h"
#include "platform/DisplayAvailable.h"
#include "platform/TerminationSignals.h"
#include "shell/InstanceLock.h"
#include "shell/MainFormController.h"
#include "shell/SystemSeams.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTimer>

namespace HeadlessStart {
namespace {

// A stop by the service manager saves what is being recorded, as the stop command would, and
// ends the program once the recording is over. The conversions, running or waiting, are not
// stopped: the saved queue takes them up whole at the next start.
void QuitWhenIdle(AppContext& ctx)
{
    // On standard error only: a service restarted daily would fill the event log.
    qInfo().noquote() << QCoreApplication::translate(
        "HeadlessStart", "Asked to end: the recording in progress is saved first; conversions "
                         "to MP3 go on at the next start.");
    if (ctx.appStatus.Recording())
        ctx.recorder.RequestStop();
    auto* poll = new QTimer(QCoreApplication::instance());
    QObject::connect(poll, &QTimer::timeout, poll, [&ctx] {
        if (!ctx.appStatus.Recording())
            QCoreApplication::quit();
    });
    poll->start(250);
}

} // namespace

int Main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    SetApplicationNames();
    Translations::Install();
    JournalLog::Install();
    const AppFolders folders = AppFolders::ForCurrentUser();
    InstanceLock instanceLock(folders.runtimeFolder);
    if (instanceLock.TryLock() != InstanceLock::Holder::None) {
        qCritical().noquote() << InstanceLock::AlreadyRunningText();
        return 1;
    }

    folders.InstallDatabaseOnFirstRun();
    LoggedMessageBox loggedBox;
    CallMessageBox messageBox(loggedBox);
    SystemSeams seams;
    Seams withoutWindow = seams.With(messageBox);
    withoutWindow.hasDisplay = DisplayAvailable();
    AppContext ctx(withoutWindow, folders);
    loggedBox.Attach(ctx.log);

    // The steps of the window's load and first activation that need no window; a missing
    // recording folder is logged, not asked for.
    MainFormController controller(ctx);
    controller.Form_Load();
    controller.InitializeForFirstActivation([](const QString&) { return QString(); });
    controller.FinishFirstActivation([&ctx] { ctx.recorder.UpdateStatusBarPlus(); });
    ControlService control(ctx.ForControl(messageBox));
    control.Register(QDBusConnection::sessionBus());
    qInfo().noquote() << QCoreApplication::translate("HeadlessStart",
                                                     "Nightreel 2000 is running without a window.");

    TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::TerminationRequested, &app,
                     [&ctx] { QuitWhenIdle(ctx); });
    const int result = QCoreApplication::exec();
    controller.Form_Unload();
    return result;
}

} // namespace HeadlessStart
