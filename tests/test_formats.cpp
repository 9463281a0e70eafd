#include "formats/CodecCatalogue.h"
#include "formats/FormatStore.h"
#include "formats/clsRecordingFormat.h"
#include "support/StoreParts.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

const QString kSection = QStringLiteral("Settings");

QByteArray Mp3Extra(const QByteArray& record)
{
    return record.mid(WaveFormatRecord::Size);
}

void SetFromRecord(clsRecordingFormat& format, const QByteArray& record)
{
    std::memcpy(format.mwfx(), record.constData(), size_t(record.size()));
    format.CalcRemainingVarsFromMwfx();
}

// The default format's store over a fresh database and settings file.
struct DefaultFormats : StoreParts {
    DefaultFormatStore store{registry, options, database.DataInfo};
};

} // namespace

class TestFormats : public QObject {
    Q_OBJECT

private slots:
    // The block's alignment of odd sample sizes is rounded, and seconds from Mbytes round
    // ties to even.
    void pcmFiguresRound_data()
    {
        QTest::addColumn<quint16>("channels");
        QTest::addColumn<quint32>("rate");
        QTest::addColumn<quint16>("bits");
        QTest::addColumn<float>("mbytes");
        QTest::addColumn<quint16>("blockAlign");
        QTest::addColumn<qint32>("seconds");
        const auto row = [](const char* tag, quint16 channels, quint32 rate, quint16 bits,
                            float mbytes, quint16 blockAlign, qint32 seconds) {
            QTest::newRow(tag) << channels << rate << bits << mbytes << blockAlign << seconds;
        };
        // 2 Mbytes a second: 5 Mbytes are 2.5 seconds, 7 are 3.5.
        row("2.5 s to 2", 2, 524288, 16, 5.0f, 4, 2);
        row("3.5 s to 4", 2, 524288, 16, 7.0f, 4, 4);
        row("no byte rate", 2, 0, 16, 100.0f, 4, 0);
        row("1 x 12 bits", 1, 8000, 12, 1.0f, 2, 66);
        row("1 x 4 bits, half to even", 1, 8000, 4, 1.0f, 0, 0);
    }
    void pcmFiguresRound()
    {
        QFETCH(quint16, channels);
        QFETCH(quint32, rate);
        QFETCH(quint16, bits);
        QFETCH(float, mbytes);
        QFETCH(quint16, blockAlign);
        clsRecordingFormat format;
        format.SetToPcm(channels, rate, bits);
        QTEST(format.CalcSecondsFromMbytes(mbytes), "seconds");
        QCOMPARE(format.nBlockAlign(), blockAlign);
        QCOMPARE(format.nAvgBytesPerSec(), quint32(blockAlign) * rate);
        // The block says the same as the fields.
        const uchar* block = format.mwfx();
        QCOMPARE(quint16(block[12] | block[13] << 8), blockAlign);
    }

