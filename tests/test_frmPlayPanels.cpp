// Both player panels played into a private sound server's null sink and heard at its
// monitor: levels, balance, rate, skips and keys, the formats, a broken file, and the
// classic panel's master volume.
#include "Pactl.h"
#include "PulseFixture.h"
#include "SinkMonitor.h"
#include "TaskWaveSource.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "player/PlayPanels.h"
#include "player/PlayStepButtons.h"
#include "player/frmPlayPanel.h"
#include "player/frmPlayPanelMP.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <memory>

namespace {

// A 10-second 1 kHz stereo tone at half scale in each format the panels play.
struct Tones {
    QTemporaryDir dir;
    QString Path(const QString& name) const { return dir.path() + "/" + name; }

    bool Make()
    {
        bool ok = false;
        RunProgram("sox",
                   {"-n", "-r", "44100", "-c", "2", "-b", "16", Path("tone.wav"), "synth", "10",
                    "sine", "1000", "vol", "0.5"},
                   &ok);
        if (!ok)
            return false;
        RunProgram("lame", {"--quiet", "--cbr", "-b", "128", Path("tone.wav"), Path("tone.mp3")},
                   &ok);
        if (!ok)
            return false;
        // The same MP3 frames inside a WAV file (format tag 85), as recordings keep them.
        RunProgram("lame",
                   {"--quiet", "-t", "--cbr", "-b", "128", Path("tone.wav"), Path("frames.mp3")},
                   &ok);
        const std::string frames = ReadFile(Path("frames.mp3")).toStdString();
        const std::string fmt = TaskWaveSource::Mp3Record(2, 44100, 128);
        std::string body = "WAVEfmt ";
        TaskWaveSource::PutLe32(body, uint32_t(fmt.size()));
        body += fmt + "fact";
        TaskWaveSource::PutLe32(body, 4);
        TaskWaveSource::PutLe32(body, 441000);
        body += "data";
        TaskWaveSource::PutLe32(body, uint32_t(frames.size()));
        std::string riff = "RIFF";
        TaskWaveSource::PutLe32(riff, uint32_t(body.size() + frames.size()));
        QByteArray junk(20000, '\0');
        for (int i = 0; i < junk.size(); ++i)
            junk[i] = char((i * 7919) % 251);
        return ok &&
               WriteFile(Path("mp3inside.wav"), QByteArray::fromStdString(riff + body + frames)) &&
               WriteFile(Path("broken.wav"), junk);
    }
};

std::unique_ptr<PulseFixture> pulse;
std::unique_ptr<Tones> tones;

// The monitor listens from the start: a capture that begins while a player is already
// playing hears its first sound late.
struct Fixture {
    Fixture()
    {
        tc.OpenDatabase();
        monitor.Start();
    }
    frmPlayPanelMP& Enhanced(const QString& file = "tone.wav")
    {
        panels.OpenEnhanced(tones->Path(file), "Tone", 0.0);
        frmPlayPanelMP& panel = *panels.Enhanced();
        if (!QTest::qWaitFor([&] { return panel.Engine().IsOpen(); }, 10000))
            qWarning("the enhanced panel did not open %s", qPrintable(file));
        return panel;
    }
    frmPlayPanel& Classic(const QString& file = "tone.wav")
    {
        panels.OpenClassic(tones->Path(file), "Tone", 0.0);
        return *panels.Classic();
    }
    // Lets the sink hear ms more, then ends the capture.
    void Listen(int ms)
    {
        QTest::qWait(ms);
        monitor.Stop();
    }

    TestContext tc;
    AppContext& ctx = *tc.ctx;
    PlayPanels panels{ctx.log, ctx.options, ctx.appStatus, tc.mixer, nullptr};
    SinkMonitor monitor;
};

constexpr double kToneDb = -6.02;

} // namespace

