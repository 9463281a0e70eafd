#include "SoakRun.h"

#include "Programs.h"
#include "TestContext.h"
#include "recording/Recorder.h"
#include "recording/RecorderParts.h"
#include "scheduling/Scheduler.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTimeZone>
#include <algorithm>
#include <ctime>
#include <vector>

namespace {

constexpr double kSecond = 1.0 / 86400.0;
// The heartbeat's own interval near anything that happens, and a step well below what the
// heartbeat takes for a clock that was set elsewhere.
constexpr qint64 kFineStepMs = 250;
constexpr qint64 kCoarseStepMs = 20000;
// Fine steps this close to a start, an end, an edit or a jump: covers the search 90 seconds
// before a recording's end.
constexpr double kFineSpan = 100 * kSecond;
// The stand-in's file: enough for the recording to count as written.
constexpr int kFileBytes = 4096;

// The programs. days: seven "0"/"1" from Sunday; none for a one-time program on oneTimeDay.
struct ProgramEntry {
    const char* name;
    const char* days;
    const char* oneTimeDay;
    const char* start;
    const char* end;
    bool enabled;
};

const ProgramEntry kPrograms[] = {
    {"Early news", "1111111", nullptr, "06:00", "06:30", true},
    {"Morning show", "1111111", nullptr, "07:00", "08:00", true},
    // Inside the morning show on weekdays: it never gets its turn.
    {"Traffic", "0111110", nullptr, "07:15", "07:45", true},
    {"Monday start", "0100000", nullptr, "08:00", "08:20", true},
    {"Market report", "0111110", nullptr, "08:30", "08:45", true},
    {"Block A", "1111111", nullptr, "09:00", "10:00", true},
    {"Block B", "1111111", nullptr, "10:00", "11:00", true},
    // Starts late, when block B ends; the brunch after it waits for it in turn.
    {"Sunday service", "1000000", nullptr, "10:30", "11:30", true},
    {"Weekend brunch", "1000001", nullptr, "11:00", "11:45", true},
    {"Lunch concert", "0000001", nullptr, "12:00", "13:30", true},
    {"Midday", "0111110", nullptr, "12:05", "12:35", true},
    {"Afternoon drama", "0010100", nullptr, "14:00", "15:00", true},
    {"Saturday sports", "0000001", nullptr, "14:00", "15:30", true},
    {"Weekday three", "0111110", nullptr, "15:00", "15:20", true},
    {"Tea time", "1111111", nullptr, "16:00", "16:10", true},
    {"Friday mix", "0000010", nullptr, "16:30", "17:00", true},
    {"Moved show", "1111111", nullptr, "17:00", "17:30", true},
    {"Evening news", "1111111", nullptr, "18:00", "19:00", true},
    {"Evening talk", "0111110", nullptr, "18:30", "19:30", true},
    {"Paused series", "0111111", nullptr, "19:30", "19:45", true},
    {"New series", "0111110", nullptr, "20:30", "21:00", false},
    {"Jazz hour", "0000011", nullptr, "21:00", "22:00", true},
    {"Wednesday ten", "0001000", nullptr, "22:00", "22:50", true},
    // Over midnight, and the programs that wait for them.
    {"Late movie", "0000011", nullptr, "22:30", "00:30", true},
    {"Night owl", "1111100", nullptr, "23:00", "23:30", true},
    {"Thursday late", "0000100", nullptr, "23:30", "00:15", true},
    {"Saturday night", "0000001", nullptr, "23:00", "01:00", true},
    {"Sunday early", "1000000", nullptr, "00:30", "01:15", true},
    // The summer-time nights: the hour from two to three is skipped in March and comes
    // twice in October.
    {"Into the gap", "1000000", nullptr, "01:40", "02:10", true},
    {"Small hours", "1000000", nullptr, "02:15", "02:40", true},
    {"Three o'clock", "1111111", nullptr, "03:00", "03:20", true},
    // Sunday afternoons and evenings of the changes, where the clock is set by hand.
    {"Sunday matinee", "1000000", nullptr, "13:15", "13:45", true},
    {"Skipped by the clock", "1000000", nullptr, "14:20", "14:40", true},
    {"Sunday evening", "1000000", nullptr, "19:20", "20:10", true},
    {"After the jump", "1000000", nullptr, "20:20", "20:40", true},
    {"Weekend dawn", "1000001", nullptr, "05:40", "05:55", true},
    {"Stopped series", "1111111", nullptr, "04:00", "04:15", true},
    {"Moved into now", "0111110", nullptr, "06:40", "06:50", true},
    {"Days changed", "0101010", nullptr, "13:00", "13:20", true},
    {"Disabled weekly", "1111111", nullptr, "05:00", "05:30", false},
    {"Disabled one-time", nullptr, "2026-03-22", "05:00", "05:30", false},
    {"One-time first day", nullptr, "2026-03-21", "15:30", "16:00", true},
    {"One-time over midnight", nullptr, "2026-03-24", "23:45", "00:15", true},
    {"Skipped hour one-time", nullptr, "2026-03-29", "02:05", "02:55", true},
    {"Late by the gap", nullptr, "2026-03-29", "02:50", "03:10", true},
    {"Summer one-time", nullptr, "2026-06-15", "10:00", "11:00", true},
    {"October one-time", nullptr, "2026-10-17", "13:40", "13:55", true},
    {"Repeated hour one-time", nullptr, "2026-10-25", "02:42", "02:48", true},
    {"Set forward one-time", nullptr, "2026-10-25", "20:30", "20:45", true},
    {"Last Friday one-time", nullptr, "2026-10-30", "16:15", "16:25", true},
};

// Changes of the list while the recorder runs, as the program list makes them.
struct EditEntry {
    const char* at;
    const char* program;
    int enabled; // -1 keeps it
    const char* days;
    const char* start;
    const char* end;
};

const EditEntry kEdits[] = {
    {"2026-03-25 12:00", "Paused series", 0, nullptr, nullptr, nullptr},
    {"2026-03-26 12:00", "New series", 1, nullptr, nullptr, nullptr},
    {"2026-03-28 12:00", "Moved show", -1, nullptr, "17:10", "17:50"},
    {"2026-10-19 12:00", "Days changed", -1, "0010100", nullptr, nullptr},
    {"2026-10-20 12:00", "Paused series", 1, nullptr, nullptr, nullptr},
    // Into a window that is open at the moment of the edit: recorded late, from now.
    {"2026-10-21 12:00", "Moved into now", -1, nullptr, "11:30", "12:30"},
    {"2026-10-22 12:00", "Stopped series", 0, nullptr, nullptr, nullptr},
};

// The user sets the clock by an hour; each day's two jumps cancel out.
struct JumpEntry {
    const char* at;
    int seconds;
};

const JumpEntry kJumps[] = {
    {"2026-03-29 14:00", 3600},
    {"2026-03-29 20:00", -3600},
    {"2026-10-25 14:00", -3600},
    {"2026-10-25 20:00", 3600},
};

double LocalAt(const char* text)
{
    return AutomationDate::FromDateTime(QDateTime::fromString(text, "yyyy-MM-dd HH:mm"));
}

double TimeOfDay(const QString& hhmm)
{
    return Programs::TimeOfDay(hhmm + ":00");
}

// The wall time the date names, also inside the hour skipped in spring (which no local time
// shows): counted from the epoch in UTC, where no hour is skipped.
QString Stamp(double date, const char* format = "yyyy-MM-dd HH:mm")
{
    const QDateTime epoch(QDate(1899, 12, 30), QTime(0, 0), QTimeZone::utc());
    return epoch.addSecs(qRound64(date * 86400.0)).toString(format);
}

// One state of a program's row: as created, or as an edit left it, for local times from
// `from` up to `to`.
struct Version {
    bool enabled = true;
    QString days;
    QDate oneTimeDay;
    QString start;
    QString end;
    double from = 0.0;
    double to = 1e9;
};

struct Program {
    QString name;
    qint64 id = 0;
    std::vector<Version> versions;
    int current = 0;
};

struct Occurrence {
    int program = 0;
    int version = 0;
    double start = 0.0;
    double end = 0.0;
    bool oneTime = false;
    // Starts the rules give, and starts that reached the task.
    int expected = 0;
    int actual = 0;
    // The clock read a moment of its window while it was in the list.
    bool visited = false;
    QString busyWith;
    QString backJump;
};

// A place where the clock reading was not continuous.
struct Jump {
    double from;
    double to;
    QString cause;
};

QVariantHash Row(const QString& name, const Version& v)
{
    QVariantHash row = v.days.isEmpty()
                           ? Programs::OneTime(name, AutomationDate::FromDate(v.oneTimeDay),
                                               v.start + ":00", v.end + ":00")
                           : Programs::Weekly(name, v.start + ":00", v.end + ":00", v.days);
    row = Programs::WithPcmFormat(row);
    row["Enabled"] = v.enabled ? -1 : 0;
    row["DescriptionText"] = v.enabled ? name : name.left(25) + "   **DISABLED** ";
    return row;
}

// The occurrences of one version whose windows touch [from, to) of local time.
void Walk(const Program& p, int version, int programIndex, double from, double to,
          std::vector<Occurrence>& out)
{
    const Version& v = p.versions[version];
    if (!v.enabled)
        return;
    const double startTime = TimeOfDay(v.start);
    const double endTime = TimeOfDay(v.end);
    const QDate first = AutomationDate::ToDateTime(from).date().addDays(-1);
    const QDate last = AutomationDate::ToDateTime(to).date();
    for (QDate day = first; day <= last; day = day.addDays(1)) {
        const bool runs =
            v.days.isEmpty() ? day == v.oneTimeDay : v.days.at(day.dayOfWeek() % 7) == u'1';
        if (!runs)
            continue;
        Occurrence o;
        o.program = programIndex;
        o.version = version;
        o.oneTime = v.days.isEmpty();
        o.start = AutomationDate::FromDate(day) + startTime;
        o.end = AutomationDate::FromDate(day) + endTime + (startTime > endTime ? 1.0 : 0.0);
        if (o.end > from && o.start < to && o.end > v.from && o.start < v.to)
            out.push_back(o);
    }
}

qint64 RssKb()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    }
    return 0;
}

