#pragma once

#include <QList>
#include <QString>

// One connection that the network service reports as active.
struct ActiveConnection {
    // Names the connection to deactivate.
    QString handle;
    // The kind of the connection's settings: "gsm", "cdma", "pppoe", "adsl", "bluetooth",
    // "802-3-ethernet", "802-11-wireless", "vpn"...
    QString type;
    // For a bluetooth connection, its profile: "dun" (dial-up) or "panu" (a network).
    QString bluetoothType;
};

// The machine's network connections, as the dial-up hang-up needs them. Without a network
// service there are none, and nothing is said about it.
class NetworkConnections {
public:
    virtual ~NetworkConnections() = default;
    // In the order the service reports them.
    virtual QList<ActiveConnection> ActiveConnections() = 0;
    // Takes the connection down; failures are not told.
    virtual void Deactivate(const QString& handle) = 0;
};
