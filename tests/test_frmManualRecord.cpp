// Manual recordings in the real main window with the real recording task and a tone from a
// PulseAudio server of the test's own: the quick start of Ctrl+R and of the joystick, the
// dialog of the toolbar, and the other recording commands of the keys, toolbar and menus.
#include "ModalDialogs.h"
#include "RecordingRig.h"
#include "SoxTone.h"
#include "TestParts.h"
#include "formats/CodecCatalogue.h"
#include "recording/RecorderParts.h"
#include "recording/frmManualRecord.h"
#include "shell/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <fcntl.h>
#include <linux/joystick.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The main window over the rig, activated, with a default format of 16-bit mono PCM at
// 44.1 kHz; the clock runs at real speed from Monday 1 June 2026, 12:00:00.
struct Window : RecordingRig {
    Window()
        : RecordingRig(false)
    {
        form = std::make_unique<frmMain>(*tc.ctx, false);
        form->FirstActivate();
        ctx().WfxDefault.SetToPcm(1, 44100, 16);
        ctx().WfxDefault.CalculateTextCompressionMethodString();
        SetDefaultDuration(0, 0, 3);
        tc.clock.Set(At("12:00:00"));
        elapsed.start();
        QObject::connect(&clockTimer, &QTimer::timeout, [this] {
            tc.clock.Set(AutomationDate::AddSeconds(At("12:00:00"), elapsed.elapsed() / 1000.0));
        });
        clockTimer.start(20);
    }

    ManualRecordServices Services()
    {
        return {
            ctx().log,       ctx().registry,      ctx().options,    tc.messageBox,
            ctx().appStatus, ctx().manualRequest, ctx().WfxDefault, ctx().recorder.TaskProgram()};
    }
    void SetDefaultDuration(int hours, int minutes, int seconds)
    {
        ctx().options.DefaultManualRecordingDurationHours = qint16(hours);
        ctx().options.DefaultManualRecordingDurationMinutes = qint16(minutes);
        ctx().options.DefaultManualRecordingDurationSeconds = qint16(seconds);
    }
    int StartedTasks() { return RecorderParts::Link(recorder()).StartedTasks().size(); }

    std::unique_ptr<frmMain> form;
    QElapsedTimer elapsed;
    QTimer clockTimer;
};

} // namespace

class TestFrmManualRecord : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void ctrlRRecordsTheDefaultAtOnce();
    void recordingKeys_data();
    void recordingKeys();
    void durationBoxes();
    void longRecordingQuestion_data();
    void longRecordingQuestion();
    void dialogNameAndFormatServeOneRecording();
    void joystickButtonsDriveARecording();

private:
    std::unique_ptr<PulseFixture> m_pulse;
    QString m_noSound;
};

void TestFrmManualRecord::initTestCase()
{
    m_noSound = RecordingRig::StartSound(m_pulse);
}

// Ctrl+R on the programs grid records the default length of the tone into a stamped file
// and lists it; a second Ctrl+R while it runs neither asks nor starts anything.
void TestFrmManualRecord::ctrlRRecordsTheDefaultAtOnce()
{
    if (!m_noSound.isEmpty())
        QSKIP(qPrintable(m_noSound));
    Window w;
    QTest::keyClick(w.form->ui.DBGridPrograms, Qt::Key_R, Qt::ControlModifier);
    QVERIFY(w.ctx().appStatus.Recording());
    QTest::keyClick(w.form->ui.DBGridPrograms, Qt::Key_R, Qt::ControlModifier);
    QVERIFY(w.WaitUntilStopped());
    QCOMPARE(w.StartedTasks(), 1);
    QVERIFY(w.tc.messageBox.asked.isEmpty());
    QCOMPARE(w.Files(), QStringList{"060126_120000.WAV"});
    // The task's hand-shake and the sound server's start take their share of the three.
    const double seconds = Soxi("-D", w.folder + "/060126_120000.WAV").toDouble();
    QVERIFY2(seconds > 0.8 && seconds < 3.5, qPrintable(QString::number(seconds)));
    QCOMPARE(w.Recordings().value(0).title, QString("Manual Record"));
}

void TestFrmManualRecord::recordingKeys_data()
{
    QTest::addColumn<QString>("target"); // a widget for a key, else an action to trigger
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<bool>("pausedBefore");
    QTest::addColumn<bool>("pausedAfter");
    QTest::addColumn<bool>("stopped");
    const int ctrl = Qt::ControlModifier;
    const auto action = [](const char* tag, const char* name, bool before, bool after,
                           bool stopped) {
        QTest::newRow(tag) << QString(name) << 0 << 0 << false << before << after << stopped;
    };
    action("toolbar Stop", "ToolbarMain.Stop", false, false, true);
    action("menu Stop", "mnuStopCurrentRecording", false, false, true);
    action("toolbar Pause pauses", "ToolbarMain.Pause", false, true, false);
    action("menu Pause resumes", "mnuPauseRecording", true, false, false);
    // The Recording menu's Pause (Ctrl+P) and Resume (Ctrl+U) do not toggle.
    action("menu Pause only", "mnuPauseOnly", true, true, false);
    action("menu Resume", "mnuResume", false, false, false);
    QTest::newRow("Ctrl+P pauses")
        << "SSTab1" << int(Qt::Key_P) << ctrl << false << false << true << false;
    QTest::newRow("Ctrl+U resumes")
        << "DBGridPrograms" << int(Qt::Key_U) << ctrl << false << true << false << false;
    QTest::newRow("Ctrl+T toggles")
        << "DBGridPrograms" << int(Qt::Key_T) << ctrl << false << false << true << false;
    QTest::newRow("Ctrl+Shift+P") << "DBGridPrograms" << int(Qt::Key_P)
                                  << int(ctrl | Qt::ShiftModifier) << false << false << false
                                  << false;
    QTest::newRow("disabled Ctrl+S")
        << "DBGridPrograms" << int(Qt::Key_S) << ctrl << true << false << false << false;
}