class Soak {
public:
    explicit Soak(const SoakOptions& options);
    SoakReport Run();

private:
    void SetUpPrograms();
    void WalkOccurrences();
    std::vector<double> Boundaries() const;
    bool NearBoundary(double reading) const;
    double Reading(qint64 utcMs);
    void ApplyEdits(double reading);
    void NoteJump(double previous, double reading, int previousOffset, int offset);
    void ModelTick(double reading);
    void SystemTick();
    void ReadTaskLog(double reading);
    qint64 Outage(qint64 utc);
    void Judge();
    void JudgeMissed();

    const SoakOptions m_options;
    const QList<SoakStretch>& m_stretches = m_options.stretches;
    TestContext m_tc;
    std::vector<Program> m_programs;
    std::vector<Occurrence> m_occurrences;
    std::vector<double> m_boundaries;
    std::vector<double> m_stretchEnds;
    std::vector<Jump> m_jumps;
    // The outages taken so far; their cause is the reason the log gives.
    std::vector<Jump> m_outages;
    std::vector<bool> m_jumpDone;
    std::vector<bool> m_editDone;
    double m_offsetDays = 0.0;
    Occurrence* m_busy = nullptr;
    QString m_lastBackJump;
    QString m_taskLog;
    qint64 m_taskLogRead = 0;
    SoakReport m_report;
};

