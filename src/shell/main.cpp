#include "common/Clock.h"
#include "common/ProcessLauncher.h"
#include "shell/AppContext.h"
#include "shell/Heartbeat.h"
#include "shell/WidgetMessageBox.h"

#include <QApplication>
#include <QTextStream>

// Brings the scheduler up in the order of the first activation and runs its heartbeat.
int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Larkmoor Systems"));
    QCoreApplication::setApplicationName(QStringLiteral("Nightreel"));
    QCoreApplication::setApplicationVersion(QStringLiteral("%1.%2.%3")
                                                .arg(NIGHTREEL_VERSION_MAJOR)
                                                .arg(NIGHTREEL_VERSION_MINOR)
                                                .arg(NIGHTREEL_VERSION_REV));
    app.setQuitOnLastWindowClosed(false);

    SystemClock clock;
    WidgetMessageBox messageBox;
    DetachedProcessLauncher launcher;
    const AppFolders folders = AppFolders::ForCurrentUser();
    folders.InstallDatabaseOnFirstRun();
    AppContext ctx(Seams{clock, messageBox, launcher}, folders);

    ctx.options.GetOptions(ctx.registry);
    ctx.database.InitializeControls();
    ctx.scheduler.ScheduleNextRecording();
    Heartbeat heartbeat(ctx);
    heartbeat.Start();
    ctx.scheduler.OfferRemovalOfExpiredPrograms();
    ctx.appReady = true;

    QTextStream out(stdout);
    const NextProgram& next = ctx.scheduler.next;
    if (next.NextProgramFound)
        out << "Next recording: " << next.NextProgramDescription << ", "
            << AutomationDate::ToDateTime(next.NextProgramStart).toString(Qt::ISODate) << " to "
            << AutomationDate::ToDateTime(next.NextProgramEnd).toString(Qt::ISODate) << '\n';
    else
        out << "No recording scheduled.\n";
    out.flush();
    const int result = app.exec();
    ctx.database.CloseAll();
    return result;
}
