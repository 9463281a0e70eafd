// The encoder library, loaded as the program loads it, on sources in the recording task's
// layout; results checked by walking their frames and chunks and by decoding them.
#include "SoxTone.h"
#include "TaskWaveSource.h"
#include "TestFiles.h"
#include "formats/WaveFileChunks.h"
#include "recording/EncoderLibrary.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

namespace {

// What one conversion did.
struct Run {
    int code = 0;         // the first non-zero code, 0 when all went well
    int steps = 0;        // EncodeNextBuffer calls
    int finishedSets = 0; // calls that set finished
    int lastPercent = -1;
    bool percentRises = true;
};

struct Frames {
    bool ok = false;
    int count = 0;
    qint64 end = 0;
    int rate = 0;
    int kbps = 0;
    int channelMode = 0;
    bool infoFrame = false;
};

Frames WalkFrames(const QByteArray& bytes, qint64 begin, qint64 end)
{
    static const int rates1[] = {44100, 48000, 32000};
    static const int rates2[] = {22050, 24000, 16000};
    static const int kbps1[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    static const int kbps2[] = {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
    Frames f;
    qint64 pos = begin;
    while (pos + 4 <= end) {
        const auto* h = reinterpret_cast<const uchar*>(bytes.constData() + pos);
        const int version = (h[1] >> 3) & 3; // 3 MPEG 1, 2 MPEG 2 (the rates we use)
        const int layer = (h[1] >> 1) & 3;   // 1 layer III
        const int rateIndex = (h[2] >> 2) & 3;
        const int kbpsIndex = h[2] >> 4;
        if (h[0] != 0xff || (h[1] & 0xe0) != 0xe0 || version < 2 || layer != 1 || rateIndex == 3 ||
            kbpsIndex == 0 || kbpsIndex == 15)
            return f;
        const int rate = (version == 3 ? rates1 : rates2)[rateIndex];
        const int kbps = (version == 3 ? kbps1 : kbps2)[kbpsIndex];
        const int length = (version == 3 ? 144000 : 72000) * kbps / rate + ((h[2] >> 1) & 1);
        if (f.count == 0) {
            f.rate = rate;
            f.kbps = kbps;
            f.channelMode = h[3] >> 6;
            // A Xing/Info frame, filled in or still blank (all zero after its header, as lame
            // leaves it until the tag is written).
            const QByteArray first = bytes.mid(pos, length);
            f.infoFrame = first.contains("Xing") || first.contains("Info") ||
                          first.mid(4).count('\0') == first.size() - 4;
        }
        ++f.count;
        pos += length;
    }
    f.end = pos;
    f.ok = pos == end && f.count > 0;
    return f;
}

// The records as the program's catalogue and the task lay them out.
static_assert(sizeof(NightreelWaveFormat) == 18);
static_assert(sizeof(NightreelMp3WaveFormat) == 30);

} // namespace

class TestEncoder : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    EncoderLibrary m_enc;

    QString Path(const QString& name) const { return m_dir.filePath(name); }

    int Start(const QString& source, const QString& destination, const std::string& in,
              const std::string& out, bool asWave)
    {
        return m_enc.StartEncodeMp3(
            QFile::encodeName(source).constData(), QFile::encodeName(destination).constData(),
            reinterpret_cast<const NightreelWaveFormat*>(in.data()),
            reinterpret_cast<const NightreelWaveFormat*>(out.data()), asWave ? 1 : 0);
    }

    // A source in the task's layout; its sample frames.
    quint32 MakeSource(const QString& name, int rate, int channels, double seconds,
                       quint32 staleExtra = 0, int bits = 16)
    {
        const std::string pcm = RawTone(rate, channels, seconds, bits);
        const bool written =
            !pcm.empty() &&
            TaskWaveSource::Write(QFile::encodeName(Path(name)).toStdString(), quint16(channels),
                                  quint32(rate), pcm, staleExtra, quint16(bits));
        return written ? quint32(pcm.size() / (channels * bits / 8)) : 0;
    }

    // Start, steps (all, or at most maxSteps), finish.
    Run Convert(const QString& source, const QString& destination, const std::string& in,
                const std::string& out, bool asWave, int maxSteps = -1)
    {
        Run run;
        run.code = Start(source, destination, in, out, asWave);
        if (run.code != 0)
            return run;
        // A library that never sets finished stops at a million steps, and fails the checks.
        for (qint32 finished = 0; finished != 1 && run.steps != maxSteps && run.steps < 1000000;
             ++run.steps) {
            qint32 percent = -1;
            run.code = m_enc.EncodeNextBuffer(&percent, &finished);
            if (run.code != 0)
                return run;
            run.percentRises &= percent >= qMax(run.lastPercent, 0) && percent <= 100;
            run.lastPercent = percent;
            run.finishedSets += finished == 0 ? 0 : finished == 1 ? 1 : 100;
        }
        // With the blank the scheduler adds to each text.
        run.code =
            m_enc.FinishEncodeMp3("Nightreel 2000 1.0 ", "6/1/2026 8:00:00 PM ", "Morning  show  ");
        return run;
    }

    // The tone came through: about 1 kHz at about the source's level (RMS of a half-scale
    // sine: 0.354).
    void VerifyTone(const Mp3Tone& s, double seconds)
    {
        QVERIFY(s.ok);
        QVERIFY2(s.frequency > 950 && s.frequency < 1050, qPrintable(QString::number(s.frequency)));
        QVERIFY2(s.rms > 0.30 && s.rms < 0.40, qPrintable(QString::number(s.rms)));
        QVERIFY2(qAbs(s.seconds - seconds) < 0.1, qPrintable(QString::number(s.seconds)));
    }

    // A plain MP3 result: frames from the first byte to 128 bytes before the end, no Xing
    // frame, 128 zero bytes.
    void VerifyMp3File(const QByteArray& bytes)
    {
        QVERIFY(bytes.size() > NIGHTREELENC_TAG_BYTES);
        const Frames f = WalkFrames(bytes, 0, bytes.size() - NIGHTREELENC_TAG_BYTES);
        QVERIFY2(f.ok, "the frames run from the start to the reserved bytes");
        QVERIFY(!f.infoFrame);
        QCOMPARE(bytes.right(NIGHTREELENC_TAG_BYTES), QByteArray(NIGHTREELENC_TAG_BYTES, '\0'));
    }

    // A wave result: exactly ISFT, INAM, fmt, fact, data; the data chunk's MP3 stream.
    QByteArray VerifyWaveFile(const QByteArray& bytes, const std::string& record, quint32 frames,
                              const QByteArray& software, const QByteArray& title)
    {
        QByteArray mp3;
        [&] {
            bool riffOk = false;
            const QList<RiffChunk> chunks = DirectChunks(bytes, &riffOk);
            QVERIFY2(riffOk, "RIFF WAVE, its size the file's less 8, chunks to the end");
            QStringList ids;
            for (const RiffChunk& c : chunks)
                ids << QString::fromLatin1(c.id);
            QCOMPARE(ids, QStringList({"ISFT", "INAM", "fmt ", "fact", "data"}));
            // Texts: the data less its last byte, which is the NUL.
            QCOMPARE(chunks[0].data, software + '\0');
            QCOMPARE(chunks[1].data, title + '\0');
            QCOMPARE(chunks[2].data, QByteArray::fromStdString(record));
            QCOMPARE(chunks[3].data.size(), 4);
            QCOMPARE(qFromLittleEndian<quint32>(chunks[3].data.constData()), frames);
            const Frames f = WalkFrames(chunks[4].data, 0, chunks[4].data.size());
            QVERIFY2(f.ok, "the data chunk holds whole frames");
            QVERIFY(!f.infoFrame);
            mp3 = chunks[4].data;
        }();
        return mp3;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        if (QStandardPaths::findExecutable(QStringLiteral("sox")).isEmpty() ||
            QStandardPaths::findExecutable(QStringLiteral("lame")).isEmpty())
            QSKIP("needs sox and lame");
        m_enc.SetFolder(QStringLiteral(NIGHTREELENC_DIR));
        QVERIFY2(m_enc.Load(), qPrintable(m_enc.ErrorString()));
    }

    void cleanup()
    {
        // Every test leaves the library idle for the next.
        m_enc.Mp3ConvertErrorCleanUp();
    }

    void convert_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("seconds");
        QTest::addColumn<bool>("staleHeader"); // the header claims 5 seconds more than there are
        QTest::addColumn<int>("outRate");
        QTest::addColumn<int>("outChannels");
        QTest::addColumn<int>("kbps");
        QTest::addColumn<bool>("asWave");
        QTest::addColumn<int>("channelMode"); // 1 joint stereo, 3 single channel
        QTest::newRow("stereo mp3")
            << 44100 << 2 << 16 << 4 << false << 44100 << 2 << 128 << false << 1;
        QTest::newRow("mono mp3") << 22050 << 1 << 16 << 3 << false << 22050 << 1 << 56 << false
                                  << 3;
        QTest::newRow("8-bit mp3")
            << 22050 << 1 << 8 << 2 << false << 22050 << 1 << 64 << false << 3;
        // fact counts frames at the format's rate when the rates differ.
        QTest::newRow("resampled wave")
            << 44100 << 2 << 16 << 2 << false << 22050 << 1 << 64 << true << 3;
        // The source is read by its data chunk, not the header's claim: fact and length show it.
        QTest::newRow("stale header wave")
            << 44100 << 2 << 16 << 2 << true << 44100 << 2 << 128 << true << 1;
    }

