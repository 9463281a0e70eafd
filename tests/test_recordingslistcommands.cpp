#include "FakeRecordingsListView.h"
#include "LogCapture.h"
#include "RecordingsListFixture.h"
#include "TestFiles.h"
#include "recordingslist/RecordingsListCommands.h"

#include <QDir>
#include <QFile>
#include <QTest>

using Command = void (RecordingsListCommands::*)();
Q_DECLARE_METATYPE(Command)

namespace {

struct Fixture : RecordingsListFixture {
    // A file of the recording folder that the MP3 reader takes.
    void OnDisk(const QString& name) const
    {
        QFile file(File(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("can't write %s", qPrintable(file.fileName()));
        file.write(QByteArray(600, 'x'));
    }
    // A row of the list for the file, written to disk unless it is to be missing.
    qint64 Listed(const QString& name, bool onDisk = true)
    {
        if (onDisk)
            OnDisk(name);
        Recordset& rs = database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", File(name));
        rs.Update();
        return rs.LastModified();
    }

    FakeRecordingsListView view;
    RecordingsListCommands commands{database, list, log, messageBox, options, view};
};

} // namespace

class TestRecordingsListCommands : public QObject {
    Q_OBJECT

private slots:
    void changesToTheListAskFirst_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<MsgResult>("answer");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<MsgIcon>("icon");
        QTest::addColumn<int>("rowsLeft");
        QTest::addColumn<int>("filesLeft");
        const Command remove = &RecordingsListCommands::RemoveSelectedRecordingsFromList;
        const Command erase = &RecordingsListCommands::DeleteSelectedRecordingsFromDisk;
        const Command clear = &RecordingsListCommands::ClearRecordingsList;
        const QString removeText = "The selected recordings will be removed from the recording "
                                   "list.  The recordings will not be deleted from disk. Proceed?";
        const QString eraseText = "This will remove recordings PERMANENTLY from disk. Are you "
                                  "sure you want to delete the selected recordings?";
        const QString clearText = "All recordings will be removed from the recording list.  The "
                                  "recordings will not be deleted from disk. Proceed?";
        QTest::newRow("remove from list")
            << remove << true << MsgResult::Yes << "Remove Selected Recordings From List"
            << removeText << MsgIcon::None << 1 << 3;
        QTest::newRow("remove from list, no")
            << remove << true << MsgResult::No << "Remove Selected Recordings From List"
            << removeText << MsgIcon::None << 3 << 3;
        QTest::newRow("remove with nothing selected") << remove << false << MsgResult::Yes << ""
                                                      << "" << MsgIcon::None << 3 << 3;
        QTest::newRow("delete from disk")
            << erase << true << MsgResult::Yes << "Remove Recordings From Disk" << eraseText
            << MsgIcon::Question << 1 << 1;
        QTest::newRow("clear, whatever is selected")
            << clear << false << MsgResult::Yes << "Clear Recordings List" << clearText
            << MsgIcon::None << 0 << 3;
    }
    void changesToTheListAskFirst()
    {
        QFETCH(Command, command);
        QFETCH(bool, selected);
        QFETCH(MsgResult, answer);
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(MsgIcon, icon);
        QFETCH(int, rowsLeft);
        QFETCH(int, filesLeft);
        Fixture f;
        const qint64 a = f.Listed("a.mp3");
        f.Listed("b.mp3");
        const qint64 c = f.Listed("c.mp3");
        if (selected)
            f.view.selected = {a, c};
        f.messageBox.answers = {answer};

        (f.commands.*command)();

        if (title.isEmpty()) {
            QVERIFY(f.messageBox.asked.isEmpty());
        } else {
            QCOMPARE(f.messageBox.asked.size(), 1);
            QCOMPARE(f.messageBox.asked[0].title, title);
            QCOMPARE(f.messageBox.asked[0].text, text);
            QCOMPARE(f.messageBox.asked[0].icon, icon);
            QCOMPARE(f.messageBox.asked[0].buttons, MsgButtons::YesNo);
        }
        QCOMPARE(f.CountRows("Recordings"), rowsLeft);
        QCOMPARE(QDir(f.Folder()).entryList(QDir::Files).size(), filesLeft);
        // What went leaves nothing selected, a refusal keeps the selection; the window
        // follows every time, the mode display after files went.
        if (selected)
            QCOMPARE(f.view.selected.isEmpty(), rowsLeft == 1);
        QCOMPARE(f.view.modeUpdates, filesLeft < 3 ? 1 : 0);
        QCOMPARE(f.view.buttonUpdates, 1);
        QCOMPARE(f.view.statusUpdates, 1);
    }

