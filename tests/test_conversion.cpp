// The MP3 conversion queue in the program's own recorder, with the real encoder library: every
// way a conversion ends keeps the recording. The process runs in user and mount namespaces of
// its own, so that the disk-full case fills a small real file system without privilege.
#include "RecordingRig.h"
#include "SmallFileSystem.h"
#include "SoxTone.h"
#include "TaskWaveSource.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "formats/CodecCatalogue.h"
#include "formats/ModuleFileTime.h"
#include "recording/RecorderParts.h"
#include "recordingslist/RecordingsList.h"
#include "shell/MainFormController.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTest>
#include <memory>

namespace {
const QString kErrorConverting = QStringLiteral("Error Converting to MP3");
const QString kKept = QStringLiteral("Recording kept in PCM format");
// Before main, while the process has one thread.
const bool kOwnMountNamespace = SmallFileSystem::EnterOwnMountNamespace();

// The program's recorder over a fresh context, with the real task and encoder library.
class Fixture : public RecordingRig {
public:
    Fixture()
    {
        tc.diskSpace.freeMb = 100000.0;
        UseBuiltEncoder();
    }

    ~Fixture()
    {
        recorder().Stop();
        if (!m_mounted.isEmpty())
            SmallFileSystem::Unmount(m_mounted);
    }

    void UseBuiltEncoder()
    {
        queue().Encoder().SetFolder(QCoreApplication::applicationDirPath() + "/../src");
    }

    // A real file system of `kilobytes` at `path`; false where none can be mounted.
    bool MountSmall(const QString& path, int kilobytes)
    {
        if (!kOwnMountNamespace || !SmallFileSystem::Mount(path, kilobytes))
            return false;
        m_mounted = path;
        return true;
    }

    // Ends the program with its queue as it stands and starts it again, as a user would.
    void Restart()
    {
        recorder().Stop();
        tc.Restart();
        tc.OpenDatabase();
        UseBuiltEncoder();
        MainFormController(*tc.ctx).CheckDefaultRecordingDirectory(
            [](const QString&) { return QString(); });
        ctx().appStatus.SetReady(true);
        recorder().Start();
    }

    ConversionQueue& queue() { return RecorderParts::Conversion(tc.ctx->recorder); }

    void SetMp3(clsRecordingFormat& format, bool mp3Extension)
    {
        format.SetWaveFormatEx(
            WaveFormatRecord::Decode(CodecCatalogue::Mp3Record(2, 44100, 128)).value());
        format.ConvertToMP3 = true;
        format.SaveMP3FileExtension = mp3Extension;
    }

    // A queued capture of `seconds` of the tone, as the task leaves it.
    std::shared_ptr<clsConvertToMP3Request> Queue(const QString& name, double seconds,
                                                  const QString& launch = QString(),
                                                  const QString& destination = QString(),
                                                  bool mp3Extension = true)
    {
        const std::string pcm = RawTone(44100, 2, seconds);
        auto request = std::make_shared<clsConvertToMP3Request>();
        request->SourceFile = folder + "/" + name + ".WAV.TMP";
        request->DestinationFile = destination.isEmpty()
                                       ? folder + "/" + name + (mp3Extension ? ".MP3" : ".WAV")
                                       : destination;
        request->SourceFormat.SetToPcm(2, 44100, 16);
        SetMp3(request->DestinationFormat, mp3Extension);
        request->Description = name;
        request->StartTime = tc.clock.Now();
        request->EndTime = AutomationDate::AddSeconds(request->StartTime, seconds);
        request->LaunchAppAfter = launch;
        if (pcm.empty() || !TaskWaveSource::Write(
                               QFile::encodeName(request->SourceFile).toStdString(), 2, 44100, pcm))
            return nullptr;
        queue().Add(request);
        return request;
    }

    // Ticks TimerConvert by hand until the running conversion has done `steps` steps.
    bool ConvertSome(int steps)
    {
        queue().TimerConvert_Timer();
        for (int i = 0; i < steps && ctx().appStatus.Converting(); ++i)
            queue().TimerConvert_Timer();
        return ctx().appStatus.Converting() && queue().CurrentConvertRequest->PercentComplete > 0;
    }

