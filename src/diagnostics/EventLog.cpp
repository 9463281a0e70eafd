#include "diagnostics/EventLog.h"

#include "common/Clock.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "diagnostics/clsError.h"
#include "store/EventLogTable.h"

#include <QCoreApplication>

Q_LOGGING_CATEGORY(lcEventLog, "nightreel.eventlog")

EventLog::EventLog(EventLogTable& table, clsError& error, const Clock& clock)
    : m_table(table)
    , m_error(error)
    , m_clock(clock)
{
}

void EventLog::LogEvent(qint16 type, const QString& message, const QString& details)
{
    if (type == EventInformation)
        qCInfo(lcEventLog).noquote() << message << '|' << details;
    else if (type == EventWarning)
        qCWarning(lcEventLog).noquote() << message << '|' << details;
    else
        qCCritical(lcEventLog).noquote() << message << '|' << details;
    try {
        const int count = m_table.RowCount();
        // Counted before the insert: the row that makes 951 does not yet fill the log.
        m_error.SetElogFull(count >= FullAt);
        if (count < LimitRows) {
            m_table.Append(type, m_clock.Now(), message, details);
            if (type != EventInformation)
                m_error.NewElogMsgAdded();
        }
    } catch (const std::exception& failure) {
        // A failure to log can't be logged: the diagnostic output has it, and the caller
        // goes on.
        qCCritical(lcEventLog).noquote() << "Not written to the event log:" << failure.what();
    }
    if (m_listener)
        m_listener(type, message, details);
}

QString EventLog::RuntimeErrorDetails(const QString& procedureName, const RuntimeError& error)
{
    return tr("Module: ") + procedureName + tr("\r\nError: ") + Text::Str(error.Number()) +
           QStringLiteral(", ") + error.Text();
}

void EventLog::LogRuntimeError(const QString& procedureName, const RuntimeError& error)
{
    LogEvent(EventError, tr("Nightreel 2000 Runtime Error"),
             RuntimeErrorDetails(procedureName, error));
}
