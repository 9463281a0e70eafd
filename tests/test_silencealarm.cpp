// The silence alarm of a scheduled recording, made by the program's recorder and the real
// recording task from a sound server of the test's own whose tone the test stops and starts.
#include "Programs.h"
#include "RecordingRig.h"
#include "SoxTone.h"
#include "TestParts.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

class TestSilenceAlarm : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString why = RecordingRig::StartSound(m_pulse);
        if (!why.isEmpty())
            QSKIP(qPrintable(why));
    }
    void cleanupTestCase() { m_pulse.reset(); }

    // A twelve-second recording with the alarm after three seconds of silence; the tone stops
    // two seconds after the capture starts and comes back five seconds later. The recording
    // goes on through the silence: the file holds all that was captured.
    void silentStretchIsReportedOnce()
    {
        RecordingRig r;
        r.ctx().options.SilenceAlarmSeconds = 3;
        r.AddProgram(Programs::Weekly("Night watch", "10:00:10", "10:00:22", "0100000"));
        bool warnedWhileSilent = false;
        QElapsedTimer captured;
        double capturedSeconds = 0.0;
        QObject::connect(&r.recorder(), &Recorder::RecordingStarted, [&] {
            captured.start();
            QTimer::singleShot(2000, [this] { m_pulse->StopTone(); });
            QTimer::singleShot(6500, [&] {
                warnedWhileSilent =
                    r.ctx().error.RecordingSilent() && r.ctx().error.Indication().buttonVisible;
            });
            QTimer::singleShot(7000, [this] { m_pulse->PlayTone(); });
        });
        QObject::connect(&r.recorder(), &Recorder::RecordingEnded,
                         [&] { capturedSeconds = captured.elapsed() / 1000.0; });
        QVERIFY(r.Run(RecordingRig::At("10:00:08")));

        QVERIFY(warnedWhileSilent);
        QVERIFY(!r.ctx().error.RecordingSilent());
        const QList<LogEntry> entries = r.Log();
        QCOMPARE(r.LoggedMessages(),
                 (QStringList{"Recording is silent", "Recording has sound again"}));
        QVERIFY(entries[0].details.startsWith("Recording: Night watch\r\nSource: recmic\r\n"));
        QVERIFY(entries[0].details.endsWith("Peak level: no signal at all"));
        QVERIFY(entries[1].details.endsWith(" dBFS"));
        const double seconds = Soxi("-D", r.Recordings().value(0).file).toDouble();
        QVERIFY2(
            capturedSeconds > 8.0 && std::abs(seconds - capturedSeconds) < 0.6,
            qPrintable(QString("%1 s in the file, %2 captured").arg(seconds).arg(capturedSeconds)));
    }

private:
    std::unique_ptr<PulseFixture> m_pulse;
};

NIGHTREEL_TEST_PARTS_MAIN(TestSilenceAlarm, QCoreApplication)
#include "test_silencealarm.moc"
