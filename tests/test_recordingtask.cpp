// The recording task for real: nightreel-rec started by the scheduler's side of the link,
// recording from a PulseAudio server of the test's own, its files checked by outside tools.
#include "PulseFixture.h"
#include "SoxTone.h"
#include "TestContext.h"
#include "TestParts.h"
#include "formats/CodecCatalogue.h"
#include "formats/WaveFileChunks.h"
#include "recording/RecordingTaskErrors.h"
#include "recording/RecordingTaskLink.h"
#include "taskcontract/RecParms.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTest>
#include <QtEndian>
#include <csignal>
#include <memory>

using namespace TaskProtocol;

namespace {

// What the readers of the recordings list find in a wave file: chunks in file order.
struct WaveLayout {
    struct Chunk {
        QByteArray id;
        qint64 offset = 0;
        quint32 size = 0;
    };
    bool riffWave = false;
    quint32 riffSize = 0;
    QList<Chunk> chunks; // top level, then the parts of LIST INFO
    QByteArray bytes;

    const Chunk* Find(const QByteArray& id) const
    {
        for (const Chunk& c : chunks) {
            if (c.id == id)
                return &c;
        }
        return nullptr;
    }
    qint64 IndexOf(const QByteArray& id) const
    {
        for (qsizetype i = 0; i < chunks.size(); ++i) {
            if (chunks[i].id == id)
                return i;
        }
        return -1;
    }
    // A text chunk holds its text and a terminating byte.
    QString Text(const QByteArray& id) const
    {
        const Chunk* c = Find(id);
        if (!c || c->size < 2)
            return {};
        return QString::fromLocal8Bit(bytes.mid(c->offset, c->size - 1));
    }
    quint32 U32(const QByteArray& id, int at = 0) const
    {
        const Chunk* c = Find(id);
        return c ? qFromLittleEndian<quint32>(bytes.constData() + c->offset + at) : 0;
    }
    quint16 U16(const QByteArray& id, int at) const
    {
        const Chunk* c = Find(id);
        return c ? qFromLittleEndian<quint16>(bytes.constData() + c->offset + at) : 0;
    }

