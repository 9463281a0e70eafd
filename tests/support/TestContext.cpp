#include "TestContext.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSqlQuery>

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
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.path() + "/config");
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir.path() + "/config");
    AppFolders::Under(m_dir.path()).InstallDatabaseOnFirstRun();
    QDir().mkpath(JoystickFolder());
    joystick.Watch(JoystickFolder());
    MakeContext();
}

void TestContext::MakeContext()
{
    ctx = std::make_unique<AppContext>(Seams{clock, messageBox, launcher, audioDevices, diskSpace,
                                             mixer, windows, network, sleepInhibitor, joystick,
                                             *m_notifications},
                                       AppFolders::Under(m_dir.path()));
}

void TestContext::Restart()
{
    ctx.reset();
    MakeContext();
}

QString TestContext::SettingsFile() const
{
    return m_dir.path() + "/config/Larkmoor Systems/Nightreel.conf";
}

void TestContext::OpenDatabase()
{
    ctx->InitializeDatabase();
}

qint64 TestContext::AddProgram(const QVariantHash& columns)
{
    Recordset rs = ctx->database.DataPrograms.recordset();
    rs.AddNew();
    for (auto it = columns.cbegin(); it != columns.cend(); ++it)
        rs.SetValue(it.key(), it.value());
    rs.Update();
    return rs.LastModified();
}

QList<LogEntry> TestContext::LogEntries() const
{
    QList<LogEntry> entries;
    QSqlQuery q(ctx->database.db.Connection());
    q.exec("SELECT Type, Message, Details FROM EventLog ORDER BY ID");
    while (q.next())
        entries.append({q.value(0).toInt(), q.value(1).toString(), q.value(2).toString()});
    return entries;
}

int TestContext::CountRows(const QString& table) const
{
    QSqlQuery q(ctx->database.db.Connection());
    q.exec("SELECT count(*) FROM [" + table + "]");
    return q.next() ? q.value(0).toInt() : -1;
}
