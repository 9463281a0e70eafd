#include "recording/SilenceAlarm.h"

#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "diagnostics/clsError.h"
#include "recording/clsRecordingStatus.h"
#include "taskcontract/TaskProtocol.h"

SilenceAlarm::SilenceAlarm(EventLog& log, clsError& error, const clsRecordingStatus& status,
                           QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_error(error)
    , m_status(status)
{
}

QString SilenceAlarm::Details(qint32 level, const QString& source) const
{
    const QString levelText = level == TaskProtocol::NoSignalLevel
                                  ? tr("no signal at all")
                                  : QString::number(level / 10.0, 'f', 1) + tr(" dBFS");
    return tr("Recording: ") + m_status.Description + tr("\r\nSource: ") + source +
           tr("\r\nPeak level: ") + levelText;
}

void SilenceAlarm::InputSilent(qint32 level, const QString& source)
{
    Trap(m_log, "SilenceAlarm InputSilent", [&] {
        if (m_silent)
            return;
        m_silent = true;
        m_log.LogEvent(EventWarning, tr("Recording is silent"), Details(level, source));
        m_error.SetRecordingSilent(true);
    });
}

void SilenceAlarm::SoundReturned(qint32 level, const QString& source)
{
    Trap(m_log, "SilenceAlarm SoundReturned", [&] {
        if (!m_silent)
            return;
        m_silent = false;
        m_log.LogEvent(EventInformation, tr("Recording has sound again"), Details(level, source));
        m_error.SetRecordingSilent(false);
    });
}

void SilenceAlarm::Reset()
{
    m_silent = false;
    if (m_error.RecordingSilent())
        m_error.SetRecordingSilent(false);
}
