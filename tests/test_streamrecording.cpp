// Programs that record an internet stream from a station of the test's own on 127.0.0.1.
#include "RecordingRig.h"
#include "SoxTone.h"
#include "StreamServer.h"
#include "TestFiles.h"
#include "TestParts.h"
#include "formats/FormatStore.h"
#include "scheduling/StreamTest.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QSslKey>
#include <QSslServer>
#include <QTest>
#include <QtEndian>
#include <algorithm>

namespace {

// Longer than any recording here with its lead, so that the station never loops.
constexpr int ToneSeconds = 40;

// A 1 kHz tone, looped by the station, in the given file type; made by sox and lame.
QByteArray MakeTone(const QString& folder, const QString& type)
{
    const QString wav = folder + "/tone.wav";
    QProcess::execute("sox", {"-n", "-r", "44100", "-c", "2", "-b", "16", wav, "synth",
                              QString::number(ToneSeconds), "sine", "1000", "vol", "0.5"});
    const QString out = folder + "/tone." + type;
    if (type == "mp3")
        // No tag and no header frame: the station's bytes are frames only, as on air.
        QProcess::execute("lame", {"--quiet", "-t", "-b", "128", wav, out});
    else
        QProcess::execute("sox", {wav, "-C", "3", out});
    return ReadFile(out);
}

// The Ogg pages before the first sound (granule position 0): the stream's headers.
int OggHeaderBytes(const QByteArray& ogg)
{
    int at = 0;
    while (at + 27 <= ogg.size() && ogg.mid(at, 4) == "OggS" &&
           qFromLittleEndian<qint64>(ogg.constData() + at + 6) == 0) {
        const int segments = quint8(ogg[at + 26]);
        int body = 0;
        for (int i = 0; i < segments; ++i)
            body += quint8(ogg[at + 27 + i]);
        at += 27 + segments + body;
    }
    return at;
}

// A server on 127.0.0.1 with a certificate that no authority signed.
std::unique_ptr<QSslServer> SelfSignedServer(const QString& folder)
{
    const QString key = folder + "/key.pem";
    const QString cert = folder + "/cert.pem";
    QProcess openssl;
    openssl.start("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", key,
                              "-out", cert, "-days", "1", "-subj", "/CN=127.0.0.1"});
    if (!openssl.waitForFinished(30000) || openssl.exitCode() != 0)
        return nullptr;
    QSslConfiguration conf = QSslConfiguration::defaultConfiguration();
    QFile keyFile(key);
    QFile certFile(cert);
    if (!keyFile.open(QIODevice::ReadOnly) || !certFile.open(QIODevice::ReadOnly))
        return nullptr;
    conf.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    conf.setLocalCertificate(QSslCertificate(&certFile));
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(conf);
    return server->listen(QHostAddress::LocalHost) ? std::move(server) : nullptr;
}

} // namespace