Soak::Soak(const SoakOptions& options)
    : m_options(options)
{
    m_tc.OpenDatabase();
    AppContext& ctx = *m_tc.ctx;
    m_taskLog = m_tc.Root() + "/task.log";
    qputenv("NIGHTREEL_FAKE_PLAN", QByteArray("write=") + QByteArray::number(kFileBytes));
    qputenv("NIGHTREEL_FAKE_LOG", m_taskLog.toUtf8());
    ctx.recorder.SetTaskProgram(options.taskProgram);
    ctx.options.DefaultRecordingDirectory = m_tc.Root() + "/recordings";
    QDir().mkpath(ctx.options.DefaultRecordingDirectory);
    ctx.appStatus.SetReady(true);
    SetUpPrograms();
    WalkOccurrences();
    m_boundaries = Boundaries();
}

void Soak::SetUpPrograms()
{
    for (const ProgramEntry& entry : kPrograms) {
        Program p;
        p.name = entry.name;
        Version v;
        v.enabled = entry.enabled;
        v.days = entry.days ? QString(entry.days) : QString();
        v.oneTimeDay =
            entry.oneTimeDay ? QDate::fromString(entry.oneTimeDay, Qt::ISODate) : QDate();
        v.start = entry.start;
        v.end = entry.end;
        p.versions.push_back(v);
        for (const EditEntry& edit : kEdits) {
            if (p.name != edit.program)
                continue;
            Version next = p.versions.back();
            next.from = LocalAt(edit.at);
            p.versions.back().to = next.from;
            if (edit.enabled >= 0)
                next.enabled = edit.enabled == 1;
            if (edit.days)
                next.days = edit.days;
            if (edit.start)
                next.start = edit.start;
            if (edit.end)
                next.end = edit.end;
            p.versions.push_back(next);
        }
        p.id = m_tc.AddProgram(Row(p.name, p.versions.front()));
        m_programs.push_back(p);
    }
    m_editDone.assign(std::size(kEdits), false);
    m_jumpDone.assign(std::size(kJumps), false);
}

