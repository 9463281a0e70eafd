#include "scheduling/Scheduler.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/MessageBox.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "scheduling/ModuleUtility.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/ProgramRow.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace {

double Date(const QVariant& value)
{
    return NotNull(value).toDouble();
}

bool Bool(const QVariant& value)
{
    return Field::ToBool(NotNull(value));
}

// The column positions of Programs, looked up once per scan.
struct ProgramColumns {
    explicit ProgramColumns(const Recordset& rs)
    {
        const auto at = [&rs](const char* name) {
            const int index = rs.FieldIndex(QString::fromLatin1(name));
            if (index < 0)
                throw RuntimeError(ErrorNumber::ItemNotFound,
                                   QStringLiteral("Item not found in this collection. (%1)")
                                       .arg(QString::fromLatin1(name)));
            return index;
        };
        id = at("ID");
        enabled = at("Enabled");
        description = at("Description");
        startTime = at("StartTime");
        endTime = at("EndTime");
        frequency = at("Frequency");
        oneTimeDay = at("OneTimeDay");
        const char* dayNames[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
        for (int d = 0; d < 7; ++d)
            days[d] = at(dayNames[d]);
        avgBytesPerSec = at("wfx_nAvgBytesPerSec");
        recordingCancelled = at("RecordingCancelled");
        cancelledEnd = at("RecordingCancelledEndDateAndTime");
    }

    int id, enabled, description, startTime, endTime, frequency, oneTimeDay;
    std::array<int, 7> days;
    int avgBytesPerSec, recordingCancelled, cancelledEnd;
};

// Only 0 means one time; every reader takes any other value for weekly.
bool IsOneTime(const QVariant& frequency)
{
    return !frequency.isNull() && frequency.toInt() == 0;
}

// The end of a one-time program's occurrence.
double OneTimeEnd(const Recordset& rs, const ProgramColumns& c)
{
    const double startTime = Date(rs.Value(c.startTime));
    const double endTime = Date(rs.Value(c.endTime));
    double end =
        AutomationDate::DatePart(Date(rs.Value(c.oneTimeDay))) + AutomationDate::TimePart(endTime);
    if (startTime > endTime)
        end += 1.0;
    return end;
}

} // namespace

NextProgram::NextProgram()
    : NextLinkLaunchTime(AutomationDate::Never())
    , NextAppLaunchTime(AutomationDate::Never())
{
}

Scheduler::Scheduler(const Clock& clock, AppDatabase& database, EventLog& log,
                     MessageBoxPresenter& messageBox, const Options& options)
    : m_clock(clock)
    , m_database(database)
    , m_log(log)
    , m_messageBox(messageBox)
    , m_options(options)
{
}

