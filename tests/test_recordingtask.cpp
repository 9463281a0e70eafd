// The recording task for real, started by the scheduler's side of the link and recording
// from a PulseAudio server of the test's own.
#include "MemoryLog.h"
#include "PulseFixture.h"
#include "SoxTone.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "common/clsAppStatus.h"
#include "formats/CodecCatalogue.h"
#include "formats/WaveFileChunks.h"
#include "recording/RecordingTaskLink.h"
#include "taskcontract/RecParms.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <csignal>
#include <memory>

using namespace TaskProtocol;

namespace {

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

// A link that starts the real task, with the parts of the program it needs.
struct Rig {
    Rig()
    {
        link->SetTaskProgram(NIGHTREEL_REC);
        QObject::connect(link.get(), &RecordingTaskLink::StopRecording,
                         [this] { appStatus.SetRecording(false); });
    }
    QString Path(const QString& name) const { return dir.path() + u'/' + name; }
    // Writes the parameters, brings the task up, starts capture and waits until sound
    // reaches the file: the test's sound server can be slow to deliver the first fragment.
    bool Start(const RecParms& parms)
    {
        parms.Write(link->ParameterFile());
        appStatus.SetRecording(true);
        if (!link->ActivateNightreeltask())
            return false;
        const qint64 header = QFileInfo(parms.outputPath).size();
        return link->SendMessage(REC_MSG_START) == 0 &&
               QTest::qWaitFor([&] { return QFileInfo(parms.outputPath).size() > header; }, 5000);
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
        return QTest::qWaitFor([pid] { return ::kill(pid_t(pid), 0) != 0; }, 3000);
    }

    QTemporaryDir dir;
    MemoryLog log;
    clsAppStatus appStatus;
    std::unique_ptr<RecordingTaskLink> link =
        std::make_unique<RecordingTaskLink>(log.log, appStatus, dir.path());
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
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("PCM 8-bit mono") << "a.WAV" << CodecCatalogue::PcmRecord(1, 11025, 8);
        QTest::newRow("PCM 16-bit stereo") << "d.WAV" << CodecCatalogue::PcmRecord(2, 44100, 16);
        QTest::newRow("MP3 as .MP3") << "e.MP3" << CodecCatalogue::Mp3Record(2, 44100, 128);
        QTest::newRow("MP3 in a wave file") << "f.WAV" << CodecCatalogue::Mp3Record(1, 22050, 64);
    }
    void theToneIsInTheRecording()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, record);
        Rig rig;
        const QString path = rig.Path(file);
        const RecParms parms = Parms(path, record);
        const WaveFormatRecord& format = parms.format;
        QVERIFY(rig.Start(parms));
        QTest::qWait(2000);
        QVERIFY(rig.Stop());
        QVERIFY(rig.WaitForExit(rig.link->StartedTasks().last()));
        QVERIFY(rig.log.entries.isEmpty());

        const QByteArray bytes = ReadFile(path);
        QByteArray mp3 = bytes;
        QString audio = path;
        if (file.endsWith(".WAV")) {
            // Chunks in the order the readers look for them, the header's sizes right.
            bool riffOk = false;
            const QList<RiffChunk> chunks = DirectChunks(bytes, &riffOk);
            QVERIFY(riffOk);
            QStringList ids;
            for (const RiffChunk& c : chunks)
                ids << c.id;
            QCOMPARE(ids, QStringList({"fmt ", "fact", "LIST", "data"}));
            // The task writes the very record of the scheduler's format, extra bytes and all.
            QCOMPARE(chunks[0].data, record);
            // LIST INFO as the recordings list reads it.
            const QStringList texts{parms.softwareName, parms.description, parms.startText};
            QBuffer buffer;
            buffer.setData(bytes);
            QVERIFY(buffer.open(QIODevice::ReadOnly));
            WaveFileChunks read;
            QVERIFY(
                WaveFileChunk::ReadNightreelWave(buffer, CodecCatalogue::MaxFormatSize(), read));
            QCOMPARE(QStringList({read.software, read.title, read.created}), texts);
            const quint32 frames = qFromLittleEndian<quint32>(chunks[1].data.constData());
            const double seconds = double(frames) / format.nSamplesPerSec;
            QVERIFY2(seconds > 1.7 && seconds < 2.6, qPrintable(QString::number(seconds)));
            mp3 = chunks[3].data;
            if (format.wFormatTag == 1) {
                QCOMPARE(quint32(mp3.size()), frames * format.nBlockAlign);
                QCOMPARE(QStringList({Soxi("-r", path), Soxi("-c", path), Soxi("-b", path)}),
                         QStringList({QString::number(format.nSamplesPerSec),
                                      QString::number(format.nChannels),
                                      QString::number(format.nBitsPerSample)}));
            }
        } else {
            QVERIFY(!bytes.startsWith("RIFF"));
        }
        if (format.wFormatTag == WaveFormatRecord::TagMpegLayer3) {
            audio = rig.Path("decoded");
            QVERIFY(DecodeMp3(mp3, audio).ok);
            audio += ".wav";
        }
        double rms = 0, frequency = 0;
        QVERIFY(ToneOf(audio, rms, frequency, 0.3));
        QVERIFY2(rms > 0.30 && rms < 0.40, qPrintable(QString::number(rms)));
        QVERIFY2(qAbs(frequency - 1000) < 30, qPrintable(QString::number(frequency)));
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

        // The header tells the data of its last update: some, and no more than is there.
        const QByteArray bytes = ReadFile(path);
        const qsizetype at = bytes.indexOf("data", 12);
        QVERIFY(at > 0);
        const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
        const qint64 onDisk = bytes.size() - at - 8;
        const quint32 perSecond = parms.format.nAvgBytesPerSec;
        QVERIFY(size >= perSecond && size <= onDisk);
        QVERIFY(onDisk - size < 3 * perSecond);
        // fmt, fact, LIST, data.
        const quint32 frames =
            qFromLittleEndian<quint32>(DirectChunks(bytes).value(1).data.constData());
        QCOMPARE(size, frames * parms.format.nBlockAlign);
        QCOMPARE(qFromLittleEndian<quint32>(bytes.constData() + 4),
                 quint32(bytes.size() - onDisk + size - 8));
        QCOMPARE(Soxi("-s", path), QString::number(frames));
    }

    // Its scheduler gone, the task finishes what it recorded as a whole file.
    void theTaskFinishesItsFile()
    {
        Rig rig;
        const QString path = rig.Path("ended.WAV");
        QVERIFY(rig.Start(Parms(path, CodecCatalogue::PcmRecord(1, 11025, 8))));
        QTest::qWait(1200);
        const qint64 pid = rig.link->StartedTasks().last();
        rig.link.reset();
        QVERIFY(rig.WaitForExit(pid));
        bool riffOk = false;
        const QList<RiffChunk> chunks = DirectChunks(ReadFile(path), &riffOk);
        QVERIFY(riffOk);
        QVERIFY(chunks.value(3).id == "data" && chunks[3].data.size() > 8000);
    }

private:
    std::unique_ptr<PulseFixture> m_pulse;
};

NIGHTREEL_TEST_PARTS_MAIN(TestRecordingTask, QCoreApplication)
#include "test_recordingtask.moc"
