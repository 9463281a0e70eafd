#include "platform/NetworkManagerConnections.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMap>
#include <QVariantMap>

namespace {

const QString kService = QStringLiteral("org.freedesktop.NetworkManager");
const QString kManagerPath = QStringLiteral("/org/freedesktop/NetworkManager");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kActiveInterface = QStringLiteral("org.freedesktop.NetworkManager.Connection.Active");
const QString kSettingsInterface =
    QStringLiteral("org.freedesktop.NetworkManager.Settings.Connection");
// The service answers at once or not at all: the end of a recording isn't held up longer.
constexpr int kCallTimeoutMs = 5000;

using SettingsMap = QMap<QString, QVariantMap>;

// A connection of its own for each use: a bus that appears or goes away later is seen then,
// and a missing one costs nothing but the failed attempt.
class SystemBus {
public:
    SystemBus()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SystemBus, Name()))
    {
    }
    ~SystemBus() { QDBusConnection::disconnectFromBus(Name()); }
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    bool IsConnected() const { return m_bus.isConnected(); }

    // The reply's first value; invalid on any error.
    QVariant Call(const QString& path, const QString& interface, const QString& method,
                  const QVariantList& arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(kService, path, interface, method);
        message.setArguments(arguments);
        const QDBusMessage reply = m_bus.call(message, QDBus::Block, kCallTimeoutMs);
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return {};
        return reply.arguments().constFirst();
    }

    QVariant Property(const QString& path, const QString& interface, const QString& name)
    {
        const QVariant value = Call(path, kProperties, QStringLiteral("Get"), {interface, name});
        return value.value<QDBusVariant>().variant();
    }

private:
    static QString Name() { return QStringLiteral("nightreel-network"); }
    QDBusConnection m_bus;
};

QList<QDBusObjectPath> ObjectPaths(const QVariant& value)
{
    QList<QDBusObjectPath> paths;
    if (value.canConvert<QDBusArgument>())
        value.value<QDBusArgument>() >> paths;
    return paths;
}

QString BluetoothType(SystemBus& bus, const QVariant& settingsPath)
{
    const QString path = settingsPath.value<QDBusObjectPath>().path();
    const QVariant reply = bus.Call(path, kSettingsInterface, QStringLiteral("GetSettings"));
    SettingsMap settings;
    if (reply.canConvert<QDBusArgument>())
        reply.value<QDBusArgument>() >> settings;
    return settings.value(QStringLiteral("bluetooth")).value(QStringLiteral("type")).toString();
}

} // namespace

QList<ActiveConnection> NetworkManagerConnections::ActiveConnections()
{
    qDBusRegisterMetaType<SettingsMap>();
    QList<ActiveConnection> connections;
    SystemBus bus;
    if (!bus.IsConnected())
        return connections;
    const QVariant active =
        bus.Property(kManagerPath, kService, QStringLiteral("ActiveConnections"));
    for (const QDBusObjectPath& path : ObjectPaths(active)) {
        ActiveConnection connection;
        connection.handle = path.path();
        connection.type =
            bus.Property(connection.handle, kActiveInterface, QStringLiteral("Type")).toString();
        if (connection.type == QStringLiteral("bluetooth"))
            connection.bluetoothType =
                BluetoothType(bus, bus.Property(connection.handle, kActiveInterface,
                                                QStringLiteral("Connection")));
        connections.append(connection);
    }
    return connections;
}

void NetworkManagerConnections::Deactivate(const QString& handle)
{
    SystemBus bus;
    if (bus.IsConnected())
        bus.Call(kManagerPath, kService, QStringLiteral("DeactivateConnection"),
                 {QVariant::fromValue(QDBusObjectPath(handle))});
}
