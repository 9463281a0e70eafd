#include "TestContext.h"
#include "recording/RecordingFileName.h"

#include <QTest>

class TestRecordingFileName : public QObject {
    Q_OBJECT

private slots:
    // 15 November 2026 at 03:24:07 (and 2005 for the two-digit year).
    void namesFromTheClock_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<bool>("mp3");
        QTest::addColumn<QString>("file");
        QTest::newRow("month first") << 0 << 2026 << ""
                                     << ""
                                     << "" << false << "111526_032407.WAV";
        QTest::newRow("year first") << 1 << 2026 << ""
                                    << ""
                                    << "" << false << "261115_032407.WAV";
        QTest::newRow("day first") << 2 << 2026 << ""
                                   << ""
                                   << "" << true << "151126_032407.MP3";
        QTest::newRow("unknown format") << 7 << 2005 << ""
                                        << ""
                                        << "" << false << "111505_032407.WAV";
        QTest::newRow("prefix and suffix") << 0 << 2026 << ""
                                           << "Show_"
                                           << "_am" << false << "Show_111526_032407_am.WAV";
        QTest::newRow("blanks around") << 0 << 2026 << "   "
                                       << " a "
                                       << " b " << false << "a 111526_032407 b.WAV";
        QTest::newRow("user name") << 0 << 2026 << "  my show "
                                   << "x"
                                   << "y" << true << "my show.MP3";
    }
    void namesFromTheClock()
    {
        QFETCH(int, format);
        QFETCH(int, year);
        QFETCH(QString, user);
        QFETCH(QString, prefix);
        QFETCH(QString, suffix);
        QFETCH(bool, mp3);
        QFETCH(QString, file);
        TestContext tc;
        tc.clock.Set(QDateTime(QDate(year, 11, 15), QTime(3, 24, 7)));
        tc.ctx->options.DefaultRecordFileNameFormat = qint16(format);
        QString folder = "  /rec/shows  ";
        QString base, extension;
        const QString path =
            NewRecordingFileName(tc.ctx->Now(), tc.ctx->options.DefaultRecordFileNameFormat, user,
                                 prefix, suffix, folder, mp3, base, extension);
        QCOMPARE(path, "/rec/shows/" + file);
        QCOMPARE(folder, QStringLiteral("/rec/shows/"));
        QCOMPARE(base + extension, file);
    }

    void aClosingSeparatorIsNotDoubled()
    {
        TestContext tc;
        QString folder = "/rec/";
        QString base, extension;
        QCOMPARE(NewRecordingFileName(tc.ctx->Now(), tc.ctx->options.DefaultRecordFileNameFormat,
                                      "x", "", "", folder, false, base, extension),
                 QStringLiteral("/rec/x.WAV"));
    }
};

QTEST_GUILESS_MAIN(TestRecordingFileName)
#include "test_recordingfilename.moc"