    bool Idle() { return !ctx().appStatus.Converting() && queue().Mp3ConvertQueue.isEmpty(); }

    QStringList Captures() const { return Files({"*.WAV.TMP"}); }

    // A capture that was not converted: kept as a wave file, listed as PCM, and logged once.
    void VerifyKept(const clsConvertToMP3Request& request)
    {
        const QString kept = request.SourceFile.chopped(4);
        QVERIFY2(QFileInfo(kept).size() > 44, qPrintable(kept));
        bool listed = false;
        for (const RecordingRow& row : Recordings())
            listed = listed || (row.file == kept && row.title == request.Description &&
                                row.compression.startsWith("PCM"));
        QVERIFY2(listed, qPrintable(kept));
        QCOMPARE(Logged(kKept).filter(kept).size(), 1);
    }

    // The row holds what the file holds: its length is the one the size gives.
    void VerifyRowLength(const RecordingRow& row)
    {
        clsRecordingFormat format;
        SetMp3(format, true);
        const qint64 seconds = qRound64((row.end - row.start) * 86400.0);
        QCOMPARE(seconds, qint64(format.CalcSecondsFromMbytes(row.size)));
        QCOMPARE(row.size, float(QFileInfo(row.file).size() / 1048576.0));
    }

    void VerifyTone(const QByteArray& mp3)
    {
        const Mp3Tone t = DecodeMp3(mp3, tc.Root() + "/decoded");
        QVERIFY(t.ok);
        QVERIFY2(qAbs(t.frequency - 1000) < 50, qPrintable(QString::number(t.frequency)));
        QVERIFY2(t.rms > 0.2, qPrintable(QString::number(t.rms)));
    }

private:
    QString m_mounted;
};

} // namespace

