// Both player panels played into a private sound server's null sink and heard at its
// monitor: levels, balance, rate, skips and keys, the formats, a broken file, and the
// classic panel's master volume.
#include "Pactl.h"
#include "PulseFixture.h"
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
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace {

// What reaches the sink, as its monitor hears it: 16-bit stereo at 44.1 kHz recorded from
// Start to Stop.
class SinkMonitor {
public:
    static constexpr int Rate = 44100;

    ~SinkMonitor() { Stop(); }

    bool Start()
    {
        m_samples.clear();
        m_parec.start("parec", {"--device=recsink.monitor", "--raw", "--format=s16le",
                                "--rate=44100", "--channels=2", "--latency-msec=20"});
        return m_parec.waitForStarted(3000);
    }

    void Stop()
    {
        if (m_parec.state() == QProcess::NotRunning)
            return;
        EndProcess(m_parec);
        const QByteArray raw = m_parec.readAllStandardOutput();
        for (qsizetype i = 0; i + 1 < raw.size(); i += 2)
            m_samples.push_back(qFromLittleEndian<qint16>(raw.constData() + i));
    }

    // The loudest sample of a channel (0 left, 1 right) in the last seconds heard, in
    // dBFS; -120 for silence.
    double PeakDb(int channel, double lastSeconds) const
    {
        int peak = 0;
        const size_t frames = m_samples.size() / 2;
        const size_t from = frames - std::min(frames, size_t(lastSeconds * Rate));
        for (size_t i = 2 * from + size_t(channel); i < m_samples.size(); i += 2)
            peak = std::max(peak, std::abs(int(m_samples[i])));
        return peak == 0 ? -120.0 : 20.0 * std::log10(peak / 32768.0);
    }

    // Seconds from the first to the last sample of the left channel above -40 dBFS.
    double SoundingSeconds() const
    {
        const auto [first, last] = SoundingRange();
        return first < 0 ? 0.0 : double(last - first) / Rate;
    }

    // The left channel's frequency, from its rising zero crossings while it sounds.
    double Frequency() const
    {
        const auto [first, last] = SoundingRange();
        int crossings = 0;
        long firstCrossing = -1;
        long lastCrossing = -1;
        for (long f = std::max(first, 1L); first >= 0 && f <= last; ++f) {
            if (m_samples[size_t(2 * (f - 1))] < 0 && m_samples[size_t(2 * f)] >= 0) {
                if (firstCrossing < 0)
                    firstCrossing = f;
                lastCrossing = f;
                ++crossings;
            }
        }
        return crossings < 2 ? 0.0
                             : (crossings - 1) * double(Rate) / (lastCrossing - firstCrossing);
    }

private:
    std::pair<long, long> SoundingRange() const
    {
        const int threshold = int(32768 * 0.01);
        long first = -1;
        long last = -1;
        for (size_t i = 0; i < m_samples.size(); i += 2) {
            if (std::abs(int(m_samples[i])) > threshold) {
                if (first < 0)
                    first = long(i / 2);
                last = long(i / 2);
            }
        }
        return {first, last};
    }

    QProcess m_parec;
    std::vector<qint16> m_samples;
};

// A 10-second 1 kHz stereo tone at half scale in each format the panels play.
struct Tones {
    QTemporaryDir dir;
    QString Path(const QString& name) const { return dir.path() + "/" + name; }

    bool Make()
    {
        const auto run = [](const QString& program, const QStringList& args) {
            bool ok = false;
            RunProgram(program, args, &ok);
            return ok;
        };
        QByteArray junk(20000, '\0');
        for (int i = 0; i < junk.size(); ++i)
            junk[i] = char((i * 7919) % 251);
        // The MP3 frames also go inside a WAV file (format tag 85), as recordings keep them.
        return run("sox", {"-n", "-r", "44100", "-c", "2", "-b", "16", Path("tone.wav"), "synth",
                           "10", "sine", "1000", "vol", "0.5"}) &&
               run("lame", {"--quiet", "--cbr", "-b", "128", Path("tone.wav"), Path("tone.mp3")}) &&
               run("lame",
                   {"--quiet", "-t", "--cbr", "-b", "128", Path("tone.wav"), Path("frames.mp3")}) &&
               TaskWaveSource::WriteWave(QFile::encodeName(Path("mp3inside.wav")).toStdString(),
                                         TaskWaveSource::Mp3Record(2, 44100, 128), 441000,
                                         ReadFile(Path("frames.mp3")).toStdString()) &&
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
    bool ListenToTheEnd(const PlaybackEngine& engine)
    {
        const bool ended = QTest::qWaitFor(
            [&] { return engine.State() == PlaybackEngine::PlayState::Stopped; }, 8000);
        Listen(300);
        return ended;
    }

    TestContext tc;
    AppContext& ctx = *tc.ctx;
    PlayPanels panels{ctx.log, ctx.options, ctx.appStatus, tc.mixer, nullptr};
    SinkMonitor monitor;
};

constexpr double kToneDb = -6.02;

bool Near(double actual, double expected, double tolerance)
{
    if (qAbs(actual - expected) <= tolerance)
        return true;
    qWarning("%g where %g was expected", actual, expected);
    return false;
}

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
        const auto playsUntilExit = [&f](auto& panel) {
            QVERIFY(f.ctx.appStatus.Playing());
            QCOMPARE(panel.Engine().State(), PlaybackEngine::PlayState::Playing);
            QVERIFY(Near(panel.Engine().Duration(), 10.0, 0.1));
            QCOMPARE(panel.lblLength->text(), "0:00:10");
            f.Listen(2500);
            // MP3 encoding takes the peaks down by about half a decibel.
            QVERIFY(Near(f.monitor.PeakDb(0, 1.0), kToneDb, 1.0));
            QVERIFY(Near(f.monitor.Frequency(), 1000, 10));
            panel.btnExit->click();
            QVERIFY(!f.ctx.appStatus.Playing());
        };
        if (classic) {
            playsUntilExit(f.Classic(file));
        } else {
            frmPlayPanelMP& panel = f.Enhanced(file);
            panel.btnPlay->click();
            playsUntilExit(panel);
        }
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
            if (expected < -80)
                QVERIFY2(heard < (volume == 100 ? -90 : -80), qPrintable(QString::number(heard)));
            else
                QVERIFY(Near(heard, expected, 0.3));
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
        QVERIFY(!panel.btnBeginning->isEnabled());
        panel.btnPlay->click();
        // While it plays, Play is off and Pause, Stop and back to the beginning are on; at the
        // end, Play is on and Pause and Stop are off.
        QTRY_VERIFY(!panel.btnPlay->isEnabled() && panel.btnPause->isEnabled() &&
                    panel.btnStop->isEnabled() && panel.btnBeginning->isEnabled());
        QVERIFY(f.ListenToTheEnd(panel.Engine()));
        QTRY_VERIFY(panel.btnPlay->isEnabled() && !panel.btnPause->isEnabled() &&
                    !panel.btnStop->isEnabled());
        QVERIFY(Near(f.monitor.SoundingSeconds(), 5.0, 0.3));
        QVERIFY(Near(f.monitor.Frequency(), 1000, 10));

        // 2 s in (4 s of the file), back 15 s to the start: 5 s more at twice the rate.
        f.monitor.Start();
        panel.btnPlay->click();
        QTest::qWait(2000);
        panel.steps->btnReverse[0]->click();
        QVERIFY(f.ListenToTheEnd(panel.Engine()));
        QVERIFY(Near(f.monitor.SoundingSeconds(), 7.0, 0.3));
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
