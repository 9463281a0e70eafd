#include "ModalDialogs.h"
#include "OpenedContext.h"
#include "diagnostics/frmElog.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QTableView>
#include <QTest>

namespace {

QTableView* Grid(frmElog& form)
{
    return form.findChild<QTableView*>("DBGridLog");
}

QString MessageAt(frmElog& form, int row)
{
    return Grid(form)->model()->index(row, 2).data().toString();
}

// Logs entries a minute apart, so the newest-first order is well defined.
void LogEntries(TestContext& tc, const QStringList& messages, qint16 type = EventError)
{
    for (const QString& message : messages) {
        tc.clock.AdvanceSeconds(60);
        tc.ctx->log.LogEvent(type, message, "details of " + message);
    }
}

// Details and Remove, in the tool bar and in the pop-up menu, go together.
int EnabledCommands(frmElog& form)
{
    int enabled = 0;
    for (const char* name : {"Details", "Remove", "mnuDetails", "mnuRemove"})
        enabled += form.findChild<QAction*>(name)->isEnabled() ? 1 : 0;
    return enabled;
}

QString Setting(TestContext& tc, const char* name)
{
    return tc.ctx->registry.GetSetting("Settings", name, QString());
}

} // namespace

class TestFrmElog : public QObject {
    Q_OBJECT

private slots:
    // Opening counts as viewed; an entry logged while the log is open appears on top by
    // itself and counts as seen; one logged after closing counts again.
    void viewingTheLog()
    {
        OpenedContext tc;
        LogEntries(tc, {"One", "Two"});
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 2);
        {
            frmElog form(tc.ctx->database, tc.ctx->error, tc.ctx->registry, tc.messageBox, nullptr);
            form.show();
            QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 0);
            QVERIFY(!tc.ctx->error.Indication().buttonVisible);
            QCOMPARE(MessageAt(form, 0), QString("Two"));
            QCOMPARE(MessageAt(form, 1), QString("One"));
            QCOMPARE(EnabledCommands(form), 4);
            QVERIFY(QTest::qWaitForWindowActive(&form));
            LogEntries(tc, {"New"});
            QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 0);
            QTRY_COMPARE(MessageAt(form, 0), QString("New"));
            QCOMPARE(MessageAt(form, 1), QString("Two"));
            form.findChild<QAction*>("mnuExit")->trigger();
        }
        LogEntries(tc, {"Unseen"});
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 1);
    }

    // The whole log goes on Yes; on No the rows stay, but the full condition is cleared all
    // the same until the next entry recounts.
    void removingTheLog_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<MsgResult>("answer");
        QTest::addColumn<int>("rowsLeft");
        QTest::newRow("Delete key, Yes") << true << MsgResult::Yes << 0;
        QTest::newRow("Remove button, Yes") << false << MsgResult::Yes << 0;
        QTest::newRow("Remove button, No") << false << MsgResult::No << 3;
    }
    void removingTheLog()
    {
        QFETCH(bool, byKey);
        QFETCH(MsgResult, answer);
        QFETCH(int, rowsLeft);
        OpenedContext tc;
        LogEntries(tc, {"a", "b", "c"});
        tc.ctx->error.SetElogFull(true);
        frmElog form(tc.ctx->database, tc.ctx->error, tc.ctx->registry, tc.messageBox, nullptr);
        form.show();
        Grid(form)->selectRow(1);
        tc.messageBox.answers = {answer};
        if (byKey)
            QTest::keyClick(Grid(form), Qt::Key_Delete);
        else
            form.findChild<QAction*>("Remove")->trigger();
        QCOMPARE(tc.messageBox.asked.size(), 1);
        QCOMPARE(tc.messageBox.asked[0].title, QString("Remove All Error Log Entries"));
        QCOMPARE(tc.messageBox.asked[0].text, QString("This will clear the error log. Proceed?"));
        QCOMPARE(tc.messageBox.asked[0].buttons, MsgButtons::YesNo);
        QCOMPARE(tc.CountRows("EventLog"), rowsLeft);
        QCOMPARE(Grid(form)->model()->rowCount(), rowsLeft);
        QVERIFY(!tc.ctx->error.ElogFull());
        QCOMPARE(EnabledCommands(form), rowsLeft > 0 ? 4 : 0);
    }

    void detailsShowTheCurrentRow_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("typeText");
        QTest::newRow("information") << 0 << QString("Information");
        QTest::newRow("error") << 2 << QString("Error");
        QTest::newRow("unknown type leaves the label") << 7 << QString();
    }
    void detailsShowTheCurrentRow()
    {
        QFETCH(int, type);
        OpenedContext tc;
        tc.clock.Set(QDateTime(QDate(2026, 3, 14), QTime(21, 5, 9)));
        tc.ctx->log.LogEvent(qint16(type), "The headline", "Line one\r\nLine two");
        LogEntries(tc, {"Later"});
        frmElog form(tc.ctx->database, tc.ctx->error, tc.ctx->registry, tc.messageBox, nullptr);
        form.show();
        Grid(form)->setCurrentIndex(Grid(form)->model()->index(1, 1));
        QHash<QString, QString> shown;
        WhenModalOpens([&](QDialog* dialog) {
            for (const char* name :
                 {"lblDate", "lblTime", "lblType", "lblDescription", "lblDetails"})
                shown[name] = dialog->findChild<QLabel*>(name)->text();
            dialog->close();
        });
        QTest::keyClick(Grid(form), Qt::Key_Return);
        QCOMPARE(shown["lblDate"], Options::DateText(AutomationDate::FromDate(QDate(2026, 3, 14))));
        QCOMPARE(shown["lblTime"], Options::TimeText(AutomationDate::FromTime(21, 5, 9)));
        QFETCH(QString, typeText);
        QCOMPARE(shown["lblType"], typeText);
        QCOMPARE(shown["lblDescription"], QString("The headline"));
        QCOMPARE(shown["lblDetails"], QString("Line one\r\nLine two"));
    }

    // The details keep the selected row; the grid's corner selects all rows, or none.
    void selectingRows()
    {
        OpenedContext tc;
        LogEntries(tc, {"a", "b", "c"});
        frmElog form(tc.ctx->database, tc.ctx->error, tc.ctx->registry, tc.messageBox, nullptr);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        Grid(form)->selectRow(2);
        WhenModalOpens([](QDialog* dialog) { dialog->close(); });
        form.findChild<QAction*>("Details")->trigger();
        // The window system gives the focus back to the log when the details close.
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::qWait(50);
        QCOMPARE(Grid(form)->currentIndex().row(), 2);
        const QItemSelectionModel* selection = Grid(form)->selectionModel();
        QCOMPARE(selection->selectedRows().size(), 1);
        QCOMPARE(selection->selectedRows().value(0).row(), 2);

        auto* corner = Grid(form)->findChild<QAbstractButton*>();
        QVERIFY(corner);
        corner->click();
        QCOMPARE(selection->selectedRows().size(), 3);
        corner->click();
        QCOMPARE(selection->selectedRows().size(), 0);
    }

    // Position, size and the first two column widths are kept in twips; a maximised log
    // leaves the stored layout alone.
    void layoutIsSavedOnClose_data()
    {
        QTest::addColumn<bool>("maximised");
        QTest::newRow("normal") << false;
        QTest::newRow("maximised") << true;
    }
    void layoutIsSavedOnClose()
    {
        QFETCH(bool, maximised);
        OpenedContext tc;
        {
            frmElog form(tc.ctx->database, tc.ctx->error, tc.ctx->registry, tc.messageBox, nullptr);
            form.show();
            form.move(40, 60);
            form.resize(600, 400);
            Grid(form)->setColumnWidth(0, 30);
            Grid(form)->setColumnWidth(1, 150);
            if (maximised)
                form.setWindowState(Qt::WindowMaximized);
            form.close();
        }
        if (maximised) {
            QCOMPARE(Setting(tc, "ElogFormWidth"), QString());
            return;
        }
        QCOMPARE(Setting(tc, "ElogFormLeft"), QString::number(40 * 15));
        QCOMPARE(Setting(tc, "ElogFormTop"), QString::number(60 * 15));
        QCOMPARE(Setting(tc, "ElogFormWidth"), QString("9000"));
        QCOMPARE(Setting(tc, "ElogFormHeight"), QString("6000"));
        QCOMPARE(Setting(tc, "ElogFormCol0Width"), QString("450"));
        QCOMPARE(Setting(tc, "ElogFormCol1Width"), QString("2250"));
        frmElog again(tc.ctx->database, tc.ctx->error, tc.ctx->registry, tc.messageBox, nullptr);
        QCOMPARE(again.size(), QSize(600, 400));
        QCOMPARE(Grid(again)->columnWidth(1), 150);
    }
};

QTEST_MAIN(TestFrmElog)
#include "test_frmElog.moc"
