#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

// What the error indication shows: the Error button, its tip, and the Errors menu entry.
struct ErrorIndication {
    bool buttonVisible = false;
    QString toolTip = QStringLiteral(" ");
    bool errorsMenuEnabled = false;
    bool operator==(const ErrorIndication&) const = default;
};

// The conditions that hold right now and the count of log entries nobody has looked at.
// Every change is turned into an indication by UpdateErrorIndication; the forms apply it.
class clsError : public QObject {
    Q_OBJECT
public:
    explicit clsError(QObject* parent = nullptr);

    int NumUnviewedElogErrors() const { return m_numUnviewedElogErrors; }

    void SetNoAudioRecordDevice(bool value) { SetFlag(m_noAudioRecordDevice, value); }
    bool NoAudioRecordDevice() const { return m_noAudioRecordDevice; }
    void SetDatabaseMissing(bool value) { SetFlag(m_databaseMissing, value); }
    bool DatabaseMissing() const { return m_databaseMissing; }
    void SetInvalidRecordingDirectory(bool value) { SetFlag(m_invalidRecordingDirectory, value); }
    bool InvalidRecordingDirectory() const { return m_invalidRecordingDirectory; }
    void SetElogFull(bool value) { SetFlag(m_elogFull, value); }
    bool ElogFull() const { return m_elogFull; }
    void SetDiskLowWarn(bool value) { SetFlag(m_diskLowWarn, value); }
    bool DiskLowWarn() const { return m_diskLowWarn; }
    void SetDiskLowStopRecording(bool value) { SetFlag(m_diskLowStopRecording, value); }
    bool DiskLowStopRecording() const { return m_diskLowStopRecording; }
    // The recording in progress hears nothing; a warning, cleared when sound returns or the
    // recording ends.
    void SetRecordingSilent(bool value) { SetFlag(m_recordingSilent, value); }
    bool RecordingSilent() const { return m_recordingSilent; }

    bool UnviewedElogErrors() const { return m_numUnviewedElogErrors >= 1; }
    bool AnyCurrentErrorsOrWarnings() const { return AnyCurrentErrors() || AnyCurrentWarnings(); }
    bool AnyCurrentErrors() const;
    bool AnyCurrentWarnings() const { return m_diskLowWarn || m_elogFull || m_recordingSilent; }

    // The conditions that hold, one sentence each saying what to do about it.
    QStringList ConditionTexts() const;

    void ElogViewed();
    void NewElogMsgAdded();

    // Whether the event log is on screen; the log form keeps this current.
    void SetElogVisible(bool visible) { m_elogVisible = visible; }

    const ErrorIndication& Indication() const { return m_indication; }

signals:
    // After every UpdateErrorIndication: the toolbar, menu, tray and mode display follow it.
    void IndicationUpdated(const ErrorIndication& indication);

private:
    void SetFlag(bool& flag, bool value);
    void UpdateErrorIndication();

    bool m_noAudioRecordDevice = false;
    bool m_invalidRecordingDirectory = false;
    bool m_diskLowWarn = false;
    bool m_diskLowStopRecording = false;
    bool m_elogFull = false;
    bool m_databaseMissing = false;
    int m_numUnviewedElogErrors = 0;
    bool m_forceUpdate = true;
    bool m_elogVisible = false;
    ErrorIndication m_indication;
    bool m_recordingSilent = false;
};
