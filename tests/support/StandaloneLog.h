#pragma once

#include "TestClock.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/clsError.h"
#include "store/EventLogTable.h"

#include <QStringList>

// The event log without a database, for units that only write to it: the entries are kept
// in memory, one "type: message" line each.
struct StandaloneLog : EventLogTable {
    int RowCount() override { return int(entries.size()); }
    void Append(qint16 type, double, const QString& message, const QString&) override
    {
        entries << QString::number(type) + ": " + message;
    }

    QStringList entries;
    TestClock clock;
    clsError error;
    EventLog log{*this, error, clock};
};
