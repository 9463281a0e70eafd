#include "diagnostics/frmSysTray.h"

#include "diagnostics/SysTrayIcon.h"

#include <QAction>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QMenu>

namespace {

// Whether Qt puts the icon on a Status Notifier host: it does when the session bus has a
// watcher with a host registered, and embeds an icon window otherwise. Asked the way Qt
// asks it, at the moment the icon is made, so that both come to the same answer.
bool StatusNotifierHostRegistered()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(watcher))
        return false;
    QDBusMessage get = QDBusMessage::createMethodCall(
        watcher, QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    get << watcher << QStringLiteral("IsStatusNotifierHostRegistered");
    const QDBusReply<QDBusVariant> reply = bus.call(get, QDBus::Block, 2000);
    return reply.isValid() && reply.value().variant().toBool();
}

} // namespace

frmSysTray::frmSysTray(QObject* parent)
    : QObject(parent)
    , m_menu(std::make_unique<QMenu>(tr("&System Tray")))
{
    m_menu->setObjectName(QStringLiteral("mnuSystemTray"));
    const auto add = [this](const char* name, const QString& caption) {
        QAction* action = m_menu->addAction(caption);
        action->setObjectName(QString::fromLatin1(name));
        return action;
    };
    mnuRestore = add("mnuRestore", tr("Restore &Window"));
    m_menu->addSeparator();
    mnuSystrayDiskStatus = add("mnuSystrayDiskStatus", tr("&Disk Status"));
    mnuSystrayAbout = add("mnuSystrayAbout", tr("&About"));
    m_menu->addSeparator();
    mnuSystrayStopRecording = add("mnuSystrayStopRecording", tr("&Stop Current Recording"));
    mnuSystrayPauseRecording = add("mnuSystrayPauseRecording", tr("&Pause Recording"));
    mnuSystraySuspend = add("mnuSystraySuspend", tr("S&uspend"));
    mnuSystraySuspend->setCheckable(true);
    mnuExit = add("mnuExit", tr("E&xit"));
    // The window is on screen at the start; hiding it opens the way back.
    mnuRestore->setEnabled(false);
    mnuSystrayStopRecording->setEnabled(false);
    mnuSystrayPauseRecording->setEnabled(false);
}

frmSysTray::~frmSysTray() = default;

std::unique_ptr<cSysTray> frmSysTray::MakeIcon(EventLog& log, QWidget* owner)
{
    m_singleActivationRestores = StatusNotifierHostRegistered();
    auto icon = std::make_unique<SysTrayIcon>(log, owner, m_menu.get());
    connect(&icon->Icon(), &QSystemTrayIcon::activated, this, &frmSysTray::Activated);
    return icon;
}

void frmSysTray::Activated(QSystemTrayIcon::ActivationReason reason)
{
    // The context request needs nothing here: the menu belongs to the icon, and each kind
    // of notification area opens it in its own way. Nothing brings the main window forward
    // first: the menu closes by itself when the user clicks elsewhere.
    if (reason == QSystemTrayIcon::DoubleClick ||
        (reason == QSystemTrayIcon::Trigger && m_singleActivationRestores))
        emit RestoreRequested();
}