std::optional<ProgramOccurrence>
Scheduler::DetermineNextProgramToSchedule(bool readOnly, double referenceDate,
                                          std::optional<qint32> onlyProgram)
{
    std::optional<ProgramOccurrence> best;
    Trap(m_log, "DetermineNextProgramToSchedule", [&] {
        double bestStart = AutomationDate::Never();
        const double longAgo = AutomationDate::LongAgo();
        // The clone keeps the order of the programs grid: its sort is the tie-break.
        Recordset rs = m_database.DataPrograms.recordset().Clone();
        if (rs.IsEOF() || RecordsetCount(rs) < 1)
            return;
        const ProgramColumns c(rs);
        for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
            if (onlyProgram && rs.Value(c.id).toInt() != *onlyProgram)
                continue;
            double start = longAgo;
            double end = longAgo;
            if (!IsOneTime(rs.Value(c.frequency))) {
                bool cancelled = false;
                double cancelledEnd = 0.0;
                if (Field::ToBool(rs.Value(c.recordingCancelled))) {
                    cancelledEnd = Date(rs.Value(c.cancelledEnd));
                    cancelled = true;
                    if (referenceDate > cancelledEnd) {
                        cancelled = false;
                        if (!readOnly) {
                            rs.Edit();
                            rs.SetValue(QStringLiteral("RecordingCancelled"),
                                        Field::FromBool(false));
                            rs.Update();
                        }
                    }
                }
                if (Field::ToBool(rs.Value(c.enabled))) {
                    std::array<bool, 7> days;
                    for (int d = 0; d < 7; ++d)
                        days[d] = Bool(rs.Value(c.days[d]));
                    const double startTime = Date(rs.Value(c.startTime));
                    const double endTime = Date(rs.Value(c.endTime));
                    // From yesterday, so that a program that crossed midnight is found
                    // while it still runs; nine days always hold the next occurrence.
                    const double base = referenceDate - 1.0;
                    for (int i = 0; i <= 8; ++i) {
                        const double day = base + i;
                        if (!days[AutomationDate::Weekday(day) - 1])
                            continue;
                        const double date = AutomationDate::DatePart(day);
                        if (cancelled && !(date + startTime > cancelledEnd))
                            continue;
                        start = date + startTime;
                        end = date + endTime;
                        if (startTime > endTime)
                            end += 1.0;
                        if (end > referenceDate)
                            break;
                    }
                }
            } else if (!rs.Value(c.recordingCancelled).isNull() &&
                       !Field::ToBool(rs.Value(c.recordingCancelled)) &&
                       Field::ToBool(rs.Value(c.enabled))) {
                start = AutomationDate::DatePart(Date(rs.Value(c.oneTimeDay))) +
                        AutomationDate::TimePart(Date(rs.Value(c.startTime)));
                end = OneTimeEnd(rs, c);
            }
            if (end > referenceDate && start < bestStart) {
                bestStart = start;
                // Taken value by value into the one result: a row that fails part way ends
                // the search as found, with the values it got to.
                ProgramOccurrence& o = best ? *best : best.emplace();
                o.startDateTime = start;
                o.endDateTime = end;
                o.programId = rs.Value(c.id).toInt();
                o.description = rs.Value(c.description).toString();
                o.avgBytesPerSec = rs.Value(c.avgBytesPerSec).toInt();
                const ProgramRow row = ProgramRow::Read(rs);
                o.internetLink = row.InternetLink;
                o.internetLinkDelay = row.InternetLinkDelay;
                o.launchAppPrior = row.LaunchAppPrior;
                o.launchAppDelay = row.LaunchAppDelay;
                o.mixerProfileBefore = row.MixerProfileBefore;
                o.mixerProfileAfter = row.MixerProfileAfter;
                o.streamingPlayerClose = row.StreamingPlayerClose;
                o.hangupInternetConnection = row.HangupInternetConnection;
                o.streamUrl = row.StreamUrl;
            }
        }
    });
    return best;
}

double NextProgram::RecordingOpenTime() const
{
    if (NextStreamUrl.isEmpty())
        return NextProgramStart;
    return AutomationDate::AddSeconds(NextProgramStart,
                                      -qMax<int>(StreamOpenLeadSeconds, NextInternetLinkDelay));
}

