#include "common/AutomationDate.h"
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
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("file");
        const auto row = [](const char* tag, int format, int year, const char* user,
                            const char* prefix, const char* suffix, bool mp3, const char* file,
                            const char* folder = "  /rec/shows  ") {
            QTest::newRow(tag) << format << year << QString(user) << QString(prefix)
                               << QString(suffix) << mp3 << QString(folder) << QString(file);
        };
        row("month first", 0, 2026, "", "", "", false, "111526_032407.WAV");
        row("year first", 1, 2026, "", "", "", false, "261115_032407.WAV");
        row("day first", 2, 2026, "", "", "", true, "151126_032407.MP3");
        row("unknown format", 7, 2005, "", "", "", false, "111505_032407.WAV");
        row("prefix and suffix", 0, 2026, "", "Show_", "_am", false, "Show_111526_032407_am.WAV");
        row("blanks around", 0, 2026, "   ", " a ", " b ", false, "a 111526_032407 b.WAV");
        row("user name", 0, 2026, "  my show ", "x", "y", true, "my show.MP3");
        row("a closing separator is not doubled", 0, 2026, "x", "", "", false, "x.WAV",
            "/rec/shows/");
    }
    void namesFromTheClock()
    {
        QFETCH(int, format);
        QFETCH(int, year);
        QFETCH(QString, folder);
        QFETCH(QString, file);
        const double now =
            AutomationDate::FromDateTime(QDateTime(QDate(year, 11, 15), QTime(3, 24, 7)));
        QString base, extension;
        QFETCH(QString, user);
        QFETCH(QString, prefix);
        QFETCH(QString, suffix);
        QFETCH(bool, mp3);
        const QString path = NewRecordingFileName(now, qint16(format), user, prefix, suffix, folder,
                                                  mp3, base, extension);
        QCOMPARE(path, "/rec/shows/" + file);
        QCOMPARE(folder, QStringLiteral("/rec/shows/"));
        QCOMPARE(base + extension, file);
    }
};

QTEST_APPLESS_MAIN(TestRecordingFileName)
#include "test_recordingfilename.moc"