void Soak::WalkOccurrences()
{
    for (const SoakStretch& s : m_stretches) {
        const double from = AutomationDate::FromDate(s.firstDay);
        const double to = from + s.days;
        m_stretchEnds.push_back(to);
        for (int p = 0; p < int(m_programs.size()); ++p) {
            for (int v = 0; v < int(m_programs[p].versions.size()); ++v)
                Walk(m_programs[p], v, p, from, to, m_occurrences);
        }
    }
    // Stretches that meet would give an occurrence twice.
    std::sort(m_occurrences.begin(), m_occurrences.end(), [](const auto& a, const auto& b) {
        return std::tie(a.start, a.program, a.version) < std::tie(b.start, b.program, b.version);
    });
    m_occurrences.erase(std::unique(m_occurrences.begin(), m_occurrences.end(),
                                    [](const auto& a, const auto& b) {
                                        return a.start == b.start && a.program == b.program &&
                                               a.version == b.version;
                                    }),
                        m_occurrences.end());
    m_report.occurrencesDue = int(m_occurrences.size());
}

std::vector<double> Soak::Boundaries() const
{
    std::vector<double> b;
    for (const Occurrence& o : m_occurrences) {
        b.push_back(o.start);
        b.push_back(o.end);
    }
    for (const EditEntry& e : kEdits)
        b.push_back(LocalAt(e.at));
    for (const JumpEntry& j : kJumps) {
        b.push_back(LocalAt(j.at));
        b.push_back(LocalAt(j.at) + j.seconds * kSecond);
    }
    // The summer-time changes of the stretches' days, at two and three o'clock.
    for (const SoakStretch& s : m_stretches) {
        for (int d = 0; d < s.days; ++d) {
            const double day = AutomationDate::FromDate(s.firstDay.addDays(d));
            b.push_back(day + 2.0 / 24);
            b.push_back(day + 3.0 / 24);
        }
    }
    std::sort(b.begin(), b.end());
    return b;
}

bool Soak::NearBoundary(double reading) const
{
    const auto it = std::lower_bound(m_boundaries.begin(), m_boundaries.end(), reading - kFineSpan);
    return it != m_boundaries.end() && *it <= reading + kFineSpan;
}

double Soak::Reading(qint64 utcMs)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(utcMs, QTimeZone::utc()).toLocalTime();
    double reading = AutomationDate::FromDateTime(local) + m_offsetDays;
    for (size_t j = 0; j < std::size(kJumps); ++j) {
        if (!m_jumpDone[j] && reading >= LocalAt(kJumps[j].at)) {
            m_jumpDone[j] = true;
            m_offsetDays += kJumps[j].seconds * kSecond;
            reading += kJumps[j].seconds * kSecond;
        }
    }
    return reading;
}

