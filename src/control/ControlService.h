#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <functional>

class AppDatabase;
class CallMessageBox;
class Clock;
class EventLog;
class Options;
class ProgramListCommands;
class Recorder;
class RecordingsList;
class Scheduler;
class clsAppStatus;
class clsError;
class clsRecordingFormat;
struct clsManualRecord;

// What the bus interface works with.
struct ControlServices {
    Recorder& recorder;
    // The one manual request: a started manual recording is described here.
    clsManualRecord& manualRequest;
    Scheduler& scheduler;
    AppDatabase& database;
    EventLog& log;
    clsError& error;
    clsAppStatus& appStatus;
    const Options& options;
    const Clock& clock;
    // A program or manual recording without a format of its own takes this one.
    const clsRecordingFormat& defaultFormat;
    RecordingsList& recordingsList;
    // The boxes that the core shows while a call is served become the call's refusal.
    CallMessageBox& messageBox;
    QString mixerFolder;
};

// The recorder on the session bus (org.larkmoor.Nightreel1), offered by the window and by
// the run without one. Each method goes through the same commands the window uses, with
// their checks and texts; a refusal is answered as an error named after its kind. The
// methods are those of the interface's description, which documents them.
class ControlService : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    explicit ControlService(const ControlServices& services, QObject* parent = nullptr);

    static constexpr const char* ServiceName = "org.larkmoor.Nightreel1";
    static constexpr const char* ObjectPath = "/org/larkmoor/Nightreel1";
    // Offers the interface on the bus; false, with a line in the log, when the bus is not
    // there or another program holds the name.
    bool Register(QDBusConnection bus);

public slots:
    QVariantMap Status();
    QList<QVariantMap> NextPrograms(int count);
    QList<QVariantMap> Programs();
    int AddProgram(const QVariantMap& program);
    void UpdateProgram(int id, const QVariantMap& changes);
    void RemoveProgram(int id);
    void SetProgramEnabled(int id, bool enabled);
    QString StartManual(uint seconds, const QString& description);
    void Stop();
    bool PauseResume();
    QList<QVariantMap> Recordings();
    void DeleteRecording(int id, bool deleteFile);
    QStringList Errors();
    QList<QVariantMap> EventLog(int count);

signals:
    void RecordingStarted(const QString& description, const QString& file);
    void RecordingEnded(const QString& file, bool ok, const QString& reason);
    void ModeChanged(const QString& mode);
    void ConditionsChanged(const QStringList& conditions);

private:
    // Runs a method's body with the boxes captured, under the bus call's trap: a refusal
    // becomes the error reply, and so does a failure, logged under the method's name.
    void Serve(const char* method, const std::function<void()>& body);
    // Runs one of the program list's commands on the program, as the bus asks it.
    qint64 RunProgramCommand(qint64 bookmark, const QVariantMap& changes,
                             const std::function<void(ProgramListCommands&)>& command);
    void RequireProgram(qint64 id);
    QString CurrentMode();
    void OnModeMaybeChanged();
    void OnRecordingEnded();
    // The last error entry of the log since `since`, for RecordingEnded.
    QString FailureReason(double since) const;

    ControlServices m_s;
    QString m_mode;
    QStringList m_conditions;
    QString m_recordingFile;
    double m_recordingStart = 0.0;
};