class TestStreamRecording : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QCoreApplication::applicationDirPath() + "/../src/nightreel-rec"))
            QSKIP("the recording task is not built");
        // No sound server at all: a stream needs none.
        qputenv("PULSE_SERVER", "unix:/nonexistent/pulse/native");
        const QByteArray mp3 = MakeTone(m_scratch.path(), "mp3");
        const QByteArray ogg = MakeTone(m_scratch.path(), "ogg");
        if (mp3.isEmpty() || ogg.isEmpty())
            QSKIP("sox or lame could not make the station's sound");
        m_server.AddStream("/tone.mp3",
                           {"audio/mpeg", mp3, 16000, {{0, "First Song"}, {13, "Second Song"}}});
        const int headers = OggHeaderBytes(ogg);
        m_server.AddStream(
            "/tone.ogg",
            {"application/ogg", ogg, int((ogg.size() - headers) / ToneSeconds), {}, headers});
        m_server.AddAnswer("/list.pls", "HTTP/1.0 200 OK\r\nContent-Type: audio/x-scpls\r\n\r\n"
                                        "[playlist]\nNumberOfEntries=1\nFile1=" +
                                            m_server.Url("/tone.ogg").toUtf8() + "\nTitle1=Test\n");
        m_server.AddAnswer("/page.html", "HTTP/1.0 200 OK\r\nContent-Type: text/html\r\n\r\n"
                                         "<html><body>Listen live!</body></html>");
        m_server.AddAnswer("/list.m3u", "HTTP/1.0 200 OK\r\nContent-Type: audio/x-mpegurl\r\n\r\n"
                                        "#EXTM3U\n#EXTINF:-1,Test\n" +
                                            m_server.Url("/tone.mp3").toUtf8() + "\n");
    }

    // The broadcast's MP3 frames reach the file as sent; its titles go to a CUE sheet.
    void anMp3StreamIsKeptAsBroadcastWithItsTitles()
    {
        RecordingRig r;
        AddStreamProgram(r, "/tone.mp3", "10:00:15", "10:00:21", true);
        QVERIFY(r.Run(RecordingRig::At("10:00:04"), {}, 40000));

        const QString file = r.folder + "/Kept.MP3";
        const QByteArray kept = ReadFile(file);
        QVERIFY2(kept.size() > 128, qPrintable(r.LoggedMessages().join("; ")));
        const QByteArray frames = kept.left(kept.size() - 128);
        QVERIFY(kept.right(128).startsWith("TAG"));
        bool stretchOfSent = false;
        for (const QByteArray& sent : m_server.Sent())
            stretchOfSent = stretchOfSent || sent.contains(frames);
        QVERIFY(stretchOfSent);
        // 6 seconds of 128 kbit/s.
        QVERIFY2(qAbs(frames.size() - 6 * 16000) < 16000,
                 qPrintable(QString::number(frames.size())));
        const QString compression = r.Recordings().value(0).compression;
        QVERIFY2(compression.contains("Kept as broadcast"), qPrintable(compression));

        const QString cue = QString::fromUtf8(ReadFile(r.folder + "/Kept.cue"));
        QVERIFY2(cue.contains("FILE \"Kept.MP3\" MP3"), qPrintable(cue));
        // The title changes 13 s into the broadcast, joined 10 s ahead of the start.
        const QRegularExpression track(
            "TITLE \"([^\"]+)\"\\r\\n +INDEX 01 (\\d\\d):(\\d\\d):(\\d\\d)");
        QStringList titles;
        QList<double> offsets;
        for (auto it = track.globalMatch(cue); it.hasNext();) {
            const QRegularExpressionMatch m = it.next();
            titles << m.captured(1);
            offsets << m.captured(2).toInt() * 60 + m.captured(3).toInt() +
                           m.captured(4).toInt() / 75.0;
        }
        QCOMPARE(titles, QStringList({"First Song", "Second Song"}));
        QCOMPARE(offsets[0], 0.0);
        QVERIFY2(qAbs(offsets[1] - 3.0) < 1.0, qPrintable(cue));
    }

    // Anything else is decoded into the program's format; a list leads to its first stream
    // (an Ogg Vorbis one, an MP3 one).
    void otherStreamsAreDecodedToTheProgramsFormat_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow(".pls list") << "/list.pls";
        QTest::newRow(".m3u list") << "/list.m3u";
    }
    void otherStreamsAreDecodedToTheProgramsFormat()
    {
        QFETCH(QString, path);
        RecordingRig r;
        AddStreamProgram(r, path, "10:00:12", "10:00:16", false);
        QVERIFY(r.Run(RecordingRig::At("10:00:01"), {}, 40000));
        const QString file = r.folder + "/Kept.WAV";
        QVERIFY2(QFile::exists(file), qPrintable(r.LoggedMessages().join("; ")));
        double rms = 0, frequency = 0;
        QVERIFY(ToneOf(file, rms, frequency, 0.2));
        QVERIFY2(rms > 0.25 && qAbs(frequency - 1000) < 50,
                 qPrintable(QString("rms %1, %2 Hz").arg(rms).arg(frequency)));
        const double seconds = Soxi("-D", file).toDouble();
        QVERIFY2(qAbs(seconds - 4.0) < 0.35, qPrintable(QString::number(seconds)));
    }

    // A station gone for 10 s: one file that keeps to the clock, and one logged gap.
    void aDropIsRetriedFilledWithSilenceAndLoggedOnce()
    {
        RecordingRig r;
        AddStreamProgram(r, "/tone.mp3", "10:00:12", "10:00:40", false);
        bool silenced = false;
        QVERIFY(r.Run(
            RecordingRig::At("10:00:01"),
            [&] {
                QTimer::singleShot(14000, [&] {
                    m_server.FallSilent(10000);
                    silenced = true;
                });
            },
            60000));
        QVERIFY(silenced);
        const QString file = r.folder + "/Kept.WAV";
        const double seconds = Soxi("-D", file).toDouble();
        QVERIFY2(qAbs(seconds - 28.0) < 1.0, qPrintable(QString::number(seconds)));
        const QStringList gaps = r.Logged("Internet stream interrupted");
        QCOMPARE(gaps.size(), 1);
        const QRegularExpressionMatch m =
            QRegularExpression(R"(for ([0-9.]+) seconds)").match(gaps[0]);
        // Retries 1, 3, 7 and 15 s after the loss: the fourth finds the station back.
        QVERIFY2(m.hasMatch() && m.captured(1).toDouble() > 10 && m.captured(1).toDouble() < 17,
                 qPrintable(gaps[0]));
    }

    // A stream never reached: one error naming the address and the reason, no row, no file.
    void aStreamNeverReachedLeavesOneErrorAndNothingElse()
    {
        RecordingRig r;
        AddStreamProgram(r, "/gone.mp3", "10:00:12", "10:00:15", false);
        QVERIFY(r.Run(RecordingRig::At("10:00:01"), {}, 40000));
        QCOMPARE(r.Recordings().size(), 0);
        QCOMPARE(QDir(r.folder).entryList(QDir::Files), QStringList());
        const QList<LogEntry> log = r.Log();
        QCOMPARE(
            std::count_if(log.cbegin(), log.cend(), [](const LogEntry& e) { return e.type == 2; }),
            1);
        const QStringList details = r.Logged("Internet stream could not be reached.");
        QCOMPARE(details.size(), 1);
        QVERIFY2(details[0].startsWith(m_server.Url("/gone.mp3") + ": HTTP 404"),
                 qPrintable(details[0]));
    }

    // Test in the editor: what the station sends, or why it can't be played.
    void theTestSaysWhatTheStationSends_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("text");
        QTest::newRow("MP3") << "/tone.mp3" << true
                             << "MPEG-1 Layer 3 (MP3), 128 kbit/s, 44,100 Hz, stereo; station: "
                                "Test Station";
        QTest::newRow("Ogg Vorbis through a list")
            << "/list.pls" << true
            << "Vorbis, 112 kbit/s, 44,100 Hz, stereo; station: Test Station";
        QTest::newRow("missing") << "/gone.mp3" << false
                                 << "The stream could not be played: HTTP 404 Not Found.";
        QTest::newRow("a page") << "/page.html" << false
                                << "The stream could not be played: not audio (text/html).";
        // Checked against the system's certificates, with no fallback to an unchecked one.
        QTest::newRow("https with a certificate of its own")
            << "https" << false
            << "The stream could not be played: the server's certificate was not accepted";
    }
    void theTestSaysWhatTheStationSends()
    {
        QFETCH(QString, path);
        QFETCH(bool, ok);
        QFETCH(QString, text);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        std::unique_ptr<QSslServer> tls;
        QString url = m_server.Url(path);
        if (path == "https") {
            tls = SelfSignedServer(m_scratch.path());
            if (!tls)
                QSKIP("openssl could not make a certificate");
            url = QString("https://127.0.0.1:%1/tone.mp3").arg(tls->serverPort());
        }
        StreamTest test(QCoreApplication::applicationDirPath() + "/../src/nightreel-rec");
        QSignalSpy finished(&test, &StreamTest::Finished);
        test.Start(url);
        QVERIFY(finished.wait(30000));
        QCOMPARE(finished[0][0].toBool(), ok);
        QVERIFY2(finished[0][1].toString().startsWith(text), qPrintable(finished[0][1].toString()));
    }

private:
    // A program "Kept" on Mondays: 16-bit mono PCM, or MP3 at 128 kbit/s in an .MP3 file.
    void AddStreamProgram(RecordingRig& r, const QString& path, const QString& start,
                          const QString& end, bool mp3)
    {
        QVariantHash row = Programs::Weekly("Kept", start, end, "0100000");
        row.insert({{"FilenameUser", "Kept"}, {"StreamUrl", m_server.Url(path)}});
        const qint64 id = r.AddProgram(row);
        if (mp3) {
            clsRecordingFormat format;
            format.SetWaveFormatEx(WaveFormatRecord::MpegLayer3(2, 44100, 128));
            format.SaveMP3FileExtension = true;
            Recordset& rs = r.tc.ctx->database.DataPrograms.recordset();
            rs.FindFirst("Id = " + QString::number(id));
            rs.Edit();
            WriteFormat(format, rs);
            rs.Update();
            r.tc.ctx->database.DataPrograms.Requery();
        }
    }

    QTemporaryDir m_scratch;
    StreamServer m_server;
};

NIGHTREEL_TEST_PARTS_MAIN(TestStreamRecording, QCoreApplication)
#include "test_streamrecording.moc"
