#include "FormEdits.h"
#include "ModalDialogs.h"
#include "ProgramListFixture.h"
#include "Programs.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "scheduling/frmEnableDisablePrograms.h"
#include "scheduling/frmProgram.h"
#include "shell/frmMain.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QtTest>
#include <functional>

namespace {

// The program commands with the real editor, answered in place: the edits are made and
// OK is clicked.
class EditorView : public FakeProgramListView {
public:
    explicit EditorView(AppContext& ctx)
        : m_ctx(ctx)
    {
    }
    bool ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                         qint32 editProgramId, ProgramFormValues& result) override
    {
        frmProgram form(m_ctx.ForProgramForm(), nullptr);
        form.FillProgramForm(initial);
        form.EditingExisting = editingExisting;
        form.EditProgramId = editProgramId;
        Apply(&form, edits);
        if (inspect)
            inspect(form);
        Control<QPushButton>(&form, "CommandOk")->click();
        if (!form.ProgramFormOk())
            return false;
        result = form.FormValues();
        return true;
    }

    QStringList edits;
    std::function<void(frmProgram&)> inspect;

private:
    AppContext& m_ctx;
};

// The program commands of an open context at noon on Monday 1 June 2026, with a
// phone-quality default format, through the real editor.
struct Fixture {
    Fixture()
    {
        tc.clock.Set(QDateTime(QDate(2026, 6, 1), QTime(12, 0, 0)));
        tc.OpenDatabase();
        tc.ctx->WfxDefault.SetToPcm(1, 11025, 8);
        tc.ctx->options.ConfirmLongRecordings = true;
        tc.ctx->options.LongRecordingHours = 3;
    }
    qint64 Add(const QVariantHash& row) { return tc.AddProgram(AsEdited(row)); }
    // A new program as the Add command opens it, with a description.
    std::unique_ptr<frmProgram> NewForm()
    {
        auto form = std::make_unique<frmProgram>(tc.ctx->ForProgramForm(), nullptr);
        ProgramFormValues v = ProgramEditor::NewProgramValues(tc.ctx->Now());
        v.FormDescription = "Show";
        v.FormFormat.CopyFrom(tc.ctx->WfxDefault);
        v.FormCompressionMethod = v.FormFormat.TextCompressionMethod;
        form->FillProgramForm(v);
        return form;
    }

    TestContext tc;
    EditorView view{*tc.ctx};
    ProgramListCommands commands{tc.ctx->ForProgramList(), view};
};

} // namespace

