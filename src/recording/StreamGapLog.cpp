#include "recording/StreamGapLog.h"

#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "recording/clsRecordingStatus.h"

#include <QDateTime>
#include <QLocale>

StreamGapLog::StreamGapLog(EventLog& log, const clsRecordingStatus& status, QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_status(status)
{
}

void StreamGapLog::StreamGap(qint32 milliseconds, const QString& start)
{
    Trap(m_log, "StreamGapLog StreamGap", [&] {
        const QDateTime at = QDateTime::fromString(start, Qt::ISODate);
        const QString when =
            at.isValid() ? QLocale::system().toString(at.time(), QLocale::LongFormat) : start;
        m_log.LogEvent(EventWarning, tr("Internet stream interrupted"),
                       tr("Recording: %1\r\nStream: %2\r\nThe stream was lost at %3 "
                          "for %4 seconds; the recording went on.")
                           .arg(m_status.Description, m_status.StreamUrl, when,
                                QString::number(milliseconds / 1000.0, 'f', 1)));
    });
}
