#pragma once

#include "recording/frmManualRecord.h"

#include <QObject>

class Recorder;
class QWidget;

// The ways to a manual recording and the commands that go with it without a mouse: the
// dialog of the toolbar and the menu; the keys Ctrl+R (quick start), Ctrl+S (stop), Ctrl+P
// (pause), Ctrl+U (resume) and Ctrl+T (toggle) on the widgets it watches; and buttons 1 to
// 4 of a joystick (resume, pause, quick start, stop without a question) once the options
// allow it.
class ManualRecordCommands : public QObject {
    Q_OBJECT
public:
    ManualRecordCommands(const ManualRecordServices& services, Recorder& recorder, QWidget* owner);

    // The entries: each traps what the command it gives fails with.
    // Shows the dialog and starts what it asked for.
    void ToolbarRecord();
    // Starts a recording at once with the dialog's defaults, the dialog never shown.
    void QuickStart();
    // Acts on the five keys with Ctrl alone held, unless the options turn the keys off.
    // True when the key was taken.
    bool HandleCommandKey(int keyCode, Qt::KeyboardModifiers shift);
    void JoystickButtonPress(int button);

protected:
    // Key presses of the widgets this object is installed on reach HandleCommandKey first,
    // so that a table view never swallows them.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The quick start itself; throws what the start failed with.
    void StartQuickly();

    ManualRecordServices m_s;
    Recorder& m_recorder;
    QWidget* m_owner;
};
