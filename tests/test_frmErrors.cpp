#include "ModalDialogs.h"
#include "OpenedContext.h"
#include "diagnostics/frmErrors.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

const QString kNoDevice = "No sound server input found.  Check that PulseAudio or PipeWire is "
                          "running and that an input is not disabled.\n";
const QString kInvalidFolder =
    "Invalid Recording Folder.  Go to View/Options and select a recording folder.\n";
const QString kDiskStop = "Disk Low - no further recording allowed.  Delete recordings from disk "
                          "or change recording folder. You can also change the limit to stop "
                          "recording in View/Options.\n";
const QString kDiskWarn = "Disk Low Warning.  Delete recordings from disk or change recording "
                          "folder. You can also change the disk warning limit in View/Options.\n";
const QString kLogFull = "The Error Log is Full. Go to View/Error Log (or press the View Error "
                         "Log button below) and remove all event log items. \n";
const QString kDbMissing = "Database is missing. Go to Tools/Advanced/Restore Original Database "
                           "to create new database.\n";

enum Condition {
    NoDevice = 1,
    InvalidFolder = 2,
    DiskStop = 4,
    DiskWarn = 8,
    LogFull = 16,
    DbMissing = 32
};

void SetConditions(clsError& error, int conditions)
{
    error.SetNoAudioRecordDevice(conditions & NoDevice);
    error.SetInvalidRecordingDirectory(conditions & InvalidFolder);
    error.SetDiskLowStopRecording(conditions & DiskStop);
    error.SetDiskLowWarn(conditions & DiskWarn);
    error.SetElogFull(conditions & LogFull);
    error.SetDatabaseMissing(conditions & DbMissing);
}

QString ShownConditions(frmErrors& form)
{
    // The blocks end in CR LF; the text box shows each as one line end.
    return form.findChild<QPlainTextEdit*>("txtbxErrors")->toPlainText().replace("\r\n", "\n");
}

} // namespace

class TestFrmErrors : public QObject {
    Q_OBJECT

private slots:
    void eachConditionShowsItsBlockInOrder_data()
    {
        QTest::addColumn<int>("conditions");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing wrong") << 0 << QString("none");
        QTest::newRow("disk low warning") << int(DiskWarn) << kDiskWarn;
        QTest::newRow("disk low stop hides the warning") << (DiskStop | DiskWarn) << kDiskStop;
        QTest::newRow("everything")
            << (NoDevice | InvalidFolder | DiskStop | DiskWarn | LogFull | DbMissing)
            << kNoDevice + kInvalidFolder + kDiskStop + kLogFull + kDbMissing;
    }
    void eachConditionShowsItsBlockInOrder()
    {
        QFETCH(int, conditions);
        TestContext tc;
        SetConditions(tc.ctx->error, conditions);
        frmErrors form(tc.ctx->error, tc.ctx->database, tc.ctx->registry, tc.messageBox, nullptr);
        QTEST(ShownConditions(form), "text");
    }

    // Unviewed entries or a full log offer the log; viewing it clears the count on return.
    void viewingTheLogClearsTheCountOnReturn_data()
    {
        QTest::addColumn<int>("unviewed");
        QTest::addColumn<bool>("full");
        QTest::addColumn<QString>("label");
        QTest::newRow("nothing new") << 0 << false << QString();
        QTest::newRow("one") << 1 << false
                             << QString("There is an unviewed error/warning in the error log.");
        QTest::newRow("three") << 3 << false
                               << QString("There are 3 unviewed errors/warnings in the error log.");
        QTest::newRow("full, all seen") << 0 << true << QString();
    }
    void viewingTheLogClearsTheCountOnReturn()
    {
        QFETCH(int, unviewed);
        QFETCH(bool, full);
        OpenedContext tc;
        for (int i = 0; i < unviewed; ++i)
            tc.ctx->log.LogEvent(EventWarning, "Something", "");
        tc.ctx->error.SetElogFull(full);
        frmErrors form(tc.ctx->error, tc.ctx->database, tc.ctx->registry, tc.messageBox, nullptr);
        auto* label = form.findChild<QLabel*>("lblNumErrors");
        auto* view = form.findChild<QPushButton*>("btnViewElog");
        QTEST(label->text(), "label");
        QCOMPARE(view->isEnabled(), unviewed > 0 || full);
        if (!view->isEnabled())
            return;
        form.show();
        QString shown;
        WhenModalOpens([&](QDialog* dialog) {
            shown = dialog->objectName();
            dialog->close();
        });
        view->click();
        QCOMPARE(shown, QString("frmElog"));
        QCOMPARE(tc.ctx->error.NumUnviewedElogErrors(), 0);
        QCOMPARE(label->text(), QString());
        QCOMPARE(view->isEnabled(), full);
    }
};

QTEST_MAIN(TestFrmErrors)
#include "test_frmErrors.moc"