    static WaveLayout Of(const QString& path)
    {
        WaveLayout w;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return w;
        w.bytes = file.readAll();
        if (w.bytes.size() < 12 || !w.bytes.startsWith("RIFF") || w.bytes.mid(8, 4) != "WAVE")
            return w;
        w.riffWave = true;
        w.riffSize = qFromLittleEndian<quint32>(w.bytes.constData() + 4);
        Walk(w, 12, w.bytes.size());
        return w;
    }
    static void Walk(WaveLayout& w, qint64 from, qint64 to)
    {
        for (qint64 at = from; at + 8 <= to;) {
            Chunk c{w.bytes.mid(at, 4), at + 8,
                    qFromLittleEndian<quint32>(w.bytes.constData() + at + 4)};
            w.chunks << c;
            if (c.id == "LIST" && w.bytes.mid(c.offset, 4) == "INFO")
                Walk(w, c.offset + 4, qMin<qint64>(c.offset + c.size, to));
            if (c.id == "data")
                return;
            at = c.offset + c.size + c.size % 2;
        }
    }
};

struct ToneFigures {
    bool ok = false;
    double rms = 0;
    double frequency = 0;
    QString output;
};

// Level and frequency of the first channel over one second, as sox measures them.
ToneFigures Measure(const QString& file)
{
    QProcess sox;
    sox.start("sox", {file, "-n", "remix", "1", "trim", "0.3", "1", "stat"});
    sox.waitForFinished(10000);
    ToneFigures f;
    f.output = QString::fromUtf8(sox.readAllStandardError());
    const auto figure = [&](const char* label) {
        const QRegularExpression re(QString::fromLatin1(label) + R"(:\s+(-?[0-9.]+))");
        const QRegularExpressionMatch m = re.match(f.output);
        return m.hasMatch() ? m.captured(1).toDouble() : -1.0;
    };
    f.rms = figure("RMS\\s+amplitude");
    f.frequency = figure("Rough\\s+frequency");
    f.ok = sox.exitCode() == 0 && f.rms >= 0;
    return f;
}

bool Decode(const QString& mp3, const QString& wav)
{
    return QProcess::execute("lame", {"--quiet", "--decode", mp3, wav}) == 0;
}

bool ProcessAlive(qint64 pid)
{
    return ::kill(pid_t(pid), 0) == 0;
}

// The parameters of a recording in the format of the record, as the scheduler writes them.
RecParms Parms(const QString& output, const QByteArray& record)
{
    RecParms p;
    p.softwareName = "Nightreel 2000 1.0";
    p.description = "Morning concert";
    p.startText = "06/01/2026 12:00:00";
    p.outputPath = output;
    p.lengthSeconds = 60;
    p.format = WaveFormatRecord::Decode(record).value();
    return p;
}

QStringList LoggedMessages(const TestContext& tc)
{
    QStringList messages;
    for (const LogEntry& e : tc.LogEntries())
        messages << e.message;
    return messages;
}

// A context, a link that starts the real task, and the recording's folder.
struct Rig {
    Rig()
    {
        tc.OpenDatabase();
        link = std::make_unique<RecordingTaskLink>(tc.ctx->log, tc.ctx->appStatus,
                                                   tc.ctx->folders.runtimeFolder);
        link->SetTaskProgram(NIGHTREEL_REC);
        QObject::connect(link.get(), &RecordingTaskLink::StopRecording,
                         [this] { tc.ctx->appStatus.SetRecording(false); });
    }
    QString Path(const QString& name) const { return tc.Root() + u'/' + name; }
    // Writes the parameters, brings the task up, starts capture and waits until sound
    // reaches the file: the test's sound server can be slow to deliver the first fragment.
    bool Start(const RecParms& parms)
    {
        parms.Write(link->ParameterFile());
        tc.ctx->appStatus.SetRecording(true);
        if (!link->ActivateNightreeltask())
            return false;
        const qint64 header = QFileInfo(parms.outputPath).size();
        if (link->SendMessage(REC_MSG_START) != 0)
            return false;
        for (int i = 0; i < 100 && QFileInfo(parms.outputPath).size() <= header; ++i)
            QTest::qWait(50);
        return QFileInfo(parms.outputPath).size() > header;
    }
    // Asks for the stop and waits for the task's answer.
    bool Stop()
    {
        QSignalSpy stopped(link.get(), &RecordingTaskLink::StopRecording);
        link->PostStop();
        return stopped.wait(5000) && link->tmrStopRecording.Interval() == 0;
    }
    bool WaitForExit(qint64 pid)
    {
        for (int i = 0; i < 60 && ProcessAlive(pid); ++i)
            QTest::qWait(50);
        return !ProcessAlive(pid);
    }

    TestContext tc;
    std::unique_ptr<RecordingTaskLink> link;
};

} // namespace

