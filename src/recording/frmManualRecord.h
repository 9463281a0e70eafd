#pragma once

#include "formats/clsRecordingFormat.h"
#include "ui_frmManualRecord.h"

#include <QDialog>

class EventLog;
class MessageBoxPresenter;
class Options;
class RegKeys;
class clsAppStatus;

struct clsManualRecord;

// What the manual recording dialog uses of the rest of the system.
struct ManualRecordServices {
    EventLog& log;
    RegKeys& registry;
    Options& options;
    MessageBoxPresenter& messageBox;
    clsAppStatus& appStatus;
    // Where the dialog leaves its answer.
    clsManualRecord& request;
    // The default format the dialog starts from.
    const clsRecordingFormat& defaultFormat;
    // The recording task, which tests a stream's address.
    QString taskProgram;
};

// "Manual Record": the length, description, format and file name of a recording that starts
// now. It writes its answer into the request and sets Requested only when all checks pass.
// The quick start of keys and joystick loads it without showing it and presses OK itself;
// then the long-recording question is not asked.
class frmManualRecord : public QDialog, public Ui::frmManualRecord {
    Q_OBJECT
public:
    frmManualRecord(const ManualRecordServices& services, bool quickStart, QWidget* owner);

    const bool QuickStart;
    // The user confirmed a format with Modify.
    bool FormatChanged = false;

    void CommandOk_Click();
    // OK's checks and the request they write; the quick start runs it as a step of its own.
    void TakeRequest();
    // The space the recording takes, for the load and the duration's fields; a button's
    // handler lets ShowStorage's failure pass.
    void CalcStorage();
    void ShowStorage();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetUpDurationBox(QLineEdit* box, QToolButton* up, QToolButton* down, int start);
    void Form_Load();
    void ChangeComprMethodButton_Click();
    // The rule on leaving a duration box: its value forced into the range, two digits.
    void ClampDurationBox(QLineEdit* box);
    qint32 DurationSecondsOfFields() const;

    ManualRecordServices m_s;
    // The format that Modify changes; it is used only when the change was accepted.
    clsRecordingFormat m_workingFormat;
};
