#include "tray/SysTrayIcon.h"

#include "diagnostics/Trap.h"
#include "tray/SysTrayPictures.h"

#include <QMenu>
#include <QWidget>

SysTrayIcon::SysTrayIcon(EventLog& log, QWidget* owner, QMenu* menu)
    : m_log(log)
    , m_owner(owner)
{
    m_icon.setContextMenu(menu);
}

SysTrayIcon::~SysTrayIcon()
{
    Trap(m_log, "System Tray Class_Terminate", [&] {
        if (m_active)
            Delete();
    });
}

int SysTrayIcon::Shown() const
{
    return Available() ? Done : Refused;
}

int SysTrayIcon::Activate(const SysTrayPicture& picture, const QString& tip, bool hideForm)
{
    if (m_active)
        return AlreadyActive;
    if (hideForm && m_owner)
        m_owner->hide();
    m_icon.setIcon(SysTrayPictures::Icon(picture));
    m_icon.setToolTip(CutTip(tip));
    m_icon.show();
    m_active = true;
    return Shown();
}

int SysTrayIcon::ChangeSystemTrayIcon(const SysTrayPicture& picture, const QString& tip)
{
    if (!m_active)
        return NotActive;
    m_icon.setIcon(SysTrayPictures::Icon(picture));
    if (!tip.isEmpty())
        m_icon.setToolTip(CutTip(tip));
    return Shown();
}

int SysTrayIcon::ChangeSystemTrayTip(const QString& tip)
{
    if (!m_active)
        return NotActive;
    m_icon.setToolTip(CutTip(tip));
    return Shown();
}

int SysTrayIcon::Delete()
{
    if (!m_active)
        return NotActiveToDelete;
    m_icon.hide();
    m_active = false;
    return Done;
}
