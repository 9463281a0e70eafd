#include "common/AutomationDate.h"
#include "formats/CodecCatalogue.h"
#include "formats/FileRowPreview.h"
#include "formats/MediaReaders.h"
#include "formats/ModuleFileTime.h"
#include "formats/Mp3Info.h"
#include "store/Options.h"
#include "support/StoreParts.h"
#include "support/TestFiles.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtEndian>
#include <QtTest>

namespace {

// Noon on a day of summer time, where the file dates of the tests lie.
double FileDate()
{
    return AutomationDate::FromText(QStringLiteral("06/01/2026")) + 0.5;
}

bool Run(const QString& program, const QStringList& arguments)
{
    return QProcess::execute(program, arguments) == 0;
}

// A tone made by sox.
QString MakeWav(const QString& folder, const QString& name, int rate, int channels, int bits,
                int seconds)
{
    const QString path = folder + u'/' + name;
    if (!Run("sox",
             {"-n", "-r", QString::number(rate), "-c", QString::number(channels), "-b",
              QString::number(bits), path, "synth", QString::number(seconds), "sine", "440"}))
        return QString();
    return path;
}

QByteArray Le32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& id, const QByteArray& data)
{
    QByteArray chunk = id + Le32(quint32(data.size())) + data;
    if (data.size() % 2)
        chunk += '\0';
    return chunk;
}

QByteArray Riff(const QByteArray& formType, const QByteArray& chunks)
{
    return Chunk("RIFF", formType + chunks);
}

QByteArray Text(const QString& text)
{
    return text.toUtf8() + '\0';
}

QString WriteFile(const QString& folder, const QString& name, const QByteArray& content,
                  double date = FileDate())
{
    const QString path = folder + u'/' + name;
    if (!::WriteFile(path, content))
        return QString();
    ModuleFileTime::SetFileDateTime(path, date);
    return path;
}

// A recording of this system's task: 10 seconds of phone-quality PCM, its start written
// in ICRD.
QByteArray NightreelWave(double created, const QString& software = "Nightreel 2000 1.0")
{
    const QByteArray info = "INFO" + Chunk("ISFT", Text(software)) +
                            Chunk("INAM", Text("Morning show")) +
                            Chunk("ICRD", Text(Options::DateText(created)));
    return Riff("WAVE", Chunk("fmt ", CodecCatalogue::PcmRecord(1, 11025, 8).left(16)) +
                            Chunk("data", QByteArray(110250, char(0x80))) + Chunk("LIST", info));
}

double Seconds(double seconds)
{
    return seconds / 86400.0;
}

} // namespace

