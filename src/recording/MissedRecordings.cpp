#include "recording/MissedRecordings.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "platform/SleepInhibitor.h"
#include "recording/clsRecordingStatus.h"
#include "scheduling/OccurrencesDue.h"
#include "store/Options.h"
#include "store/RegKeys.h"

#include <QCoreApplication>

namespace {

const QString kSection = QStringLiteral("Settings");
const QString kAliveKey = QStringLiteral("RecorderAliveTime");

QString LengthText(qint64 seconds)
{
    const qint64 minutes = (seconds + 30) / 60;
    if (minutes < 1)
        return QStringLiteral("%1 s").arg(seconds);
    if (minutes < 60)
        return QCoreApplication::translate("MissedRecordings", "%1 min").arg(minutes);
    return QCoreApplication::translate("MissedRecordings", "%1 h %2 min")
        .arg(QString::number(minutes / 60), QString::number(minutes % 60).rightJustified(2, u'0'));
}

// Midnight too is shown with its time.
QString DateTimeText(double date)
{
    return Options::DateText(AutomationDate::DatePart(date)) + u' ' +
           Options::TimeText(AutomationDate::TimePart(date));
}

} // namespace

MissedRecordings::MissedRecordings(const Clock& clock, EventLog& log, RegKeys& registry,
                                   Scheduler& scheduler, AppDatabase& database,
                                   const clsAppStatus& appStatus, const clsRecordingStatus& status,
                                   SleepInhibitor& inhibitor, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_log(log)
    , m_registry(registry)
    , m_scheduler(scheduler)
    , m_database(database)
    , m_appStatus(appStatus)
    , m_status(status)
{
    connect(&inhibitor, &SleepInhibitor::PrepareForSleep, this,
            &MissedRecordings::OnPrepareForSleep);
}

void MissedRecordings::CheckAtStart()
{
    InRoutine("MissedRecordings CheckAtStart", [&] {
        const double now = m_clock.Now();
        bool known = false;
        const double lastAlive =
            m_registry.GetSetting(kSection, kAliveKey, QString()).trimmed().toDouble(&known);
        // The very first start has nothing to look back on.
        if (known)
            Report(lastAlive, now, tr("the recorder was not running"));
        WriteAlive(now);
    });
}

void MissedRecordings::NoteAlive()
{
    const double now = m_clock.Now();
    // A clock set back writes at once, so that the stamp never lies ahead.
    if (!m_asleep && (now < m_lastAlive ||
                      AutomationDate::SecondsBetween(m_lastAlive, now) >= AliveEverySeconds))
        WriteAlive(now);
}

void MissedRecordings::NoteStopping()
{
    WriteAlive(m_clock.Now());
}

void MissedRecordings::WriteAlive(double now)
{
    m_lastAlive = now;
    m_registry.SaveSetting(kSection, kAliveKey, QString::number(now, 'f', 8));
}

void MissedRecordings::OnPrepareForSleep(bool start)
{
    Trap(m_log, "MissedRecordings OnPrepareForSleep", [&] {
        const double now = m_clock.Now();
        if (start) {
            WriteAlive(now);
            m_asleep = true;
            return;
        }
        if (!m_asleep)
            return;
        m_asleep = false;
        const double sleptFrom = m_lastAlive;
        // The task was frozen with the machine and goes on writing the same file.
        if (m_appStatus.Recording() && m_status.StartTime <= sleptFrom)
            m_log.LogEvent(EventWarning, tr("Gap in a recording: ") + m_status.Description,
                           tr("The computer was asleep for %1 during the recording "
                              "(from %2 to %3); the file goes on after the gap.")
                               .arg(LengthText(AutomationDate::SecondsBetween(sleptFrom, now)),
                                    Options::DateText(sleptFrom), Options::DateText(now)));
        Report(sleptFrom, now, tr("the computer was asleep"));
        WriteAlive(now);
    });
}

void MissedRecordings::Report(double from, double to, const QString& why)
{
    from = std::max(from, to - LookBackDays);
    if (!(to > from))
        return;
    struct Entry {
        QString message;
        QString details;
        bool late;
    };
    QList<Entry> entries;
    qsizetype missed = 0;
    for (const ProgramOccurrence& o : OccurrencesDue(m_scheduler, m_database, from, to)) {
        const QString due = o.description + tr(", due ") + DateTimeText(o.startDateTime);
        const QString id = tr("Program ID: ") + QString::number(o.programId);
        // One still running is started late by the heartbeat for what is left of it.
        if (o.endDateTime > to) {
            const qint64 gone = AutomationDate::SecondsBetween(o.startDateTime, to);
            entries.append({tr("Recording started late: %1, the first %2 missed (%3)")
                                .arg(due, LengthText(gone), why),
                            id, true});
        } else {
            entries.append({tr("Missed recording: %1 (%2)").arg(due, why), id, false});
            ++missed;
        }
    }
    QStringList lines;
    QStringList summed;
    for (const Entry& e : entries) {
        lines.append(e.message);
        if (missed > MostListed && !e.late)
            summed.append(e.message + QStringLiteral(", ") + e.details);
        else
            m_log.LogEvent(EventWarning, e.message, e.details);
    }
    if (!summed.isEmpty())
        m_log.LogEvent(EventWarning,
                       tr("Missed recordings: %1 recordings due from %2 to %3 were "
                          "not made (%4)")
                           .arg(QString::number(missed), DateTimeText(from), DateTimeText(to), why),
                       summed.join(QStringLiteral("\r\n")));
    if (!lines.isEmpty())
        emit RecordingsMissed(lines);
}
