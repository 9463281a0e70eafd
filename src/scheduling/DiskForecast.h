#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QtGlobal>

class Clock;
class Scheduler;

// One coming recording and the space the recording folder will have left after it.
struct DiskForecastRow {
    QString description;
    double startTime = 0.0;
    double endTime = 0.0;
    qint32 remainingMbytes = 0;
};

// If the coming programs record as scheduled, how much space is left after each? The rows
// are worked out anew on every call by chaining the read-only next-program search, each
// time from the end of the occurrence found last; nothing in the program list changes.
class DiskForecast {
public:
    static constexpr int MaxRows = 101;
    static QString TruncatedMark()
    {
        return QCoreApplication::translate("DiskForecast", "  **TRUNCATED**");
    }

    DiskForecast(const Clock& clock, Scheduler& scheduler);

    // The rows from now on, starting from freeMbytes and ending at the first of: no
    // occurrence left, MaxRows rows, or a row that takes the space down to stopMbytes. That
    // last row shows stopMbytes and is marked truncated. Each occurrence is charged in full
    // at its program's byte rate, even one already running, with paddingSeconds at each end.
    QList<DiskForecastRow> Rows(double freeMbytes, qint16 stopMbytes,
                                qint16 paddingSeconds = 0) const;

private:
    const Clock& m_clock;
    Scheduler& m_scheduler;
};