    void theTwoGigabyteLimit_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<bool>("convert");
        QTest::addColumn<qint32>("seconds");
        QTest::addColumn<QString>("refusal");
        const QByteArray megaPerSecond = CodecCatalogue::PcmRecord(2, 262144, 16);
        const QByteArray mp3 = CodecCatalogue::Mp3Record(2, 44100, 128);
        const QString tooBig = "The recording exceeds 2 Gigabytes, which is the maximum size "
                               "supported.  Please shorten the recording time or the recording "
                               "format frequency.";
        const QString pcmTooBig = "The temporary PCM file required for conversion exceeds 2 "
                                  "Gigabytes, which is the maximum size supported.  Please shorten "
                                  "the recording time or the recording format frequency.";
        // 1 Mbyte a second: the figures are Mbytes of 1024 times 1024 bytes.
        QTest::newRow("exactly 2000.0 passes") << megaPerSecond << false << 2000 << QString();
        QTest::newRow("2001 is refused") << megaPerSecond << false << 2001 << tooBig;
        // 12000 s of 16-bit stereo PCM at 44100 Hz are about 2019 Mbytes; the MP3 is 183.
        QTest::newRow("conversion refused on its PCM size") << mp3 << true << 12000 << pcmTooBig;
        QTest::newRow("real-time MP3 of the same length") << mp3 << false << 12000 << QString();
        QTest::newRow("conversion just under the limit") << mp3 << true << 11800 << QString();
    }
    void theTwoGigabyteLimit()
    {
        QFETCH(QByteArray, record);
        QFETCH(bool, convert);
        QFETCH(qint32, seconds);
        QFETCH(QString, refusal);
        ScriptedMessageBox messageBox;
        clsRecordingFormat format;
        SetFromRecord(format, record);
        format.ConvertToMP3 = convert;
        QCOMPARE(CheckFor2GbLimit(messageBox, format, seconds), !refusal.isEmpty());
        QCOMPARE(messageBox.asked.size(), refusal.isEmpty() ? 0 : 1);
        if (!refusal.isEmpty()) {
            QCOMPARE(messageBox.asked[0].title, QStringLiteral("Recording Size Exceeded"));
            QCOMPARE(messageBox.asked[0].text, refusal);
            QCOMPARE(messageBox.asked[0].icon, MsgIcon::Exclamation);
        }
    }

    void textsNameTheFormatAndTheMp3Handling_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<bool>("convert");
        QTest::addColumn<bool>("mp3Extension");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shortText");
        QTest::newRow("PCM has no note") << CodecCatalogue::PcmRecord(2, 44100, 16) << true << true
                                         << "PCM 44.100 kHz, 16 Bit, Stereo"
                                         << "PCM 44.100 kHz, 16 Bit, Stereo";
        QTest::newRow("MP3 converted to .MP3")
            << CodecCatalogue::Mp3Record(1, 22050, 32) << true << true
            << "MPEG Layer-3 32 kBit/s, 22,050 Hz, Mono   (Record in PCM format and convert to "
               "MP3; Save as .MP3 file )"
            << "MPEG Layer-3 32 kBit/s, 22,050 Hz, Mono";
        QTest::newRow("MP3 real-time to .WAV")
            << CodecCatalogue::Mp3Record(2, 44100, 128) << false << false
            << "MPEG Layer-3 128 kBit/s, 44,100 Hz, Stereo   (Record MP3 in real-time; Save as "
               ".WAV file )"
            << "MPEG Layer-3 128 kBit/s, 44,100 Hz, Stereo";
        QByteArray unknown = CodecCatalogue::PcmRecord(1, 8000, 8);
        unknown[0] = char(0x31); // a codec this machine does not have
        QTest::newRow("unknown codec") << unknown << false << false << "ERROR ERROR"
                                       << "ERROR ERROR";
    }
    void textsNameTheFormatAndTheMp3Handling()
    {
        QFETCH(QByteArray, record);
        QFETCH(bool, convert);
        QFETCH(bool, mp3Extension);
        clsRecordingFormat format;
        format.ConvertToMP3 = convert;
        format.SaveMP3FileExtension = mp3Extension;
        SetFromRecord(format, record);
        QTEST(format.TextCompressionMethod, "text");
        QTEST(format.TextCompressionMethodShort, "shortText");
        // The record itself survives a format without texts.
        QCOMPARE(format.Record(), record);
    }

    void copyTakesRecordTextsAndFlagsButNotTheConfirmation()
    {
        clsRecordingFormat source;
        source.ConvertToMP3 = true;
        source.SaveMP3FileExtension = false;
        SetFromRecord(source, CodecCatalogue::Mp3Record(2, 32000, 96));
        source.FormatChanged = -1;
        clsRecordingFormat copy;
        copy.CopyFrom(source);
        QCOMPARE(copy.Record(), source.Record());
        QCOMPARE(copy.WaveFormat().extra, Mp3Extra(source.Record()));
        QCOMPARE(copy.TextCompressionMethod, source.TextCompressionMethod);
        QVERIFY(copy.ConvertToMP3);
        QVERIFY(!copy.SaveMP3FileExtension);
        QCOMPARE(copy.FormatChanged, qint16(0));
    }

    // A row keeps the format with one more extra byte, and the flags; a row from before the
    // flags reads as neither.
    void programRowsKeepTheFormatWithOneMoreByte_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<int>("flags"); // -1: written by a version without them
        QTest::newRow("cbSize 0 is one zero byte") << CodecCatalogue::PcmRecord(1, 11025, 8) << 1;
        QTest::newRow("MP3 with its 12 bytes") << CodecCatalogue::Mp3Record(2, 44100, 128) << 2;
        QTest::newRow("from before the flags") << CodecCatalogue::PcmRecord(1, 8000, 8) << -1;
    }
    void programRowsKeepTheFormatWithOneMoreByte()
    {
        QFETCH(QByteArray, record);
        QFETCH(int, flags);
        StoreParts s;
        Recordset& rs = s.database.DataPrograms.recordset();
        if (flags < 0) {
            s.AddProgram({{"Description", "Old"},
                          {"wfx_wFormatTag", 1},
                          {"wfx_nChannels", 1},
                          {"wfx_nSamplesPerSec", 8000},
                          {"wfx_nAvgBytesPerSec", 8000},
                          {"wfx_nBlockAlign", 1},
                          {"wfx_nBitsPerSample", 8},
                          {"wfx_cbSize", 0}});
        } else {
            clsRecordingFormat format;
            SetFromRecord(format, record);
            format.SaveMP3FileExtension = flags & 1;
            format.ConvertToMP3 = flags & 2;
            rs.AddNew();
            rs.SetValue("Description", "Show");
            WriteFormat(format, rs);
            rs.Update();
            QSqlQuery q(s.database.db.Connection());
            QVERIFY(q.exec("SELECT wfxExtra, Flags FROM Programs"));
            QVERIFY(q.next());
            QCOMPARE(q.value(0).toByteArray(), Mp3Extra(record) + QByteArray(1, '\0'));
            QCOMPARE(q.value(1).toInt(), flags);
        }
        rs.MoveFirst();
        clsRecordingFormat read;
        read.ConvertToMP3 = read.SaveMP3FileExtension = true;
        ReadFormat(read, rs);
        QCOMPARE(read.Record(), record);
        QCOMPARE(read.SaveMP3FileExtension, flags > 0 && (flags & 1));
        QCOMPARE(read.ConvertToMP3, flags > 0 && (flags & 2));
        QCOMPARE(s.CountRows("EventLog"), 0);
    }

    // The MP3 flags go to the settings; a format that is not MP3 writes them as they were
    // before the user chose MP3 (convert off, .MP3 extension on), whatever the flags say.
    void theDefaultFormatRoundTripsThroughInfoAndSettings_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QString>("convert");
        QTest::addColumn<QString>("extension");
        QTest::newRow("MP3 keeps its flags") << CodecCatalogue::Mp3Record(1, 16000, 24) << "True"
                                             << "False";
        QTest::newRow("PCM rewrites both") << CodecCatalogue::PcmRecord(2, 22050, 16) << "False"
                                           << "True";
    }
    void theDefaultFormatRoundTripsThroughInfoAndSettings()
    {
        QFETCH(QByteArray, record);
        QFETCH(QString, convert);
        QFETCH(QString, extension);
        DefaultFormats s;
        s.registry.SaveSetting(kSection, "SaveMP3FileExtension", "False");
        s.registry.SaveSetting(kSection, "ConvertToMP3", "True");
        clsRecordingFormat format;
        format.ConvertToMP3 = true;
        format.SaveMP3FileExtension = false;
        SetFromRecord(format, record);
        s.store.SaveDefaultFormatInfo(format);
        QCOMPARE(s.CountRows("Info"), 1);
        QCOMPARE(s.registry.GetSetting(kSection, "ConvertToMP3", {}), convert);
        QCOMPARE(s.registry.GetSetting(kSection, "SaveMP3FileExtension", {}), extension);

        clsRecordingFormat dflt;
        s.store.GetWfxDefault(dflt);
        QCOMPARE(dflt.Record(), format.Record());
        QCOMPARE(dflt.ConvertToMP3, convert == "True");
        QCOMPARE(dflt.SaveMP3FileExtension, extension == "True");
        QCOMPARE(dflt.TextCompressionMethod, format.TextCompressionMethod);
    }

    void anUnusableDefaultFallsBackToPhoneQuality_data()
    {
        QTest::addColumn<int>("cbSize"); // -1: no Info row
        QTest::newRow("more extra bytes than this machine's formats") << 40;
        QTest::newRow("no Info row") << -1;
    }
    void anUnusableDefaultFallsBackToPhoneQuality()
    {
        QFETCH(int, cbSize);
        DefaultFormats s;
        QSqlQuery q(s.database.db.Connection());
        QVERIFY(q.exec("DELETE FROM Info"));
        if (cbSize >= 0) {
            QVERIFY(
                q.prepare("INSERT INTO Info VALUES (1, 0, 0, 85, 2, 44100, 16000, 1, 0, ?, ?)"));
            q.addBindValue(cbSize);
            q.addBindValue(QByteArray(cbSize + 1, 'x'));
            QVERIFY(q.exec());
        }
        s.database.DataInfo.Requery();
        clsRecordingFormat dflt;
        s.store.GetWfxDefault(dflt);
        QCOMPARE(dflt.Record(), CodecCatalogue::PcmRecord(1, 11025, 8));
        QCOMPARE(dflt.TextCompressionMethod, QStringLiteral("PCM 11.025 kHz, 8 Bit, Mono"));

        // The row is rewritten: one row, phone quality, read back by the next start.
        QCOMPARE(s.CountRows("Info"), 1);
        QVERIFY(q.exec("SELECT wfxdflt_wFormatTag, wfxdflt_nSamplesPerSec, wfxdflt_cbSize, "
                       "wfxdfltExtra FROM Info"));
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toInt(), 1);
        QCOMPARE(q.value(1).toInt(), 11025);
        QCOMPARE(q.value(2).toInt(), 0);
        QCOMPARE(q.value(3).toByteArray(), QByteArray(1, '\0'));
        clsRecordingFormat next;
        s.store.ReadDefaultFormatInfo(next);
        QCOMPARE(next.nSamplesPerSec(), 11025u);
    }

    void theCatalogueListsOnlyWhatItCanDescribe()
    {
        const QList<QByteArray> formats = CodecCatalogue::RecordingFormats();
        for (const QByteArray& record : formats) {
            QString text;
            QVERIFY2(CodecCatalogue::FormatDescription(record, text), record.toHex().constData());
            QVERIFY(record.size() <= CodecCatalogue::MaxFormatSize());
        }
        // An MP3 record without its extra bytes is not a format any codec takes.
        QString text;
        QVERIFY(!CodecCatalogue::FormatDescription(
            CodecCatalogue::Mp3Record(2, 44100, 128).left(18), text));
    }
};

QTEST_GUILESS_MAIN(TestFormats)
#include "test_formats.moc"
