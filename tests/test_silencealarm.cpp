// The silence alarm of a scheduled recording, made by the program's recorder and the real
// recording task from a sound server of the test's own whose tone the test stops and starts.
#include "Programs.h"
#include "RecordingRig.h"
#include "TestParts.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSqlQuery>
#include <QTest>
#include <QTimer>

namespace {

double SoxiSeconds(const QString& file)
{
    QProcess soxi;
    soxi.start("soxi", {"-D", file});
    soxi.waitForFinished(10000);
    return soxi.exitCode() == 0 ? soxi.readAllStandardOutput().trimmed().toDouble() : -1.0;
}

} // namespace

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
    // two seconds in and comes back five seconds later.
    void silentStretchIsReportedOnce()
    {
        const int toneStopsAt = 2000;
        const int toneReturnsAt = 7000;
        RecordingRig r;
        r.tc.ctx->options.SilenceAlarmSeconds = 3;
        r.AddProgram(Programs::Weekly("Night watch", "10:00:10", "10:00:22", "0100000"));

        // The tone's changes count from the moment the task captures; the file is to hold all
        // that it captured, up to the end of the recording.
        bool warnedWhileSilent = false;
        QElapsedTimer captured;
        double capturedSeconds = 0.0;
        QObject::connect(&r.tc.ctx->recorder, &Recorder::RecordingStarted, [&] {
            captured.start();
            QTimer::singleShot(toneStopsAt, [this] { m_pulse->StopTone(); });
            QTimer::singleShot(toneReturnsAt - 500, [&] {
                warnedWhileSilent =
                    r.tc.ctx->error.RecordingSilent() && r.tc.ctx->error.Indication().buttonVisible;
            });
            QTimer::singleShot(toneReturnsAt, [this] { m_pulse->PlayTone(); });
        });
        QObject::connect(&r.tc.ctx->recorder.Control(), &RecordingControl::RecordingEnded,
                         [&] { capturedSeconds = captured.elapsed() / 1000.0; });
        QVERIFY(r.Run(RecordingRig::At("10:00:08")));

        const QList<LogEntry> entries = r.Log();
        // Sound before and after the silence raised no alarm of its own.
        QCOMPARE(r.LoggedMessages(),
                 (QStringList{"Recording is silent", "Recording has sound again"}));
        QVERIFY(warnedWhileSilent);
        QCOMPARE(entries[0].type, 1);
        QCOMPARE(entries[1].type, 0);
        for (const LogEntry& e : entries)
            QVERIFY2(e.details.contains("Recording: Night watch\r\nSource: recmic\r\n"),
                     qPrintable(e.details));
        QVERIFY(entries[0].details.endsWith("Peak level: no signal at all"));
        QVERIFY(entries[1].details.endsWith(" dBFS"));
        QVERIFY(!r.tc.ctx->error.RecordingSilent());

        // The recording went on through the silence: the file holds all that was captured.
        QSqlQuery q(r.tc.ctx->database.db.Connection());
        QVERIFY(q.exec("SELECT File FROM Recordings") && q.next());
        const double seconds = SoxiSeconds(q.value(0).toString());
        QVERIFY2(capturedSeconds > 8.0 && std::abs(seconds - capturedSeconds) < 0.6,
                 qPrintable(
                     QString("%1 s in the file, %2 s captured").arg(seconds).arg(capturedSeconds)));
    }

private:
    std::unique_ptr<PulseFixture> m_pulse;
};

NIGHTREEL_TEST_PARTS_MAIN(TestSilenceAlarm, QCoreApplication)
#include "test_silencealarm.moc"