    void convert()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        QFETCH(int, bits);
        QFETCH(int, seconds);
        QFETCH(bool, staleHeader);
        QFETCH(int, outRate);
        QFETCH(int, outChannels);
        QFETCH(int, kbps);
        QFETCH(bool, asWave);
        QFETCH(int, channelMode);
        const QString name = QString::fromLatin1(QTest::currentDataTag()).replace(' ', '-');
        const QString source = Path(name + ".WAV.TMP");
        const QString destination = Path(name + (asWave ? ".WAV" : ".MP3"));
        const quint32 frames = MakeSource(name + ".WAV.TMP", rate, channels, seconds,
                                          staleHeader ? 5 * rate * channels * bits / 8 : 0, bits);
        QCOMPARE(frames, quint32(seconds * rate));
        const std::string record = TaskWaveSource::Mp3Record(outChannels, outRate, kbps);
        const Run run = Convert(source, destination,
                                TaskWaveSource::PcmRecord(channels, rate, bits), record, asWave);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.finishedSets, 1);
        QCOMPARE(run.lastPercent, 100);
        QVERIFY(run.percentRises);
        const QByteArray bytes = ReadFile(destination);
        const quint32 outFrames = quint32(quint64(frames) * outRate / rate);
        QByteArray mp3 = bytes;
        if (asWave) {
            // One blank of each text is removed, no more.
            mp3 = VerifyWaveFile(bytes, record, outFrames, "Nightreel 2000 1.0", "Morning  show ");
            // The project's reader of the recordings list takes it for an encoder's wave
            // file, and not for one of the recording task.
            QBuffer device;
            device.setData(bytes);
            QVERIFY(device.open(QIODevice::ReadOnly));
            WaveFileChunks chunks;
            QVERIFY(!WaveFileChunk::ReadNightreelWave(device, 30, chunks));
            device.seek(0);
            QVERIFY(WaveFileChunk::ReadNightreelCompressedWave(device, 30, chunks));
        } else {
            // The 128 bytes reserved are where the scheduler writes its tag.
            VerifyMp3File(bytes);
        }
        const Frames f = WalkFrames(mp3, 0, asWave ? mp3.size() : mp3.size() - 128);
        QCOMPARE(f.rate, outRate);
        QCOMPARE(f.kbps, kbps);
        QCOMPARE(f.channelMode, channelMode);
        VerifyTone(DecodeMp3(mp3, Path(name + ".decoded")), seconds);
    }

    // The texts lose the blank the caller added, no more. With the capture's own texts, as the
    // recorder passes them, finishing writes the header and moves no audio, however long the
    // recording.
    void waveTexts_data()
    {
        QTest::addColumn<QByteArray>("software");
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QByteArray>("wantSoftware");
        QTest::addColumn<QByteArray>("wantTitle");
        QTest::addColumn<bool>("inPlace"); // the capture's texts
        QTest::newRow("empty") << QByteArray(" ") << QByteArray(" ") << QByteArray() << QByteArray()
                               << false;
        QTest::newRow("no blank added")
            << QByteArray("Nightreel 2000 1.0") << QByteArray("No blank")
            << QByteArray("Nightreel 2000 1.0") << QByteArray("No blank") << false;
        QTest::newRow("the capture's")
            << QByteArray("Nightreel 2000 1.0 ") << QByteArray("Test source ")
            << QByteArray("Nightreel 2000 1.0") << QByteArray("Test source") << true;
    }

    void waveTexts()
    {
        QFETCH(QByteArray, software);
        QFETCH(QByteArray, title);
        QFETCH(bool, inPlace);
        if (!QFileInfo::exists(Path("tx.WAV.TMP")))
            MakeSource("tx.WAV.TMP", 44100, 2, 3);
        const std::string record = TaskWaveSource::Mp3Record(2, 44100, 128);
        QCOMPARE(Start(Path("tx.WAV.TMP"), Path("tx.WAV"), TaskWaveSource::PcmRecord(2, 44100),
                       record, true),
                 0);
        for (qint32 percent = 0, finished = 0; finished != 1;)
            QCOMPARE(m_enc.EncodeNextBuffer(&percent, &finished), 0);
        const QByteArray encoded = ReadFile(Path("tx.WAV"));
        QCOMPARE(m_enc.FinishEncodeMp3(software.constData(), " ", title.constData()), 0);
        const QByteArray bytes = ReadFile(Path("tx.WAV"));
        QFETCH(QByteArray, wantSoftware);
        QFETCH(QByteArray, wantTitle);
        const QByteArray mp3 = VerifyWaveFile(bytes, record, 3 * 44100, wantSoftware, wantTitle);
        VerifyTone(DecodeMp3(mp3, Path("tx.decoded")), 3);
        const qint64 dataStart = bytes.indexOf("data") + 8;
        QVERIFY(encoded.size() > dataStart + 20000);
        if (inPlace)
            QVERIFY(encoded.mid(dataStart) == bytes.mid(dataStart, encoded.size() - dataStart));
    }

    // A call out of turn is refused and changes nothing: while idle, a second start, a step
    // after the source is used up, a finish after finishing, and after a failed write (the disk
    // full, for both results) anything but the clean-up.
    void callsOutOfTurnAreRefused()
    {
        MakeSource("oo.WAV.TMP", 44100, 2, 3);
        const QString source = Path("oo.WAV.TMP");
        const std::string in = TaskWaveSource::PcmRecord(2, 44100);
        const std::string out = TaskWaveSource::Mp3Record(2, 44100, 128);
        qint32 percent = 0, finished = 0;
        const auto refused = [&] {
            QCOMPARE(m_enc.EncodeNextBuffer(&percent, &finished), NIGHTREELENC_ERR_OUT_OF_ORDER);
            QCOMPARE(m_enc.FinishEncodeMp3(" ", " ", " "), NIGHTREELENC_ERR_OUT_OF_ORDER);
            QCOMPARE(finished, 0);
        };
        refused();
        QCOMPARE(Start(source, Path("oo.MP3"), in, out, false), 0);
        QCOMPARE(Start(source, Path("oo2.MP3"), in, out, false), NIGHTREELENC_ERR_OUT_OF_ORDER);
        int sets = 0;
        for (int i = 0; i < 10000 && finished == 0; ++i) {
            QCOMPARE(m_enc.EncodeNextBuffer(&percent, &finished), 0);
            sets += finished;
        }
        QCOMPARE(sets, 1);
        finished = 0;
        QCOMPARE(m_enc.EncodeNextBuffer(&percent, &finished), NIGHTREELENC_ERR_OUT_OF_ORDER);
        QCOMPARE(finished, 0); // left as passed
        QCOMPARE(m_enc.FinishEncodeMp3("Nightreel 2000 1.0 ", " ", "Title "), 0);
        refused();
        VerifyMp3File(ReadFile(Path("oo.MP3")));
        QCOMPARE(m_enc.Mp3ConvertErrorCleanUp(), 0); // harmless when idle

        for (const bool asWave : {false, true}) {
            const Run run = Convert(source, QStringLiteral("/dev/full"), in, out, asWave);
            QCOMPARE(run.code, NIGHTREELENC_ERR_WRITE);
            QCOMPARE(run.finishedSets, 0);
            refused();
            QCOMPARE(Start(source, Path("df.MP3"), in, out, false), NIGHTREELENC_ERR_OUT_OF_ORDER);
            QCOMPARE(m_enc.Mp3ConvertErrorCleanUp(), 0);
            QCOMPARE(Convert(source, Path("df.MP3"), in, out, false).code, 0);
            VerifyMp3File(ReadFile(Path("df.MP3")));
        }
    }

    void startFailures()
    {
        MakeSource("sf.WAV.TMP", 44100, 2, 1);
        QVERIFY(WriteFile(Path("not-a-wave.WAV.TMP"), QByteArray(4096, 'x')));
        const std::string in = TaskWaveSource::PcmRecord(2, 44100);
        const std::string out = TaskWaveSource::Mp3Record(2, 44100, 128);
        const QString src = Path("sf.WAV.TMP");
        const QString dst = Path("sf.MP3");
        // Nothing is created when the start fails before the destination.
        QCOMPARE(Start(Path("missing.WAV.TMP"), Path("never.MP3"), in, out, false),
                 NIGHTREELENC_ERR_OPEN_SOURCE);
        QVERIFY(!QFileInfo::exists(Path("never.MP3")));
        QCOMPARE(Start(Path("not-a-wave.WAV.TMP"), dst, in, out, false),
                 NIGHTREELENC_ERR_BAD_FORMAT);
        // The record disagrees with the file's fmt.
        QCOMPARE(Start(src, dst, TaskWaveSource::PcmRecord(1, 44100), out, false),
                 NIGHTREELENC_ERR_BAD_FORMAT);
        // Not MP3, a bit rate MPEG audio has not, a rate MPEG audio has not.
        QCOMPARE(Start(src, dst, in, in, false), NIGHTREELENC_ERR_BAD_FORMAT);
        QCOMPARE(Start(src, dst, in, TaskWaveSource::Mp3Record(2, 44100, 130), false),
                 NIGHTREELENC_ERR_BAD_FORMAT);
        QCOMPARE(Start(src, dst, in, TaskWaveSource::Mp3Record(2, 44000, 128), false),
                 NIGHTREELENC_ERR_BAD_FORMAT);
        QCOMPARE(Start(src, Path("no-such-folder/sf.MP3"), in, out, false),
                 NIGHTREELENC_ERR_CREATE_DESTINATION);
        const qint64 sourceSize = QFileInfo(src).size();
        QCOMPARE(Start(src, src, in, out, false), NIGHTREELENC_ERR_CREATE_DESTINATION);
        QCOMPARE(QFileInfo(src).size(), sourceSize);
        QCOMPARE(m_enc.StartEncodeMp3(nullptr, "x", nullptr, nullptr, 0),
                 NIGHTREELENC_ERR_BAD_FORMAT);
        QCOMPARE(m_enc.StartEncodeMp3(nullptr, "x",
                                      reinterpret_cast<const NightreelWaveFormat*>(in.data()),
                                      reinterpret_cast<const NightreelWaveFormat*>(out.data()), 0),
                 NIGHTREELENC_ERR_OPEN_SOURCE);
        // A failed start leaves the library idle: the next start works without a clean-up.
        QCOMPARE(Convert(src, dst, in, out, false).code, 0);
        VerifyMp3File(ReadFile(dst));
    }

    // Finished before the source is used up: a whole wave file of what was encoded, its fact
    // the frames read so far.
    void finishEarly()
    {
        QCOMPARE(MakeSource("fe.WAV.TMP", 44100, 2, 60), quint32(60 * 44100));
        const Run run =
            Convert(Path("fe.WAV.TMP"), Path("fe.WAV"), TaskWaveSource::PcmRecord(2, 44100),
                    TaskWaveSource::Mp3Record(2, 44100, 128), true, 3);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.finishedSets, 0);
        bool riffOk = false;
        const QList<RiffChunk> chunks = DirectChunks(ReadFile(Path("fe.WAV")), &riffOk);
        QVERIFY(riffOk && chunks.size() == 5);
        const double factSeconds = qFromLittleEndian<quint32>(chunks[3].data.constData()) / 44100.0;
        QVERIFY(WalkFrames(chunks[4].data, 0, chunks[4].data.size()).ok);
        const Mp3Tone s = DecodeMp3(chunks[4].data, Path("fe.decoded"));
        QVERIFY(s.ok && s.seconds > 0.1 && s.seconds < 50 && qAbs(s.frequency - 1000) < 50);
        QVERIFY2(qAbs(s.seconds - factSeconds) < 0.1, qPrintable(QString::number(factSeconds)));
    }
};

QTEST_GUILESS_MAIN(TestEncoder)
#include "test_encoder.moc"