    void singleRowCommandsWorkOnTheCommandRow()
    {
        Fixture f;
        const qint64 here = f.Listed("here.mp3");
        const qint64 moved = f.Listed("moved.mp3", false);
        const auto all = [&f] {
            f.commands.RecordingsPlay();
            f.commands.ShowRecordingDetails();
            f.commands.ExploreRecording();
            f.commands.CopyRecordingFilename();
        };

        f.view.commandRow = here;
        all();
        QVERIFY(f.messageBox.asked.isEmpty());
        QCOMPARE(f.view.detailsOf, f.File("here.mp3"));
        QCOMPARE(f.view.opened, f.Folder());
        QCOMPARE(f.view.clipboard, f.File("here.mp3"));

        // A file that is gone, or of no length (which goes too), is not played.
        QVERIFY(WriteFile(f.File("empty.mp3"), ""));
        for (const qint64 gone : {moved, f.Listed("empty.mp3", false)}) {
            f.view.commandRow = gone;
            f.commands.RecordingsPlay();
        }
        QVERIFY(!QFile::exists(f.File("empty.mp3")));
        QCOMPARE(f.messageBox.asked.size(), 2);
        QCOMPARE(f.messageBox.asked[0].title, QStringLiteral("Recording file not found"));
        QCOMPARE(f.messageBox.asked[0].text,
                 QStringLiteral("This recording was not found on disk.  The disk file may have "
                                "deleted or moved.  If this file was on removable media verify "
                                "that the recording is on the media. It is also possible that "
                                "the disk drive letters may have been changed by the operating "
                                "system after system reboot."));
        QCOMPARE(f.messageBox.asked[0].icon, MsgIcon::Exclamation);

        // Without a row nothing happens, and none of them counts as a change.
        f.view.commandRow = -1;
        f.view.detailsOf = f.view.opened = f.view.clipboard = QString();
        all();
        QCOMPARE(f.messageBox.asked.size(), 2);
        QVERIFY(f.view.detailsOf.isEmpty() && f.view.opened.isEmpty());
        QVERIFY(f.view.clipboard.isEmpty());
        QCOMPARE(f.view.buttonUpdates, 0);
    }

    void addingAFileOrAFolder_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("listed");
        const Command file = &RecordingsListCommands::AddFileToList;
        const Command folder = &RecordingsListCommands::AddFolderToList;
        QTest::newRow("a file") << file << "/rec/a.mp3" << 1;
        QTest::newRow("no file") << file << "" << 0;
        QTest::newRow("a folder") << folder << "/rec" << 2;
        QTest::newRow("no folder") << folder << "" << 0;
    }
    void addingAFileOrAFolder()
    {
        QFETCH(Command, command);
        QFETCH(QString, answer);
        Fixture f;
        f.OnDisk("a.mp3");
        f.OnDisk("b.mp3");
        f.options.DefaultRecordingDirectory = "/start/here";
        if (!answer.isEmpty())
            f.view.answer = f.Root() + answer;

        (f.commands.*command)();

        QTEST(f.CountRows("Recordings"), "listed");
        if (command == &RecordingsListCommands::AddFileToList)
            QCOMPARE(f.view.askedFilter,
                     QStringLiteral("WAV and MP3 files (*.wav *.mp3 *.WAV *.MP3);;WAV files "
                                    "(*.wav *.WAV);;MP3 files (*.mp3 *.MP3)"));
        else
            QCOMPARE(f.view.askedStart, QStringLiteral("/start/here"));
        QCOMPARE(f.view.buttonUpdates, 1);
    }

    void aFailureIsReportedUnderTheCommandsName_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("windowFollows");
        using C = RecordingsListCommands;
        QTest::newRow("play") << Command(&C::RecordingsPlay) << "RecordingsPlay" << false;
        QTest::newRow("details") << Command(&C::ShowRecordingDetails) << "ShowRecordingDetails"
                                 << false;
        QTest::newRow("explore") << Command(&C::ExploreRecording) << "ExploreRecording" << false;
        QTest::newRow("copy") << Command(&C::CopyRecordingFilename) << "CopyRecordingFilename"
                              << false;
        QTest::newRow("add file") << Command(&C::AddFileToList) << "mnuAddFileToList_Click" << true;
        QTest::newRow("add folder")
            << Command(&C::AddFolderToList) << "mnuAddFolderToList_Click" << true;
        QTest::newRow("remove") << Command(&C::RemoveSelectedRecordingsFromList)
                                << "RemoveSelectedRecordingsFromList" << true;
        QTest::newRow("delete") << Command(&C::DeleteSelectedRecordingsFromDisk)
                                << "DeleteSelectedRecordingsFromDisk" << true;
        QTest::newRow("clear") << Command(&C::ClearRecordingsList) << "ClearRecordingsList" << true;
    }
    void aFailureIsReportedUnderTheCommandsName()
    {
        QFETCH(Command, command);
        QFETCH(QString, name);
        QFETCH(bool, windowFollows);
        Fixture f;
        f.view.fail = true;
        f.messageBox.answers = {MsgResult::Yes};
        f.database.CloseAll();
        LogCapture capture;

        (f.commands.*command)();

        QVERIFY2(capture.Contains("Module: " + name + "\r\n"),
                 qPrintable(capture.lines.join('\n')));
        QCOMPARE(f.view.buttonUpdates, windowFollows ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(TestRecordingsListCommands)
#include "test_recordingslistcommands.moc"
