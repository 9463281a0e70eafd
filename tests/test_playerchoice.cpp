// Which player plays a recording: the settings repaired to what this installation can play,
// the choice by extension, the desktop's default program through a private handler
// registry, and recordings that are gone.
#include "DesktopData.h"
#include "RecordingsListFixture.h"
#include "TestFiles.h"
#include "common/clsAppStatus.h"
#include "platform/OpenWithDefaultProgram.h"
#include "player/PlayerChoice.h"
#include "player/PlayerPanels.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kEnhanced = PlayerChoice::EnhancedPlayer;
const QString kClassic = PlayerChoice::ClassicPlayer;
const QString kDefault = PlayerChoice::DefaultPlayer;

// The private desktop lives for the whole run: the desktop library reads its folders once.
QTemporaryDir& Desktop()
{
    static QTemporaryDir dir;
    return dir;
}

QString Opened()
{
    return Desktop().path() + "/opened.txt";
}

// A panel that opens marks the application as playing, as the real panels do.
struct FakePanels : PlayerPanels {
    explicit FakePanels(clsAppStatus& appStatus)
        : appStatus(appStatus)
    {
    }
    void OpenEnhanced(const QString& file, const QString&, double) override
    {
        opened = "enhanced " + QFileInfo(file).fileName();
        appStatus.SetPlaying(true);
    }
    void OpenClassic(const QString& file, const QString&, double) override
    {
        opened = "classic " + QFileInfo(file).fileName();
        appStatus.SetPlaying(true);
    }
    clsAppStatus& appStatus;
    QString opened;
};

struct Fixture : RecordingsListFixture {
    explicit Fixture(bool available = true)
        : choice(log, registry, options, messageBox, panels, &OpenWithDefaultProgram,
                 [available] { return available; })
    {
        choice.CheckMediaPlayerControl();
    }
    QString Stored(const QString& name) const
    {
        return registry.GetSetting("Settings", name, "<none>");
    }
    QString Write(const QString& name, const QByteArray& content) const
    {
        return WriteFile(File(name), content) ? File(name) : QString();
    }
    clsAppStatus appStatus;
    FakePanels panels{appStatus};
    PlayerChoice choice;
};

} // namespace

