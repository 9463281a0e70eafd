// How a program written by a caller on the bus is read into the editor's values.
#include "control/ProgramRequest.h"

#include <QTest>

class TestProgramRequest : public QObject {
    Q_OBJECT

private slots:
    void aRequestBecomesTheEditorsValues_data()
    {
        QTest::addColumn<QVariantMap>("request");
        // What the values come to, as ToMap writes them back; empty when refused.
        QTest::addColumn<QVariantMap>("expected");
        QTest::addColumn<QString>("error");
        const QVariantMap times{{"description", "Jazz"}, {"start", "22:30"}, {"end", "01:00:30"}};
        QVariantMap weekly = times;
        weekly.insert("days", "sun,Wednesday");
        QTest::newRow("weekly days as one text") << weekly
                                                 << QVariantMap{{"days", QStringList{"sun", "wed"}},
                                                                {"start", "22:30:00"},
                                                                {"end", "01:00:30"}}
                                                 << QString();
        QVariantMap listed = times;
        listed.insert("days", QStringList{"fri", "mon"});
        listed.insert("input", " alsa_output.usb.monitor ");
        QTest::newRow("weekly days as a list, an input of its own")
            << listed
            << QVariantMap{{"days", QStringList{"mon", "fri"}},
                           {"input", "alsa_output.usb.monitor"}}
            << QString();
        QVariantMap once = times;
        once.insert("once", "2030-02-28");
        once.insert("format", "mp3-128");
        once.insert("filename", "show.mp3");
        once.insert("prefix", "x");
        once.insert("stream", " http://radio.example/live.mp3 ");
        QTest::newRow("one time, own file name, format and stream")
            << once
            << QVariantMap{{"once", "2030-02-28"},
                           {"filename", "show.mp3"},
                           {"prefix", QVariant()},
                           {"stream", "http://radio.example/live.mp3"},
                           {"format", "MPEG Layer-3 128 kBit/s, 44,100 Hz, Stereo   (Record MP3 in "
                                      "real-time; Save as .MP3 file )"}}
            << QString();
        QTest::newRow("a day of no week") << QVariantMap{{"days", "mon,funday"}} << QVariantMap{}
                                          << "Invalid value for days: funday";
        QTest::newRow("a bit rate MP3 lacks") << QVariantMap{{"format", "mp3-100"}} << QVariantMap{}
                                              << "Invalid value for format: mp3-100";
        QTest::newRow("a key of no program")
            << QVariantMap{{"channel", "3"}} << QVariantMap{} << "Unknown key: channel";
    }

    void aRequestBecomesTheEditorsValues()
    {
        QFETCH(QVariantMap, request);
        QFETCH(QVariantMap, expected);
        ProgramFormValues values;
        const auto refused = ProgramRequest::Apply(request, values);
        QTEST(refused.value_or(QString()), "error");
        const QVariantMap written = ProgramRequest::ToMap(1, values);
        for (auto it = expected.cbegin(); it != expected.cend(); ++it)
            QCOMPARE(written.value(it.key()), it.value());
    }
};

QTEST_GUILESS_MAIN(TestProgramRequest)
#include "test_programrequest.moc"