void Soak::ApplyEdits(double reading)
{
    for (size_t e = 0; e < std::size(kEdits); ++e) {
        if (m_editDone[e] || reading < LocalAt(kEdits[e].at))
            continue;
        m_editDone[e] = true;
        for (Program& p : m_programs) {
            if (p.name != kEdits[e].program)
                continue;
            ++p.current;
            // What saving the program in the editor or toggling it writes, then the new
            // search that the program list asks for.
            Recordset rs = m_tc.ctx->database.DataPrograms.recordset();
            rs.FindFirst("Id = " + QString::number(p.id));
            rs.Edit();
            const QVariantHash row = Row(p.name, p.versions[p.current]);
            for (auto it = row.cbegin(); it != row.cend(); ++it)
                rs.SetValue(it.key(), it.value());
            rs.Update();
            m_tc.ctx->scheduler.ScheduleNextRecording();
        }
    }
}

void Soak::NoteJump(double previous, double reading, int previousOffset, int offset)
{
    const QString from = Stamp(previous), to = Stamp(reading);
    QString cause;
    if (previousOffset != offset)
        cause = offset > previousOffset ? "summer time begins" : "summer time ends";
    else if (std::abs(reading - previous - 1.0 / 24) < kSecond)
        cause = "clock set forward by an hour";
    else if (std::abs(previous - reading - 1.0 / 24) < kSecond)
        cause = "clock set back by an hour";
    else
        cause = "the run goes on at its next stretch of days";
    m_jumps.push_back({previous, reading, QString("from %1 to %2 (%3)").arg(from, to, cause)});
    if (reading < previous)
        m_lastBackJump = m_jumps.back().cause;
}

// The rules as the recorder is to follow them, kept apart from its code: a recording stops at
// the first tick after its end; an idle recorder starts, from the occurrences in the list
// whose window holds the reading, the one that began first; a weekly occurrence whose
// recording is over starts again if the clock comes back into its window (its cancellation
// lapsed at the stop), while a one-time program has left the list.
void Soak::ModelTick(double reading)
{
    // A stop ends its tick; the next start comes at the following one.
    const bool stopped = m_busy && reading > m_busy->end;
    if (stopped)
        m_busy = nullptr;
    Occurrence* first = nullptr;
    auto it = std::lower_bound(m_occurrences.begin(), m_occurrences.end(), reading - 1.0,
                               [](const Occurrence& o, double t) { return o.start < t; });
    for (; it != m_occurrences.end() && it->start <= reading; ++it) {
        Occurrence& o = *it;
        const Program& p = m_programs[o.program];
        if (reading >= o.end || p.current != o.version || (o.oneTime && o.expected > 0))
            continue;
        o.visited = true;
        if (m_busy && m_busy != &o)
            o.busyWith = m_programs[m_busy->program].name;
        if (!first)
            first = &o;
    }
    if (!m_busy && !stopped && first) {
        m_busy = first;
        if (++first->expected > 1)
            first->backJump = m_lastBackJump;
    }
}

