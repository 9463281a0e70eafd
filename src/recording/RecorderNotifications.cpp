#include "recording/RecorderNotifications.h"

#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/clsError.h"
#include "platform/DesktopNotifications.h"
#include "recording/Recorder.h"
#include "recording/RecordingTaskErrors.h"
#include "store/Options.h"

#include <QCoreApplication>

namespace {

// The events are known by the headings they are logged under, in the words (and so the
// translation) of the part that logs them.
QHash<QString, RecorderNotifications::Event> Events()
{
    const QString failed = QCoreApplication::translate("RecorderNotifications", "Recording failed");
    const QString diskFull = QCoreApplication::translate(
        "RecorderNotifications", "Free disk space fell below the limit set in Options.");
    QHash<QString, RecorderNotifications::Event> events{
        {QCoreApplication::translate("RecordingControl", "Recording failed"),
         {failed, QCoreApplication::translate("RecorderNotifications", "No sound was written.")}},
        {QCoreApplication::translate("RecordingTaskLink", "Error activating recording task."),
         {failed, QCoreApplication::translate("RecorderNotifications",
                                              "The recording task did not start.")}},
        {QCoreApplication::translate("RecordingTaskLink", "Error removing Recording Process."),
         {failed, QCoreApplication::translate("RecorderNotifications",
                                              "An earlier recording task could not be ended.")}},
        {QCoreApplication::translate("RecordingControl", "No response from recording task."),
         {QCoreApplication::translate("RecorderNotifications", "Recording task not responding"),
          QCoreApplication::translate("RecorderNotifications", "The recording was stopped.")}},
        {QCoreApplication::translate("StatusBarPlus",
                                     "Recording stopped due to insufficient disk space."),
         {QCoreApplication::translate("RecorderNotifications",
                                      "Recording stopped: disk nearly full"),
          diskFull}},
        {QCoreApplication::translate("SilenceAlarm", "Recording is silent"),
         {QCoreApplication::translate("RecorderNotifications", "Recording is silent"),
          QCoreApplication::translate("RecorderNotifications", "No sound is coming in."), false,
          false}},
        {QCoreApplication::translate("ConversionQueue", "Error Converting to MP3"),
         {QCoreApplication::translate("RecorderNotifications", "MP3 conversion failed"), QString(),
          true}},
        {QCoreApplication::translate("StatusBarPlus",
                                     "MP3 conversion stopped due to insufficient disk space."),
         {QCoreApplication::translate("RecorderNotifications",
                                      "MP3 conversion stopped: disk nearly full"),
          diskFull, true}},
    };
    // Each of the task's error codes fails the recording, with its own heading as the reason.
    for (qint32 code = 1000; code <= 1053; ++code)
        events.insert(RecordingTaskErrorTexts(code).message, {failed, QString()});
    return events;
}

} // namespace

RecorderNotifications::RecorderNotifications(EventLog& log, const Options& options,
                                             const clsAppStatus& appStatus, const clsError& error,
                                             Recorder& recorder, DesktopNotifications& desktop,
                                             QObject* parent)
    : QObject(parent)
    , m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_error(error)
    , m_recorder(recorder)
    , m_desktop(desktop)
    , m_events(Events())
{
    m_log.SetListener([this](qint16, const QString& message, const QString& details) {
        Heard(message, details);
    });
    connect(&appStatus, &clsAppStatus::Update, this, &RecorderNotifications::ModeChanged);
    connect(&error, &clsError::IndicationUpdated, this, &RecorderNotifications::DiskLowChanged);
    // The recordings missed while the recorder was not running or the machine slept: one
    // notification lists them all.
    connect(&recorder, &Recorder::RecordingsMissed, this, [this](const QStringList& lines) {
        Send(tr("Recordings missed"), QString(), lines.join(u'\n'), true);
    });
    // Said once in the log: nothing further happens without a notification service.
    connect(&desktop, &DesktopNotifications::Unavailable, this, [this](const QString& why) {
        m_log.LogEvent(EventInformation, tr("No desktop notifications"),
                       tr("The desktop shows no notifications: ") + why);
    });
}

RecorderNotifications::~RecorderNotifications()
{
    m_log.SetListener({});
}

void RecorderNotifications::Heard(const QString& message, const QString& details)
{
    const auto it = m_events.constFind(message);
    if (it == m_events.cend())
        return;
    const Event& event = *it;
    const QString subject =
        event.conversion ? m_recorder.ConvertingDescription() : m_recorder.Status().Description;
    QString reason = event.reason;
    if (reason.isEmpty())
        reason = event.conversion ? details.section(u'\r', 0, 0) : message;
    Send(event.summary, subject, reason, event.critical);
}

void RecorderNotifications::ModeChanged()
{
    const bool recording = m_appStatus.Recording();
    const bool converting = m_appStatus.Converting();
    if ((recording && !m_recording) || (converting && !m_converting))
        m_sent.clear();
    m_recording = recording;
    m_converting = converting;
}

void RecorderNotifications::DiskLowChanged()
{
    const bool low = m_error.DiskLowWarn();
    if (low && !m_diskLow)
        Send(tr("Disk space low"),
             m_appStatus.Recording() ? m_recorder.Status().Description : QString(),
             tr("Less than %1 Megabytes are free in the recording folder.")
                 .arg(m_options.WarnRecMegsLeft),
             false);
    m_diskLow = low;
}

void RecorderNotifications::Send(const QString& summary, const QString& subject,
                                 const QString& reason, bool critical)
{
    if (!m_options.ShowDesktopNotifications)
        return;
    const QString body = subject.isEmpty() ? reason : subject + u'\n' + reason;
    if (m_sent.contains(summary + u'\n' + body))
        return;
    m_sent.insert(summary + u'\n' + body);
    m_desktop.Notify({summary, body, critical, true});
}