void Scheduler::ScheduleNextRecording()
{
    InRoutine("ScheduleNextRecording", [&] {
        const std::optional<ProgramOccurrence> found =
            DetermineNextProgramToSchedule(false, m_clock.Now());
        NextProgram& n = next;
        if (!found) {
            n.NextProgramFound = false;
            n.NextLinkLaunchTime = AutomationDate::Never();
            n.NextAppLaunchTime = AutomationDate::Never();
            return;
        }
        n.NextProgramId = found->programId;
        n.NextProgramDescription = found->description;
        n.NextProgramStart = found->startDateTime;
        n.NextProgramEnd = found->endDateTime;
        n.NextInternetLink = found->internetLink;
        n.NextInternetLinkDelay = found->internetLinkDelay;
        n.NextLaunchAppPrior = found->launchAppPrior;
        n.NextLaunchAppDelay = found->launchAppDelay;
        n.NextMixerProfileBefore = found->mixerProfileBefore;
        n.NextMixerProfileAfter = found->mixerProfileAfter;
        n.NextStreamingPlayerClose = found->streamingPlayerClose;
        n.NextHangupInternetConnection = found->hangupInternetConnection;
        n.NextStreamUrl = found->streamUrl;
        n.NextProgramFound = true;
        Pad(*found, n);
        if (n.NextInternetLink.isEmpty()) {
            n.NextLinkLaunchTime = AutomationDate::Never();
        } else {
            // Finding the player's window by itself needs a picture of the windows taken
            // well before the link opens.
            int lead = n.NextInternetLinkDelay;
            if (lead < 5 && n.NextStreamingPlayerClose.isEmpty())
                lead = 5;
            n.NextLinkLaunchTime = AutomationDate::AddSeconds(n.NextProgramStart, -lead);
        }
        n.NextAppLaunchTime =
            n.NextLaunchAppPrior.isEmpty()
                ? AutomationDate::Never()
                : AutomationDate::AddSeconds(n.NextProgramStart, -n.NextLaunchAppDelay);
    });
}

void Scheduler::Pad(const ProgramOccurrence& found, NextProgram& n)
{
    const qint16 pad = m_options.PaddingSeconds;
    if (pad <= 0)
        return;
    n.NextProgramStart = AutomationDate::AddSeconds(found.startDateTime, -pad);
    // The late end gives way to the program that follows, and never cuts the program itself.
    double end = AutomationDate::AddSeconds(found.endDateTime, pad);
    if (const auto following = DetermineNextProgramToSchedule(true, found.endDateTime))
        end = std::min(end, std::max(found.endDateTime, following->startDateTime));
    n.NextProgramEnd = end;
}

void Scheduler::OfferRemovalOfExpiredPrograms()
{
    InRoutine("OfferRemovalOfExpiredPrograms", [&] {
        if (!m_options.RemoveExpiredPrograms)
            return;
        Recordset rs = m_database.DataPrograms.recordset().Clone();
        if (rs.IsEOF())
            return;
        const ProgramColumns c(rs);
        const auto expired = [&] {
            return IsOneTime(rs.Value(c.frequency)) && m_clock.Now() > OneTimeEnd(rs, c);
        };
        bool any = false;
        for (rs.MoveFirst(); !rs.IsEOF() && !any; rs.MoveNext())
            any = expired();
        if (!any)
            return;
        const MsgResult answer = m_messageBox.Show(
            tr("Missed recordings"),
            tr("Nightreel 2000 has determined that some of the one-time recordings "
               "were not performed since the scheduled recording time is prior to "
               "the current date/time. Removed all expired scheduled programs?"),
            MsgIcon::Exclamation, MsgButtons::YesNo);
        if (answer != MsgResult::Yes)
            return;
        for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
            if (expired())
                rs.Delete();
        }
        m_database.DataPrograms.Requery();
    });
}

void Scheduler::CancelRecording(qint32 programId, double recordingEndTime)
{
    InRoutine("CancelRecording", [&] {
        Recordset rs = m_database.DataPrograms.recordset().Clone();
        rs.FindFirst(QStringLiteral("Id = ") + QString::number(programId));
        if (rs.NoMatch())
            return;
        if (IsOneTime(rs.Value(QStringLiteral("Frequency"))) && m_options.RemoveExpiredPrograms) {
            rs.Delete();
            m_database.DataPrograms.Requery();
            emit ProgramListChanged();
            return;
        }
        rs.Edit();
        rs.SetValue(QStringLiteral("RecordingCancelled"), Field::FromBool(true));
        rs.SetValue(QStringLiteral("RecordingCancelledEndDateAndTime"), recordingEndTime);
        rs.Update();
    });
}
