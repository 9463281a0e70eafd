#include "formats/CodecCatalogue.h"
#include "formats/frmRecordFormat.h"
#include "support/MemoryLog.h"
#include "support/ModalDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

class TestFrmRecordFormat : public QObject {
    Q_OBJECT

private slots:
    void cancelAfterTheChooserRestoresFormatAndFlags()
    {
        MemoryLog bare;
        clsRecordingFormat format;
        format.SaveMP3FileExtension = true;
        format.ConvertToMP3 = false;
        format.SetToPcmPhoneQuality();
        const QByteArray before = format.Record();

        frmRecordFormat form(bare.log, format, nullptr);
        bool chosen = false;
        WhenModalOpens([&chosen](QDialog* dialog) {
            chosen = true;
            Control<QComboBox>(dialog, "cboFormatTag")->setCurrentText("MPEG Layer-3");
            auto* list = Control<QListWidget>(dialog, "lstAttributes");
            list->setCurrentItem(
                list->findItems("128 kBit/s, 44,100 Hz, Stereo", Qt::MatchExactly)[0]);
            Control<QPushButton>(dialog, "btnOk")->click();
        });
        Control<QPushButton>(&form, "CommandAdvanced")->click();
        QVERIFY(chosen);
        // A full record with its extra bytes came back.
        QCOMPARE(format.Record(), CodecCatalogue::Mp3Record(2, 44100, 128));
        QVERIFY(!Control<QCheckBox>(&form, "CheckUsePcm")->isChecked());
        QVERIFY(Control<QCheckBox>(&form, "CheckUsePcm")->isEnabled());
        QVERIFY(!Control<QGroupBox>(&form, "framePcmFormat")->isEnabled());
        QVERIFY(Control<QCheckBox>(&form, "chkConvert")->isEnabled());

        Control<QCheckBox>(&form, "chkConvert")->click();
        Control<QCheckBox>(&form, "chkMP3FileExtension")->click();
        QVERIFY(format.ConvertToMP3);
        QVERIFY(!format.SaveMP3FileExtension);
        QCOMPARE(Control<QLabel>(&form, "LabelFormat")->text(), format.TextCompressionMethod);
        QVERIFY(format.TextCompressionMethod.endsWith("convert to MP3; Save as .WAV file )"));

        Control<QPushButton>(&form, "CommandCancel")->click();
        QCOMPARE(format.Record(), before);
        QVERIFY(format.SaveMP3FileExtension);
        QVERIFY(!format.ConvertToMP3);
        QCOMPARE(format.TextCompressionMethod, QStringLiteral("PCM 11.025 kHz, 8 Bit, Mono"));
        QCOMPARE(format.FormatChanged, qint16(0));
    }

    void aRateOutsideTheListSelectsNothingAndTheNextChangeTakes11025()
    {
        MemoryLog bare;
        clsRecordingFormat format;
        format.SetToPcm(1, 6000, 16);
        frmRecordFormat form(bare.log, format, nullptr);
        auto* rates = Control<QComboBox>(&form, "ComboSampleRate");
        QCOMPARE(rates->currentIndex(), -1);
        QCOMPARE(format.nSamplesPerSec(), 6000u);
        Control<QRadioButton>(&form, "OptionStereo")->click();
        QCOMPARE(format.nSamplesPerSec(), 11025u);
        QCOMPARE(format.nChannels(), quint16(2));
        QCOMPARE(format.nBitsPerSample(), quint16(16));
        QCOMPARE(rates->currentText(), QStringLiteral("11,025"));
    }

    void presetsFollowTheFormat_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("bits");
        QTest::addColumn<QString>("preset");
        QTest::newRow("phone") << 1 << 11025 << 8 << "optPhoneQuality";
        QTest::newRow("radio") << 1 << 22050 << 8 << "optRadioQuality";
        QTest::newRow("CD") << 2 << 44100 << 16 << "optCDQuality";
        QTest::newRow("stereo radio is no preset") << 2 << 22050 << 8 << QString();
        QTest::newRow("16-bit mono at 44100 is no preset") << 1 << 44100 << 16 << QString();
    }
    void presetsFollowTheFormat()
    {
        QFETCH(int, channels);
        QFETCH(int, rate);
        QFETCH(int, bits);
        QFETCH(QString, preset);
        MemoryLog bare;
        clsRecordingFormat format;
        // Start from a preset, so that one is selected before the change.
        format.SetToPcm(2, 44100, 16);
        frmRecordFormat form(bare.log, format, nullptr);
        QVERIFY(Control<QRadioButton>(&form, "optCDQuality")->isChecked());

        Control<QRadioButton>(&form, channels == 2 ? "OptionStereo" : "OptionMono")->click();
        Control<QRadioButton>(&form, bits == 16 ? "Option16bit" : "Option8bit")->click();
        auto* rates = Control<QComboBox>(&form, "ComboSampleRate");
        rates->setCurrentIndex(int(CodecCatalogue::SampleRates().indexOf(quint32(rate))));
        QCOMPARE(format.Record(), CodecCatalogue::PcmRecord(channels, rate, bits));
        for (const char* name : {"optPhoneQuality", "optRadioQuality", "optCDQuality"})
            QCOMPARE(Control<QRadioButton>(&form, name)->isChecked(), preset == name);
        QCOMPARE(rates->currentText(), QLocale(QLocale::English).toString(rate));
    }

    void theFormOpensBesideTheMainWindowAndExplainsMp3()
    {
        MemoryLog bare;
        QWidget main;
        main.move(300, 200);
        main.show();
        clsRecordingFormat format;
        format.SetToPcmPhoneQuality();
        frmRecordFormat form(bare.log, format, &main);
        // 200 twips right of and below the main window's corner.
        QCOMPARE(form.pos(), main.pos() + QPoint(13, 13));
        QVERIFY(!Control<QGroupBox>(&form, "frameMP3")->isEnabled());
        bool informed = false;
        WhenModalOpens([&informed](QDialog* dialog) {
            informed = true;
            dialog->accept();
        });
        Control<QPushButton>(&form, "btnInfo")->click();
        QVERIFY(informed);
    }
};

QTEST_MAIN(TestFrmRecordFormat)
#include "test_frmRecordFormat.moc"
