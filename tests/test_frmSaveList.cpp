#include "TestContext.h"
#include "TestFiles.h"
#include "recordingslist/SavedLists.h"
#include "recordingslist/frmLoadList.h"
#include "recordingslist/frmSaveList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace {

struct Fixture {
    Fixture()
    {
        tc.OpenDatabase();
        Recordset& rs = tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", "/rec/one.wav");
        rs.Update();
    }
    QByteArray Saved(const QString& name) const
    {
        return ReadFile(tc.ctx->savedLists.PathOf(name));
    }
    void SaveAs(const QString& name)
    {
        frmSaveList form(tc.ctx->savedLists, tc.ctx->database, tc.ctx->log, tc.messageBox, nullptr);
        form.findChild<QComboBox*>("Combo1")->setCurrentText(name);
        form.frmSave_Click();
    }
    TestContext tc;
};

} // namespace

class TestFrmSaveList : public QObject {
    Q_OBJECT

private slots:
    void savingChecksTheName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("forbidden character") << "a/b"
                                             << "The recordings list name cannot contain any of "
                                                "the following characters:\r\n\\ / : * ? \" < > | ";
        QTest::newRow("blank") << "   "
                               << "The recordings list name cannot be blank";
    }
    void savingChecksTheName()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        Fixture f;
        f.SaveAs(name);
        QCOMPARE(f.tc.messageBox.asked.size(), 1);
        QCOMPARE(f.tc.messageBox.asked[0].title, QStringLiteral("Invalid list name"));
        QCOMPARE(f.tc.messageBox.asked[0].text, text);
        QVERIFY(f.tc.ctx->savedLists.Names().isEmpty());
    }

    void overwritingAsksFirst()
    {
        Fixture f;
        f.SaveAs("Mine ");
        QCOMPARE(f.Saved("Mine"), QByteArray("\"/rec/one.wav\"\r\n"));
        Recordset& rs = f.tc.ctx->database.DataRecordings.recordset();
        rs.AddNew();
        rs.SetValue("File", "/rec/two.wav");
        rs.Update();
        f.tc.messageBox.answers << MsgResult::No;
        f.SaveAs("Mine");
        QCOMPARE(f.tc.messageBox.asked.last().title, QStringLiteral("Overwrite list"));
        QCOMPARE(f.Saved("Mine"), QByteArray("\"/rec/one.wav\"\r\n"));
        f.tc.messageBox.answers << MsgResult::Yes;
        f.SaveAs("Mine");
        QCOMPARE(f.Saved("Mine"), QByteArray("\"/rec/one.wav\"\r\n\"/rec/two.wav\"\r\n"));
    }

    void anEmptyListIsNotSaved()
    {
        Fixture f;
        Recordset& rs = f.tc.ctx->database.DataRecordings.recordset();
        rs.MoveFirst();
        rs.Delete();
        f.SaveAs("Nothing");
        QCOMPARE(f.tc.messageBox.asked.at(0).text, QStringLiteral("No recordings in current list"));
        QVERIFY(f.tc.ctx->savedLists.Names().isEmpty());
    }

    void loadingAsksAndRemovingTheLastListDisablesLoading()
    {
        Fixture f;
        frmLoadList::Open(f.tc.ctx->savedLists, f.tc.ctx->log, f.tc.messageBox, nullptr);
        QCOMPARE(f.tc.messageBox.asked.at(0).title, QStringLiteral("No list exists"));

        f.SaveAs("First");
        f.SaveAs("Second");
        frmLoadList form(f.tc.ctx->savedLists, f.tc.ctx->log, f.tc.messageBox, nullptr);
        auto* list = form.findChild<QListWidget*>("List1");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->currentRow(), 0);
        f.tc.messageBox.answers << MsgResult::No;
        form.btnLoad_Click();
        QCOMPARE(f.tc.messageBox.asked.last().text,
                 QStringLiteral("The current recordings list will be replaced with the selected "
                                "saved list. Proceed?"));
        f.tc.messageBox.answers << MsgResult::Yes << MsgResult::Yes;
        form.btnRemove_Click();
        list->setCurrentRow(0);
        form.btnRemove_Click();
        QCOMPARE(list->count(), 0);
        QVERIFY(!form.findChild<QPushButton*>("btnLoad")->isEnabled());
        QVERIFY(!form.findChild<QPushButton*>("btnRemove")->isEnabled());
        QVERIFY(!form.findChild<QCheckBox*>("chkMerge")->isEnabled());
        QVERIFY(f.tc.ctx->savedLists.Names().isEmpty());
    }
};

QTEST_MAIN(TestFrmSaveList)
#include "test_frmSaveList.moc"
