#pragma once

#include <QDBusConnection>
#include <QString>

// Asks polkit whether the sender of a call on the bus may take an action. Never asks a
// person: a caller without the right is refused at once, so that a recorder left alone is
// never held up by a password prompt.
class PolkitCheck {
public:
    explicit PolkitCheck(const QDBusConnection& bus);

    bool Allowed(const QString& busName, const QString& actionId) const;

private:
    QDBusConnection m_bus;
};
