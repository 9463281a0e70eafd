#include "diagnostics/EventLog.h"

#include "common/Clock.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "diagnostics/clsError.h"
#include "store/AppDatabase.h"

#include <QCoreApplication>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcEventLog, "nightreel.eventlog")

EventLog::EventLog(AppDatabase& database, clsError& error, const Clock& clock)
    : m_database(database)
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
        Recordset& rs = m_database.ElogRecordset();
        const int count = CountEventLogRows();
        // Counted before the insert: the row that makes 951 does not yet fill the log.
        m_error.SetElogFull(count >= FullAt);
        if (count < LimitRows) {
            rs.AddNew();
            rs.SetValue(QStringLiteral("Type"), type);
            rs.SetValue(QStringLiteral("DateAndTime"), m_clock.Now());
            rs.SetValue(QStringLiteral("Message"), message);
            rs.SetValue(QStringLiteral("Details"), details);
            rs.Update();
            if (type != EventInformation)
                m_error.NewElogMsgAdded();
        }
    } catch (const std::exception&) {
        // A failure to log can't be logged; the caller goes on.
    }
    if (m_listener)
        m_listener(type, message, details);
}

int EventLog::CountEventLogRows()
{
    Recordset clone = m_database.ElogRecordset().Clone();
    if (clone.IsEOF())
        return 0;
    clone.MoveLast();
    return clone.RecordCount();
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
