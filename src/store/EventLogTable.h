#pragma once

#include <QString>
#include <QtGlobal>

// The event log's table, as the log writes it: the rows it holds, and one row more.
class EventLogTable {
public:
    virtual ~EventLogTable() = default;
    virtual int RowCount() = 0;
    virtual void Append(qint16 type, double dateAndTime, const QString& message,
                        const QString& details) = 0;
};
