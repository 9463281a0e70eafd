#pragma once

#include "TestClock.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/clsError.h"
#include "store/EventLogTable.h"

#include <QList>
#include <QStringList>

// One row of the event log.
struct LogEntry {
    int type;
    QString message;
    QString details;
};

// The messages of log entries, in order.
inline QStringList MessagesOf(const QList<LogEntry>& entries)
{
    QStringList messages;
    for (const LogEntry& e : entries)
        messages << e.message;
    return messages;
}

// The event log over a table in memory, for a unit that needs the log and nothing else of
// the program.
struct MemoryLog : EventLogTable {
    int RowCount() override { return int(entries.size()); }
    void Append(qint16 type, double, const QString& message, const QString& details) override
    {
        entries.append({type, message, details});
    }
    QStringList Messages() const { return MessagesOf(entries); }

    QList<LogEntry> entries;
    TestClock clock;
    clsError error;
    EventLog log{*this, error, clock};
};
