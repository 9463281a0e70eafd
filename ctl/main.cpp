#include "CtlCommandLine.h"
#include "CtlCommands.h"
#include "CtlOutput.h"
#include "nightreelproxy.h"

#include <QCoreApplication>
#include <QDBusMetaType>
#include <QTextStream>

// nightreel-ctl: the recorder of this user, controlled from a shell over the session bus.
int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const auto parsed = CtlCommandLine::Parse(app.arguments().mid(1));
    if (!parsed.request) {
        err << "nightreel-ctl: " << parsed.error << "\n\n" << CtlCommandLine::Usage({});
        return CtlResult::BadArguments;
    }
    const CtlRequest& request = *parsed.request;
    if (request.help) {
        out << CtlCommandLine::Usage(request.command);
        return CtlResult::Done;
    }
    qDBusRegisterMetaType<QList<QVariantMap>>();
    OrgLarkmoorNightreel1Interface recorder(QStringLiteral("org.larkmoor.Nightreel1"),
                                            QStringLiteral("/org/larkmoor/Nightreel1"),
                                            QDBusConnection::sessionBus());
    // A recording's start waits for the recording task; that may take a while.
    recorder.setTimeout(60000);
    const CtlResult result = CtlCommands(recorder).Run(request);
    if (result.status != CtlResult::Done) {
        err << "nightreel-ctl: " << result.error << '\n';
        return result.status;
    }
    CtlOutput::Print(request.command, result.answer, request.json, out);
    return CtlResult::Done;
}
