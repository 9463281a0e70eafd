#include "recording/PrimedTask.h"

#include "common/AutomationDate.h"
#include "common/Clock.h"
#include "common/clsAppStatus.h"
#include "diagnostics/Trap.h"
#include "formats/FormatStore.h"
#include "formats/clsRecordingFormat.h"
#include "recording/RecordingTaskLink.h"
#include "scheduling/Scheduler.h"
#include "store/AppDatabase.h"
#include "store/Options.h"
#include "store/ProgramRow.h"
#include "taskcontract/RecParms.h"

namespace {

// Past the due second by this much, so that a clock of whole seconds reads the due second.
constexpr int kDueMarginMsecs = 2;

} // namespace

PrimedTask::PrimedTask(Clock& clock, EventLog& log, const Options& options, AppDatabase& database,
                       Scheduler& scheduler, const clsAppStatus& appStatus, RecordingTaskLink& link,
                       QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_log(log)
    , m_options(options)
    , m_database(database)
    , m_scheduler(scheduler)
    , m_appStatus(appStatus)
    , m_link(link)
{
    m_dueTimer.setSingleShot(true);
    m_dueTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_dueTimer, &QTimer::timeout, this, &PrimedTask::DueSecond);
}

void PrimedTask::Update()
{
    // A start under way takes the primed task over or ends it.
    if (m_appStatus.Recording())
        return;
    const NextProgram& next = m_scheduler.next;
    const double now = m_clock.Now();
    const bool wanted = m_appStatus.Ready() && !m_appStatus.Suspended() && next.NextProgramFound &&
                        next.NextStreamUrl.isEmpty() && now < next.NextProgramStart &&
                        now >= AutomationDate::AddSeconds(next.NextProgramStart, -LeadSeconds);
    const bool same = next.NextProgramId == m_programId && next.NextProgramStart == m_start;
    if (!wanted || !same) {
        m_link.EndPrimedTask();
        m_dueTimer.stop();
    }
    if (wanted && !same)
        Prime();
}

void PrimedTask::Prime()
{
    const NextProgram& next = m_scheduler.next;
    m_programId = next.NextProgramId;
    m_start = next.NextProgramStart;
    Trap(m_log, "PrimeRecording", [&] {
        Recordset programs = m_database.DataPrograms.recordset().Clone();
        programs.FindFirst(QStringLiteral("Id = ") + QString::number(m_programId));
        // A format that can't be read is reported once, by the start at the due second.
        if (programs.NoMatch() || !FormatReadable(programs))
            return;
        clsRecordingFormat chosen;
        ReadFormat(chosen, programs);
        // A recording to be converted is captured as 16-bit PCM, as the start will ask.
        if (chosen.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3 &&
            chosen.ConvertToMP3)
            chosen.SetToPcm(chosen.nChannels(), chosen.nSamplesPerSec(), 16);
        RecParms parms;
        parms.description = next.NextProgramDescription;
        parms.format = chosen.WaveFormat();
        // The input is opened ahead too: the program's own, else the options' one.
        const QString programInput = TrimmedText(programs.Value(QStringLiteral("InputName")));
        parms.inputName = programInput.isEmpty() ? m_options.RecordingInput : programInput;
        parms.Write(m_link.ParameterFile());
        m_link.StartPrimedTask(parms);
        m_dueTimer.start(int(qMax<qint64>(0, m_clock.MsecsUntil(m_start))) + kDueMarginMsecs);
    });
}
