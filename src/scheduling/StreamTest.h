#pragma once

#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QString>

// The Test of a stream address: the recording task connects, reads a few seconds and says
// what it found; the answer is put in words for the user. The task is the one program that
// reads streams, so what Test finds is what a recording will find.
class StreamTest : public QObject {
    Q_OBJECT
public:
    explicit StreamTest(const QString& taskProgram, QObject* parent = nullptr);
    ~StreamTest() override;

    void SetTaskProgram(const QString& taskProgram) { m_taskProgram = taskProgram; }

    // A test under way is abandoned for the new one.
    void Start(const QString& address);
    bool Running() const { return m_process != nullptr; }

    // "MP3, 128 kbit/s, 44,100 Hz, stereo; station: Radio One" from the task's key=value
    // lines; the failure's reason where the task gave one.
    static QString Describe(const QString& taskOutput, bool ok);

signals:
    void Finished(bool ok, const QString& text);

private:
    void Cancel();

    QString m_taskProgram;
    QPointer<QProcess> m_process;
};
