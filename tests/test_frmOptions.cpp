#include "FormEdits.h"
#include "TestContext.h"
#include "options/frmOptions.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTest>

namespace {

const QString kEntry = "/xdg/autostart/nightreel.desktop";
const QString kUnplugged = "alsa_input.usb-Mic-00.analog-stereo";

// The dialog over a context that has read its options as at start-up, the recording folder
// in place, and the desktop's configuration in the test's own folder.
struct OptionsFixture {
    explicit OptionsFixture(bool folderExists = true)
    {
        qputenv("XDG_CONFIG_HOME", (tc.Root() + "/xdg").toLocal8Bit());
        tc.OpenDatabase();
        tc.ctx->options.GetOptions(tc.ctx->registry);
        tc.ctx->defaultFormats.GetWfxDefault(tc.ctx->WfxDefault);
        const QString folder = tc.Root() + "/rec";
        if (folderExists)
            QDir().mkpath(folder);
        tc.ctx->options.DefaultRecordingDirectory = folder;
        // An input unplugged for now is kept, not lost by opening the options.
        tc.ctx->options.RecordingInput = kUnplugged;
        // Hidden, chosen on a desktop with a notification area: here it can only be left.
        tc.ctx->options.HiddenWindowStatupMode = true;
        tc.ctx->options.SaveStartupMode(tc.ctx->registry);
    }

    std::unique_ptr<frmOptions> Open()
    {
        AppContext& c = *tc.ctx;
        const OptionsFormServices services{c.log,
                                           c.registry,
                                           c.options,
                                           c.error,
                                           c.messageBox,
                                           c.WfxDefault,
                                           c.defaultFormats,
                                           [&c] { c.recorder.UpdateStatusBarPlus(); },
                                           QStringLiteral(NIGHTREEL_BIN_DIR),
                                           c.audioDevices};
        auto form = std::make_unique<frmOptions>(services, false, nullptr);
        form->show();
        form->activateWindow();
        if (!QTest::qWaitForWindowActive(form.get()))
            qFatal("the options dialog did not become active");
        return form;
    }

    QString Setting(const QString& name) const
    {
        return tc.ctx->registry.GetSetting("Settings", name, QString());
    }

    TestContext tc;
};

} // namespace