class TestRecordingTask : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_pulse = std::make_unique<PulseFixture>();
        QVERIFY2(m_pulse->Running(), "the test's own PulseAudio server did not start");
        QVERIFY(m_pulse->PlayTone());
    }
    void cleanupTestCase() { m_pulse.reset(); }

    void theToneIsInTheRecording_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("tag");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("kbps");
        QTest::newRow("PCM 8-bit mono") << "a.WAV" << 1 << 1 << 11025 << 8 << 0;
        QTest::newRow("PCM 8-bit stereo") << "b.WAV" << 1 << 2 << 22050 << 8 << 0;
        QTest::newRow("PCM 16-bit mono") << "c.WAV" << 1 << 1 << 8000 << 16 << 0;
        QTest::newRow("PCM 16-bit stereo") << "d.WAV" << 1 << 2 << 44100 << 16 << 0;
        QTest::newRow("MP3 as .MP3") << "e.MP3" << 85 << 2 << 44100 << 0 << 128;
        QTest::newRow("MP3 in a wave file") << "f.WAV" << 85 << 1 << 22050 << 0 << 64;
    }
    void theToneIsInTheRecording()
    {
        QFETCH(QString, file);
        QFETCH(int, tag);
        QFETCH(int, channels);
        QFETCH(int, rate);
        QFETCH(int, bits);
        QFETCH(int, kbps);
        Rig rig;
        const QString path = rig.Path(file);
        const QByteArray record = tag == WaveFormatRecord::TagMpegLayer3
                                      ? CodecCatalogue::Mp3Record(channels, rate, kbps)
                                      : CodecCatalogue::PcmRecord(channels, rate, bits);
        const RecParms parms = Parms(path, record);
        QVERIFY(rig.Start(parms));
        QTest::qWait(2000);
        QVERIFY(rig.Stop());
        QVERIFY(rig.WaitForExit(rig.link->StartedTasks().last()));
        QVERIFY(LoggedMessages(rig.tc).isEmpty());

        QString audio = path;
        const WaveLayout wave = WaveLayout::Of(path);
        if (file.endsWith(".MP3")) {
            QVERIFY(!wave.riffWave);
            audio = rig.Path("decoded.wav");
            QVERIFY(Decode(path, audio));
        } else {
            // Chunks in the order the readers look for them; each text with its end byte.
            QVERIFY(wave.riffWave);
            QCOMPARE(qint64(wave.riffSize), wave.bytes.size() - 8);
            QVERIFY(wave.IndexOf("fmt ") >= 0);
            QVERIFY(wave.IndexOf("fmt ") < wave.IndexOf("fact"));
            QVERIFY(wave.IndexOf("fact") < wave.IndexOf("LIST"));
            QVERIFY(wave.IndexOf("LIST") < wave.IndexOf("ISFT"));
            QVERIFY(wave.IndexOf("ISFT") < wave.IndexOf("INAM"));
            QVERIFY(wave.IndexOf("INAM") < wave.IndexOf("ICRD"));
            QVERIFY(wave.IndexOf("ICRD") < wave.IndexOf("data"));
            QCOMPARE(wave.Text("ISFT"), parms.softwareName);
            QCOMPARE(wave.Text("INAM"), parms.description);
            QCOMPARE(wave.Text("ICRD"), parms.startText);
            // And as the recordings list reads it.
            QFile recording(path);
            QVERIFY(recording.open(QIODevice::ReadOnly));
            WaveFileChunks read;
            QVERIFY(
                WaveFileChunk::ReadNightreelWave(recording, CodecCatalogue::MaxFormatSize(), read));
            QCOMPARE(read.software, parms.softwareName);
            QCOMPARE(read.title, parms.description);
            QCOMPARE(read.created, parms.startText);
            // The task writes the very record of the scheduler's format, extra bytes and all.
            const WaveLayout::Chunk* fmt = wave.Find("fmt ");
            QCOMPARE(wave.bytes.mid(fmt->offset, fmt->size), record);
            const WaveLayout::Chunk* data = wave.Find("data");
            QVERIFY(data);
            QCOMPARE(data->offset + data->size + data->size % 2, wave.bytes.size());
            const double seconds = double(wave.U32("fact")) / rate;
            QVERIFY2(seconds > 1.7 && seconds < 2.6, qPrintable(QString::number(seconds)));
            if (tag == 1) {
                QCOMPARE(data->size, wave.U32("fact") * parms.format.nBlockAlign);
                QCOMPARE(Soxi("-r", path), QString::number(rate));
                QCOMPARE(Soxi("-c", path), QString::number(channels));
                QCOMPARE(Soxi("-b", path), QString::number(bits));
            } else {
                audio = rig.Path("decoded.wav");
                QFile mp3(rig.Path("data.mp3"));
                QVERIFY(mp3.open(QIODevice::WriteOnly));
                mp3.write(wave.bytes.mid(data->offset, data->size));
                mp3.close();
                QVERIFY(Decode(mp3.fileName(), audio));
            }
        }
        const ToneFigures tone = Measure(audio);
        QVERIFY2(tone.ok, qPrintable(tone.output));
        QVERIFY2(tone.rms > 0.30 && tone.rms < 0.40, qPrintable(tone.output));
        QVERIFY2(qAbs(tone.frequency - 1000) < 30, qPrintable(tone.output));
    }

    void pauseLeavesTheTimeOutAndKeepAliveIsAnswered()
    {
        Rig rig;
        const QString path = rig.Path("paused.WAV");
        QVERIFY(rig.Start(Parms(path, CodecCatalogue::PcmRecord(1, 8000, 16))));
        QTest::qWait(1000);
        QCOMPARE(rig.link->SendMessage(REC_MSG_PAUSE_TOGGLE), 0);
        QTest::qWait(1500);
        QCOMPARE(rig.link->SendMessage(REC_MSG_PAUSE_TOGGLE), 0);
        // A paused or running task answers the keep-alive all the same.
        rig.link->tmrKeepAlive_Timer();
        QCOMPARE(rig.link->KeepAliveMissCount, qint16(1));
        QTRY_COMPARE_WITH_TIMEOUT(rig.link->KeepAliveMissCount, qint16(0), 2000);
        QTest::qWait(1000);
        QVERIFY(rig.Stop());
        const double seconds = Soxi("-D", path).toDouble();
        QVERIFY2(seconds > 1.7 && seconds < 2.6, qPrintable(QString::number(seconds)));
    }

    void aKilledTaskLeavesAFileAsOfItsLastUpdate()
    {
        Rig rig;
        const QString path = rig.Path("killed.WAV");
        const RecParms parms = Parms(path, CodecCatalogue::PcmRecord(2, 16000, 16));
        QVERIFY(rig.Start(parms));
        QTest::qWait(3000);
        const qint64 pid = rig.link->StartedTasks().last();
        ::kill(pid_t(pid), SIGKILL);
        QVERIFY(rig.WaitForExit(pid));

        const WaveLayout wave = WaveLayout::Of(path);
        const WaveLayout::Chunk* data = wave.Find("data");
        QVERIFY(data);
        const qint64 onDisk = wave.bytes.size() - data->offset;
        // The header tells the data of its last update: some, and no more than is there.
        QVERIFY(data->size >= parms.format.nAvgBytesPerSec);
        QVERIFY(data->size <= onDisk);
        QVERIFY(onDisk - data->size < 3 * parms.format.nAvgBytesPerSec);
        QCOMPARE(data->size, wave.U32("fact") * parms.format.nBlockAlign);
        QCOMPARE(qint64(wave.riffSize), data->offset - 8 + data->size);
        QCOMPARE(Soxi("-s", path), QString::number(wave.U32("fact")));
    }

    void aTaskWhoseSchedulerGoesAwayFinishesItsFile()
    {
        Rig rig;
        const QString path = rig.Path("orphan.WAV");
        QVERIFY(rig.Start(Parms(path, CodecCatalogue::PcmRecord(1, 11025, 8))));
        QTest::qWait(1200);
        const qint64 pid = rig.link->StartedTasks().last();
        rig.link.reset();
        QVERIFY(rig.WaitForExit(pid));
        const WaveLayout wave = WaveLayout::Of(path);
        const WaveLayout::Chunk* data = wave.Find("data");
        QVERIFY(data && data->size > 8000);
        QCOMPARE(data->offset + data->size + data->size % 2, wave.bytes.size());
    }

    void withoutASoundServerTheTaskSaysSoAndNothingHangs()
    {
        Rig rig;
        const QByteArray server = qgetenv("PULSE_SERVER");
        qputenv("PULSE_SERVER", ("unix:" + rig.tc.Root() + "/no-such-server").toUtf8());
        Parms(rig.Path("none.WAV"), CodecCatalogue::PcmRecord(1, 11025, 8))
            .Write(rig.link->ParameterFile());
        QElapsedTimer elapsed;
        elapsed.start();
        const bool activated = rig.link->ActivateNightreeltask();
        qputenv("PULSE_SERVER", server);
        QVERIFY(!activated);
        QVERIFY(elapsed.elapsed() < 8000);
        QCOMPARE(rig.link->StartedTasks().size(), 3);
        QCOMPARE(LoggedMessages(rig.tc), QStringList{"No audio driver found for recording."});
        for (qint64 pid : rig.link->StartedTasks())
            QVERIFY(rig.WaitForExit(pid));
    }

    // Last: it takes the sound server away.
    void losingTheSoundServerFailsTheRecording()
    {
        Rig rig;
        const QString path = rig.Path("lost.WAV");
        QVERIFY(rig.Start(Parms(path, CodecCatalogue::PcmRecord(1, 11025, 16))));
        QSignalSpy taskError(rig.link.get(), &RecordingTaskLink::TaskError);
        m_pulse->Stop();
        QVERIFY(taskError.wait(5000));
        ReportRecordingTaskError(rig.tc.ctx->log, taskError[0][0].toInt());
        QCOMPARE(LoggedMessages(rig.tc), QStringList{"Error occurred during recording process."});
        QVERIFY(rig.WaitForExit(rig.link->StartedTasks().last()));
        // What was recorded up to then is a finished file.
        const WaveLayout wave = WaveLayout::Of(path);
        const WaveLayout::Chunk* data = wave.Find("data");
        QVERIFY(data && data->size > 0);
        QCOMPARE(data->offset + data->size + data->size % 2, wave.bytes.size());
    }

private:
    std::unique_ptr<PulseFixture> m_pulse;
};

NIGHTREEL_TEST_PARTS_MAIN(TestRecordingTask, QCoreApplication)
#include "test_recordingtask.moc"
