// nightreel-wake: sets the real-time clock's wake alarm for the recorder, on the system bus.
#include "PolkitCheck.h"
#include "WakeAlarmService.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    // Only the tests use it: the installed unit starts the helper without arguments, and only
    // root may own the bus name.
    const QCommandLineOption clockFolder(
        QStringLiteral("clock-folder"), QStringLiteral("The folder of the clock's wakealarm."),
        QStringLiteral("folder"), QStringLiteral("/sys/class/rtc/rtc0"));
    parser.addOption(clockFolder);
    parser.process(app);

    QDBusConnection bus = QDBusConnection::systemBus();
    const PolkitCheck polkit(bus);
    constexpr int kIdleExitMs = 60000;
    WakeAlarmService service(parser.value(clockFolder), polkit, kIdleExitMs);
    if (!bus.registerObject(WakeAlarmService::ObjectPath, &service,
                            QDBusConnection::ExportScriptableSlots) ||
        !bus.registerService(WakeAlarmService::ServiceName)) {
        std::fprintf(stderr, "nightreel-wake: %s\n", qPrintable(bus.lastError().message()));
        return 1;
    }
    return app.exec();
}
