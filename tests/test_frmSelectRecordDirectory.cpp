#include "MemoryLog.h"
#include "ModalDialogs.h"
#include "ScriptedMessageBox.h"
#include "TestFiles.h"
#include "options/frmSelectExistingRecordDirectory.h"
#include "options/frmSelectRecordDirectory.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

class TestFrmSelectRecordDirectory : public QObject {
    Q_OBJECT

private slots:
    // Paths are under the test's folder, <root>.
    void okTakesTypedPath_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QList<MsgResult>>("answers");
        QTest::addColumn<QString>("titleAsked");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<bool>("folderExistsAfter");
        const auto row = [](const char* tag, const QStringList& folders, const char* typed,
                            const QList<MsgResult>& answers, const char* asked, const char* chosen,
                            bool existsAfter) {
            QTest::newRow(tag) << folders << QString(typed) << answers << QString(asked)
                               << QString(chosen) << existsAfter;
        };
        const QList<MsgResult> yes{MsgResult::Yes};
        const char* create = "Create Folder";
        row("existing folder", {"rec"}, "<root>/rec/", {}, "", "<root>/rec/", true);
        row("relative levels are resolved", {"rec"}, "<root>/x/../rec/", {}, "", "<root>/rec/",
            true);
        // The listing without a closing separator matches the start of names: intended.
        row("start of an existing name", {"recordings"}, "<root>/rec", {}, "", "<root>/rec", false);
        row("missing levels created on Yes", {}, "<root>/a/b/c", yes, create, "<root>/a/b/c/",
            true);
        row("missing folder, No keeps the form open", {}, "<root>/a/b", {MsgResult::No}, create, "",
            false);
        row("blank text", {}, "   ", {}, "Invalid Recording Directory", "", false);
        // A level that can't be made still counts as created; later checks catch it.
        row("folder under a file is accepted", {"file:plain"}, "<root>/plain/sub", yes, create,
            "<root>/plain/sub/", false);
    }
    void okTakesTypedPath()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, typed);
        QFETCH(QList<MsgResult>, answers);
        QTemporaryDir dir;
        const auto inRoot = [&dir](QString path) {
            return path.replace("<root>", dir.path());
        };
        for (const QString& folder : folders) {
            if (folder.startsWith("file:"))
                QVERIFY(WriteFile(dir.filePath(folder.mid(5)), "x"));
            else
                QVERIFY(QDir(dir.path()).mkpath(folder));
        }
        MemoryLog bare;
        ScriptedMessageBox messageBox;
        frmSelectRecordDirectory form(bare.log, messageBox, nullptr, dir.path());
        // The folder proposed comes selected, to be typed over.
        QCOMPARE(form.findChild<QLineEdit*>("txtPath")->selectedText(), dir.path());
        form.show();
        form.findChild<QLineEdit*>("txtPath")->setText(inRoot(typed));
        messageBox.answers = answers;
        form.findChild<QPushButton*>("btnOK")->click();

        QFETCH(QString, titleAsked);
        QCOMPARE(messageBox.asked.size(), titleAsked.isEmpty() ? 0 : 1);
        if (!titleAsked.isEmpty())
            QCOMPARE(messageBox.asked[0].title, titleAsked);
        if (titleAsked == "Create Folder")
            QCOMPARE(messageBox.asked[0].text,
                     "Folder " + inRoot(typed) + " does not exist.  Create it?");
        QFETCH(QString, chosen);
        QCOMPARE(form.SelectedRecordingFolder(), inRoot(chosen));
        QCOMPARE(form.isVisible(), chosen.isEmpty());
        QFETCH(bool, folderExistsAfter);
        QCOMPARE(QFileInfo(inRoot(chosen.isEmpty() ? typed : chosen)).isDir(), folderExistsAfter);
    }

    // Both forms, as the options open them: OK gives the folder with a closing separator
    // (the one typed, or the existing one proposed), Cancel gives nothing.
    void chooseGivesTheAcceptedFolder_data()
    {
        QTest::addColumn<bool>("existing");
        QTest::addColumn<QString>("button");
        QTest::newRow("typed, OK") << false << "btnOK";
        QTest::newRow("typed, Cancel") << false << "btnCancel";
        QTest::newRow("existing, OK") << true << "btnOK";
        QTest::newRow("existing, Cancel") << true << "btnCancel";
    }
    void chooseGivesTheAcceptedFolder()
    {
        QFETCH(bool, existing);
        QFETCH(QString, button);
        QTemporaryDir dir;
        MemoryLog bare;
        ScriptedMessageBox messageBox;
        WhenModalOpens([&](QDialog* dialog) {
            if (!existing)
                dialog->findChild<QLineEdit*>("txtPath")->setText(dir.path() + "/");
            dialog->findChild<QPushButton*>(button)->click();
        });
        const QString folder = existing
                                   ? frmSelectExistingRecordDirectory::Choose(nullptr, dir.path())
                                   : frmSelectRecordDirectory::Choose(bare.log, messageBox, nullptr,
                                                                      dir.path() + "/recordings");
        QCOMPARE(folder, button == "btnOK" ? dir.path() + '/' : QString());
    }
};

QTEST_MAIN(TestFrmSelectRecordDirectory)
#include "test_frmSelectRecordDirectory.moc"