class TestMediaReaders : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("sox").isEmpty() ||
            QStandardPaths::findExecutable("lame").isEmpty())
            QSKIP("sox and lame are needed (scripts/install-deps.sh)");
    }

    void mp3FilesOfLameAreRead_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<QStringList>("lameArguments");
        QTest::addColumn<int>("bitrate"); // 0: variable
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("title"); // empty: no tag
        QTest::addColumn<bool>("ownTag");   // the program's, written over the end
        const auto row = [](const char* tag, int rate, int channels, const QStringList& lame,
                            int bitrate, const char* mode, const char* title = "",
                            bool ownTag = false) {
            QTest::newRow(tag) << rate << channels << lame << bitrate << QString(mode)
                               << QString(title) << ownTag;
        };
        const QStringList v1 = {"--id3v1-only", "--tt"};
        row("MPEG 1, 128 kbit/s, stereo, tagged", 44100, 2,
            QStringList{"-b", "128", "-m", "s"} + v1 + QStringList{"Evening news"}, 128, "Stereo",
            "Evening news");
        row("MPEG 1, 192 kbit/s, joint stereo, the program's tag", 48000, 2,
            {"-b", "192", "-m", "j"}, 192, "Joint Stereo", "A description far longer than", true);
        row("MPEG 2, 32 kbit/s, mono, tagged", 22050, 1,
            QStringList{"-b", "32", "-m", "m"} + v1 + QStringList{"Talk"}, 32, "Single Channel",
            "Talk");
        row("MPEG 2.5, 16 kbit/s, mono", 11025, 1, {"-b", "16", "-m", "m"}, 16, "Single Channel");
        row("MPEG 1, VBR, stereo", 44100, 2, {"-V", "2", "-m", "s"}, 0, "Stereo");
    }
    void mp3FilesOfLameAreRead()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        QFETCH(QStringList, lameArguments);
        QFETCH(int, bitrate);
        QFETCH(QString, mode);
        QFETCH(QString, title);
        QFETCH(bool, ownTag);
        StoreParts s;
        const int seconds = 10;
        const QString wav = MakeWav(s.Root(), "tone.wav", rate, channels, 16, seconds);
        QVERIFY(!wav.isEmpty());
        const QString mp3 = s.Root() + "/tone.mp3";
        QVERIFY(Run("lame", QStringList{"--quiet", "--resample", QString::number(rate / 1000.0)} +
                                lameArguments + QStringList{wav, mp3}));
        const qint64 size = QFileInfo(mp3).size();
        if (ownTag)
            Mp3File::WriteId3Tag(mp3, "A description far longer than thirty characters", "", "", "",
                                 "Nightreel 2000 Recording", 12);
        QCOMPARE(QFileInfo(mp3).size(), size);

        Mp3Info info;
        Mp3File::GetMp3Info(mp3, true, true, info);
        QCOMPARE(info.Frequency, rate);
        QCOMPARE(info.Mode, mode);
        QCOMPARE(info.IsVbr, bitrate == 0);
        if (bitrate > 0) {
            QCOMPARE(int(info.Bitrate), bitrate);
        } else {
            // The mean rate of the whole file, within a few per cent.
            const double mean = QFileInfo(mp3).size() * 8.0 / seconds / 1000.0;
            QVERIFY2(qAbs(info.Bitrate - mean) < mean * 0.03,
                     qPrintable(QString("%1 against %2").arg(info.Bitrate).arg(mean)));
            QVERIFY(info.VbrFrames > 0);
        }
        // Encoder delay and padding add a fraction of a second at most.
        QVERIFY2(info.Duration >= seconds - 1 && info.Duration <= seconds,
                 qPrintable(QString::number(info.Duration)));
        QCOMPARE(info.HasTag, !title.isEmpty());
        QCOMPARE(info.Title, title);
        QCOMPARE(info.Comment, ownTag ? QString("Nightreel 2000 Recording") : QString());
        // Without a tag the genre reads 255; lame leaves it unset (255) in its tags too.
        QCOMPARE(int(info.Genre), ownTag ? 12 : 255);

        ModuleFileTime::SetFileDateTime(mp3, FileDate());
        AddMp3ToList(s.database, mp3);
        Recordset& rs = s.database.DataRecordings.recordset();
        QCOMPARE(rs.RecordCount(), 1);
        QCOMPARE(rs.Value("Title").toString(),
                 title.isEmpty() ? QStringLiteral("tone.mp3") : title);
        QCOMPARE(
            rs.Value("CompressionMethod").toString(),
            QString("MPEG Layer 3  %1 kBits/s, %2 Hz, %3").arg(info.Bitrate).arg(rate).arg(mode));
        QCOMPARE(rs.Value("EndTime").toDouble(), FileDate());
        QCOMPARE(AutomationDate::SecondsBetween(rs.Value("StartTime").toDouble(), FileDate()),
                 qint64(info.Duration));
    }

    void pcmWaveFilesOfSoxAreRead_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("bits");
        QTest::addColumn<QString>("format");
        QTest::newRow("CD quality") << 44100 << 2 << 16 << "PCM 44.100 kHz, 16 Bit, Stereo";
        QTest::newRow("phone quality") << 11025 << 1 << 8 << "PCM 11.025 kHz, 8 Bit, Mono";
        QTest::newRow("a rate of no preset") << 6000 << 1 << 16 << "PCM 6.000 kHz, 16 Bit, Mono";
    }
    void pcmWaveFilesOfSoxAreRead()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        QFETCH(int, bits);
        QTemporaryDir dir;
        const QString path = MakeWav(dir.path(), "tone.wav", rate, channels, bits, 20);
        QVERIFY(!path.isEmpty());
        ModuleFileTime::SetFileDateTime(path, FileDate());
        RecordingRow row;
        QVERIFY(!MediaReaders::ReadNightreelWave(path, row));
        QVERIFY(!MediaReaders::ReadNightreelCompressedWave(path, row));
        QVERIFY(MediaReaders::ReadOtherWave(path, row));
        QCOMPARE(row.Title, QStringLiteral("tone.wav"));
        QTEST(row.CompressionMethod, "format");
        QCOMPARE(row.EndTime, FileDate());
        QCOMPARE(AutomationDate::SecondsBetween(row.StartTime, row.EndTime), qint64(20));
        QCOMPARE(row.Size, float(QFileInfo(path).size()) / 1024.0f / 1024.0f);
    }

    void theRecordingTasksWaveKeepsItsTitleAndCorrectsDaylightSaving_data()
    {
        QTest::addColumn<int>("createdMinutesAfterStart");
        QTest::addColumn<int>("shiftMinutes");
        QTest::newRow("57 minutes: left") << 57 << 0;
        QTest::newRow("58 minutes: an hour later") << 58 << 60;
        QTest::newRow("62 minutes: an hour later") << 62 << 60;
        QTest::newRow("63 minutes: left") << 63 << 0;
        QTest::newRow("-60 minutes: an hour earlier") << -60 << -60;
        QTest::newRow("-63 minutes: left") << -63 << 0;
    }
    void theRecordingTasksWaveKeepsItsTitleAndCorrectsDaylightSaving()
    {
        QFETCH(int, createdMinutesAfterStart);
        QFETCH(int, shiftMinutes);
        QTemporaryDir dir;
        // The file holds 10 seconds (and its headers, a few ms more).
        const double start = FileDate() - Seconds(10);
        const QString path =
            WriteFile(dir.path(), "show.wav",
                      NightreelWave(start + Seconds(60.0 * createdMinutesAfterStart)));
        RecordingRow row;
        QVERIFY(MediaReaders::ReadNightreelWave(path, row));
        QCOMPARE(row.Title, QStringLiteral("Morning show"));
        QCOMPARE(row.CompressionMethod, QStringLiteral("PCM 11.025 kHz, 8 Bit, Mono"));
        QCOMPARE(AutomationDate::SecondsBetween(FileDate(), row.EndTime),
                 qint64(shiftMinutes * 60));
        QCOMPARE(AutomationDate::SecondsBetween(start, row.StartTime), qint64(shiftMinutes * 60));
    }

    void theEncodersWaveTakesItsLengthFromTheFactChunk_data()
    {
        QTest::addColumn<QByteArray>("fact");
        QTest::addColumn<int>("seconds");
        QTest::newRow("441000 frames at 44100 Hz") << Le32(441000) << 10;
        QTest::newRow("half a second rounds to even") << Le32(22050 * 5) << 2;
        QTest::newRow("an empty fact chunk") << QByteArray() << 0;
    }
    void theEncodersWaveTakesItsLengthFromTheFactChunk()
    {
        QFETCH(QByteArray, fact);
        QFETCH(int, seconds);
        QTemporaryDir dir;
        const QByteArray wave =
            Riff("WAVE", Chunk("ISFT", Text("Nightreel 2000 1.0 ")) + Chunk("INAM", Text("News ")) +
                             Chunk("fmt ", CodecCatalogue::Mp3Record(2, 44100, 128)) +
                             Chunk("fact", fact) + Chunk("data", QByteArray(4000, '\x55')));
        const QString path = WriteFile(dir.path(), "news.wav", wave);
        RecordingRow row;
        QVERIFY(!MediaReaders::ReadNightreelWave(path, row));
        QVERIFY(MediaReaders::ReadNightreelCompressedWave(path, row));
        QCOMPARE(row.Title, QStringLiteral("News "));
        QCOMPARE(row.CompressionMethod,
                 QStringLiteral("MPEG Layer-3 128 kBit/s, 44,100 Hz, Stereo"));
        QCOMPARE(AutomationDate::SecondsBetween(row.StartTime, row.EndTime), qint64(seconds));
    }

    void otherAndDamagedFilesGiveTheDefinedRowOrNone_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("listed");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("title");

        const auto row = [](const char* tag, const char* name, const QByteArray& content,
                            const char* format = nullptr, const char* title = nullptr) {
            QTest::newRow(tag) << QString(name) << content << bool(format) << QString(format)
                               << QString(title);
        };
        const QByteArray fmt = Chunk("fmt ", CodecCatalogue::PcmRecord(1, 8000, 8).left(16));
        const QByteArray absurdFmt =
            "fmt " + Le32(0xFFFFFFF0u) + CodecCatalogue::PcmRecord(1, 8000, 8);
        const QByteArray absurdJunk = "junk" + Le32(0xFFFFFFFFu) + QByteArray(20, 'j') + fmt;
        row("a wave of another program", "foreign.wav", NightreelWave(FileDate(), "SoundTool 5"),
            "PCM 11.025 kHz, 8 Bit, Mono", "foreign.wav");
        row("RIFF header cut short", "cut.wav", QByteArray("RIFF\x10\0"));
        row("no fmt chunk", "nofmt.wav", Riff("WAVE", Chunk("data", QByteArray(64, 1))));
        row("fmt behind a chunk of absurd size", "junk.wav", Riff("WAVE", absurdJunk));
        row("fmt of absurd size", "bigfmt.wav",
            QByteArray("RIFF" + Le32(0xFFFFFFFFu) + "WAVE" + absurdFmt),
            "PCM 8.000 kHz, 8 Bit, Mono", "bigfmt.wav");
        row("not RIFF WAVE", "avi.wav", Riff("AVI ", fmt));
        row("MP3 under 256 bytes", "short.mp3", QByteArray(200, '\xFF'),
            "MPEG Layer 3  0 kBits/s, 0 Hz, ", "short.mp3");
        QByteArray freeFormat(400, '\0');
        freeFormat[10] = '\xFF';
        freeFormat[11] = '\xFB';
        row("MP3 header of the free format", "free.mp3", freeFormat,
            "MPEG Layer 3  0 kBits/s, 44100 Hz, Stereo", "free.mp3");
        QByteArray tagAtTheEnd(300, 'x');
        tagAtTheEnd.replace(295, 5, "TAGab");
        // The tag is taken wherever it starts, however little of it is left.
        row("MP3 with a tag cut off by the end", "cut.mp3", tagAtTheEnd,
            "MPEG Layer 3  0 kBits/s, 0 Hz, ", "ab");
    }
    void otherAndDamagedFilesGiveTheDefinedRowOrNone()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(bool, listed);
        StoreParts s;
        const QString path = WriteFile(s.Root(), name, content);
        if (name.endsWith(".mp3")) {
            AddMp3ToList(s.database, path);
        } else {
            bool found = true;
            AddNightreelWaveToList(s.database, path, found);
            QVERIFY(!found);
            AddNightreelCompressedWaveToList(s.database, path, found);
            QVERIFY(!found);
            AddOtherWaveToList(s.database, path);
        }
        QCOMPARE(s.CountRows("Recordings"), listed ? 1 : 0);
        if (listed) {
            Recordset& rs = s.database.DataRecordings.recordset();
            QTEST(rs.Value("CompressionMethod").toString(), "format");
            QTEST(rs.Value("Title").toString(), "title");
        }
        QCOMPARE(s.CountRows("EventLog"), 0);
    }

    void inspectPrintsTheRowOrNothing()
    {
        QTemporaryDir dir;
        const QString wave = WriteFile(dir.path(), "show.wav", NightreelWave(FileDate()));
        QString text;
        QTextStream out(&text);
        QCOMPARE(InspectFile(wave, out), 0);
        const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.value(0), QStringLiteral("Title: Morning show"));
        QCOMPARE(lines.value(2), QStringLiteral("Start: 2026-06-01 11:59:50"));
        QCOMPARE(lines.value(3), QStringLiteral("End: 2026-06-01 12:00:00"));
        QCOMPARE(lines.value(4), QStringLiteral("Format: PCM 11.025 kHz, 8 Bit, Mono"));
        QVERIFY(lines.value(5).startsWith("Size: 0.105"));

        text.clear();
        const QString notes = WriteFile(dir.path(), "notes.txt", "RIFF");
        QVERIFY(InspectFile(notes, out) != 0);
        QVERIFY(InspectFile(dir.path() + "/missing.wav", out) != 0);
        QVERIFY(text.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMediaReaders)
#include "test_mediareaders.moc"