class TestPlayPanels : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        pulse = std::make_unique<PulseFixture>();
        if (!pulse->Running())
            QSKIP("no sound server");
        tones = std::make_unique<Tones>();
        QVERIFY(tones->Make());
    }

    void cleanupTestCase()
    {
        tones.reset();
        pulse.reset();
    }

    void formats_data()
    {
        QTest::addColumn<bool>("classic");
        QTest::addColumn<QString>("file");
        QTest::newRow("enhanced, PCM") << false << "tone.wav";
        QTest::newRow("enhanced, MP3") << false << "tone.mp3";
        QTest::newRow("enhanced, MP3 in WAV") << false << "mp3inside.wav";
        QTest::newRow("classic, MP3 in WAV") << true << "mp3inside.wav";
    }

    // Each format opens at its length and sounds as recorded; the classic panel plays with
    // no button pressed, and either panel's play marks the application as playing.
    void formats()
    {
        QFETCH(bool, classic);
        QFETCH(QString, file);
        Fixture f;
        PlaybackEngine* engine = nullptr;
        QLabel* length = nullptr;
        if (classic) {
            frmPlayPanel& panel = f.Classic(file);
            engine = &panel.Engine();
            length = panel.lblLength;
        } else {
            frmPlayPanelMP& panel = f.Enhanced(file);
            engine = &panel.Engine();
            length = panel.lblLength;
            panel.btnPlay->click();
        }
        QVERIFY(f.ctx.appStatus.Playing());
        QCOMPARE(engine->State(), PlaybackEngine::PlayState::Playing);
        QVERIFY2(qAbs(engine->Duration() - 10.0) < 0.1,
                 qPrintable(QString::number(engine->Duration())));
        QCOMPARE(length->text(), "0:00:10");
        f.Listen(2500);
        const double heard = f.monitor.PeakDb(0, 1.0);
        // MP3 encoding takes the peaks down by about half a decibel.
        QVERIFY2(qAbs(heard - kToneDb) < 1.0, qPrintable(QString::number(heard)));
        QVERIFY2(qAbs(f.monitor.Frequency() - 1000) < 10,
                 qPrintable(QString::number(f.monitor.Frequency())));
        if (classic)
            f.panels.Classic()->btnExit->click();
        else
            f.panels.Enhanced()->btnExit->click();
        QVERIFY(!f.ctx.appStatus.Playing());
    }

    void levels_data()
    {
        QTest::addColumn<int>("volume");
        QTest::addColumn<int>("balance");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        QTest::newRow("volume 75") << 75 << 0 << kToneDb - 9.99 << kToneDb - 9.99;
        QTest::newRow("volume 100") << 100 << 0 << -120.0 << -120.0;
        QTest::newRow("balance left") << 0 << -10000 << kToneDb << -120.0;
        QTest::newRow("balance right, half") << 0 << 600 << kToneDb - 6.0 << kToneDb;
    }

    // The volume set holds for the next panel of the run.
    void levels()
    {
        QFETCH(int, volume);
        QFETCH(int, balance);
        QFETCH(double, left);
        QFETCH(double, right);
        Fixture f;
        frmPlayPanelMP& panel = f.Enhanced();
        panel.VSliderVolume->setValue(volume);
        panel.HSliderBalance->setValue(balance);
        panel.btnPlay->click();
        f.Listen(3000);
        for (int channel : {0, 1}) {
            const double expected = channel == 0 ? left : right;
            // The first moments were buffered before the sliders moved.
            const double heard = f.monitor.PeakDb(channel, 0.5);
            const QByteArray what = QByteArray::number(channel) + ": " + QByteArray::number(heard);
            if (expected < -80)
                QVERIFY2(heard < (volume == 100 ? -90 : -80), what);
            else
                QVERIFY2(qAbs(heard - expected) < 0.3, what);
        }
        // The level is the player's own: the server's volume of its stream stays at 100 %.
        QByteArray streams;
        QVERIFY(Pactl::Run({"list", "sink-inputs"}, &streams));
        static const QRegularExpression percent("(\\d+)% /");
        QVERIFY2(streams.contains("% /"), streams);
        for (const auto& m : percent.globalMatch(QString::fromUtf8(streams)))
            QCOMPARE(m.captured(1), "100");
        frmPlayPanelMP& next = f.Enhanced();
        QCOMPARE(next.VSliderVolume->value(), volume);
    }

    // Twice the rate plays the 10 s in 5 s at the same pitch, and a skip keeps the rate.
    void rate()
    {
        Fixture f;
        frmPlayPanelMP& panel = f.Enhanced();
        panel.HSliderRate->setValue(200);
        panel.btnPlay->click();
        QVERIFY(QTest::qWaitFor(
            [&] { return panel.Engine().State() == PlaybackEngine::PlayState::Stopped; }, 8000));
        QTest::qWait(300);
        f.monitor.Stop();
        QVERIFY2(qAbs(f.monitor.SoundingSeconds() - 5.0) <= 0.3,
                 qPrintable(QString::number(f.monitor.SoundingSeconds())));
        QVERIFY2(qAbs(f.monitor.Frequency() - 1000) < 10,
                 qPrintable(QString::number(f.monitor.Frequency())));

        // 2 s in (4 s of the file), back 15 s to the start: 5 s more at twice the rate.
        f.monitor.Start();
        panel.btnPlay->click();
        QTest::qWait(2000);
        panel.steps->btnReverse[0]->click();
        QVERIFY(QTest::qWaitFor(
            [&] { return panel.Engine().State() == PlaybackEngine::PlayState::Stopped; }, 8000));
        QTest::qWait(300);
        f.monitor.Stop();
        QVERIFY2(qAbs(f.monitor.SoundingSeconds() - 7.0) <= 0.3,
                 qPrintable(QString::number(f.monitor.SoundingSeconds())));
    }

    void skipsAndKeys_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<double>("to");
        QTest::addColumn<bool>("plays");
        const int alt = Qt::AltModifier, ctrl = Qt::ControlModifier;
        QTest::newRow("forward 15 s near the end") << 9.5 << int(Qt::Key_1) << alt << 9.0 << true;
        QTest::newRow("back 15 s from the end") << 10.0 << int(Qt::Key_1) << ctrl << 0.0 << true;
        QTest::newRow("back 2 min, keypad 4")
            << 6.0 << int(Qt::Key_4) << ctrl + int(Qt::KeypadModifier) << 0.0 << true;
        QTest::newRow("ctrl and alt together")
            << 5.0 << int(Qt::Key_1) << alt + ctrl << 5.0 << false;
        QTest::newRow("to the beginning") << 5.0 << int(Qt::Key_B) << alt << 0.0 << true;
        QTest::newRow("to the end") << 5.0 << int(Qt::Key_E) << alt << 10.0 << false;
    }

    // From a paused file: a skip lands where it should and plays.
    void skipsAndKeys()
    {
        QFETCH(double, from);
        QFETCH(int, key);
        QFETCH(int, modifiers);
        Fixture f;
        frmPlayPanelMP& panel = f.Enhanced();
        panel.Engine().Pause();
        panel.Engine().SetCurrentPosition(from);
        // A tick of the panel's timer brings its buttons up to date.
        QTest::qWait(400);
        QTest::keyClick(&panel, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QTEST(panel.Engine().CurrentPosition(), "to");
        QTEST(panel.Engine().State() == PlaybackEngine::PlayState::Playing, "plays");
    }

    void brokenFile_data()
    {
        QTest::addColumn<bool>("classic");
        QTest::newRow("enhanced") << false;
        QTest::newRow("classic") << true;
    }

    // The enhanced panel shows it and logs nothing; the classic panel logs its load error.
    void brokenFile()
    {
        QFETCH(bool, classic);
        Fixture f;
        if (classic) {
            f.Classic("broken.wav");
            const QList<LogEntry> log = f.tc.LogEntries();
            QCOMPARE(log.size(), 1);
            QCOMPARE(log[0].message, "Error in Loading Play Panel");
            QCOMPARE(log[0].details, "Action not available for this device.");
            QVERIFY(f.panels.Classic()->isVisible());
        } else {
            f.panels.OpenEnhanced(tones->Path("broken.wav"), "Broken", 0.0);
            frmPlayPanelMP& panel = *f.panels.Enhanced();
            QTRY_COMPARE(panel.lblStatus->text(), "Error");
            QVERIFY(!panel.lblError->text().isEmpty());
            QVERIFY(f.tc.LogEntries().isEmpty());
        }
    }

    // The slider sets the default sink's volume, upside down; a step past the end is the
    // device's error, logged, and the position stays.
    void classicPanel()
    {
        Fixture f;
        QVERIFY(f.tc.mixer.SetVolume(100));
        frmPlayPanel& panel = f.Classic();
        QCOMPARE(panel.VSlider1->value(), 0);
        panel.VSlider1->setValue(70);
        for (uint raw : Pactl::VolumesOf("sink", "recsink"))
            QVERIFY2(qAbs(raw * 100.0 / 65536 - 30) < 1, qPrintable(QString::number(raw)));

        panel.Engine().SetCurrentPosition(8.0);
        QTest::qWait(200);
        QTest::keyClick(&panel, Qt::Key_1, Qt::AltModifier);
        const QList<LogEntry> log = f.tc.LogEntries();
        QCOMPARE(log.size(), 1);
        QVERIFY2(log[0].details.contains("Play Panel btnForward_Click"),
                 qPrintable(log[0].details));
        QVERIFY(qAbs(panel.Engine().CurrentPosition() - 8.0) < 0.5);
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestPlayPanels, QApplication)
#include "test_frmPlayPanels.moc"