class TestConversion : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<PulseFixture> m_pulse;

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QCoreApplication::applicationDirPath() + "/../src/libnightreelenc.so"))
            QSKIP("the encoder library is not built");
        if (QStandardPaths::findExecutable("sox").isEmpty() ||
            QStandardPaths::findExecutable("lame").isEmpty())
            QSKIP("needs sox and lame");
        if (const QString why = RecordingRig::StartSound(m_pulse); !why.isEmpty())
            QSKIP(qPrintable(why));
    }

    // A stop with three waiting: the partial MP3 and every capture of the queue are listed, no
    // other capture is touched (least of all one another process has open, also by a second
    // instance's start-up), only the running request's launch runs, and the next converts.
    void stopSavesTheRunningAndDropsTheWaiting()
    {
        Fixture f;
        QList<std::shared_ptr<clsConvertToMP3Request>> requests;
        for (const QString name : {"One", "Two", "Three", "Four"})
            requests << f.Queue(name, 30, "/usr/bin/after-" + name);
        QVERIFY(!requests.contains(nullptr));
        const QString held = f.folder + "/held.WAV.TMP";
        QFile(held).open(QIODevice::WriteOnly);
        QProcess holder;
        holder.start("sh", {"-c", "exec 3<\"$0\"; echo ready; exec sleep 60", held});
        QVERIFY(holder.waitForReadyRead(5000));
        const auto endHolder = qScopeGuard([&] {
            holder.kill();
            holder.waitForFinished();
        });

        QVERIFY(f.ConvertSome(3));
        f.tc.messageBox.answers = {MsgResult::Yes};
        f.recorder().StopCommand(true);
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QVERIFY(f.tc.messageBox.asked[0].text.contains("abort the remaining MP3 conversions"));
        f.queue().TimerConvert_Timer();

        QVERIFY(f.Idle());
        const QList<RecordingRow> rows = f.Recordings();
        QCOMPARE(rows.size(), 5);
        const RecordingRow partial = rows[3];
        QCOMPARE(partial.file, requests[0]->DestinationFile);
        f.VerifyRowLength(partial);
        for (const auto& request : requests)
            f.VerifyKept(*request);
        const QByteArray mp3 = ReadFile(partial.file);
        // Partial: 30 s at 128 kbit/s would be 480,000 bytes.
        QVERIFY2(mp3.size() > 10000 && mp3.size() < 400000,
                 qPrintable(QString::number(mp3.size())));
        f.VerifyTone(mp3.chopped(128));
        QCOMPARE(f.tc.launcher.started, QStringList{"/usr/bin/after-One"});
        for (int i = 1; i < 4; ++i)
            QVERIFY(!QFile::exists(requests[i]->DestinationFile));

        const QString stale = f.folder + "/stale.MP3.TMP";
        QFile(stale).open(QIODevice::WriteOnly);
        TestContext second;
        second.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", f.folder);
        MainFormController(*second.ctx).CheckDefaultRecordingDirectory([](const QString&) {
            return QString();
        });
        QVERIFY(!QFile::exists(stale));
        QCOMPARE(f.Captures(), QStringList{"held.WAV.TMP"});

        // The stop held only what was queued then.
        QVERIFY(f.Queue("Next", 2));
        f.recorder().Start();
        QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 6, 30000);
    }

    void failedConversionKeepsTheCaptureAndTheQueueGoesOn_data()
    {
        QTest::addColumn<bool>("diskFull");
        QTest::newRow("destination can't be created") << false;
        QTest::newRow("disk full while converting") << true;
    }

    // A failure is logged once; the recording stays as its PCM capture and the next converts.
    void failedConversionKeepsTheCaptureAndTheQueueGoesOn()
    {
        QFETCH(bool, diskFull);
        Fixture f;
        QString destination = f.folder + "/no-such-folder/Lost.MP3";
        int expectedCode = 2003;
        if (diskFull) {
            const QString small = f.tc.Root() + "/small";
            if (!f.MountSmall(small, 64))
                QSKIP("no user namespace here in which to mount a small file system");
            destination = small + "/Lost.MP3";
            expectedCode = 2006;
        }
        const auto lost = f.Queue("Lost", 20, "/usr/bin/after %p", destination);
        const auto next = f.Queue("Next", 5);
        QVERIFY(lost && next);

        f.recorder().Start();
        QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 2, 30000);
        QCOMPARE(f.Logged(kErrorConverting),
                 QStringList{QString("Error Code: %1\r\nDescription: Lost").arg(expectedCode)});
        f.VerifyKept(*lost);
        QVERIFY(!QFile::exists(destination));
        QVERIFY(!QFile::exists(ConversionQueue::ResultFile(*lost)));
        QCOMPARE(f.tc.launcher.started, QStringList{"/usr/bin/after " + destination});
        QCOMPARE(f.Recordings()[1].title, QString("Next"));
        QCOMPARE(f.Captures(), QStringList());
    }

    void queueOutlivesTheProgram_data()
    {
        QTest::addColumn<QString>("end");
        QTest::newRow("exit with a queue") << "exit";
        QTest::newRow("killed while converting") << "killed";
        QTest::newRow("encoder library missing") << "no library";
    }

    // Whatever ends the run before the queue is done, its recordings are converted at the next
    // start, in order, while the heartbeat keeps its pace; each is listed only once its result
    // is written, even when the folder is added meanwhile. A missing encoder library holds the
    // queue (logged once).
    void queueOutlivesTheProgram()
    {
        QFETCH(QString, end);
        Fixture f;
        const QString description = "An evening concert from the old town hall";
        const auto first = f.Queue(description, 90, "/usr/bin/after %p");
        const auto second = f.Queue("Second", 30, "/usr/bin/after %p", {}, false);
        QVERIFY(first && second);
        if (end == "killed") {
            // And a recording to convert was being captured: its task finished the file.
            QVERIFY(TaskWaveSource::Write(
                QFile::encodeName(f.folder + "/Interrupted.WAV.TMP").toStdString(), 2, 44100,
                RawTone(44100, 2, 2)));
            QVERIFY(f.ConvertSome(3));
            QVERIFY(!QFile::exists(first->DestinationFile));
            // What the end of the process does to the library's open conversion.
            f.queue().Encoder().Mp3ConvertErrorCleanUp();
        } else if (end == "no library") {
            f.queue().Encoder().SetFolder(f.tc.Root() + "/nowhere");
            f.queue().TimerConvert_Timer();
            f.queue().TimerConvert_Timer();
            const QStringList logged = f.Logged(kErrorConverting);
            QCOMPARE(logged.size(), 1);
            QVERIFY2(logged[0].startsWith("Error Code: 2000\r\nDescription: " + description) &&
                         logged[0].contains("libnightreelenc.so"),
                     qPrintable(logged[0]));
            QVERIFY(!f.ctx().appStatus.Converting());
        }
        QCOMPARE(f.Recordings().size(), 0);

        f.Restart();
        int rowsWhileConverting = -1;
        QObject::connect(&f.ctx().appStatus, &clsAppStatus::Update, [&] {
            if (f.ctx().appStatus.Converting() && rowsWhileConverting < 0) {
                f.ctx().recordingsList.AddFolderToRecordingsList(f.folder);
                rowsWhileConverting = int(f.Recordings().size());
            }
        });
        QElapsedTimer sinceTick;
        qint64 longestGap = 0;
        int ticksWhileConverting = 0;
        QObject::connect(&RecorderParts::HeartbeatTimer(f.recorder()),
                         &Heartbeat::UpdateStatusBarPlus, [&] {
                             if (f.ctx().appStatus.Converting()) {
                                 ++ticksWhileConverting;
                                 if (sinceTick.isValid())
                                     longestGap = std::max(longestGap, sinceTick.elapsed());
                             }
                             sinceTick.start();
                         });
        QStringList panelTexts;
        QObject::connect(&f.recorder(), &Recorder::StatusBarUpdated,
                         [&](const StatusBarPlus::Update& u) {
                             if (f.ctx().appStatus.Converting())
                                 panelTexts << u.modeText;
                         });
        const int interrupted = end == "killed" ? 1 : 0;
        QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 2 + interrupted, 60000);
        QCOMPARE(rowsWhileConverting, interrupted);
        QList<RecordingRow> rows = f.Recordings();
        if (interrupted) {
            const RecordingRow kept = rows.takeFirst();
            QCOMPARE(kept.file, f.folder + "/Interrupted.WAV");
            QCOMPARE(kept.title, QString("Test source"));
            QCOMPARE(f.Logged(kKept).filter(kept.file).size(), 1);
        }
        QCOMPARE(rows[0].file, first->DestinationFile);
        QCOMPARE(rows[0].title, description);
        QCOMPARE(rows[1].file, second->DestinationFile);
        f.VerifyRowLength(rows[0]);
        // The file's date is the recording's end that the row shows, also after the tag.
        QVERIFY(qAbs(ModuleFileTime::FileDateTime(rows[0].file) - rows[0].end) * 86400.0 < 1);
        QCOMPARE(f.queue().CurrentConvertRequest->PercentComplete, qint16(100));
        QCOMPARE(f.tc.launcher.started, QStringList({"/usr/bin/after " + first->DestinationFile,
                                                     "/usr/bin/after " + second->DestinationFile}));
        QCOMPARE(f.Captures(), QStringList());
        QCOMPARE(QDir(f.folder).entryList({"*.TMP"}, QDir::Files), QStringList());

        const QByteArray mp3 = ReadFile(first->DestinationFile);
        const QByteArray tag = mp3.right(128);
        QCOMPARE(tag.left(3), QByteArray("TAG"));
        QCOMPARE(tag.mid(3, 30), description.left(30).toLatin1());
        QCOMPARE(tag.mid(97, 30).left(24), QByteArray("Nightreel 2000 Recording"));
        QCOMPARE(int(quint8(tag[127])), 12);
        f.VerifyTone(mp3.chopped(128));
        // The wave file's layout is the encoder's test; here the title the recording gives it.
        const QList<RiffChunk> chunks = DirectChunks(ReadFile(second->DestinationFile));
        QCOMPARE(chunks.value(1).data, QByteArray("Second") + '\0');
        f.VerifyTone(chunks.value(4).data);

        // Two ticks give one gap to measure; a conversion that held the event loop would leave
        // none. How many more depends on the machine's speed.
        QVERIFY2(ticksWhileConverting >= 2, qPrintable(QString::number(ticksWhileConverting)));
        // The heartbeat's 250 ms, late by at most a tick on a busy machine: a conversion that
        // held the event loop would stop it for seconds.
        QVERIFY2(longestGap <= 2 * Heartbeat::TickInterval,
                 qPrintable(QString::number(longestGap)));
        QVERIFY(!panelTexts.isEmpty());
        for (const QString& text : panelTexts)
            QVERIFY2(QRegularExpression("^CONVERTING TO MP3  [0-9]{1,3}%$").match(text).hasMatch(),
                     qPrintable(text));
    }

    void diskGuardKeepsTheCapture_data()
    {
        QTest::addColumn<bool>("started");
        QTest::newRow("conversion stopped part-way") << true;
        QTest::newRow("conversion not started") << false;
    }

    // The guard watches the disk of the file being written, not the options' folder: on a
    // nearly full one no conversion starts, and a running one is stopped (logged once, however
    // many rounds it takes). The recording stays as its PCM capture, beside a partial MP3.
    void diskGuardKeepsTheCapture()
    {
        QFETCH(bool, started);
        Fixture f;
        const auto request = f.Queue("Guarded", 60);
        QVERIFY(request);
        if (started)
            QVERIFY(f.ConvertSome(3));
        f.ctx().options.DefaultRecordingDirectory = f.tc.Root();
        f.tc.diskSpace.freeMbOf[f.folder] = 0.0;
        f.recorder().UpdateStatusBarPlus();
        f.recorder().UpdateStatusBarPlus();
        QCOMPARE(f.queue().StopMp3Conversion, started);
        f.queue().TimerConvert_Timer();

        QVERIFY(f.Idle());
        QCOMPARE(f.Logged("MP3 conversion stopped due to insufficient disk space.").size(),
                 started ? 1 : 0);
        f.VerifyKept(*request);
        QCOMPARE(f.Recordings().size(), started ? 2 : 1);
        QCOMPARE(QFile::exists(request->DestinationFile), started);
        QCOMPARE(f.Captures(), QStringList());
    }

    // The guard watches the live recording's disk, and counts the MP3 it will need.
    void diskGuardCountsTheMp3OfARecordingToConvert()
    {
        Fixture f;
        RecordingControl& control = RecorderParts::Control(f.recorder());
        f.SetMp3(f.ctx().manualRequest.Format, true);
        const double from = f.tc.clock.Now();
        control.StartRecording(-1, from, AutomationDate::AddSeconds(from, 60), "Tight");
        QVERIFY(f.ctx().appStatus.Recording());
        f.ctx().options.DefaultRecordingDirectory = f.tc.Root();
        // Half a megabyte of MP3 is due at the start: above the limit by less than that.
        f.tc.diskSpace.freeMbOf[f.folder] = f.ctx().options.StopRecMegsLeft + 0.2;
        f.recorder().UpdateStatusBarPlus();
        f.recorder().UpdateStatusBarPlus();
        QTRY_VERIFY_WITH_TIMEOUT(!f.ctx().appStatus.Recording(), 12000);
        const QStringList logged = f.Logged("Recording stopped due to insufficient disk space.");
        QCOMPARE(logged.size(), 1);
        QVERIFY(logged[0].startsWith("Recording Description: Tight\r\n"));
        QVERIFY(logged[0].contains("Note: MP3 conversion also requires temporary storage"));
        QVERIFY(!f.ctx().error.DiskLowStopRecording());
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestConversion, QCoreApplication)
#include "test_conversion.moc"
