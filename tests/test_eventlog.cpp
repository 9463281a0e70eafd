#include "StoreParts.h"
#include "common/RuntimeError.h"
#include "common/UnattendedPath.h"
#include "diagnostics/UnattendedMessageBox.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class TestEventLog : public QObject {
    Q_OBJECT

private slots:
    // The count is taken before the insert: the row that makes 951 does not fill the log.
    void theLogFillsAt951AndStopsAt1000_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("full");
        QTest::addColumn<int>("unviewed");
        QTest::addColumn<bool>("onScreen");
        QTest::newRow("950th row") << 949 << 2 << 950 << false << 1 << false;
        QTest::newRow("951st row") << 950 << 1 << 951 << false << 1 << false;
        QTest::newRow("952nd row") << 951 << 2 << 952 << true << 1 << false;
        QTest::newRow("1000th row") << 999 << 2 << 1000 << true << 1 << false;
        QTest::newRow("dropped") << 1000 << 2 << 1000 << true << 0 << false;
        QTest::newRow("information") << 10 << 0 << 11 << false << 0 << false;
        QTest::newRow("the log on screen") << 10 << 2 << 11 << false << 0 << true;
    }
    void theLogFillsAt951AndStopsAt1000()
    {
        QFETCH(int, before);
        QFETCH(int, type);
        QFETCH(bool, onScreen);
        MemoryLog bare;
        bare.error.SetElogVisible(onScreen);
        bare.entries = QList<LogEntry>(before, LogEntry{2, "old", ""});
        bare.log.LogEvent(qint16(type), "Something happened", "while nobody watched");
        QTEST(int(bare.entries.size()), "after");
        QTEST(bare.error.ElogFull(), "full");
        QTEST(bare.error.NumUnviewedElogErrors(), "unviewed");
    }

    // Without a database nothing is written and nothing counts; once it is open, an entry
    // holds what was logged.
    void anEntryHoldsWhatWasLogged()
    {
        StoreParts s(false);
        s.log.LogEvent(EventError, "No database open", "");
        QCOMPARE(s.error.NumUnviewedElogErrors(), 0);
        QVERIFY(s.Open().isEmpty());
        QCOMPARE(s.database.RowCount(), 0);
        s.log.LogEvent(EventInformation, "First", "");
        s.log.LogRuntimeError("Timer1_Timer", RuntimeError(3021, "No current record."));
        // The count the log fills by is the table's.
        QCOMPARE(s.database.RowCount(), 2);
        Recordset& rs = s.database.ElogRecordset();
        rs.MoveLast();
        QCOMPARE(rs.Value("Type").toInt(), 2);
        QCOMPARE(rs.Value("DateAndTime").toDouble(), s.clock.Now());
        QCOMPARE(rs.Value("Message").toString(), QStringLiteral("Nightreel 2000 Runtime Error"));
        QCOMPARE(rs.Value("Details").toString(),
                 QStringLiteral("Module: Timer1_Timer\r\nError:  3021, No current record."));
    }

    void theIndicationFollowsTheState_data()
    {
        QTest::addColumn<int>("unviewed");
        QTest::addColumn<bool>("diskLow");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<QString>("tip");
        QTest::addColumn<bool>("menu");
        QTest::newRow("nothing") << 0 << false << false << " " << false;
        QTest::newRow("one unviewed")
            << 1 << false << true << "Error occurred - click to view" << false;
        QTest::newRow("two unviewed")
            << 2 << false << true << "Errors occurred - click to view" << false;
        QTest::newRow("a condition")
            << 2 << true << true << "Errors or warnings are present - Click to view" << true;
    }
    void theIndicationFollowsTheState()
    {
        QFETCH(int, unviewed);
        clsError error;
        for (int i = 0; i < unviewed; ++i)
            error.NewElogMsgAdded();
        QFETCH(bool, diskLow);
        error.SetDiskLowWarn(diskLow);
        QTEST(error.Indication().buttonVisible, "visible");
        QTEST(error.Indication().toolTip, "tip");
        QTEST(error.Indication().errorsMenuEnabled, "menu");
    }

    void onlyAChangeUpdatesTheIndication()
    {
        clsError error;
        QSignalSpy updates(&error, &clsError::IndicationUpdated);
        error.SetDatabaseMissing(false); // the first update is forced
        error.SetDatabaseMissing(false);
        QCOMPARE(updates.size(), 1);
        error.SetDatabaseMissing(true);
        QCOMPARE(updates.size(), 2);
        QVERIFY(error.AnyCurrentErrors());
        QVERIFY(!error.AnyCurrentWarnings());
        error.SetElogFull(true);
        QVERIFY(error.AnyCurrentWarnings());
    }

    // A box asked for on the recorder's own paths is shown without waiting and logged; one
    // asked for by a user, also in the events such a path lets run, waits as usual.
    void boxesOnUnattendedPathsDoNotWait_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("loggedType");
        const auto row = [](const char* tag, const char* path, MsgButtons buttons, MsgIcon icon,
                            MsgResult answer, int loggedType) {
            QTest::newRow(tag) << QString(path) << int(buttons) << int(icon) << int(answer)
                               << loggedType;
        };
        row("user's command", "", MsgButtons::YesNo, MsgIcon::Question, MsgResult::Yes, -1);
        row("heartbeat, warning", "unattended", MsgButtons::Ok, MsgIcon::Exclamation, MsgResult::Ok,
            EventWarning);
        row("task link, question", "unattended", MsgButtons::YesNo, MsgIcon::Question,
            MsgResult::No, EventInformation);
        row("conversion, error", "unattended", MsgButtons::OkCancel, MsgIcon::Critical,
            MsgResult::Cancel, EventError);
        row("user's click while the recorder waits", "events", MsgButtons::YesNo, MsgIcon::Question,
            MsgResult::Yes, -1);
    }
    void boxesOnUnattendedPathsDoNotWait()
    {
        QFETCH(QString, path);
        QFETCH(int, buttons);
        QFETCH(int, icon);
        QFETCH(int, loggedType);
        MemoryLog bare;
        ScriptedMessageBox messageBox;
        UnattendedMessageBox boxes(messageBox, bare.log);
        messageBox.answers << MsgResult::Yes;
        MsgResult result = MsgResult::Ok;
        const auto ask = [&] {
            result = boxes.Show("Title", "Text", MsgIcon(icon), MsgButtons(buttons));
        };
        std::optional<UnattendedPath> unattended;
        if (!path.isEmpty())
            unattended.emplace();
        if (path == "events") {
            QTimer::singleShot(0, ask);
            UnattendedPath::LetEventsRun();
        } else {
            ask();
        }
        QTEST(int(result), "answer");
        QCOMPARE(messageBox.asked.size(), 1);
        QCOMPARE(messageBox.asked[0].text, QString("Text"));
        QCOMPARE(messageBox.asked[0].waited, loggedType < 0);
        const QList<LogEntry>& entries = bare.entries;
        QCOMPARE(entries.size(), loggedType < 0 ? 0 : 1);
        if (loggedType >= 0) {
            QCOMPARE(entries[0].type, loggedType);
            QCOMPARE(entries[0].message, QString("Title"));
            QCOMPARE(entries[0].details, QString("Text"));
        }
    }
};

QTEST_GUILESS_MAIN(TestEventLog)
#include "test_eventlog.moc"
