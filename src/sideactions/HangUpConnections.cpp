#include "sideactions/HangUpConnections.h"

#include "platform/NetworkConnections.h"

#include <QSet>

bool IsDialUpConnection(const ActiveConnection& connection)
{
    static const QSet<QString> lines{QStringLiteral("gsm"), QStringLiteral("cdma"),
                                     QStringLiteral("pppoe"), QStringLiteral("adsl")};
    if (lines.contains(connection.type))
        return true;
    return connection.type == QStringLiteral("bluetooth") &&
           connection.bluetoothType == QStringLiteral("dun");
}

void HangUpConnections(NetworkConnections& network)
{
    for (const ActiveConnection& connection : network.ActiveConnections())
        if (IsDialUpConnection(connection))
            network.Deactivate(connection.handle);
}