class TestFrmProgram : public QObject {
    Q_OBJECT

private slots:
    // The rules are the validator's; here each control reaches its check in the order of
    // the checks, and the dialog shows the check's title and text.
    void theChecksOfOkRunInTheirOrder_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<bool>("bigFormat");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* tag, const QStringList& edits, bool bigFormat,
                            const char* title, const QString& text) {
            QTest::newRow(tag) << edits << bigFormat << QString(title) << text;
        };
        const QString forbidden =
            "cannot contain any of the following characters:\n\\ / : * ? \" < > | ";
        row("no day, before the missing description",
            {"OptionOneTimeOrDaily(1)=1", "TextProgramDescription="}, false, "No days selected",
            "At least one day needs to be selected.");
        row("forbidden character in the user's name", {"optUserFilename=1", "txtUserFilename=a:b"},
            false, "Invalid Filename", "The filename " + forbidden);
        row("prefix", {"chkPrefix=1", "txtPrefix=a*"}, false, "Invalid Filename Prefix",
            "The filename prefix " + forbidden);
        row("suffix", {"chkSuffix=1", "txtSuffix=<x"}, false, "Invalid Filename Suffix",
            "The filename suffix " + forbidden);
        row("blank description", {"TextProgramDescription=   "}, false,
            "Program description required", "Please enter a program description.");
        row("in the past", {"dtpkrStartTime=11:00:00"}, false, "Invalid date and time",
            "The scheduled date and time must be later than the current time.");
        row("a stream's address that is not http",
            {"cboSource=last", "txtStreamUrl=ftp://radio.example.org/live"}, false,
            "Invalid stream address",
            "The address of an internet stream must begin with http:// or https://, such as "
            "http://radio.example.org/live.mp3, or name a .pls, .m3u or .m3u8 list.");
        row("size, before the long recording", {"dtpkrEndTime=12:30:00"}, true,
            "Recording Size Exceeded",
            "The recording exceeds 2 Gigabytes, which is the maximum size supported.  Please "
            "shorten the recording time or the recording format frequency.");
        row("long recording, answered no", {"dtpkrEndTime=17:00:01"}, false,
            "Long Recording Confirmation",
            "A recording longer than 3 hours is programmed.  Save this programming? ");
    }
    void theChecksOfOkRunInTheirOrder()
    {
        QFETCH(QStringList, edits);
        QFETCH(bool, bigFormat);
        QFETCH(QString, title);
        Fixture f;
        if (bigFormat)
            f.tc.ctx->WfxDefault.SetToPcm(2, 44100, 16);
        auto form = f.NewForm();
        Apply(form.get(), edits);
        Control<QPushButton>(form.get(), "CommandOk")->click();

        QVERIFY(!form->ProgramFormOk());
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        const ScriptedMessageBox::Asked& box = f.tc.messageBox.asked.first();
        QCOMPARE(box.title, title);
        QTEST(box.text, "text");
        if (title == "Long Recording Confirmation") {
            QCOMPARE(box.icon, MsgIcon::None);
            QCOMPARE(box.buttons, MsgButtons::YesNo);
        } else {
            QCOMPARE(box.icon, MsgIcon::Exclamation);
        }
        if (title == "Program description required")
            QCOMPARE(form->focusWidget(), Control(form.get(), "TextProgramDescription"));
        if (title == "Invalid stream address")
            QCOMPARE(form->focusWidget(), Control(form.get(), "txtStreamUrl"));
    }

    // The format handed back is the program's own unless the last change was accepted.
    void theFormatSavedIsTheLastAcceptedChange_data()
    {
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<uint>("rate");
        QTest::newRow("accepted") << QStringList{"CommandOk"} << 44100u;
        QTest::newRow("cancelled") << QStringList{"CommandCancel"} << 11025u;
        QTest::newRow("accepted, then cancelled")
            << QStringList{"CommandOk", "CommandCancel"} << 11025u;
    }
    void theFormatSavedIsTheLastAcceptedChange()
    {
        QFETCH(QStringList, answers);
        QFETCH(uint, rate);
        Fixture f;
        f.tc.ctx->WfxDefault.SetToPcmPhoneQuality();
        auto form = f.NewForm();
        for (const QString& button : answers) {
            WhenModalOpens([button](QDialog* dialog) {
                Control<QRadioButton>(dialog, "optCDQuality")->click();
                Control<QPushButton>(dialog, button)->click();
            });
            Control<QPushButton>(form.get(), "ChangeComprMethodButton")->click();
        }
        Control<QPushButton>(form.get(), "CommandOk")->click();
        QVERIFY(form->ProgramFormOk());
        QCOMPARE(form->FormValues().FormFormat.nSamplesPerSec(), rate);
    }

    void valuesAreStoredByTheirRules_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("stored");
        const auto row = [](const char* tag, const QStringList& edits, const char* column,
                            const char* stored) {
            QTest::newRow(tag) << edits << QString(column) << QString(stored);
        };
        const QString prior = "chkLaunchPrior=1";
        const QString link = "chkLaunchLink=1,txtLaunchLink=http://radio";
        row("delay 500", {prior, "txtLaunchPriorDelay=500"}, "LaunchAppDelay", "120");
        row("delay -5", {prior, "txtLaunchPriorDelay=-5"}, "LaunchAppDelay", "0");
        row("delay 7.6", {prior, "txtLaunchPriorDelay=7.6"}, "LaunchAppDelay", "8");
        row("command trimmed", {prior, "txtLaunchPrior=  player -x  "}, "LaunchAppPrior",
            "player -x");
        row("link delay 7.6", {link, "txtLaunchLinkDelay=7.6"}, "InternetLinkDelay", "8");
        row("user file name trimmed, extension kept",
            {"optUserFilename=1", "txtUserFilename=  show.wav "}, "FilenameUser", "show.wav");
        row("prefix with a forbidden character, box off",
            {"chkPrefix=1", "txtPrefix=a*b", "chkPrefix=0"}, "FilenamePrefix", "");
        row("do not close, then the link unchecked",
            {link, "optCloseStreamingPlayer(2)=1", "chkLaunchLink=0"}, "StreamingPlayerClose", "");
        row("do not close", {link, "optCloseStreamingPlayer(2)=1"}, "StreamingPlayerClose",
            "DO_NOT_CLOSE");
        row("stream address trimmed",
            {"cboSource=last", "txtStreamUrl= https://radio.example.org/a.pls "}, "StreamUrl",
            "https://radio.example.org/a.pls");
        row("address typed, then the input chosen",
            {"cboSource=last", "txtStreamUrl=http://r.example", "cboSource=0"}, "StreamUrl", "");
        row("window title as typed",
            {link, "optCloseStreamingPlayer(1)=1", "txtStreamingPlayerWindowTitle=Radio "},
            "StreamingPlayerClose", "Radio ");
    }
    void valuesAreStoredByTheirRules()
    {
        QFETCH(QStringList, edits);
        QFETCH(QString, column);
        Fixture f;
        f.view.edits = QStringList{"TextProgramDescription=Show"} + edits.join(',').split(',');
        f.commands.AddNewProgram();
        QVERIFY(f.tc.messageBox.asked.isEmpty());
        QCOMPARE(f.tc.CountRows("Programs"), 1);
        QTEST(f.tc.ProgramColumn(f.view.current, column).toString(), "stored");
    }

    // The form shows the row; OK stores it back without a conflict with itself and clears a
    // mixer profile whose file is gone. An unchanged copy conflicts with its original; a
    // disabled one is saved, marked in its description.
    void anEditShowsTheRowAndStoresItBackACopyIsChecked()
    {
        Fixture f;
        const QString folder = f.tc.ctx->mixerProfiles.Folder();
        QVERIFY(QDir().mkpath(folder) && WriteFile(folder + "/Evening.mxr", "profile"));
        QVariantHash row = Programs::Weekly("Jazz", "22:00:00", "02:00:00", "0000011");
        row.insert({{"FilenamePrefix", "pre"},
                    {"LaunchAppPrior", "player"},
                    {"LaunchAppDelay", 30},
                    {"InternetLink", "http://radio"},
                    {"InternetLinkDelay", 15},
                    {"HangupInternetConnection", -1},
                    {"StreamingPlayerClose", "Radio"},
                    {"MixerProfileBefore", "gone"},
                    {"MixerProfileAfter", "Evening"}});
        const qint64 id = f.Add(row);
        f.view.current = id;
        f.tc.messageBox.answers = {MsgResult::Yes}; // four hours is a long recording
        f.view.inspect = [](frmProgram& form) {
            QVERIFY(Control<QRadioButton>(&form, "OptionOneTimeOrDaily(1)")->isChecked());
            QVERIFY(Control<QCheckBox>(&form, "CheckDaysOfWeek(6)")->isChecked());
            QVERIFY(!Control<QCheckBox>(&form, "CheckDaysOfWeek(0)")->isChecked());
            QCOMPARE(Control<QLabel>(&form, "LabelDurationData")->text(),
                     QString("4 hours 0 min 0 sec"));
            QVERIFY(Control<QRadioButton>(&form, "optCloseStreamingPlayer(1)")->isChecked());
        };
        f.commands.EditProgram();
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QCOMPARE(f.tc.messageBox.asked[0].title, QString("Long Recording Confirmation"));
        QCOMPARE(f.tc.ProgramColumn(id, "FilenamePrefix").toString(), QString("pre"));
        QCOMPARE(f.tc.ProgramColumn(id, "LaunchAppDelay").toInt(), 30);
        QCOMPARE(f.tc.ProgramColumn(id, "InternetLinkDelay").toInt(), 15);
        QCOMPARE(f.tc.ProgramColumn(id, "StreamingPlayerClose").toString(), QString("Radio"));
        QVERIFY(Field::ToBool(f.tc.ProgramColumn(id, "HangupInternetConnection")));
        QCOMPARE(f.tc.ProgramColumn(id, "FrequencyText").toString(), QString("Fri,Sat"));
        QCOMPARE(f.tc.ProgramColumn(id, "MixerProfileBefore").toString(), QString());
        QCOMPARE(f.tc.ProgramColumn(id, "MixerProfileAfter").toString(), QString("Evening"));

        f.view.inspect = nullptr;
        f.tc.messageBox.asked.clear();
        f.commands.CopyProgram();
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QCOMPARE(f.tc.messageBox.asked[0].title, QString("Schedule Conflict"));
        QVERIFY(f.tc.messageBox.asked[0].text.endsWith("Conflicting Program Description: Jazz"));
        QCOMPARE(f.tc.CountRows("Programs"), 1);

        f.tc.messageBox.asked.clear();
        f.tc.messageBox.answers = {MsgResult::Yes};
        f.view.current = id;
        f.view.edits = {"CheckEnabled=0"};
        f.commands.CopyProgram();
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QCOMPARE(f.tc.CountRows("Programs"), 2);
        QCOMPARE(f.tc.ProgramColumn(f.view.current, "DescriptionText").toString(),
                 QString("Jazz   **DISABLED** "));
    }

    // A new program's form: equal times last nothing and can be saved; the link controls
    // follow their box and the title its option; an unchecked Enabled box leaves only itself,
    // OK and Cancel.
    void theControlsOfANewProgram()
    {
        Fixture f;
        auto form = f.NewForm();
        Apply(form.get(), {"dtpkrStartTime=13:00:00", "dtpkrEndTime=13:00:00"});
        QCOMPARE(Control<QLabel>(form.get(), "LabelDiskSpaceData")->text(), QString("0.0 Kbytes"));

        QVERIFY(!Control(form.get(), "btnTestUrl")->isEnabled());
        Apply(form.get(), {"chkLaunchLink=1"});
        QVERIFY(!Control(form.get(), "txtStreamingPlayerWindowTitle")->isEnabled());
        Apply(form.get(), {"optCloseStreamingPlayer(1)=1"});
        QVERIFY(Control(form.get(), "txtStreamingPlayerWindowTitle")->isEnabled());
        Apply(form.get(), {"optCloseStreamingPlayer(2)=1"});
        QVERIFY(!Control(form.get(), "txtStreamingPlayerWindowTitle")->isEnabled());
        // The link goes to the program for HTML files, trimmed.
        Apply(form.get(), {"txtLaunchLink=  http://radio.example/live  "});
        Control<QPushButton>(form.get(), "btnTestUrl")->click();
        QCOMPARE(f.tc.launcher.started, QStringList{"browser.desktop http://radio.example/live"});
        Apply(form.get(), {"chkLaunchLink=0"});

        Apply(form.get(), {"CheckEnabled=0"});
        for (const char* name : {"TextProgramDescription", "dtpkrOnceDate", "chkLaunchLink"})
            QVERIFY2(!Control(form.get(), name)->isEnabled(), name);
        QVERIFY(Control(form.get(), "CommandOk")->isEnabled());
        // Back on, the date rule is applied again but the dependants' rules are not.
        Apply(form.get(), {"CheckEnabled=1"});
        QVERIFY(Control(form.get(), "dtpkrOnceDate")->isEnabled());
        QVERIFY(!Control(form.get(), "CheckDaysOfWeek(1)")->isEnabled());
        QVERIFY(Control(form.get(), "txtLaunchPrior")->isEnabled());
        Apply(form.get(), {"chkLaunchPrior=1", "chkLaunchPrior=0"});
        QVERIFY(!Control(form.get(), "txtLaunchPrior")->isEnabled());

        Control<QPushButton>(form.get(), "CommandOk")->click();
        QVERIFY(form->ProgramFormOk());
    }

    void theEnableDisableDialogAnswers_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("choice");
        QTest::newRow("enable") << "btnEnable" << 0;
        QTest::newRow("disable") << "btnDisable" << 1;
        QTest::newRow("cancel") << "btnCancel" << 2;
    }
    void theEnableDisableDialogAnswers()
    {
        QFETCH(QString, button);
        QFETCH(int, choice);
        WhenModalOpens(
            [button](QDialog* dialog) { Control<QPushButton>(dialog, button)->click(); });
        QCOMPARE(frmEnableDisablePrograms::Ask(nullptr), choice);
    }

    void theMainWindowAddsThroughTheEditorAndOpensTheRowClicked()
    {
        Fixture f;
        f.tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory", f.tc.Root());
        frmMain main(*f.tc.ctx, false);
        main.FirstActivate();
        f.tc.ctx->options.ConfirmLongRecordings = false;

        WhenModalOpens([](QDialog* dialog) {
            Apply(dialog, {"TextProgramDescription=Beta", "dtpkrStartTime=20:00:00",
                           "dtpkrEndTime=21:00:00"});
            Control<QPushButton>(dialog, "CommandOk")->click();
        });
        main.ui.Action("ToolbarPrograms.Add")->trigger();
        QTableView* grid = main.ui.DBGridPrograms;
        QCOMPARE(f.tc.ctx->scheduler.next.NextProgramDescription, QString("Beta"));

        // A double click on a row opens that row, and Clone on the tool bar a copy of it.
        f.Add(Programs::Weekly("Alpha", "20:00:00", "21:00:00", "0100000"));
        const auto opened = [](const std::function<void()>& trigger) {
            QString description;
            WhenModalOpens([&description](QDialog* dialog) {
                description = Control<QLineEdit>(dialog, "TextProgramDescription")->text();
                dialog->reject();
            });
            trigger();
            return description;
        };
        const QString second = grid->model()->index(1, 0).data().toString();
        grid->setCurrentIndex(grid->model()->index(1, 0)); // the press of the double click
        QCOMPARE(opened([&] { emit grid->doubleClicked(grid->model()->index(1, 0)); }), second);
        QCOMPARE(opened([&] { main.ui.Action("ToolbarPrograms.Clone")->trigger(); }), second);
    }
};

QTEST_MAIN(TestFrmProgram)
#include "test_frmProgram.moc"
