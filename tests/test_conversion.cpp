// The MP3 conversion queue in the program's own recorder, with the real encoder library and
// real files: a captured recording converted and listed, the queue's order, and every way a
// conversion ends: done, stopped by the user, stopped beside a live recording, stopped by
// the disk guard, failed; and none of them loses the recording. Results are checked with
// `lame --decode` and `sox stat`. The process runs in user and mount namespaces of its own, so
// that the disk-full cases fill small real file systems without privilege.
#include "RecordingRig.h"
#include "SmallFileSystem.h"
#include "SoxTone.h"
#include "TaskWaveSource.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "formats/CodecCatalogue.h"
#include "formats/ModuleFileTime.h"
#include "platform/StorageDiskSpace.h"
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
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTest>
#include <QtEndian>
#include <memory>

namespace {
const QString kErrorConverting = QStringLiteral("Error Converting to MP3");
const QString kKept = QStringLiteral("Recording kept in PCM format");
const QString kRecordingStopped =
    QStringLiteral("Recording stopped due to insufficient disk space.");
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
        for (const QString& mounted : m_mounted)
            SmallFileSystem::Unmount(mounted);
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
        m_mounted << path;
        return true;
    }

    // Ends the program with its queue as it stands and starts it again, as a user's next
    // start does: the recording folder checked, the recorder started.
    void Restart()
    {
        recorder().Stop();
        tc.Restart();
        tc.OpenDatabase();
        UseBuiltEncoder();
        MainFormController(*tc.ctx).CheckDefaultRecordingDirectory(
            [](const QString&) { return QString(); });
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

    // A captured recording of `seconds` of a 1 kHz tone, as the task leaves it, and its
    // request, queued.
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

    // A capture that was not converted: on disk as a wave file, listed as PCM with its
    // recording's title, and logged once.
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
    QStringList m_mounted;
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

    // Two recordings ending close together are converted one after the other, in order, while
    // the heartbeat keeps its pace and the status panel shows the progress. Each is listed
    // only once its result is written, not even when the folder is added meanwhile; the
    // captures go, and the results (an MP3 file with its tag, a wave file holding MP3) hold
    // the tone and the recording's description. (The recording that queues them: the
    // installed program's test and the stops below.)
    void queueConvertsInOrderAndListsWhenDone()
    {
        Fixture f;
        const QString description = "An evening concert from the old town hall";
        const auto first = f.Queue(description, 60, "/usr/bin/after %p");
        const auto second = f.Queue("Second", 60, "/usr/bin/after %p", {}, false);
        QVERIFY(first && second);

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

        f.recorder().Start();
        QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 2, 60000);
        QCOMPARE(rowsWhileConverting, 0);
        const QList<RecordingRow> rows = f.Recordings();
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(rows[i].file, (i == 0 ? first : second)->DestinationFile);
            QCOMPARE(rows[i].title, i == 0 ? description : QString("Second"));
            f.VerifyRowLength(rows[i]);
            // The file's date is the recording's end that the row shows, also after the tag.
            QVERIFY(qAbs(ModuleFileTime::FileDateTime(rows[i].file) - rows[i].end) * 86400.0 < 1);
        }
        QCOMPARE(f.queue().CurrentConvertRequest->PercentComplete, qint16(100));
        QCOMPARE(f.tc.launcher.started, QStringList({"/usr/bin/after " + first->DestinationFile,
                                                     "/usr/bin/after " + second->DestinationFile}));
        QCOMPARE(f.Captures(), QStringList());

        const QByteArray mp3 = ReadFile(first->DestinationFile);
        const QByteArray tag = mp3.right(128);
        QCOMPARE(tag.left(3), QByteArray("TAG"));
        QCOMPARE(tag.mid(3, 30), description.left(30).toLatin1());
        QCOMPARE(tag.mid(97, 30).left(24), QByteArray("Nightreel 2000 Recording"));
        QCOMPARE(int(quint8(tag[127])), 12);
        f.VerifyTone(mp3.chopped(128));
        // The wave file's layout is the encoder's test; here what the recording puts in it.
        const QList<RiffChunk> chunks = DirectChunks(ReadFile(second->DestinationFile));
        QCOMPARE(chunks.size(), 5);
        QCOMPARE(chunks[1].data, QByteArray("Second") + '\0');
        QCOMPARE(chunks[2].data, second->DestinationFormat.Record());
        QCOMPARE(qFromLittleEndian<quint32>(chunks[3].data.constData()), quint32(60 * 44100));
        f.VerifyTone(chunks[4].data);

        QVERIFY2(ticksWhileConverting >= 3, qPrintable(QString::number(ticksWhileConverting)));
        // The heartbeat's 250 ms, late by at most a tick on a busy machine: a conversion that
        // held the event loop would stop it for seconds.
        QVERIFY2(longestGap <= 2 * Heartbeat::TickInterval,
                 qPrintable(QString::number(longestGap)));
        QVERIFY(!panelTexts.isEmpty());
        for (const QString& text : panelTexts)
            QVERIFY2(QRegularExpression("^CONVERTING TO MP3  [0-9]{1,3}%$").match(text).hasMatch(),
                     qPrintable(text));
    }

    void stopSavesTheRunningAndDropsTheWaiting_data()
    {
        QTest::addColumn<bool>("whileRecording");
        QTest::newRow("by the user") << false;
        QTest::newRow("beside a live recording") << true;
    }

    // A stop with three waiting: the running MP3 is kept and listed with the length its size
    // gives, every capture of the queue stays as a listed PCM recording, no other capture is
    // touched (least of all one a recording task has open), the queue is empty, and only the
    // running request's launch runs.
    void stopSavesTheRunningAndDropsTheWaiting()
    {
        QFETCH(bool, whileRecording);
        Fixture f;
        QList<std::shared_ptr<clsConvertToMP3Request>> requests;
        for (const QString name : {"One", "Two", "Three", "Four"})
            requests << f.Queue(name, 30, "/usr/bin/after-" + name);
        QVERIFY(!requests.contains(nullptr));

        // A capture that another process (another instance's task) holds open.
        const QString held = f.folder + "/held.WAV.TMP";
        QFile(held).open(QIODevice::WriteOnly);
        QProcess holder;
        holder.start("sh", {"-c", "exec 3<\"$0\"; echo ready; exec sleep 60", held});
        QVERIFY(holder.waitForReadyRead(5000));
        const auto endHolder = qScopeGuard([&] {
            holder.kill();
            holder.waitForFinished();
        });

        QString live;
        if (whileRecording) {
            RecordingControl& control = RecorderParts::Control(f.recorder());
            f.SetMp3(f.ctx().manualRequest.Format, true);
            f.tc.clock.AdvanceSeconds(60);
            const double from = f.tc.clock.Now();
            control.StartRecording(-1, from, AutomationDate::AddSeconds(from, 60), "Live");
            QVERIFY(f.ctx().appStatus.Recording());
            live = f.recorder().Status().RecordingFile;
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(live).size() > 44, 5000);
        }

        QVERIFY(f.ConvertSome(3));
        if (whileRecording) {
            // The user's stop reaches the recording first; the disk guard sets the same flag.
            f.queue().StopMp3Conversion = true;
        } else {
            f.tc.messageBox.answers = {MsgResult::Yes};
            f.recorder().StopCommand(true);
            QCOMPARE(f.tc.messageBox.asked.size(), 1);
            QVERIFY(f.tc.messageBox.asked[0].text.contains("abort the remaining MP3 conversions"));
        }
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
        QStringList kept = {"held.WAV.TMP"};
        if (whileRecording)
            kept << QFileInfo(live).fileName();
        kept.sort();
        QCOMPARE(f.Captures(), kept);
        for (int i = 1; i < 4; ++i)
            QVERIFY(!QFile::exists(requests[i]->DestinationFile));

        if (whileRecording) {
            // A second instance's start-up clean-up leaves the live capture alone too.
            const QString stale = f.folder + "/stale.MP3.TMP";
            QFile(stale).open(QIODevice::WriteOnly);
            TestContext second;
            second.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", f.folder);
            MainFormController(*second.ctx).CheckDefaultRecordingDirectory([](const QString&) {
                return QString();
            });
            QVERIFY(!QFile::exists(stale));
            QCOMPARE(f.Captures(), kept);

            // The live recording, once ended, is converted: the stop held only what was queued.
            f.recorder().StopCommand(false);
            QTRY_VERIFY_WITH_TIMEOUT(!f.ctx().appStatus.Recording(), 12000);
            f.recorder().Start();
            QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 6, 30000);
            QCOMPARE(f.Recordings()[5].title, QString("Live"));
        }
    }

    void failedConversionKeepsTheCaptureAndTheQueueGoesOn_data()
    {
        QTest::addColumn<bool>("diskFull");
        QTest::newRow("destination can't be created") << false;
        QTest::newRow("disk full while converting") << true;
    }

    // A failure is logged once with its code and the recording's description, the incomplete
    // result goes but the recording stays as its PCM capture, the launch runs as for a failed
    // recording, and the next request still converts.
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

    // Whatever ends the run before the queue is done, its recordings are converted at the
    // next start, in order: no partial result ever carries a recording's name, and a missing
    // encoder library holds the queue (logged once, with the loader's own words). A capture
    // cut short by the end is kept and listed.
    void queueOutlivesTheProgram()
    {
        QFETCH(QString, end);
        Fixture f;
        const auto first = f.Queue("First", 20);
        const auto second = f.Queue("Second", 5);
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
            QVERIFY2(logged[0].startsWith("Error Code: 2000\r\nDescription: First\r\n") &&
                         logged[0].contains("libnightreelenc.so"),
                     qPrintable(logged[0]));
            QVERIFY(!f.ctx().appStatus.Converting());
        }
        QCOMPARE(f.Recordings().size(), 0);

        f.Restart();
        const int interrupted = end == "killed" ? 1 : 0;
        QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 2 + interrupted, 30000);
        QList<RecordingRow> rows = f.Recordings();
        if (interrupted) {
            const RecordingRow kept = rows.takeFirst();
            QCOMPARE(kept.file, f.folder + "/Interrupted.WAV");
            QCOMPARE(kept.title, QString("Test source"));
            QCOMPARE(f.Logged(kKept).filter(kept.file).size(), 1);
        }
        QCOMPARE(rows[0].file, first->DestinationFile);
        QCOMPARE(rows[1].file, second->DestinationFile);
        f.VerifyRowLength(rows[0]);
        f.VerifyTone(ReadFile(rows[0].file).chopped(128));
        QCOMPARE(f.Captures(), QStringList());
        QCOMPARE(QDir(f.folder).entryList({"*.TMP"}, QDir::Files), QStringList());
    }

    void guardStoppedRecordingOnASmallDiskIsKept_data()
    {
        QTest::addColumn<bool>("diskFillsAfterTheStop");
        QTest::newRow("its MP3 is made") << false;
        QTest::newRow("another program fills the disk") << true;
    }

    // A recording to convert on a small real file system, whose folder in the options moves
    // to a roomy disk while it runs: the guard watches the live file's disk and stops the
    // recording in time (logged once, the disk not filled), and what was recorded is listed:
    // its MP3, or its capture when the disk has no room left to convert.
    void guardStoppedRecordingOnASmallDiskIsKept()
    {
        QFETCH(bool, diskFillsAfterTheStop);
        Fixture f;
        if (!f.MountSmall(f.folder, 6656))
            QSKIP("no user namespace here in which to mount a small file system");
        f.tc.diskSpace.freeMb.reset();
        f.ctx().options.StopRecMegsLeft = 5;
        f.SetMp3(f.ctx().manualRequest.Format, true);
        const double from = f.tc.clock.Now();
        // Short enough for the start's own check of the space; the clock stands still, so
        // the guard ends it.
        RecorderParts::Control(f.recorder())
            .StartRecording(-1, from, AutomationDate::AddSeconds(from, 3), "Night concert");
        QVERIFY(f.ctx().appStatus.Recording());
        clsConvertToMP3Request recorded;
        recorded.SourceFile = f.recorder().Status().RecordingFile;
        recorded.Description = "Night concert";
        f.ctx().options.DefaultRecordingDirectory = f.tc.Root();
        RecorderParts::HeartbeatTimer(f.recorder()).Start();
        QTRY_VERIFY_WITH_TIMEOUT(!f.ctx().appStatus.Recording(), 60000);

        StorageDiskSpace disks;
        const double free = disks.GetRecDirDiskSpaceMb(f.folder).free;
        QVERIFY2(free > 4.0, qPrintable(QString::number(free)));
        if (diskFillsAfterTheStop) {
            QFile filler(f.folder + "/other program's file");
            QVERIFY(filler.open(QIODevice::WriteOnly));
            filler.write(QByteArray(qint64((free - 4.2) * 1048576), 'x'));
        }
        f.queue().Start();
        QTRY_VERIFY_WITH_TIMEOUT(f.Idle() && f.Recordings().size() == 1, 30000);
        QCOMPARE(f.Logged(kRecordingStopped).size(), 1);
        QCOMPARE(f.Logged("Recording failed"), QStringList());
        if (diskFillsAfterTheStop) {
            f.VerifyKept(recorded);
        } else {
            const RecordingRow row = f.Recordings()[0];
            QVERIFY(row.file.endsWith(".MP3"));
            f.VerifyTone(ReadFile(row.file).chopped(128));
            QVERIFY(!QFile::exists(recorded.SourceFile));
        }
    }

    void diskGuardKeepsTheCapture_data()
    {
        QTest::addColumn<bool>("started");
        QTest::newRow("conversion stopped part-way") << true;
        QTest::newRow("conversion not started") << false;
    }

    // On a nearly full disk no conversion starts, and the guard stops a running one (logging
    // that once, however many rounds it takes): the recording stays as its PCM capture,
    // listed, beside the partial MP3 that a stopped conversion saves.
    void diskGuardKeepsTheCapture()
    {
        QFETCH(bool, started);
        Fixture f;
        const auto request = f.Queue("Guarded", 60);
        QVERIFY(request);
        if (started)
            QVERIFY(f.ConvertSome(3));
        f.tc.diskSpace.freeMb = 0.0;
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
        QVERIFY(QFileInfo(request->DestinationFile).size() < 60 * 16000);
        QCOMPARE(f.Captures(), QStringList());
    }

    // While a recording to convert runs, the guard also counts the MP3 it will need: a disk that
    // still holds the stop limit, but not with that share, stops the recording.
    void diskGuardCountsTheMp3OfARecordingToConvert()
    {
        Fixture f;
        RecordingControl& control = RecorderParts::Control(f.recorder());
        f.SetMp3(f.ctx().manualRequest.Format, true);
        const double from = f.tc.clock.Now();
        control.StartRecording(-1, from, AutomationDate::AddSeconds(from, 60), "Tight");
        QVERIFY(f.ctx().appStatus.Recording());
        // Half a megabyte of MP3 is due at the start: above the limit by less than that.
        f.tc.diskSpace.freeMb = f.ctx().options.StopRecMegsLeft + 0.2;
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