// The toolbar, the menus and the keys (with Ctrl alone, unless turned off) forward Stop and
// Pause to the recorder, on a manual recording as the start leaves it, without a task; with
// the confirmation off, Stop asks nothing.
void TestFrmManualRecord::recordingKeys()
{
    QFETCH(QString, target);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, disabled);
    QFETCH(bool, pausedBefore);
    Window w;
    AppContext& ctx = w.ctx();
    ctx.options.DisableKeyboardActivatedRecording = disabled;
    ctx.options.ConfirmStopManualRecording = false;
    ctx.appStatus.SetRecording(true);
    RecorderParts::Status(ctx.recorder).ProgramId = -1;
    ctx.appStatus.SetPaused(pausedBefore);
    if (key == 0)
        w.form->ui.Action(target)->trigger();
    else
        QTest::keyClick(Control(w.form.get(), target), Qt::Key(key),
                        Qt::KeyboardModifiers(modifiers));
    QTEST(ctx.appStatus.Paused(), "pausedAfter");
    QTEST(ctx.recorder.Status().StopRequested, "stopped");
    QVERIFY(w.tc.messageBox.asked.isEmpty());
    // The menu shows no key that does nothing.
    QCOMPARE(w.form->ui.Action("mnuStopCurrentRecording")->shortcut().isEmpty(), disabled);
    ctx.appStatus.SetRecording(false);
}

// A duration box takes any text; on leaving it the value is forced into its range and shown
// with two digits. The storage figure follows each change (phone quality: 11025 bytes a
// second).
void TestFrmManualRecord::durationBoxes()
{
    Window w;
    w.ctx().WfxDefault.SetToPcmPhoneQuality();
    w.SetDefaultDuration(0, 0, 0);
    frmManualRecord form(w.Services(), false, nullptr);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.TextDurationHours->setFocus();
    form.TextDurationHours->selectAll();
    QTest::keyClicks(form.TextDurationHours, "99");
    QCOMPARE(form.LabelDiskSpaceData->text(), QString("3747.3 Mbytes"));
    form.TextProgramDescription->setFocus();
    QCOMPARE(form.TextDurationHours->text(), QString("23"));
    QCOMPARE(form.LabelDiskSpaceData->text(), QString("870.6 Mbytes"));
}

void TestFrmManualRecord::longRecordingQuestion_data()
{
    QTest::addColumn<bool>("quickStart");
    QTest::addColumn<QString>("duration");
    QTest::addColumn<bool>("asked");
    QTest::newRow("2:00:30, seconds don't count") << false << "02:00:30" << false;
    QTest::newRow("2:01:00") << false << "02:01:00" << true;
    QTest::newRow("quick start of 5:00:00") << true << "05:00:00" << false;
}

