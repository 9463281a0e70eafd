#pragma once

#include <QObject>
#include <QSystemTrayIcon>
#include <memory>

class EventLog;
class QAction;
class QMenu;
class QWidget;
class cSysTray;

// The tray icon's side of the user interface: its menu, and what a click on the icon does.
// A double click restores the main window and the context request opens the menu. Status
// Notifier hosts (most desktops today) report no double click, only an activation: there
// one activation restores the window, so that the same gesture that opens the window on
// other desktops does so there too.
class frmSysTray : public QObject {
    Q_OBJECT
public:
    explicit frmSysTray(QObject* parent = nullptr);
    ~frmSysTray() override;

    // The icon, with this menu and its clicks coming here; for the tray manager to own.
    std::unique_ptr<cSysTray> MakeIcon(EventLog& log, QWidget* owner);

    // The menu "&System Tray" and its seven items, in their order.
    QMenu* mnuSystemTray() const { return m_menu.get(); }
    QAction* mnuRestore = nullptr;
    QAction* mnuSystrayDiskStatus = nullptr;
    QAction* mnuSystrayAbout = nullptr;
    QAction* mnuSystrayStopRecording = nullptr;
    QAction* mnuSystrayPauseRecording = nullptr;
    QAction* mnuSystraySuspend = nullptr;
    QAction* mnuExit = nullptr;

    // Whether the icon went to a Status Notifier host, where one activation restores.
    bool SingleActivationRestores() const { return m_singleActivationRestores; }

signals:
    // A double click on the icon, or the one activation of a Status Notifier host.
    void RestoreRequested();

private:
    void Activated(QSystemTrayIcon::ActivationReason reason);

    std::unique_ptr<QMenu> m_menu;
    bool m_singleActivationRestores = false;
};