void Soak::SystemTick()
{
    AppContext& ctx = *m_tc.ctx;
    Heartbeat& heartbeat = RecorderParts::HeartbeatTimer(ctx.recorder);
    heartbeat.Timer1_Timer();
    // The harness is the timer: a tick that re-armed itself is taken back, and one that did
    // not has failed and ended the heartbeat.
    if (heartbeat.Timer1.Interval() == 0)
        m_report.faults << "the heartbeat stopped after a failed tick";
    heartbeat.Timer1.SetInterval(0);
    QCoreApplication::processEvents();
    // A stop was posted: the task answers and the recording ends before the next tick.
    QElapsedTimer waited;
    waited.start();
    while (ctx.appStatus.Recording() && ctx.recorder.Status().StopRequested &&
           waited.elapsed() < 15000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    // What an event loop does between two events: the task's closed channel goes away.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// When an outage is due: the recorder stops as at the program's exit and starts again as at
// its start, or the computer sleeps and wakes; no tick comes in between. Gives the moment
// it ends, or utc itself when none is due.
qint64 Soak::Outage(qint64 utc)
{
    if (m_outages.size() >= size_t(m_options.outages.size()))
        return utc;
    const SoakOutage& outage = m_options.outages.at(qsizetype(m_outages.size()));
    if (utc < outage.from.toMSecsSinceEpoch())
        return utc;
    AppContext& ctx = *m_tc.ctx;
    const double from = Reading(utc);
    m_tc.clock.Set(from);
    if (outage.asleep)
        emit m_tc.sleepInhibitor.PrepareForSleep(true);
    else
        ctx.recorder.Stop();
    utc += qint64(outage.hours) * 3600 * 1000;
    const double to = Reading(utc);
    m_tc.clock.Set(to);
    if (outage.asleep) {
        emit m_tc.sleepInhibitor.PrepareForSleep(false);
    } else {
        // As the start-up does: the search, the missed recordings' check, the timers.
        ctx.scheduler.ScheduleNextRecording();
        ctx.recorder.CheckMissedRecordings();
        ctx.recorder.Start();
        // The harness is the timer.
        RecorderParts::HeartbeatTimer(ctx.recorder).Timer1.SetInterval(0);
    }
    const QString cause =
        outage.asleep ? "the computer was asleep" : "the recorder was not running";
    m_outages.push_back({from, to, cause});
    m_jumps.push_back({from, to, QString("from %1 to %2 (%3)").arg(Stamp(from), Stamp(to), cause)});
    return utc;
}

// Each "record PID DESCRIPTION" line of the stand-in is one start of that program's
// occurrence whose window holds the reading.
void Soak::ReadTaskLog(double reading)
{
    QFile log(m_taskLog);
    if (log.size() <= m_taskLogRead || !log.open(QIODevice::ReadOnly))
        return;
    log.seek(m_taskLogRead);
    const QByteArray added = log.readAll();
    const qsizetype lastLine = added.lastIndexOf('\n') + 1;
    m_taskLogRead += lastLine;
    for (const QByteArray& raw : added.left(lastLine).split('\n')) {
        const QString line = QString::fromUtf8(raw);
        if (!line.startsWith("record "))
            continue;
        const QString name = line.section(u' ', 2);
        Occurrence* match = nullptr;
        for (Occurrence& o : m_occurrences) {
            if (m_programs[o.program].name == name && o.start <= reading && reading < o.end)
                match = &o;
        }
        if (!match) {
            ++m_report.startedTwice;
            m_report.faults
                << QString("%1 started at %2 outside any of its windows").arg(name, Stamp(reading));
            continue;
        }
        ++match->actual;
        ++m_report.starts[name + u'|' + Stamp(match->start)];
    }
}

void Soak::Judge()
{
    for (const Occurrence& o : m_occurrences) {
        const QString what =
            QString("%1 %2 to %3")
                .arg(m_programs[o.program].name, Stamp(o.start), Stamp(o.end, "HH:mm"));
        if (o.actual == 1)
            ++m_report.startedOnce;
        if (o.actual < o.expected)
            ++m_report.missed;
        if (o.actual > o.expected)
            ++m_report.startedTwice;
        if (o.actual != o.expected)
            m_report.faults << QString("%1: started %2 times, the rules give %3")
                                   .arg(what)
                                   .arg(o.actual)
                                   .arg(o.expected);
        if (o.expected == 0) {
            QString why;
            const bool cut = std::any_of(m_stretchEnds.begin(), m_stretchEnds.end(),
                                         [&o](double e) { return o.start < e && e < o.end; });
            if (o.visited) {
                why = "the recorder was busy with " + o.busyWith +
                      (cut ? " until the run's stretch of days ended" : " for all of its window");
            } else {
                why = "the clock never read a moment of its window";
                for (const Jump& j : m_jumps) {
                    if (j.from < o.start && j.to >= o.end)
                        why = "the clock went " + j.cause + " over all of its window";
                }
            }
            m_report.ruleCases << "falls: " + what + ": " + why;
        } else if (o.expected > 1) {
            m_report.ruleCases << QString("starts %1 times: %2: the clock went back %3 into "
                                          "its window after its recording, and the next search "
                                          "finds it again")
                                      .arg(o.expected)
                                      .arg(what, o.backJump);
        }
    }
}

// Each occurrence that fell due in an outage is named once in the log, as missed or, when
// it still ran at the outage's end, as started late; nothing else is named so.
void Soak::JudgeMissed()
{
    QStringList rows;
    for (const LogEntry& e : m_tc.LogEntries()) {
        if (e.message.startsWith("Missed recording") ||
            e.message.startsWith("Recording started late"))
            rows << e.message;
    }
    std::vector<bool> named(size_t(rows.size()), false);
    for (const Jump& gap : m_outages) {
        for (const Occurrence& o : m_occurrences) {
            const Version& v = m_programs[o.program].versions[o.version];
            if (o.start <= gap.from || o.start > gap.to || o.start < v.from || o.start >= v.to)
                continue;
            const QString expected =
                QString("%1: %2, due %3 %4")
                    .arg(o.end > gap.to ? "Recording started late" : "Missed recording",
                         m_programs[o.program].name,
                         Options::DateText(AutomationDate::DatePart(o.start)),
                         Options::TimeText(AutomationDate::TimePart(o.start)));
            int times = 0;
            for (qsizetype i = 0; i < rows.size(); ++i) {
                if (rows[i].startsWith(expected) && rows[i].endsWith("(" + gap.cause + ")")) {
                    ++times;
                    named[size_t(i)] = true;
                }
            }
            if (times != 1) {
                ++m_report.missedUnreported;
                m_report.faults << QString("%1 (%2) is named %3 times in the log")
                                       .arg(expected, gap.cause)
                                       .arg(times);
            }
        }
    }
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (!named[size_t(i)])
            m_report.faults << "named in the log, but not due in an outage: " + rows[i];
    }
}

SoakReport Soak::Run()
{
    QElapsedTimer wall;
    wall.start();
    AppContext& ctx = *m_tc.ctx;
    // As at start-up: the first search, then the heartbeat.
    m_tc.clock.Set(
        Reading(QDateTime(m_stretches.front().firstDay, QTime(0, 0)).toMSecsSinceEpoch()));
    ctx.scheduler.ScheduleNextRecording();
    double previous = 0.0;
    int previousOffset = 0;
    int day = 0;
    qint64 baselineKb = 0;
    for (const SoakStretch& s : m_stretches) {
        for (int d = 0; d < s.days; ++d, ++day) {
            if (day == 2)
                baselineKb = RssKb();
            const qint64 dayEnd =
                QDateTime(s.firstDay.addDays(d + 1), QTime(0, 0)).toMSecsSinceEpoch();
            qint64 utc = QDateTime(s.firstDay.addDays(d), QTime(0, 0)).toMSecsSinceEpoch();
            while (utc < dayEnd) {
                if (const qint64 after = Outage(utc); after != utc) {
                    utc = after;
                    // The outage is its own jump, with its own cause.
                    previous = 0.0;
                }
                const double reading = Reading(utc);
                const int offset = QDateTime::fromMSecsSinceEpoch(utc, QTimeZone::utc())
                                       .toLocalTime()
                                       .offsetFromUtc();
                if (previous != 0.0 &&
                    (reading < previous || reading - previous > (kCoarseStepMs + 1) / 864e5))
                    NoteJump(previous, reading, previousOffset, offset);
                previous = reading;
                previousOffset = offset;
                ApplyEdits(reading);
                m_tc.clock.Set(reading);
                ModelTick(reading);
                SystemTick();
                ReadTaskLog(reading);
                ++m_report.ticks;
                utc += NearBoundary(reading) ? kFineStepMs : kCoarseStepMs;
            }
            if (m_options.clearListDaily)
                m_tc.ctx->recordingsList.ClearRecordingsList();
            if (m_options.progress)
                m_options.progress(
                    QString("day %1 (%2): %3 recordings in the list, rss %4 kB, %5 s")
                        .arg(day + 1)
                        .arg(s.firstDay.addDays(d).toString(Qt::ISODate))
                        .arg(m_tc.CountRows("Recordings"))
                        .arg(RssKb())
                        .arg(wall.elapsed() / 1000.0, 0, 'f', 1));
        }
    }
    if (day > 2)
        m_report.rssGrowthKb = RssKb() - baselineKb;
    Judge();
    JudgeMissed();
    m_report.recordingsRows = m_tc.CountRows("Recordings");
    for (const LogEntry& e : m_tc.LogEntries())
        m_report.logged << QString("type %1: %2: %3").arg(e.type).arg(e.message, e.details);
    m_report.wallSeconds = wall.elapsed() / 1000.0;
    return m_report;
}

} // namespace

SoakReport RunSoak(const SoakOptions& options)
{
    // The local time of the run is Berlin's, whatever the machine's.
    qputenv("TZ", "Europe/Berlin");
    tzset();
    Soak soak(options);
    return soak.Run();
}
