#include "PolkitCheck.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QVariantMap>

namespace {

// polkit answers at once; this only bounds a polkit that hangs.
constexpr int kCallTimeoutMs = 10000;

// The caller as polkit names it: its unique name on the bus.
struct Subject {
    QString busName;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Subject& subject)
{
    argument.beginStructure();
    argument << QStringLiteral("system-bus-name")
             << QVariantMap{{QStringLiteral("name"), subject.busName}};
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Subject&)
{
    return argument;
}

} // namespace

Q_DECLARE_METATYPE(Subject)

PolkitCheck::PolkitCheck(const QDBusConnection& bus)
    : m_bus(bus)
{
    qDBusRegisterMetaType<Subject>();
    qDBusRegisterMetaType<QMap<QString, QString>>();
}

bool PolkitCheck::Allowed(const QString& busName, const QString& actionId) const
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.PolicyKit1"),
                                       QStringLiteral("/org/freedesktop/PolicyKit1/Authority"),
                                       QStringLiteral("org.freedesktop.PolicyKit1.Authority"),
                                       QStringLiteral("CheckAuthorization"));
    constexpr uint kNoInteraction = 0;
    call.setArguments({QVariant::fromValue(Subject{busName}), actionId,
                       QVariant::fromValue(QMap<QString, QString>()), kNoInteraction, QString()});
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, kCallTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return false;
    const QDBusArgument result = reply.arguments().constFirst().value<QDBusArgument>();
    bool authorized = false;
    result.beginStructure();
    result >> authorized;
    return authorized;
}
