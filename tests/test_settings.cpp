#include "StoreParts.h"
#include "TestFiles.h"
#include "common/AutomationDate.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

namespace {
const QString kSection = QStringLiteral("Settings");

// The stored text, or a null QString when there is no such value. Read from the file on its
// own, not through the code under test, which also checks where the values land.
QString Stored(const StoreParts& s, const QString& name)
{
    QSettings settings(s.SettingsFile(), QSettings::IniFormat);
    settings.beginGroup(kSection);
    return settings.contains(name) ? settings.value(name).toString() : QString();
}

// Puts a text in the store as it is, bypassing SaveSetting's handling of empty texts.
void Preset(const StoreParts& s, const QString& name, const QString& text)
{
    QSettings settings(s.SettingsFile(), QSettings::IniFormat);
    settings.beginGroup(kSection);
    settings.setValue(name, text);
}

#define MEMBER(name)                                                                               \
    {                                                                                              \
        QStringLiteral(#name), &Options::name                                                      \
    }

// An option's value in memory by its setting's name, so that tables of cases can name it.
// Times are given in seconds of the day.
QVariant Member(const Options& o, const QString& name)
{
    static const QHash<QString, qint16 Options::*> ints = {
        MEMBER(WarnRecMegsLeft),
        MEMBER(StopRecMegsLeft),
        MEMBER(DefaultRecordFileNameFormat),
        MEMBER(DefaultManualRecordingDurationSeconds),
        MEMBER(PurgeDays),
        MEMBER(SilenceThresholdDb),
        MEMBER(SilenceAlarmSeconds)};
    static const QHash<QString, bool Options::*> bools = {
        MEMBER(ConfirmLongRecordings), MEMBER(ConvertToMP3),
        MEMBER(PurgeRecordings),       MEMBER(HiddenWindowStatupMode),
        MEMBER(ShowSplashScreen),      MEMBER(KeepAwakeForRecordings),
        MEMBER(SilenceAlarm),          MEMBER(ShowDesktopNotifications)};
    static const QHash<QString, QString Options::*> texts = {MEMBER(DefaultRecordingDirectory),
                                                             MEMBER(MixerFilePath)};
    if (ints.contains(name))
        return int(o.*ints.value(name));
    if (bools.contains(name))
        return o.*bools.value(name);
    if (texts.contains(name))
        return o.*texts.value(name);
    if (name == QLatin1String("PurgeTime"))
        return qRound(o.PurgeTime * 86400.0);
    return {};
}
#undef MEMBER

} // namespace

class TestSettings : public QObject {
    Q_OBJECT

private slots:
    void valuesAreStoredAsText_data()
    {
        QTest::addColumn<QString>("value"); // null: never written
        QTest::addColumn<bool>("deleteAfter");
        QTest::addColumn<QString>("stored"); // null: no value in the file
        QTest::addColumn<QString>("readBack");

        const auto row = [](const char* tag, const QString& value, bool deleteAfter,
                            const QString& stored, const QString& readBack) {
            QTest::newRow(tag) << value << deleteAfter << stored << readBack;
        };
        row("plain", "abc", false, "abc", "abc");
        row("empty is one blank", "", false, " ", " ");
        row("blanks are kept", " a b ", false, " a b ", " a b ");
        row("comma is no list", "a, b", false, "a, b", "a, b");
        row("never written", QString(), false, QString(), "fallback");
        row("deleted", "abc", true, QString(), "fallback");
    }

    void valuesAreStoredAsText()
    {
        QFETCH(QString, value);
        QFETCH(bool, deleteAfter);

        StoreParts s(false);
        RegKeys& registry = s.registry;
        if (!value.isNull())
            registry.SaveSetting(kSection, "Name", value);
        if (deleteAfter)
            registry.DeleteSetting(kSection, "Name");

        QTEST(Stored(s, "Name"), "stored");
        QTEST(registry.GetSetting(kSection, "Name", "fallback"), "readBack");
    }

