#pragma once

#include "platform/NetworkConnections.h"

// NetworkManager on the system bus.
class NetworkManagerConnections : public NetworkConnections {
public:
    QList<ActiveConnection> ActiveConnections() override;
    void Deactivate(const QString& handle) override;
};