class TestPlayerChoice : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        DesktopData::UsePrivateFolders(Desktop().path());
        const QString script = Desktop().path() + "/handler.sh";
        QVERIFY(WriteFile(script, ("#!/bin/sh\nprintf '%s' \"$1\" > " + Opened() + ".part && mv " +
                                   Opened() + ".part " + Opened() + "\n")
                                      .toUtf8()));
        QFile::setPermissions(script, QFile::permissions(script) | QFileDevice::ExeOwner);
        QVERIFY(DesktopData::RegisterHandler(Desktop().path(), "test-wav.desktop", script + " %f",
                                             "audio/x-wav"));
    }

    void repairs_data()
    {
        QTest::addColumn<bool>("available");
        QTest::addColumn<QString>("wav");
        QTest::addColumn<QString>("mp3");
        QTest::addColumn<QString>("wavAfter");
        QTest::addColumn<QString>("mp3After");
        const auto row = [](const char* tag, bool available, const QString& wav, const QString& mp3,
                            const QString& wavAfter, const QString& mp3After) {
            QTest::newRow(tag) << available << wav << mp3 << wavAfter << mp3After;
        };
        row("enhanced gone", false, kEnhanced, kEnhanced, kClassic, kDefault);
        row("empty, player there", true, "", "", kEnhanced, kEnhanced);
        row("empty, no player", false, "", "", kClassic, kDefault);
        row("classic for MP3", true, kClassic, kClassic, kClassic, kEnhanced);
        row("classic for MP3, no player", false, kDefault, kClassic, kDefault, kDefault);
        row("unknown names", true, "Some Player", "x", kEnhanced, kEnhanced);
        row("blanks trimmed", true, " " + kDefault + " ", kEnhanced + " ", kDefault, kEnhanced);
        row("earlier versions' name of the default program", true, "Windows Default",
            " Windows Default", kDefault, kDefault);
    }

    void repairs()
    {
        QFETCH(bool, available);
        QFETCH(QString, wav);
        QFETCH(QString, mp3);
        Fixture f(available);
        f.registry.SaveSetting("Settings", "WavPlayer", wav);
        f.registry.SaveSetting("Settings", "Mp3Player", mp3);
        f.choice.GetPlayerSetting();
        QTEST(f.options.WavPlayer, "wavAfter");
        QTEST(f.options.Mp3Player, "mp3After");
        // Only a change is written: a name read right but for blanks stays as it was.
        QTEST(f.Stored("WavPlayer").trimmed(), "wavAfter");
        QTEST(f.Stored("Mp3Player").trimmed(), "mp3After");
    }

    void choice_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("wav");
        QTest::addColumn<QString>("mp3");
        QTest::addColumn<QString>("opened");
        QTest::newRow("MP3, enhanced") << "a.MP3" << kClassic << kEnhanced << "enhanced a.MP3";
        QTest::newRow("WAV, enhanced") << "a.wav" << kEnhanced << kDefault << "enhanced a.wav";
        QTest::newRow("WAV, classic") << "a.wav" << kClassic << kEnhanced << "classic a.wav";
        QTest::newRow("WAV, default") << "a.wav" << kDefault << kEnhanced << "default";
        QTest::newRow("MP3, default") << "a.mp3" << kEnhanced << kDefault << "message";
    }

    // The default program of a WAV is the test's handler; an MP3 has none here.
    void choice()
    {
        QFETCH(QString, file);
        QFETCH(QString, opened);
        Fixture f;
        QFile::remove(Opened());
        QFETCH(QString, wav);
        QFETCH(QString, mp3);
        f.options.WavPlayer = wav;
        f.options.Mp3Player = mp3;
        const QString path = f.Write(file, "RIFF");
        f.choice.PlayExistingFile(path, "Title", 0.0);

        if (opened == "default") {
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Opened()), 10000);
            QCOMPARE(QString::fromUtf8(ReadFile(Opened())), path);
        } else if (opened == "message") {
            QCOMPARE(f.messageBox.asked.size(), 1);
            QCOMPARE(f.messageBox.asked[0].text,
                     "Error Launching default desktop MP3 player. Error Code=31\nPerhaps there "
                     "is no desktop application associated with MP3 files.");
            QCOMPARE(f.messageBox.asked[0].icon, MsgIcon::Exclamation);
        } else {
            QCOMPARE(f.panels.opened, opened);
        }
        if (opened != "message")
            QVERIFY(f.messageBox.asked.isEmpty());
        // Nobody knows when the default program stops: no panel opens, and the application
        // isn't playing.
        const bool panel = opened.startsWith("enhanced") || opened.startsWith("classic");
        QCOMPARE(f.panels.opened.isEmpty(), !panel);
        QCOMPARE(f.appStatus.Playing(), panel);
    }

    // A recent recording of no length counts as gone and goes, and is forgotten. (From the
    // grid, the list's commands find it gone before a player is chosen.)
    void aGoneRecentRecordingIsForgotten()
    {
        Fixture f;
        f.options.WavPlayer = kEnhanced;
        const QString path = f.Write("empty.wav", QByteArray());
        f.options.SaveRecentRecording(f.registry, path, "Recent", 45000.5);
        f.choice.ToolbarPlay();
        QCOMPARE(f.options.RecentRecordingFilename, QString());
        QCOMPARE(f.Stored("RecentRecordingFilename").trimmed(), QString());
        QCOMPARE(f.Stored("RecentRecordingDescription").trimmed(), QString());
        QCOMPARE(f.messageBox.asked.size(), 1);
        QCOMPARE(f.messageBox.asked[0].title, QString("Recent Recording Not Found"));
        QVERIFY(!QFile::exists(path));
        QVERIFY(f.panels.opened.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPlayerChoice)
#include "test_playerchoice.moc"