    // Every failed write is said on its own, with what was to be written.
    void failedWriteIsSaid()
    {
        StoreParts s(false);
        QSignalSpy failed(&s.registry, &RegKeys::SaveFailed);
        s.registry.SaveSetting(kSection, "PurgeDays", "12");
        QVERIFY2(failed.isEmpty(), "a write that worked was said to fail");

        // A folder where the file should be: the write fails even for root.
        QVERIFY(QFile::remove(s.SettingsFile()));
        QVERIFY(QDir().mkpath(s.SettingsFile()));
        s.registry.SaveSetting(kSection, "PurgeDays", "14");
        s.registry.SaveSetting(kSection, "PurgeRecordings", "");
        QCOMPARE(failed, (QList<QVariantList>{{kSection, "PurgeDays", "14"},
                                              {kSection, "PurgeRecordings", ""}}));
    }

    void readersRepairMissingAndBadValues_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");        // null: absent, as at the first start
        QTest::addColumn<QVariant>("value");      // %1 is the test's folder
        QTest::addColumn<QString>("storedAfter"); // null: nothing stored

        const auto row = [](const char* tag, const char* name, const char* text,
                            const QVariant& value, const char* storedAfter) {
            QTest::newRow(tag) << QString(name) << QString(text) << value << QString(storedAfter);
        };
        // The first start writes the default of each kind of typed reader, and of nothing else.
        row("first WarnRecMegsLeft", "WarnRecMegsLeft", nullptr, 50, "50");
        row("first ConfirmLongRecordings", "ConfirmLongRecordings", nullptr, true, "True");
        row("first PurgeTime", "PurgeTime", nullptr, 0, "12:00:00 AM");
        row("first MixerFilePath", "MixerFilePath", nullptr, "pavucontrol", "pavucontrol");
        row("first step", "PlayStepSizeValue5", nullptr, {}, "10");
        row("first folder", "DefaultRecordingDirectory", nullptr, "", nullptr);

        row("folder saved empty", "DefaultRecordingDirectory", " ", "", " ");

        row("warn 20000", "WarnRecMegsLeft", "20000", 20000, "20000");
        row("purge days 2", "PurgeDays", "2", 30, "30");
        row("purge days 3", "PurgeDays", "3", 3, "3");
        row("silence threshold 0", "SilenceThresholdDb", "0", -60, "-60");
        row("blanks around a number", "PurgeDays", "  7 ", 7, "  7 ");
        row("half rounds to even, up", "PurgeDays", "7.5", 8, "7.5");
        row("half rounds to even, down", "PurgeDays", "6.5", 6, "6.5");
        row("no number", "PurgeDays", "many", 30, "30");
        row("huge number", "PurgeDays", "1e400", 30, "30");

        row("lower-case true", "ConfirmLongRecordings", "true", true, "True");
        row("upper-case TRUE", "PurgeRecordings", "TRUE", false, "False");
        row("the system's -1", "PurgeRecordings", "-1", false, "False");
        row("blank before True", "ShowSplashScreen", " True", true, "True");

        row("afternoon, 12-hour", "PurgeTime", "3:30:15 PM", 55815, "3:30:15 PM");
        row("24-hour", "PurgeTime", "15:30:15", 55815, "15:30:15");
        row("date and time", "PurgeTime", "6/1/2026 6:00:00 AM", 21600, "6/1/2026 6:00:00 AM");
        row("no time", "PurgeTime", "soon", 0, "12:00:00 AM");

        row("mixer file", "MixerFilePath", " %1/mixer ", "%1/mixer", " %1/mixer ");
        row("mixer on the path", "MixerFilePath", "sh", "sh", "sh");
        row("mixer file empty", "MixerFilePath", "%1/empty", "pavucontrol", "pavucontrol");
        row("mixer not on the path", "MixerFilePath", "no-such-mixer", "pavucontrol",
            "pavucontrol");
    }

