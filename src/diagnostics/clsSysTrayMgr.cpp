#include "diagnostics/clsSysTrayMgr.h"

#include "common/clsAppStatus.h"
#include "diagnostics/Trap.h"
#include "diagnostics/clsError.h"

#include <QCoreApplication>

namespace {

struct Choice {
    QString tip;
    SysTrayPicture picture;
};

QString Tip(const char* state)
{
    return QCoreApplication::translate("clsSysTrayMgr", "Nightreel 2000 - ") +
           QCoreApplication::translate("clsSysTrayMgr", state);
}

} // namespace

clsSysTrayMgr::clsSysTrayMgr(EventLog& log, clsAppStatus& appStatus, clsError& error,
                             std::unique_ptr<cSysTray> tray, QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_appStatus(appStatus)
    , m_error(error)
    , m_tray(std::move(tray))
{
    InitializeSystemTray();
    connect(&m_appStatus, &clsAppStatus::Update, this, &clsSysTrayMgr::Update);
    connect(&m_error, &clsError::IndicationUpdated, this, &clsSysTrayMgr::Update);
    connect(&tmrSystray, &IntervalTimer::timeout, this, [this] {
        if (m_appStatus.Ready())
            HandleTimerEvent();
    });
}

clsSysTrayMgr::~clsSysTrayMgr() = default;

void clsSysTrayMgr::InitializeSystemTray()
{
    m_currentIcon = {SysTrayList::General, SysTrayPicture::Normal};
    m_currentTip = Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "STOPPED"));
    // No icon (no notification area) is no reason to stop: the status is not looked at.
    m_tray->Activate(m_currentIcon, m_currentTip, false);
    m_recordPhase = 1;
    m_convertPhase = 1;
}

void clsSysTrayMgr::HandleTimerEvent()
{
    Update();
    m_recordPhase = m_recordPhase % 16 + 1;
    m_convertPhase = m_convertPhase % 5 + 1;
}

void clsSysTrayMgr::Update()
{
    Trap(m_log, "System Tray Update", [&] {
        const clsAppStatus& s = m_appStatus;
        const bool even = BlinkOn();
        Choice c;
        // The first state that holds decides: a recording hides a current error until it
        // ends, as the picture shows one thing at a time.
        if (s.Suspended()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "SUSPENDED")),
                 {SysTrayList::General, SysTrayPicture::Suspended}};
        } else if (s.Recording() && s.Paused()) {
            const int picture = s.Playing() ? (even ? 3 : 4) : (even ? 1 : 2);
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "RECORDING PAUSED")),
                 {SysTrayList::Pause, picture}};
            emit PausedBlink(even);
        } else if (s.Recording() && s.Playing()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "PLAYING and RECORDING")),
                 {SysTrayList::RecordAndPlay, m_recordPhase}};
        } else if (s.Recording()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "RECORDING")),
                 {SysTrayList::Record, m_recordPhase}};
        } else if (s.Converting() && s.Playing()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "PLAYING & CONVERTING TO MP3")),
                 {SysTrayList::ConvertAndPlay, m_convertPhase}};
        } else if (s.Converting()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "CONVERTING TO MP3")),
                 {SysTrayList::Convert, m_convertPhase}};
        } else if (s.Playing()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "PLAYING")),
                 {SysTrayList::General, SysTrayPicture::Play}};
        } else if (m_error.AnyCurrentErrorsOrWarnings()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "Errors or warnings are present.")),
                 {SysTrayList::General, SysTrayPicture::Error}};
        } else if (m_error.NumUnviewedElogErrors() == 1) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "Error occurred, check the error log")),
                 {SysTrayList::General, SysTrayPicture::Error}};
        } else if (m_error.UnviewedElogErrors()) {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "Errors occurred, check the error log")),
                 {SysTrayList::General, SysTrayPicture::Error}};
        } else {
            c = {Tip(QT_TRANSLATE_NOOP("clsSysTrayMgr", "STOPPED")),
                 {SysTrayList::General, SysTrayPicture::Normal}};
        }

        if (c.picture == m_currentIcon) {
            if (c.tip != m_currentTip) {
                m_currentTip = c.tip;
                m_tray->ChangeSystemTrayTip(c.tip);
            }
        } else {
            m_currentIcon = c.picture;
            m_currentTip = c.tip;
            m_tray->ChangeSystemTrayIcon(c.picture, c.tip);
        }
    });
}
