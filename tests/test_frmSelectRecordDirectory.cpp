#include "ModalDialogs.h"
#include "TestContext.h"
#include "options/frmSelectExistingRecordDirectory.h"
#include "options/frmSelectRecordDirectory.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

QString Expand(QString text, const QString& root)
{
    return text.replace("<root>", root);
}

} // namespace

class TestFrmSelectRecordDirectory : public QObject {
    Q_OBJECT

private slots:
    void okTakesTypedPath_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QList<MsgResult>>("answers");
        QTest::addColumn<QStringList>("titlesAsked");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<bool>("folderExistsAfter");
        const QStringList none;
        QTest::newRow("existing folder") << QStringList{"rec"} << "<root>/rec/"
                                         << QList<MsgResult>{} << none << "<root>/rec/" << true;
        QTest::newRow("relative levels are resolved")
            << QStringList{"rec"} << "<root>/x/../rec/" << QList<MsgResult>{} << none
            << "<root>/rec/" << true;
        // The listing without a closing separator matches the start of names: intended.
        QTest::newRow("start of an existing name")
            << QStringList{"recordings"} << "<root>/rec" << QList<MsgResult>{} << none
            << "<root>/rec" << false;
        QTest::newRow("missing levels created on Yes")
            << none << "<root>/a/b/c" << QList<MsgResult>{MsgResult::Yes}
            << QStringList{"Create Folder"} << "<root>/a/b/c/" << true;
        QTest::newRow("missing folder, No keeps the form open")
            << none << "<root>/a/b" << QList<MsgResult>{MsgResult::No}
            << QStringList{"Create Folder"} << QString() << false;
        QTest::newRow("blank text")
            << none << "   " << QList<MsgResult>{} << QStringList{"Invalid Recording Directory"}
            << QString() << false;
        // A level that can't be made still counts as created; later checks catch it.
        QTest::newRow("folder under a file is accepted")
            << QStringList{"file:plain"} << "<root>/plain/sub" << QList<MsgResult>{MsgResult::Yes}
            << QStringList{"Create Folder"} << "<root>/plain/sub/" << false;
    }
    void okTakesTypedPath()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, typed);
        QFETCH(QList<MsgResult>, answers);
        TestContext tc;
        const QString root = tc.Root();
        for (const QString& folder : folders) {
            if (folder.startsWith("file:")) {
                QFile file(root + '/' + folder.mid(5));
                QVERIFY(file.open(QIODevice::WriteOnly));
                file.write("x");
            } else {
                QVERIFY(QDir(root).mkpath(folder));
            }
        }
        frmSelectRecordDirectory form(tc.ctx->log, tc.messageBox, nullptr, root);
        form.show();
        form.findChild<QLineEdit*>("txtPath")->setText(Expand(typed, root));
        tc.messageBox.answers = answers;
        form.findChild<QPushButton*>("btnOK")->click();

        QFETCH(QStringList, titlesAsked);
        QStringList titles;
        for (const auto& asked : tc.messageBox.asked)
            titles << asked.title;
        QCOMPARE(titles, titlesAsked);
        if (titles == QStringList{"Create Folder"}) {
            QString full = Expand(typed, root);
            QCOMPARE(tc.messageBox.asked[0].text,
                     "Folder " + full + " does not exist.  Create it?");
        }
        QFETCH(QString, chosen);
        QCOMPARE(form.SelectedRecordingFolder(), Expand(chosen, root));
        QCOMPARE(form.isVisible(), chosen.isEmpty());
        QFETCH(bool, folderExistsAfter);
        const QString folder = Expand(chosen.isEmpty() ? typed : chosen, root);
        QCOMPARE(QFileInfo(folder).isDir(), folderExistsAfter);
    }

    void cancelGivesNoFolder()
    {
        TestContext tc;
        QString chosen = "unchanged";
        WhenModalOpens([&](QDialog* dialog) {
            dialog->findChild<QLineEdit*>("txtPath")->setText(tc.Root());
            dialog->findChild<QPushButton*>("btnCancel")->click();
        });
        chosen = frmSelectRecordDirectory::Choose(tc.ctx->log, tc.messageBox, nullptr,
                                                  tc.Root() + "/recordings");
        QCOMPARE(chosen, QString());
    }

    void chooseGivesTheAcceptedFolder()
    {
        TestContext tc;
        WhenModalOpens([](QDialog* dialog) { dialog->findChild<QPushButton*>("btnOK")->click(); });
        QCOMPARE(
            frmSelectRecordDirectory::Choose(tc.ctx->log, tc.messageBox, nullptr, tc.Root() + "/"),
            tc.Root() + "/");
    }

    void aMissingProposedFolderIsShownAsItStands()
    {
        TestContext tc;
        const QString proposed = tc.Root() + "/not/yet/there";
        frmSelectRecordDirectory form(tc.ctx->log, tc.messageBox, nullptr, proposed);
        auto* txtPath = form.findChild<QLineEdit*>("txtPath");
        QCOMPARE(txtPath->text(), proposed);
        QCOMPARE(txtPath->selectedText(), proposed);
        QCOMPARE(form.windowTitle(), QString("Select Recording Folder"));
    }

    void existingFolderFormGivesTheFolderWithASeparator_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("chosen");
        QTest::newRow("OK") << "btnOK" << true;
        QTest::newRow("Cancel") << "btnCancel" << false;
    }
    void existingFolderFormGivesTheFolderWithASeparator()
    {
        QFETCH(QString, button);
        QFETCH(bool, chosen);
        QTemporaryDir dir;
        WhenModalOpens([&](QDialog* dialog) { dialog->findChild<QPushButton*>(button)->click(); });
        const QString folder = frmSelectExistingRecordDirectory::Choose(nullptr, dir.path());
        QCOMPARE(folder, chosen ? dir.path() + '/' : QString());
    }
};

QTEST_MAIN(TestFrmSelectRecordDirectory)
#include "test_frmSelectRecordDirectory.moc"