    void readersRepairMissingAndBadValues()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QVariant, value);
        QFETCH(QString, storedAfter);

        StoreParts s(false);
        QVERIFY(WriteFile(s.Root() + "/mixer", "#!/bin/sh\n"));
        QVERIFY(WriteFile(s.Root() + "/empty", ""));
        const auto inRoot = [&](QString text) {
            return text.isNull() ? text : text.replace("%1", s.Root());
        };
        if (text.isNull())
            QVERIFY(!QFile::exists(s.SettingsFile()));
        else
            Preset(s, name, inRoot(text));
        s.options.GetOptions(s.registry);

        QCOMPARE(Stored(s, name), inRoot(storedAfter));
        if (value.isValid()) {
            const QVariant expected =
                value.typeId() == QMetaType::QString ? QVariant(inRoot(value.toString())) : value;
            QCOMPARE(Member(s.options, name), expected);
        }
    }

    void warningBelowStopResetsBoth_data()
    {
        QTest::addColumn<QString>("warn");
        QTest::addColumn<QString>("stop");
        QTest::addColumn<QString>("warnAfter");
        QTest::addColumn<QString>("stopAfter");

        const auto row = [](const char* tag, const char* warn, const char* stop,
                            const char* warnAfter, const char* stopAfter) {
            QTest::newRow(tag) << QString(warn) << QString(stop) << QString(warnAfter)
                               << QString(stopAfter);
        };
        row("10 and 20", "10", "20", "50", "25");
        row("equal", "25", "25", "25", "25");
        row("warn above stop", "100", "20", "100", "20");
        // The stop limit falls back to 25 first; then the warning lies below it.
        row("stop out of range", "20", "3", "50", "25");
    }

    void warningBelowStopResetsBoth()
    {
        QFETCH(QString, warn);
        QFETCH(QString, stop);
        QFETCH(QString, warnAfter);
        QFETCH(QString, stopAfter);

        StoreParts s(false);
        Preset(s, "WarnRecMegsLeft", warn);
        Preset(s, "StopRecMegsLeft", stop);
        s.options.GetOptions(s.registry);

        QCOMPARE(QString::number(s.options.WarnRecMegsLeft), warnAfter);
        QCOMPARE(QString::number(s.options.StopRecMegsLeft), stopAfter);
        QCOMPARE(Stored(s, "WarnRecMegsLeft"), warnAfter);
        QCOMPARE(Stored(s, "StopRecMegsLeft"), stopAfter);
    }

    void oneBadStepValueResetsTheWholeTable_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text"); // null: the value is removed
        QTest::addColumn<bool>("reset");

        const auto row = [](const char* tag, const char* name, const char* text, bool reset) {
            QTest::newRow(tag) << QString(name) << QString(text) << reset;
        };
        row("value 60", "PlayStepSizeValue3", "60", true);
        row("value missing", "PlayStepSizeValue5", nullptr, true);
        row("minute 2", "PlayStepSizeMinute5", "2", true);
        row("value 59 with blanks", "PlayStepSizeValue2", " 59 ", false);
    }

    void oneBadStepValueResetsTheWholeTable()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(bool, reset);

        StoreParts s(false);
        Options& options = s.options;
        options.PlayStepSizes = {
            {{true, 3}, {true, 4}, {false, 5}, {false, 6}, {false, 7}, {true, 8}}};
        options.SaveCurrentStepSizeSettings(s.registry);
        if (text.isNull())
            s.registry.DeleteSetting(kSection, name);
        else
            Preset(s, name, text);

        auto expected = options.PlayStepSizes;
        if (reset)
            expected = Options::FactoryPlayStepSizes;
        else
            expected[name.right(1).toInt()].Value = text.trimmed().toInt();
        options.PlayStepSizes = {};
        options.GetPlayStepSizes(s.registry);

        for (size_t n = 0; n < expected.size(); ++n) {
            QCOMPARE(options.PlayStepSizes[n].Minute, expected[n].Minute);
            QCOMPARE(options.PlayStepSizes[n].Value, expected[n].Value);
            if (reset) {
                QCOMPARE(Stored(s, QString("PlayStepSizeMinute%1").arg(n)),
                         QString(expected[n].Minute ? "1" : "0"));
                QCOMPARE(Stored(s, QString("PlayStepSizeValue%1").arg(n)),
                         QString::number(expected[n].Value));
            }
        }
    }

    void recentRecordingReadsBackUnlessItsFileIsGone_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QDateTime>("time"); // invalid: none (0)
        QTest::addColumn<bool>("fileGone");

        // Locales whose short dates have two-digit years and whose long times name the zone.
        const QDateTime afternoon(QDate(2026, 6, 1), QTime(14, 30, 15));
        for (const char* locale : {"en_US", "de_DE"}) {
            const auto row = [&](const char* tag, const QDateTime& time) {
                QTest::addRow("%s, %s", locale, tag) << QString(locale) << time << false;
            };
            row("afternoon", afternoon);
            row("last century", QDateTime(QDate(1950, 3, 4), QTime(8, 0, 1)));
            row("none", QDateTime());
        }
        // Cleared in the store too: the next start finds nothing.
        QTest::newRow("file gone") << QString("en_US") << afternoon << true;
    }

    void recentRecordingReadsBackUnlessItsFileIsGone()
    {
        QFETCH(QString, locale);
        QFETCH(QDateTime, time);
        QFETCH(bool, fileGone);
        const double written = time.isValid() ? AutomationDate::FromDateTime(time) : 0.0;

        const QLocale previous;
        QLocale::setDefault(QLocale(locale));
        const auto restore = qScopeGuard([&] { QLocale::setDefault(previous); });
        StoreParts s(false);
        const QString file = s.Root() + "/take.wav";
        QVERIFY(fileGone || WriteFile(file, "RIFF"));
        s.options.SaveRecentRecording(s.registry, file, "Evening news", written);

        for (int start = 0; start < (fileGone ? 2 : 1); ++start) {
            Options read;
            read.GetRecentRecording(s.registry);
            QCOMPARE(read.RecentRecordingFilename, fileGone ? QString() : file);
            QCOMPARE(read.RecentRecordingDescription,
                     fileGone ? QString() : QString("Evening news"));
            QCOMPARE(AutomationDate::ToDateTime(read.RecentRecordingTime),
                     AutomationDate::ToDateTime(fileGone ? 0.0 : written));
        }
    }

    // Each option the dialog edits is written under the name the next start reads.
    void savedOptionsReadBack()
    {
        StoreParts s(false);
        Options saved;
        saved.DefaultRecordingDirectory = s.Root();
        saved.RecordingInput = QStringLiteral("alsa_output.pci.analog-stereo.monitor");
        saved.WarnRecMegsLeft = 300;
        saved.StopRecMegsLeft = 200;
        saved.LongRecordingHours = 7;
        saved.ConfirmLongRecordings = false;
        saved.DefaultRecordFileNameFormat = 2;
        saved.DefaultManualRecordingDurationHours = 4;
        saved.DefaultManualRecordingDurationMinutes = 5;
        saved.DefaultManualRecordingDurationSeconds = 6;
        saved.ConfirmStopManualRecording = false;
        saved.AllowJoystickActivation = true;
        saved.PurgeRecordings = true;
        saved.PurgeDays = 9;
        saved.PurgeTime = AutomationDate::FromTime(3, 4, 5);
        saved.RemoveExpiredPrograms = false;
        saved.MixerFilePath = QStringLiteral("/bin/sh");
        saved.ShowActualTimeInPlayer = true;
        saved.ShowRecordingTimeInTaskBar = true;
        saved.HiddenWindowStatupMode = true;
        saved.ShowSplashScreen = false;
        saved.WavPlayer = QStringLiteral("Desktop Default");
        saved.Mp3Player = QStringLiteral("Nightreel Classic Player");
        saved.KeepAwakeForRecordings = false;
        saved.SilenceAlarm = false;
        saved.ShowDesktopNotifications = false;
        saved.PaddingSeconds = 90;
        saved.SaveOptions(s.registry);

        // Written again from what was read, every value is as the first write left it: a name
        // the reader does not know would come back as its default.
        const auto written = [&s] {
            QSettings file(s.SettingsFile(), QSettings::IniFormat);
            QHash<QString, QString> values;
            for (const QString& key : file.allKeys())
                values[key] = file.value(key).toString();
            return values;
        };
        const QHash<QString, QString> first = written();
        Options read;
        read.GetOptions(s.registry);
        // The player choice is read where it is made, not by GetOptions.
        read.WavPlayer = saved.WavPlayer;
        read.Mp3Player = saved.Mp3Player;
        QVERIFY(QFile::remove(s.SettingsFile()));
        read.SaveOptions(s.registry);
        QCOMPARE(written(), first);
        QCOMPARE(first.value(kSection + "/WavPlayer"), saved.WavPlayer);
        QVERIFY(first.size() > 20);
    }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "test_settings.moc"
