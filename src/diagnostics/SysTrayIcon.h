#pragma once

#include "diagnostics/cSysTray.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSystemTrayIcon>

class EventLog;
class QMenu;
class QWidget;

// The icon in the desktop's notification area, through Qt: a Status Notifier item where
// the session has a host for one, an embedded window (XEmbed) otherwise. Where there is no
// notification area yet the icon is kept all the same and comes up when one appears: the
// operations then say Refused.
class SysTrayIcon : public cSysTray {
public:
    // owner: the window that Activate may hide; menu: the icon's context menu.
    SysTrayIcon(EventLog& log, QWidget* owner, QMenu* menu);
    ~SysTrayIcon() override;

    int Activate(const SysTrayPicture& picture, const QString& tip, bool hideForm) override;
    int ChangeSystemTrayIcon(const SysTrayPicture& picture, const QString& tip) override;
    int ChangeSystemTrayTip(const QString& tip) override;
    int Delete() override;

    // Where the user's clicks on the icon are heard.
    QSystemTrayIcon& Icon() { return m_icon; }

    // Whether the desktop has a notification area now. Without one a hidden window could
    // not be found again, so the window is minimised to the task bar instead.
    static bool Available() { return QSystemTrayIcon::isSystemTrayAvailable(); }
    // Why nothing is hidden in the tray, for the log and the forms' tips.
    static QString MissingNote()
    {
        return QCoreApplication::translate(
            "SysTrayIcon", "This desktop has no notification area (system tray) to hide "
                           "Nightreel 2000 in: the window is minimised to the task bar "
                           "instead, and a hidden start starts minimised.");
    }

private:
    int Shown() const;

    EventLog& m_log;
    QPointer<QWidget> m_owner;
    QSystemTrayIcon m_icon;
    bool m_active = false;
};