// With LongRecordingHours at 2 the dialog that Record opens asks about whole minutes beyond
// two hours; No keeps it open with nothing requested. The quick start never asks.
void TestFrmManualRecord::longRecordingQuestion()
{
    QFETCH(bool, quickStart);
    QFETCH(QString, duration);
    QFETCH(bool, asked);
    Window w;
    w.ctx().options.LongRecordingHours = 2;
    w.ctx().options.ConfirmLongRecordings = true;
    const QStringList parts = duration.split(':');
    w.SetDefaultDuration(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
    // No task behind it: what counts is what was asked before the start.
    w.ctx().recorder.SetTaskProgram(w.tc.Root() + "/no-such-task");
    RecorderParts::Link(w.ctx().recorder).SetActivationTimeout(200);
    bool keptOpen = false;
    if (quickStart) {
        QTest::keyClick(w.form->ui.DBGridPrograms, Qt::Key_R, Qt::ControlModifier);
    } else {
        WhenModalOpens([&keptOpen](QDialog* dialog) {
            Control<QPushButton>(dialog, "CommandOk")->click();
            keptOpen = dialog->isVisible();
            if (keptOpen)
                Control<QPushButton>(dialog, "CommandCancel")->click();
        });
        w.form->ui.Action("ToolbarMain.Record")->trigger();
    }
    QCOMPARE(keptOpen, asked);
    if (asked) {
        QCOMPARE(w.tc.messageBox.asked.size(), 1);
        QCOMPARE(w.tc.messageBox.asked[0].title, QString("Long Recording Confirmation"));
    } else {
        QVERIFY(w.tc.messageBox.asked.isEmpty());
    }
    QCOMPARE(w.ctx().manualRequest.Requested, !asked);
}

// Through the toolbar: a user name with an extension records under the name with the
// recording's own extension, in the format chosen with Modify, until Ctrl+S stops it after
// its question; the next opening of the dialog shows the default format again.
void TestFrmManualRecord::dialogNameAndFormatServeOneRecording()
{
    if (!m_noSound.isEmpty())
        QSKIP(qPrintable(m_noSound));
    Window w;
    const QString defaultText = w.ctx().WfxDefault.TextCompressionMethod;
    WhenModalOpens([](QDialog* dialog) {
        Control<QRadioButton>(dialog, "optUserFilename")->click();
        Control<QLineEdit>(dialog, "txtFilename")->setText(" notes.mp3 ");
        WhenModalOpens([](QDialog* format) {
            Control<QRadioButton>(format, "OptionMono")->click();
            Control<QRadioButton>(format, "Option16bit")->click();
            auto* rates = Control<QComboBox>(format, "ComboSampleRate");
            rates->setCurrentIndex(int(CodecCatalogue::SampleRates().indexOf(22050u)));
            Control<QPushButton>(format, "CommandOk")->click();
        });
        Control<QPushButton>(dialog, "ChangeComprMethodButton")->click();
        Control<QPushButton>(dialog, "CommandOk")->click();
    });
    w.SetDefaultDuration(0, 1, 0);
    w.ctx().options.ConfirmStopManualRecording = true;
    w.tc.messageBox.answers << MsgResult::Yes;
    w.form->ui.Action("ToolbarMain.Record")->trigger();
    QVERIFY(w.ctx().appStatus.Recording());
    QTest::qWait(2500);
    QTest::keyClick(w.form->ui.DBGridRecordings, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(w.WaitUntilStopped());
    QCOMPARE(w.tc.messageBox.asked.size(), 1);
    QCOMPARE(w.Files(), QStringList{"notes.WAV"});
    const QString file = w.folder + "/notes.WAV";
    QCOMPARE(Soxi("-r", file), QString("22050"));
    QCOMPARE(Soxi("-c", file), QString("1"));

    QString shown;
    WhenModalOpens([&shown](QDialog* dialog) {
        shown = Control<QLineEdit>(dialog, "TextCompressionMethod")->text();
        Control<QPushButton>(dialog, "CommandCancel")->click();
    });
    w.form->ui.Action("mnuManualRecording")->trigger();
    QCOMPARE(shown, defaultText);
}

// The real joystick reader on a pipe: a joystick not allowed in the options, initial states
// and turned-off buttons start nothing, a button beyond four is logged, 3 starts, 2 pauses,
// 1 resumes, 4 stops without asking.
void TestFrmManualRecord::joystickButtonsDriveARecording()
{
    if (!m_noSound.isEmpty())
        QSKIP(qPrintable(m_noSound));
    Window w;
    AppContext& ctx = w.ctx();
    ctx.options.ConfirmStopManualRecording = true;
    w.SetDefaultDuration(0, 1, 0);
    // A pipe that the reader takes for a device; the test writes the driver's events into it.
    const QByteArray path = QFile::encodeName(w.tc.JoystickFolder() + "/js0");
    QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    QTRY_VERIFY(w.tc.joystick.IsOpen());
    const int fd = ::open(path.constData(), O_WRONLY | O_NONBLOCK);
    QVERIFY(fd >= 0);
    const auto closing = qScopeGuard([fd] { ::close(fd); });
    // A press and a release of a button numbered from 1.
    const auto press = [fd](int button, quint8 flags = 0) {
        for (qint16 value : {1, 0}) {
            const js_event event{0, value, quint8(JS_EVENT_BUTTON | flags), quint8(button - 1)};
            QCOMPARE(::write(fd, &event, sizeof event), ssize_t(sizeof event));
        }
        QTest::qWait(300);
    };
    press(3);
    ctx.options.AllowJoystickActivation = true;
    press(3, JS_EVENT_INIT);
    ctx.options.EnableJoystickButton3 = false;
    press(3);
    QVERIFY(!ctx.appStatus.Recording());
    press(7);
    const QList<LogEntry> entries = w.tc.LogEntries();
    QCOMPARE(std::count_if(entries.begin(), entries.end(),
                           [](const LogEntry& e) {
                               return e.details.contains("Module: Joystick_ButtonPress");
                           }),
             1);

    ctx.options.EnableJoystickButton3 = true;
    press(3);
    QVERIFY(ctx.appStatus.Recording());
    press(2);
    QVERIFY(ctx.appStatus.Paused());
    press(1);
    QVERIFY(!ctx.appStatus.Paused());
    press(4);
    QVERIFY(w.WaitUntilStopped());
    QVERIFY(w.tc.messageBox.asked.isEmpty());
    QCOMPARE(w.Files().size(), 1);
}

NIGHTREEL_TEST_PARTS_MAIN(TestFrmManualRecord, QApplication)
#include "test_frmManualRecord.moc"
