#pragma once

class NetworkConnections;
struct ActiveConnection;

// Whether a connection goes over a dial-up line: a mobile modem (gsm, cdma), DSL (pppoe,
// adsl) or a phone's dial-up profile over bluetooth. A network (Ethernet, Wi-Fi, a phone's
// bluetooth network) is no line to hang up, and a VPN runs over some other connection.
bool IsDialUpConnection(const ActiveConnection& connection);

// Takes down every active dial-up connection, in the order they are reported, whatever its
// name. Nothing is reported: without a network service nothing happens.
void HangUpConnections(NetworkConnections& network);
