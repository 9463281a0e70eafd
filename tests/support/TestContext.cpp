#include "TestContext.h"

#include <QDir>
#include <QFile>

namespace {

QDBusConnection TestSystemBus()
{
    static int count = 0;
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    if (address.isEmpty())
        return QDBusConnection(QString());
    return QDBusConnection::connectToBus(QString::fromUtf8(address),
                                         QStringLiteral("nightreel-test-system-%1").arg(++count));
}

} // namespace

TestContext::TestContext(DesktopNotifications* notifications)
    : sleepInhibitor(TestSystemBus(), WakeAlarmFile())
{
    m_notifications = notifications ? notifications : &noNotifications;
    QFile(WakeAlarmFile()).open(QIODevice::WriteOnly);
    QDir().mkpath(JoystickFolder());
    joystick.Watch(JoystickFolder());
    MakeContext();
}

void TestContext::MakeContext()
{
    ctx = std::make_unique<AppContext>(Seams{clock, messageBox, launcher, audioDevices, diskSpace,
                                             mixer, windows, network, sleepInhibitor, joystick,
                                             *m_notifications},
                                       folders);
    m_database = &ctx->database;
}

void TestContext::Restart()
{
    ctx.reset();
    MakeContext();
}