class TestFrmOptions : public QObject {
    Q_OBJECT

private slots:
    // "=" expects the value stored before OK. The disk shows 40 Mbytes free throughout.
    void okStoresEachGroupWithinItsLimits_data()
    {
        QTest::addColumn<bool>("folderExists");
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<bool>("enterInLastBox");
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<bool>("staysOpen");
        QTest::addColumn<bool>("guardStops");
        QTest::newRow("a warning under the stop limit takes the stop limit")
            << true << QStringList{"txtWarnRecMegsLeft=30", "txtStopRecMegsLeft=50"} << false
            << QStringList{"WarnRecMegsLeft=50", "StopRecMegsLeft=50"} << false << true;
        QTest::newRow("one limit out of range drops both")
            << true << QStringList{"txtStopRecMegsLeft=30", "txtWarnRecMegsLeft=5"} << true
            << QStringList{"WarnRecMegsLeft==", "StopRecMegsLeft=="} << false << false;
        QTest::newRow("leaving the purge days raises 2 to 3")
            << true << QStringList{"chkPurgeOldRecordings=1", "txtPurgeDays=2"} << false
            << QStringList{"PurgeDays=3", "PurgeRecordings=True"} << false << false;
        QTest::newRow("2 and Enter in the purge days keeps the purge settings, stores the rest")
            << true
            << QStringList{"chkShowSplashScreen=0", "chkPurgeOldRecordings=1", "txtPurgeDays=2"}
            << true << QStringList{"PurgeDays==", "PurgeRecordings==", "ShowSplashScreen=False"}
            << false << false;
        QTest::newRow("an input chosen from the list")
            << true << QStringList{"cboRecordingInput=Monitor of the fake output"} << false
            << QStringList{"RecordingInput=fake.monitor"} << false << false;
        QTest::newRow("leaving the padding lowers 700 to 600")
            << true << QStringList{"txtPaddingSeconds=700"} << false
            << QStringList{"PaddingSeconds=600"} << false << false;
        QTest::newRow("long recording hours out of range keep both long settings")
            << true
            << QStringList{"chkConfirmLongRecordings=0", "txtLongRecordingHours=30",
                           "TextDurationHours=30"}
            << false
            << QStringList{"LongRecordingHours==", "ConfirmLongRecordings==",
                           "DefaultManualRecordingDurationHours=23"}
            << false << false;
        // The disk has 40 Mbytes free, under the new stop limit.
        QTest::newRow("every other box, and what was not edited")
            << true
            << QStringList{"chkConfirmLongRecordings=1",
                           "txtLongRecordingHours=5",
                           "TextDurationHours=2",
                           "TextDurationMinutes=3",
                           "TextDurationSeconds=4",
                           "txtWarnRecMegsLeft=100",
                           "txtStopRecMegsLeft=60",
                           "txtPurgeDays=10",
                           "txtFwdRev0=20",
                           "comboMinSec0=1",
                           "comboDefaultRecordFileNameFormat=2",
                           "dtpkrPurgeTime=03:30:15",
                           "chkKeepAwakeForRecordings=0",
                           "chkSilenceAlarm=0",
                           "chkShowDesktopNotifications=0",
                           "txtPaddingSeconds=90",
                           "ComboWavPlayer=Desktop Default"}
            << false
            << QStringList{"ConfirmLongRecordings=True",
                           "LongRecordingHours=5",
                           "DefaultManualRecordingDurationHours=2",
                           "DefaultManualRecordingDurationMinutes=3",
                           "DefaultManualRecordingDurationSeconds=4",
                           "WarnRecMegsLeft=100",
                           "StopRecMegsLeft=60",
                           "PurgeDays=10",
                           "PlayStepSizeValue0=20",
                           "PlayStepSizeMinute0=1",
                           "DefaultRecordFileNameFormat=2",
                           "PurgeTime=" + Options::TimeText(AutomationDate::FromTime(3, 30, 15)),
                           "KeepAwakeForRecordings=False",
                           "SilenceAlarm=False",
                           "ShowDesktopNotifications=False",
                           "PaddingSeconds=90",
                           "RecordingInput=" + kUnplugged,
                           "WavPlayer=Desktop Default",
                           "DefaultRecordingDirectory=<root>/rec"}
            << false << true;
        QTest::newRow("a missing folder keeps the dialog open with the start-up mode stored")
            << false << QStringList{"optNormalStartupMode=1", "chkShowSplashScreen=0"} << false
            << QStringList{"HiddenWindowStatupMode=False",
                           "ShowSplashScreen==", "DefaultRecordingDirectory=="}
            << true << false;
    }
    void okStoresEachGroupWithinItsLimits()
    {
        QFETCH(bool, folderExists);
        QFETCH(QStringList, edits);
        QFETCH(bool, enterInLastBox);
        OptionsFixture f(folderExists);
        f.tc.diskSpace.freeMb = 40.0;
        QHash<QString, QString> before;
        QFETCH(QStringList, stored);
        for (const QString& s : stored)
            before[s.section('=', 0, 0)] = f.Setting(s.section('=', 0, 0));
        auto form = f.Open();
        Apply(form.get(), edits);
        if (enterInLastBox)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        else
            QTest::mouseClick(form->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);

        for (const QString& s : stored) {
            const QString key = s.section('=', 0, 0);
            const QString value = s.section('=', 1).replace("<root>", f.tc.Root());
            QCOMPARE(f.Setting(key), value == "=" ? before[key] : value);
        }
        QFETCH(bool, staysOpen);
        QCOMPARE(form->isVisible(), staysOpen);
        QCOMPARE(f.tc.messageBox.asked.size(), staysOpen ? 1 : 0);
        if (staysOpen)
            QCOMPARE(f.tc.messageBox.asked[0].text,
                     QString("Recordings directory does not exist or could not be created"));
        QFETCH(bool, guardStops);
        QCOMPARE(f.tc.ctx->error.DiskLowStopRecording(), guardStops);
    }

    void startupBoxWritesTheAutostartEntry_data()
    {
        QTest::addColumn<QString>("entryBefore"); // "none", "entry" or "empty"
        QTest::addColumn<bool>("checkedAtLoad");
        QTest::addColumn<bool>("check");
        QTest::newRow("set writes the entry") << "none" << false << true;
        QTest::newRow("cleared removes the entry") << "entry" << true << false;
        QTest::newRow("a zero-length entry counts as absent") << "empty" << false << true;
    }
    void startupBoxWritesTheAutostartEntry()
    {
        QFETCH(QString, entryBefore);
        OptionsFixture f;
        const QString entry = f.tc.Root() + kEntry;
        if (entryBefore != "none") {
            QDir().mkpath(QFileInfo(entry).path());
            QFile file(entry);
            QVERIFY(file.open(QIODevice::WriteOnly));
            if (entryBefore == "entry")
                file.write("[Desktop Entry]\n");
        }
        auto form = f.Open();
        auto* box = form->findChild<QAbstractButton*>("chkStartupFolder");
        QFETCH(bool, checkedAtLoad);
        QCOMPARE(box->isChecked(), checkedAtLoad);
        QFETCH(bool, check);
        box->setChecked(check);
        form->cmdOK_Click();

        QCOMPARE(QFileInfo::exists(entry), check);
        if (!check)
            return;
        QProcess validate;
        validate.start("desktop-file-validate", {entry});
        QVERIFY(validate.waitForFinished());
        QCOMPARE(validate.readAll(), QByteArray());
        QCOMPARE(validate.exitCode(), 0);
        QFile file(entry);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString program = QString(NIGHTREEL_BIN_DIR) + "/nightreel";
        QVERIFY(QString::fromUtf8(file.readAll()).contains("\nExec=" + program + "\n"));
        QVERIFY(QFileInfo(program).isExecutable());
    }
};

QTEST_MAIN(TestFrmOptions)
#include "test_frmOptions.moc"
