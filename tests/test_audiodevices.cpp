// The sound server as the input lists and the level meter see it: a server of the test's own
// with a tone played into its sink.
#include "PulseFixture.h"
#include "platform/PulseAudioDevices.h"

#include <QElapsedTimer>
#include <QTest>
#include <memory>

class TestAudioDevices : public QObject {
    Q_OBJECT

    std::unique_ptr<PulseFixture> m_pulse;

private slots:
    void initTestCase()
    {
        m_pulse = std::make_unique<PulseFixture>();
        QVERIFY(m_pulse->Running());
        QVERIFY(m_pulse->PlayTone());
    }

    void inputsAreListedAndTheLevelFollowsTheSound_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("hearsTheTone");
        QTest::newRow("the default input") << "" << true;
        QTest::newRow("a monitor") << "recsink.monitor" << true;
        QTest::newRow("an input that is gone") << "no-such-input" << false;
    }
    void inputsAreListedAndTheLevelFollowsTheSound()
    {
        QFETCH(QString, input);
        QFETCH(bool, hearsTheTone);
        PulseAudioDevices devices;
        QStringList names;
        for (const CaptureSource& source : devices.CaptureSources())
            names << source.name;
        QVERIFY2(names.contains("recmic") && names.contains("recsink.monitor"),
                 qPrintable(names.join(", ")));

        // The tone's amplitude is half of full scale.
        const std::unique_ptr<InputLevel> level = devices.ListenToInput(input);
        float peak = 0.0f;
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < (hearsTheTone ? 5000 : 1000) && peak < 0.4f) {
            QTest::qWait(50);
            peak = std::max(peak, level->TakePeak());
        }
        QVERIFY2(hearsTheTone ? peak > 0.4f && peak < 0.6f : peak == 0.0f,
                 qPrintable(QString::number(peak)));
    }

    // Last: it ends the server.
    void withoutAServerThereIsNothingToListTo()
    {
        m_pulse->Stop();
        PulseAudioDevices devices;
        QVERIFY(devices.CaptureSources().isEmpty());
        QCOMPARE(devices.ListenToInput(QString())->TakePeak(), 0.0f);
    }
};

QTEST_GUILESS_MAIN(TestAudioDevices)
#include "test_audiodevices.moc"
